// SPDX-License-Identifier: GPL-3.0-or-later
// Tables by areas far above the records, which hold for long stretches, against plain loops.
#include "small_country.h"

#include <gtest/gtest.h>

#include <cmath>
#include <functional>
#include <random>

namespace kelx::test {
namespace {

/// Regions of districts of persons; districts are empty, tiny or large, and one has no name.
class Districts : public TestDatabase {
public:
    static constexpr std::size_t regions = 4;

    Districts() {
        const std::vector<std::uint64_t> below = {3, 0, 5, 4};
        const std::vector<std::uint64_t> sizes = {0,  17000, 1,     255,  4096, 20001,
                                                  31, 0,     16384, 9000, 7,    3333};
        entity("COUNTRY", "REGION", {regions});
        entity("REGION", "DISTRICT", below);
        entity("DISTRICT", "PERSON", sizes);
        for (std::size_t r = 0; r < regions; ++r)
            regionOf.resize(regionOf.size() + below[r], r);
        for (std::size_t d = 0; d < sizes.size(); ++d)
            districtOf.resize(districtOf.size() + sizes[d], d);
        fill();
    }

    Integers kind, sex, age, tally;
    std::vector<std::optional<std::string>> region;
    std::vector<double> weight, districtWeight;
    std::vector<std::size_t> regionOf, districtOf;

private:
    std::int64_t below(unsigned n) { return static_cast<std::int64_t>(random_() % n); }

    void fill() {
        region = {"North", "Nowhere", std::nullopt, "West"};
        for (std::size_t d = 0; d < regionOf.size(); ++d) {
            kind.push_back(d == 4 ? std::optional<std::int64_t>() : below(3) + 300);
            districtWeight.push_back(d == 9 ? blankReal : 0.7 + static_cast<double>(d) / 3);
        }
        for (std::size_t i = 0; i < districtOf.size(); ++i) {
            sex.push_back(below(40) == 0 ? std::optional<std::int64_t>() : below(2) + 1);
            age.push_back(below(100));
            tally.push_back(below(50) == 0 ? std::optional<std::int64_t>() : below(5));
            weight.push_back(below(30) == 0 ? blankReal
                                            : 0.1 + static_cast<double>(below(999)) / 7);
        }
        texts("REGION", "NAME", region);
        integers("DISTRICT", "KIND", kind);
        reals("DISTRICT", "WT", districtWeight);
        integers("PERSON", "SEX", sex);
        integers("PERSON", "AGE", age).missing = 99;
        integers("PERSON", "TALLY", tally).missing = 0;
        reals("PERSON", "WT", weight);
    }

    std::mt19937 random_{11};
};

class Stretches : public testing::Test {
protected:
    static void SetUpTestSuite() { country_ = std::make_unique<Districts>(); }
    static void TearDownTestSuite() { country_.reset(); }

    using Key = std::function<std::string(std::size_t person)>;
    using Value = std::function<double(std::size_t person)>;

    /// The figures of a program are those of a loop over the persons; an empty key or a NaN leaves
    /// one out. So are the counts of records.
    static void expectSame(const std::string& program, const Key& key, const Value& value) {
        SCOPED_TRACE(program);
        const Outcome outcome = runAll(country_->dictionary, program);
        expectSame(outcome.result.tables.at(0), key, value);
    }
    static void expectSame(const execution::TableResult& table, const Key& key,
                           const Value& value) {
        Figures sums, records;
        for (std::size_t i = 0; i < country_->districtOf.size(); ++i) {
            const std::string name = key(i);
            if (name.empty() || std::isnan(value(i)))
                continue;
            sums[name] += value(i);
            ++records[name];
        }
        EXPECT_EQ(recordCounts(table), records);
        const Figures actual = figures(table);
        ASSERT_EQ(actual.size(), sums.size());
        for (const auto& [name, sum] : sums)
            EXPECT_NEAR(actual.at(name), sum, 1e-9 * std::fabs(sum)) << name;
    }

    static double one(std::size_t) { return 1; }
    static std::string sex(std::size_t i) { return text(country_->sex[i]); }
    static std::string age(std::size_t i) {
        return *country_->age[i] == 99 ? "MV" : text(country_->age[i]);
    }
    static std::string kind(std::size_t i) { return text(country_->kind[country_->districtOf[i]]); }
    static std::string region(std::size_t i) {
        return country_->region[country_->regionOf[country_->districtOf[i]]].value_or("MV");
    }
    static std::string text(const std::optional<std::int64_t>& value) {
        return value ? std::to_string(*value) : "MV";
    }

    static std::unique_ptr<Districts> country_;
};
std::unique_ptr<Districts> Stretches::country_;

TEST_F(Stretches, weighByAreasAlone) {
    expectSame(
        "FREQ REGION.NAME BY DISTRICT.KIND WEIGHT PERSON.WT FILTER PERSON.AGE < 40",
        [](auto i) { return *country_->age[i] < 40 ? region(i) + "|" + kind(i) : std::string(); },
        [](std::size_t i) { return country_->weight[i]; });
}

TEST_F(Stretches, countByOneOrMoreCodesOfTheRecords) {
    expectSame(
        "FREQ REGION.NAME BY PERSON.SEX", [](auto i) { return region(i) + "|" + sex(i); }, one);
    expectSame(
        "FREQ PERSON.AGE BY DISTRICT.KIND FILTER PERSON.SEX = 2",
        [](auto i) { return sex(i) == "2" ? age(i) + "|" + kind(i) : std::string(); }, one);
    expectSame(
        "FREQ PERSON.SEX BY REGION.NAME BY PERSON.TALLY",
        [](auto i) {
            const auto& tally = country_->tally[i];
            return sex(i) + "|" + region(i) + "|" + (tally && *tally == 0 ? "MV" : text(tally));
        },
        one);
    expectSame(
        "RUNDEF r FILTER PERSON.AGE IN (10:60)\n"
        "FREQ DISTRICT.KIND BY PERSON.SEX BY PERSON.AGE",
        [](auto i) {
            const auto years = *country_->age[i];
            return years >= 10 && years <= 60 ? kind(i) + "|" + sex(i) + "|" + age(i)
                                              : std::string();
        },
        one);
}

TEST_F(Stretches, weighByRecord) {
    const auto weight = [](std::size_t i) { return country_->weight[i]; };
    expectSame(
        "FREQ REGION.NAME BY PERSON.SEX BY PERSON.AGE WEIGHT PERSON.WT",
        [](auto i) { return region(i) + "|" + sex(i) + "|" + age(i); }, weight);
    expectSame(
        "FREQ PERSON.SEX WEIGHT PERSON.WT FILTER PERSON.AGE >= 15",
        [](auto i) { return *country_->age[i] >= 15 ? sex(i) : std::string(); }, weight);
    // What is computed has no bounds known beforehand, and is added in another way.
    expectSame(
        "FREQ REGION.NAME BY PERSON.SEX WEIGHT PERSON.WT * 2",
        [](auto i) { return region(i) + "|" + sex(i); },
        [](std::size_t i) { return country_->weight[i] * 2; });
}

TEST_F(Stretches, weighByAreaAndTally) {
    const auto weight = [](std::size_t i) {
        return country_->districtWeight[country_->districtOf[i]];
    };
    const auto tally = [](std::size_t i) {
        const auto& value = country_->tally[i];
        return value && *value != 0 ? static_cast<double>(*value) : blankReal;
    };
    expectSame(
        "FREQ DISTRICT.KIND BY PERSON.SEX WEIGHT DISTRICT.WT",
        [](auto i) { return kind(i) + "|" + sex(i); }, weight);
    expectSame(
        "FREQ PERSON.SEX BY DISTRICT.KIND TALLY PERSON.TALLY WEIGHT DISTRICT.WT "
        "FILTER PERSON.AGE < 70",
        [](auto i) { return *country_->age[i] < 70 ? sex(i) + "|" + kind(i) : std::string(); },
        [&](std::size_t i) { return weight(i) * tally(i); });
}

TEST_F(Stretches, countByNumbersOfRecords) {
    language::BoundProgram program = compiled(country_->dictionary, "FREQ PERSON.SEX");
    auto number = std::make_shared<language::Expression>();
    number->operation = language::Operation::RecordNumber;
    number->type = language::ValueType::Integer;
    number->entity = number->codeEntity = country_->dictionary.findEntity("DISTRICT");
    program.tables[0].dimensions.insert(program.tables[0].dimensions.begin(), number);
    language::Messages messages;
    for (const std::size_t block : {std::size_t{64}, std::size_t{65536}}) {
        execution::RunOptions options;
        options.blockRecords = block;
        const execution::RunResult result = execution::run(program, options, messages);
        expectSame(
            result.tables.at(0),
            [](auto i) { return std::to_string(country_->districtOf[i]) + "|" + sex(i); }, one);
        EXPECT_EQ(std::get<std::int64_t>(result.tables[0].dimensions[0].categories[0].value), 1);
    }
}

} // namespace
} // namespace kelx::test
