// SPDX-License-Identifier: Apache-2.0
#include "kernels.h"

#include <algorithm>
#include <cstring>
#include <immintrin.h>
#include <stdexcept>

namespace kelx::bench {
namespace {

using Bytes32 [[gnu::vector_size(32)]] = Byte;

Bytes32 load(const Byte* from) {
    Bytes32 bytes;
    std::memcpy(&bytes, from, sizeof bytes);
    return bytes;
}

Bytes32 all(unsigned value) {
    return (Bytes32)_mm256_set1_epi8(static_cast<char>(value));
}

std::uint64_t total(Bytes32 bytes) {
    const __m256i sums = _mm256_sad_epu8((__m256i)bytes, _mm256_setzero_si256());
    return static_cast<std::uint64_t>(
        _mm256_extract_epi64(sums, 0) + _mm256_extract_epi64(sums, 1) +
        _mm256_extract_epi64(sums, 2) + _mm256_extract_epi64(sums, 3));
}

/// A byte counter for each code and lane, folded before one could overflow.
template <unsigned Kinds, class Value, class CodeOf>
void compareAll(std::size_t begin, std::size_t end, const Value& valueAt, const CodeOf& codeOf,
                std::uint64_t* counts) {
    for (std::size_t i = begin; i + 32 <= end;) {
        Bytes32 sums[Kinds] = {};
        const std::size_t steps = std::min<std::size_t>((end - i) / 32, 255);
        for (std::size_t step = 0; step < steps; ++step, i += 32) {
            const Bytes32 value = valueAt(i);
#pragma GCC unroll 16
            for (unsigned k = 0; k < Kinds; ++k)
                sums[k] -= (Bytes32)(value == all(codeOf(k)));
        }
        for (unsigned k = 0; k < Kinds; ++k)
            counts[codeOf(k)] += total(sums[k]);
    }
}

void countSexBetween(const Byte* sex, std::size_t begin, std::size_t end, std::uint64_t* counts) {
    compareAll<2>(
        begin, end, [&](std::size_t i) { return load(sex + i); }, [](unsigned k) { return k + 1; },
        counts);
    for (std::size_t i = end - (end - begin) % 32; i < end; ++i)
        ++counts[sex[i]];
}

/// Counters by code, eight in turn.
struct Tables {
    std::uint32_t counters[8][256] = {};

    void add(const Byte* codes, std::size_t count) {
        std::size_t i = 0;
        for (; i + 8 <= count; i += 8) {
            std::uint64_t eight = 0;
            std::memcpy(&eight, codes + i, 8);
#pragma GCC unroll 8
            for (unsigned k = 0; k < 8; ++k)
                ++counters[k][eight >> (8 * k) & 255];
        }
        for (; i < count; ++i)
            ++counters[0][codes[i]];
    }
    void fold(std::uint64_t* counts) {
        for (const auto& table : counters) {
            for (unsigned k = 0; k < 256; ++k)
                counts[k] += table[k];
        }
        std::memset(counters, 0, sizeof counters);
    }
};

/// Persons of some households, with what they take from their household, in the first-level cache.
class Expanded {
public:
    /// Takes households until there are enough persons; gives the next household.
    std::size_t fill(const Census& census, std::size_t household, std::size_t end) {
        count = 0;
        for (; household < end && count < enough; ++household) {
            const std::size_t size =
                census.firstPerson[household + 1] - census.firstPerson[household];
            if (count > 0 && count + size > room)
                break;
            if (size > room)
                throw std::runtime_error("a household is too large for the kernel");
            put(census, household, size);
        }
        return household;
    }

    static constexpr std::size_t enough = 1024;
    static constexpr std::size_t room = 4096;
    alignas(64) double weights[room + 32] = {};
    alignas(64) Byte types[room + 32] = {};
    std::size_t count = 0;

private:
    /// Small households are written as one stretch of eight, whose rest the next one overwrites.
    void put(const Census& census, std::size_t household, std::size_t size) {
        const auto type = static_cast<char>(census.type[household] * educationPlaces);
        const __m256d weight = _mm256_set1_pd(census.weight[household]);
        const std::size_t stretch = (size + 7) / 8 * 8;
        std::size_t i = 0;
        do {
            _mm_storel_epi64(reinterpret_cast<__m128i*>(types + count + i), _mm_set1_epi8(type));
            _mm256_storeu_pd(weights + count + i, weight);
            _mm256_storeu_pd(weights + count + i + 4, weight);
            i += 8;
        } while (i < stretch);
        count += size;
    }
};

} // namespace

void countSex(const Census& census, std::size_t begin, std::size_t end, Counts& counts) {
    countSexBetween(census.sex, census.districtPersons[begin], census.districtPersons[end],
                    counts.data());
}

void countAge(const Census& census, std::size_t begin, std::size_t end, Counts& counts) {
    Tables tables;
    const std::size_t first = census.districtPersons[begin];
    tables.add(census.age + first, census.districtPersons[end] - first);
    tables.fold(counts.data());
}

void countMaritalBySex(const Census& census, std::size_t begin, std::size_t end, Counts& counts) {
    const std::size_t first = census.districtPersons[begin];
    const std::size_t last = census.districtPersons[end];
    // Codes 1 to 5, 8 and 9 by both sexes; those under 15 are 0.
    const auto cell = [](unsigned k) { return k < 10 ? k + 3 : k + 7; };
    const auto value = [&](std::size_t i) {
        const Bytes32 marital = load(census.marital + i);
        const Bytes32 old = (Bytes32)(load(census.age + i) >= all(15));
        return (marital + marital + load(census.sex + i)) & old;
    };
    compareAll<14>(first, last, value, cell, counts.data());
    for (std::size_t i = last - (last - first) % 32; i < last; ++i) {
        if (census.age[i] >= 15)
            ++counts[census.marital[i] * 2U + census.sex[i]];
    }
}

void weighTypeByEducation(const Census& census, std::size_t begin, std::size_t end,
                          std::vector<double>& sums) {
    Expanded households;
    alignas(64) Byte cells[Expanded::room + 32];
    double lanes[4][256] = {};
    std::size_t household = census.firstHousehold[begin];
    const std::size_t last = census.firstHousehold[end];
    while (household < last) {
        const Byte* education = census.education + census.firstPerson[household];
        household = households.fill(census, household, last);
        const std::size_t count = households.count;
        for (std::size_t i = 0; i < count; ++i)
            cells[i] = static_cast<Byte>(households.types[i] + education[i] -
                                         (education[i] >= 98 ? 80 : 0));
        std::size_t i = 0;
        for (; i + 4 <= count; i += 4) {
#pragma GCC unroll 4
            for (unsigned lane = 0; lane < 4; ++lane)
                lanes[lane][cells[i + lane]] += households.weights[i + lane];
        }
        for (; i < count; ++i)
            lanes[0][cells[i]] += households.weights[i];
    }
    for (std::size_t cell = 0; cell < 256; ++cell)
        sums[cell] += lanes[0][cell] + lanes[1][cell] + lanes[2][cell] + lanes[3][cell];
}

void countDistrictsBySex(const Census& census, std::size_t begin, std::size_t end, Counts& counts) {
    for (std::size_t district = begin; district < end; ++district)
        countSexBetween(census.sex, census.districtPersons[district],
                        census.districtPersons[district + 1], counts.data() + district * 256);
}

/// A bit for each person, then one shift, mask and population count for each household.
void countChildren(const Census& census, std::size_t begin, std::size_t end, Counts& counts) {
    constexpr std::size_t persons = 16384;
    alignas(64) Byte bits[persons / 8 + 64] = {};
    std::uint32_t found[4][256] = {};
    const std::uint32_t* first = census.firstPerson;
    std::size_t household = census.firstHousehold[begin];
    const std::size_t last = census.firstHousehold[end];
    while (household < last) {
        const std::uint32_t base = first[household];
        const auto stop = static_cast<std::size_t>(
            std::upper_bound(first + household, first + last + 1, base + persons) - first - 1);
        if (stop <= household)
            throw std::runtime_error("a household is too large for the kernel");
        const std::size_t count = first[stop] - base;
        for (std::size_t i = 0; i < count; i += 32) {
            const std::size_t at = std::min(base + i, census.persons - 32);
            const auto child = (__m256i)(Bytes32)(load(census.age + at) < all(15));
            const auto mask = static_cast<std::uint32_t>(_mm256_movemask_epi8(child));
            const std::uint32_t shifted = base + i - at < 32 ? mask >> (base + i - at) : 0;
            std::memcpy(bits + i / 8, &shifted, 4);
        }
        for (std::size_t at = 0; household < stop; ++household) {
            const std::size_t next = first[household + 1] - base;
            std::uint64_t eight = 0;
            std::memcpy(&eight, bits + at / 8, 8);
            const auto size = static_cast<unsigned>(std::min<std::size_t>(next - at, 56));
            ++found[household & 3][_mm_popcnt_u64(_bzhi_u64(eight >> (at & 7), size))];
            at = next;
        }
    }
    for (const auto& table : found) {
        for (std::size_t k = 0; k < 256; ++k)
            counts[k] += table[k];
    }
}

void countProvinceSexAge(const Census& census, std::size_t begin, std::size_t end, Counts& counts) {
    constexpr std::size_t step = 8192;
    alignas(64) Byte cells[step];
    Tables tables;
    for (std::size_t province = 0; province < census.provinces; ++province) {
        const std::size_t from = std::max<std::size_t>(begin, census.firstDistrict[province]);
        const std::size_t to = std::min<std::size_t>(end, census.firstDistrict[province + 1]);
        if (from >= to)
            continue;
        const std::size_t last = census.districtPersons[to];
        for (std::size_t i = census.districtPersons[from]; i < last; i += step) {
            const std::size_t count = std::min(step, last - i);
            for (std::size_t k = 0; k < count; ++k)
                cells[k] = static_cast<Byte>((census.sex[i + k] << 7) + 128) | census.age[i + k];
            tables.add(cells, count);
        }
        tables.fold(counts.data() + province * 256);
    }
}

void pickIncomes(const Census& census, std::size_t begin, std::size_t end,
                 const std::vector<std::size_t>& groupOf, const std::vector<Window>& windows,
                 WindowFindings& found) {
    std::vector<double> inside;
    for (std::size_t district = begin; district < end; ++district) {
        const std::size_t group = groupOf[district];
        const double low = windows[group].low;
        const double high = windows[group].high;
        const double* values = census.income + census.districtPersons[district];
        const std::size_t count =
            census.districtPersons[district + 1] - census.districtPersons[district];
        inside.resize(count + 1);
        std::size_t kept = 0;
        std::uint64_t below = 0;
        std::uint64_t valid = 0;
        for (std::size_t i = 0; i < count; ++i) {
            const double value = values[i];
            const bool isValid = value == value && value != census.incomeNotApplicable;
            inside[kept] = value;
            kept += (value >= low) & (value <= high) & isValid;
            below += (value < low) & isValid;
            valid += isValid;
        }
        found.below[group] += below;
        found.valid[group] += valid;
        auto& all = found.inside[group];
        all.insert(all.end(), inside.begin(), inside.begin() + static_cast<std::ptrdiff_t>(kept));
    }
}

} // namespace kelx::bench
