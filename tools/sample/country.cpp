// SPDX-License-Identifier: Apache-2.0
#include "sample/country.h"

#include "sample/random.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <set>

namespace kelx::tools {

namespace {

enum Stream : std::uint64_t { Names = 1, Traits = 2 };

class NameMaker {
public:
    explicit NameMaker(std::uint64_t seed) : random_(seed, Names, 0) {}

    std::string place() {
        for (;;) {
            std::string name = word();
            if (taken_.insert(name).second)
                return name;
        }
    }

    /// Some districts are named after what lies there.
    std::string district() {
        static constexpr std::array<const char*, 4> before = {"Upper ", "Lower ", "New ", "Port "};
        static constexpr std::array<const char*, 4> after = {" Bay", " Hills", " Valley", " Cross"};
        std::string name = place();
        switch (random_.below(8)) {
        case 0:
            return before[static_cast<std::size_t>(random_.below(4))] + name;
        case 1:
            return name + after[static_cast<std::size_t>(random_.below(4))];
        default:
            return name;
        }
    }

private:
    std::string word() {
        static constexpr std::array<const char*, 18> onsets = {"b", "br", "d", "dr", "f", "g",
                                                               "k", "l",  "m", "n",  "p", "r",
                                                               "s", "st", "t", "tr", "v", "z"};
        static constexpr std::array<const char*, 8> vowels = {"a", "e",  "i",  "o",
                                                              "u", "ia", "ei", "au"};
        static constexpr std::array<const char*, 8> ends = {"",  "n",  "r",  "s",
                                                            "l", "th", "ra", "na"};
        std::string name;
        for (int left = random_.between(2, 3); left > 0; --left) {
            name += onsets[static_cast<std::size_t>(random_.below(18))];
            name += vowels[static_cast<std::size_t>(random_.below(8))];
        }
        name += ends[static_cast<std::size_t>(random_.below(8))];
        name[0] = static_cast<char>(name[0] - 'a' + 'A');
        return name;
    }

    Random random_;
    std::set<std::string> taken_;
};

std::string twoDigits(std::uint64_t number) {
    return {static_cast<char>('0' + number / 10 % 10), static_cast<char>('0' + number % 10)};
}

/// Traits of a district and its share of the population, before all are added up.
double shape(District& district, std::size_t index, std::uint64_t seed) {
    Random random(seed, Traits, index);
    const bool capital = index == 0;
    district.urban = capital ? 0.96 : 0.12 + 0.68 * random.unit() * random.unit();
    const double area = capital ? 180 + 90 * random.unit() : 120 + 2600 * random.unit();
    district.areaKm2 = std::round(area * 10) / 10;
    district.baseWeight = 1.02 + 0.10 * random.unit();
    return capital ? 5.0 : 0.35 + 0.6 * random.unit() + 1.2 * district.urban;
}

} // namespace

Country makeCountry(std::uint64_t persons, std::uint64_t seed) {
    const std::uint64_t districts = std::clamp<std::uint64_t>(persons / 500, 4, 500);
    const std::uint64_t provinces = std::clamp<std::uint64_t>(
        static_cast<std::uint64_t>(std::lround(std::sqrt(static_cast<double>(districts)))), 2, 22);
    NameMaker names(seed);
    Country country;
    std::vector<double> shares;
    for (std::uint64_t p = 0; p < provinces; ++p) {
        Province& province = country.provinces.emplace_back();
        province.code = twoDigits(p + 1);
        province.name = names.place();
        province.districts = districts / provinces + (p < districts % provinces ? 1 : 0);
        for (std::uint64_t d = 0; d < province.districts; ++d) {
            District& district = country.districts.emplace_back();
            district.province = static_cast<int>(p);
            district.code = twoDigits(d + 1);
            district.name = d == 0 ? province.name : names.district();
            shares.push_back(shape(district, country.districts.size() - 1, seed));
        }
    }
    double total = 0;
    for (const double share : shares)
        total += share;
    double running = 0;
    std::uint64_t given = 0;
    for (std::size_t i = 0; i < shares.size(); ++i) {
        running += shares[i];
        const bool last = i + 1 == shares.size();
        const auto upTo =
            last ? persons
                 : static_cast<std::uint64_t>(static_cast<double>(persons) * (running / total));
        country.districts[i].persons = upTo - given;
        given = upTo;
    }
    return country;
}

} // namespace kelx::tools
