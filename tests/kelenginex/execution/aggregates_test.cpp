// SPDX-License-Identifier: GPL-3.0-or-later
// Variables made of the records below. Expected values by hand, or by plain loops here.
#include "counting_column.h"
#include "define_fixture.h"

#include "execution/kernels.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <numeric>
#include <random>

namespace kelx::test {
namespace {

using Kind = Aggregate::Kind;
using Strings = std::vector<std::string>;

class Aggregates : public testing::Test {
protected:
    Strings made(ValueType type, const std::string& entity, Kind kind, const std::string& over,
                 const std::string& value = {}, const std::string& filter = {},
                 const std::string& weight = {}) {
        return program_.made(type, entity, program_.aggregate(kind, over, value, filter, weight));
    }

    SmallCountry country_;
    DefineProgram program_{country_.dictionary};
};

// Households hold the persons 0 1 / 2 / 3 4 5 / - / 6 7, provinces the households 0 1 / 2 / 3 4.
// Ages 34, 99 (MV), 98 (NA), 7, 7, 70, blank, 15; incomes 100.5, 0, -, 0, -, 20, 100.5, -3;
// sex 1 2 2 1 1 2 2 1.

TEST_F(Aggregates, countsRecordsBelowAtAnyDistance) {
    const auto count = [&](const char* entity, const char* over, const char* filter = "") {
        return made(ValueType::Integer, entity, Kind::Count, over, "", filter);
    };
    EXPECT_EQ(count("HOUSEHOLD", "PERSON"), listed("2 1 3 0 2"));
    EXPECT_EQ(count("PROVINCE", "PERSON"), listed("3 3 2"));
    EXPECT_EQ(count("COUNTRY", "PERSON"), listed("8"));
    EXPECT_EQ(count("PROVINCE", "HOUSEHOLD"), listed("2 1 2"));
    EXPECT_EQ(count("HOUSEHOLD", "PERSON", "PERSON.AGE < 15"), listed("0 0 2 0 0"));
    EXPECT_EQ(count("PROVINCE", "PERSON", "HOUSEHOLD.TYPE = 2"), listed("1 0 2"));
    EXPECT_EQ(count("PROVINCE", "HOUSEHOLD", "PERSON.SEX = 1"), listed("1 1 1"));
    EXPECT_EQ(count("COUNTRY", "HOUSEHOLD", "PERSON.AGE > 1000"), listed("0"));
    EXPECT_EQ(count("HOUSEHOLD", "PERSON", "PROVINCE = \"03\""), listed("0 0 0 0 2"));
    Aggregate both = program_.aggregate(Kind::Count, "PERSON", "", "PERSON.SEX = 1");
    both.filters.push_back(program_.condition("PERSON.AGE < 30"));
    EXPECT_EQ(program_.made(ValueType::Integer, "HOUSEHOLD", both), listed("0 0 2 0 1"));
}

TEST_F(Aggregates, countsOfOtherTypesAndWithRanges) {
    EXPECT_EQ(made(ValueType::Real, "HOUSEHOLD", Kind::Count, "PERSON"), listed("2 1 3 0 2"));
    EXPECT_EQ(made(ValueType::Boolean, "HOUSEHOLD", Kind::Count, "PERSON"), listed("1 1 1 0 1"));
    EXPECT_EQ(made(ValueType::String, "HOUSEHOLD", Kind::Count, "PERSON"), listed("2 1 3 0 2"));
    auto& definition = program_.bound.definitions[0];
    definition.variable->type = ValueType::Integer;
    definition.variable->ranges = {{4, 1, 2}};
    program_.make();
    EXPECT_EQ(DefineProgram::valuesOf(*definition.variable), listed("2 1 . . 2"));
}

TEST_F(Aggregates, leaveMissingAndNotApplicableOut) {
    const auto age = [&](ValueType type, Kind kind, const char* entity = "HOUSEHOLD") {
        return made(type, entity, kind, "PERSON", "PERSON.AGE");
    };
    EXPECT_EQ(age(ValueType::Integer, Kind::Sum), listed("34 0 84 0 15"));
    EXPECT_EQ(age(ValueType::Real, Kind::Average), listed("34 . 28 . 15"));
    EXPECT_EQ(age(ValueType::Real, Kind::Median), listed("34 . 7 . 15"));
    EXPECT_EQ(age(ValueType::Integer, Kind::Minimum), listed("34 . 7 . 15"));
    EXPECT_EQ(age(ValueType::Integer, Kind::Maximum), listed("34 . 70 . 15"));
    // 7 7 15 34 70 in all.
    EXPECT_EQ(age(ValueType::Real, Kind::Average, "COUNTRY"), listed("26.6"));
    EXPECT_EQ(age(ValueType::Integer, Kind::Average, "COUNTRY"), listed("27"));
    EXPECT_EQ(age(ValueType::Real, Kind::Median, "COUNTRY"), listed("15"));
    const auto income = [&](Kind kind) {
        return made(ValueType::Real, "HOUSEHOLD", kind, "PERSON", "PERSON.INCOME");
    };
    EXPECT_EQ(income(Kind::Sum), listed("100.5 0 20 0 97.5"));
    EXPECT_EQ(income(Kind::Average), listed("50.25 . 10 . 48.75"));
    EXPECT_EQ(income(Kind::Median), listed("50.25 . 10 . 48.75"));
    EXPECT_EQ(income(Kind::Minimum), listed("0 . 0 . -3"));
    EXPECT_EQ(income(Kind::Maximum), listed("100.5 . 20 . 100.5"));
}

TEST_F(Aggregates, weightsOfTheirOwnEntityOrAbove) {
    const auto weighted = [&](Kind kind, const char* entity, const char* value,
                              const char* weight) {
        return made(ValueType::Real, entity, kind, "PERSON", value, "", weight);
    };
    EXPECT_EQ(weighted(Kind::Count, "PROVINCE", "", "HOUSEHOLD.WT"), listed("5 1.5 2"));
    EXPECT_EQ(weighted(Kind::Count, "HOUSEHOLD", "", "PERSON.AGE"), listed("34 0 84 0 15"));
    EXPECT_EQ(weighted(Kind::Sum, "COUNTRY", "PERSON.AGE", "HOUSEHOLD.WT"), listed("108"));
    EXPECT_EQ(weighted(Kind::Average, "COUNTRY", "PERSON.AGE", "HOUSEHOLD.WT"), listed("27"));
    // Of 7 (1), 15 (1), 34 (1.5) and 70 (0.5) half the weight is reached at 15.
    EXPECT_EQ(weighted(Kind::Median, "COUNTRY", "PERSON.AGE", "HOUSEHOLD.WT"), listed("15"));
    EXPECT_EQ(weighted(Kind::Maximum, "HOUSEHOLD", "PERSON.AGE", "PERSON.INCOME"),
              listed("34 . 70 . 15"));
    EXPECT_EQ(weighted(Kind::Average, "HOUSEHOLD", "PERSON.AGE", "0"), listed(". . . . ."));
    EXPECT_EQ(weighted(Kind::Sum, "HOUSEHOLD", "2", "3"), listed("12 6 18 0 12"));
    EXPECT_EQ(weighted(Kind::Sum, "PROVINCE", "HOUSEHOLD.TYPE", "1"), listed("4 3 4"));
}

TEST_F(Aggregates, wholeSumsAreExactOrMissing) {
    const char* huge = "PERSON.SEX * 4611686018427387905";
    // Twice 4611686018427387905 leaves 64 bits: such products are MV, the others are summed.
    EXPECT_EQ(made(ValueType::Integer, "HOUSEHOLD", Kind::Sum, "PERSON", huge),
              listed("4611686018427387905 0 . 0 4611686018427387905"));
    EXPECT_EQ(made(ValueType::Integer, "HOUSEHOLD", Kind::Maximum, "PERSON",
                   "PERSON.SEX + 9007199254740992"),
              listed("9007199254740994 9007199254740994 9007199254740994 . 9007199254740994"));
    EXPECT_EQ(made(ValueType::Real, "PROVINCE", Kind::Sum, "PERSON", huge),
              listed("4611686018427387904 9223372036854775808 4611686018427387904"));
    EXPECT_EQ(made(ValueType::Integer, "HOUSEHOLD", Kind::Sum, "PERSON", "PERSON.JOB"),
              listed("1 0 1 0 1"));
}

TEST_F(Aggregates, quotientsAreMissingWithoutDenominator) {
    auto& share = program_.add("HOUSEHOLD", "SHARE", ValueType::Real,
                               program_.aggregate(Kind::Count, "PERSON", "", "PERSON.SEX = 1"));
    share.denominator = program_.aggregate(Kind::Count, "PERSON", "", "PERSON.AGE < 80");
    program_.make();
    EXPECT_EQ(DefineProgram::valuesOf(*share.variable), listed("1 . 0.6666666666666666 . 1"));
    share.variable->entity = country_.dictionary.findEntity("PROVINCE");
    share.numerator = program_.aggregate(Kind::Sum, "PERSON", "PERSON.AGE");
    share.denominator = program_.aggregate(Kind::Sum, "HOUSEHOLD", "HOUSEHOLD.TYPE");
    program_.make();
    EXPECT_EQ(DefineProgram::valuesOf(*share.variable), listed("11.333333333333334 84 7.5"));
    share.numerator =
        program_.aggregate(Kind::Average, "PERSON", "PERSON.AGE", "HOUSEHOLD.TYPE = 2");
    program_.make();
    EXPECT_EQ(DefineProgram::valuesOf(*share.variable), listed(". . 7.5"));
}

TEST_F(Aggregates, aLaterDefinitionUsesEarlierOnes) {
    const auto kids = program_
                          .add("HOUSEHOLD", "KIDS", ValueType::Integer,
                               program_.aggregate(Kind::Count, "PERSON", "", "PERSON.AGE < 16"))
                          .variable;
    Aggregate most = program_.aggregate(Kind::Maximum, "HOUSEHOLD");
    most.value = ExpressionPtr(variable(*kids));
    const auto made = program_.add("PROVINCE", "MOST", ValueType::Integer, most).variable;
    program_.make();
    EXPECT_EQ(DefineProgram::valuesOf(*made), listed("0 2 1"));
    language::Messages messages;
    const auto result =
        execution::run(program_.withFrequencyOf(*kids), execution::RunOptions{}, messages);
    EXPECT_EQ(figures(result.tables.at(0)), (Figures{{"0", 3}, {"1", 1}, {"2", 1}}));
}

TEST_F(Aggregates, entitiesWithoutRecords) {
    country_.entity("HOUSEHOLD", "EMIGRANT", {0, 0, 0, 0, 0});
    country_.entity("EMIGRANT", "CHILD", {});
    EXPECT_EQ(made(ValueType::Integer, "HOUSEHOLD", Kind::Count, "EMIGRANT"), listed("0 0 0 0 0"));
    EXPECT_EQ(made(ValueType::Real, "COUNTRY", Kind::Median, "CHILD", "7"), listed("."));
    EXPECT_EQ(made(ValueType::Integer, "EMIGRANT", Kind::Count, "CHILD"), Strings());
    EXPECT_EQ(program_.made(ValueType::String, "CHILD", constant(std::string("x"))), Strings());
}

TEST_F(Aggregates, refuseWhatLiesNotBelow) {
    country_.entity("HOUSEHOLD", "EMIGRANT", {1, 0, 0, 0, 1});
    for (const auto& [entity, over] : std::vector<std::pair<const char*, const char*>>{
             {"PERSON", "HOUSEHOLD"}, {"PERSON", "PERSON"}, {"EMIGRANT", "PERSON"}}) {
        program_.bound.definitions.clear();
        program_.add(entity, "NEW", ValueType::Integer, program_.aggregate(Kind::Count, over));
        EXPECT_THROW(program_.make(), std::runtime_error) << entity << over;
    }
    program_.bound.definitions.clear();
    program_.add("HOUSEHOLD", "NEW", ValueType::Integer,
                 program_.aggregate(Kind::Count, "EMIGRANT", "", "PERSON.SEX = 1"));
    EXPECT_THROW(program_.make(), std::runtime_error);
    Aggregate texts = program_.aggregate(Kind::Sum, "PERSON");
    texts.value =
        ExpressionPtr(variable(*country_.dictionary.findEntity("PERSON")->findVariable("NAME")));
    program_.bound.definitions.clear();
    program_.add("HOUSEHOLD", "NEW", ValueType::Integer, texts);
    EXPECT_THROW(program_.make(), std::runtime_error);
}

TEST(CountRuns, agreesWithAPlainLoop) {
    std::mt19937 random(7);
    for (const unsigned longest : {1U, 8U, 57U, 300U, 20000U}) {
        std::vector<std::uint32_t> offsets = {4000000000U};
        for (std::size_t run = 0; run < 500 && offsets.back() - offsets[0] < 200000; ++run)
            offsets.push_back(offsets.back() +
                              static_cast<std::uint32_t>(random() % (longest + 1)));
        std::vector<std::uint8_t> mask(offsets.back() - offsets[0]);
        for (auto& byte : mask)
            byte = random() % 3 == 0 ? 0 : 0xff;
        const std::size_t runs = offsets.size() - 1;
        std::vector<std::uint8_t> expected;
        std::uint64_t most = 0;
        for (std::size_t run = 0; run < runs; ++run) {
            const auto begin = mask.begin() + (offsets[run] - offsets[0]);
            const auto end = mask.begin() + (offsets[run + 1] - offsets[0]);
            const auto count = static_cast<std::uint64_t>(std::count(begin, end, 0xff));
            most = std::max(most, count);
            expected.push_back(static_cast<std::uint8_t>(count));
        }
        for (const auto* kernels : {&execution::kernels(), &execution::baselineKernels()}) {
            std::vector<std::uint8_t> found(runs);
            EXPECT_EQ(kernels->countRuns(mask.data(), offsets.data(), runs, found.data()),
                      most <= execution::mostInRun);
            EXPECT_EQ(found, expected) << longest;
        }
    }
}

/// 3 regions, 1000 areas of 0 to 300 households, households of 0 to 6 persons and a few of
/// hundreds; about 1.3 million persons, so that regions are worked on in several pieces.
class Wide : public testing::Test {
protected:
    static void SetUpTestSuite() {
        db_ = std::make_unique<TestDatabase>();
        std::mt19937 random(11);
        const auto below = [&](unsigned n) { return random() % n; };
        db_->entity("COUNTRY", "REGION", {3});
        db_->entity("REGION", "AREA", {10, 0, 990});
        std::vector<std::uint64_t> areas(1000);
        for (auto& size : areas)
            size = below(3) == 0 ? 0 : below(901);
        db_->entity("AREA", "HOUSEHOLD", areas);
        const auto households =
            static_cast<std::size_t>(std::accumulate(areas.begin(), areas.end(), std::uint64_t{0}));
        std::vector<std::uint64_t> sizes(households);
        for (auto& size : sizes)
            size = below(20000) == 0 ? 200 + below(400) : below(8);
        db_->entity("HOUSEHOLD", "PERSON", sizes);
        std::vector<std::optional<std::int64_t>> weights;
        std::size_t h = 0;
        for (std::size_t a = 0; a < areas.size(); ++a) {
            for (std::uint64_t i = 0; i < areas[a]; ++i, ++h) {
                weights.push_back(static_cast<std::int64_t>(below(5)));
                for (std::uint64_t p = 0; p < sizes[h]; ++p) {
                    household_.push_back(h);
                    area_.push_back(a);
                    region_.push_back(a < 10 ? 0 : 2);
                    age_.push_back(below(40) == 0 ? std::nullopt
                                                  : std::optional<std::int64_t>(below(100)));
                    income_.push_back(
                        below(30) == 0 ? blankReal : static_cast<double>(below(100000)) / 8 - 1000);
                    weight_.push_back(static_cast<double>(*weights.back()));
                }
            }
        }
        households_ = households;
        db_->integers("HOUSEHOLD", "WT", weights);
        db_->integers("PERSON", "SEX", TestDatabase::Integers(age_.size(), 1));
        db_->integers("PERSON", "AGE", age_);
        db_->reals("PERSON", "INCOME", income_);
    }
    static void TearDownTestSuite() { db_.reset(); }

    /// Values and weights of the persons of each group that pass.
    struct Group {
        std::vector<double> values, weights;
    };
    template <class Value>
    static std::vector<Group> groups(const std::vector<std::size_t>& of, std::size_t count,
                                     Value value) {
        std::vector<Group> result(count);
        for (std::size_t i = 0; i < of.size(); ++i) {
            const double one = value(i);
            if (std::isnan(one))
                continue;
            result[of[i]].values.push_back(one);
            result[of[i]].weights.push_back(weight_[i]);
        }
        return result;
    }
    static double age(std::size_t i) { return age_[i] ? static_cast<double>(*age_[i]) : blankReal; }
    static double income(std::size_t i) { return income_[i]; }

    template <class Rule>
    void expect(const std::string& entity, const Aggregate& aggregate,
                const std::vector<Group>& groups, Rule rule) {
        const Strings found = program_.made(ValueType::Real, entity, aggregate);
        ASSERT_EQ(found.size(), groups.size());
        for (std::size_t g = 0; g < groups.size(); ++g) {
            const double expected = rule(groups[g]);
            ASSERT_EQ(found[g] == ".", std::isnan(expected)) << entity << " " << g;
            if (std::isnan(expected))
                continue;
            ASSERT_NEAR(std::stod(found[g]), expected, 1e-9 * (1 + std::fabs(expected)))
                << entity << " " << g;
        }
    }

    static double sum(const Group& group) {
        return std::accumulate(group.values.begin(), group.values.end(), 0.0);
    }
    static double weightedSum(const Group& group) {
        return std::inner_product(group.values.begin(), group.values.end(), group.weights.begin(),
                                  0.0);
    }
    static double average(const Group& group) {
        return group.values.empty() ? blankReal
                                    : sum(group) / static_cast<double>(group.values.size());
    }
    static double median(Group group) {
        const std::size_t n = group.values.size();
        std::sort(group.values.begin(), group.values.end());
        return n == 0 ? blankReal : (group.values[(n - 1) / 2] + group.values[n / 2]) / 2;
    }
    static double weightedMedian(const Group& group) {
        std::vector<std::pair<double, double>> sorted;
        double total = 0;
        for (std::size_t i = 0; i < group.values.size(); ++i) {
            sorted.emplace_back(group.values[i], group.weights[i]);
            total += group.weights[i];
        }
        std::sort(sorted.begin(), sorted.end());
        double running = 0;
        for (const auto& [value, weight] : sorted) {
            running += weight;
            if (running >= total / 2)
                return value;
        }
        return blankReal;
    }

    static std::unique_ptr<TestDatabase> db_;
    static std::vector<std::size_t> household_, area_, region_;
    static std::vector<std::optional<std::int64_t>> age_;
    static std::vector<double> income_, weight_;
    static std::size_t households_;
    DefineProgram program_{db_->dictionary};
};
std::unique_ptr<TestDatabase> Wide::db_;
std::vector<std::size_t> Wide::household_, Wide::area_, Wide::region_;
std::vector<std::optional<std::int64_t>> Wide::age_;
std::vector<double> Wide::income_, Wide::weight_;
std::size_t Wide::households_;

TEST_F(Wide, counts) {
    ASSERT_GT(household_.size(), std::size_t{1} << 20);
    const auto kids = program_.aggregate(Kind::Count, "PERSON", "", "PERSON.AGE < 15");
    const auto all = program_.aggregate(Kind::Count, "PERSON");
    const auto isKid = [](std::size_t i) { return age_[i] && *age_[i] < 15 ? 1 : blankReal; };
    const auto any = [](std::size_t) { return 1.0; };
    const auto check = [&](const char* entity, const auto& of, std::size_t count) {
        for (const auto& [aggregate, groups] :
             {std::pair{kids, groups(of, count, isKid)}, {all, groups(of, count, any)}}) {
            Strings expected;
            for (const Group& group : groups)
                expected.push_back(std::to_string(group.values.size()));
            EXPECT_EQ(program_.made(ValueType::Integer, entity, aggregate), expected) << entity;
        }
    };
    check("HOUSEHOLD", household_, households_);
    check("AREA", area_, 1000);
    check("REGION", region_, 3);
}

TEST_F(Wide, sumsAndAveragesAgreeWithPlainLoops) {
    const auto of = [&](Kind kind, const char* value, const char* weight = "") {
        return program_.aggregate(kind, "PERSON", value, "", weight);
    };
    const auto ages = groups(household_, households_, age);
    expect("HOUSEHOLD", of(Kind::Sum, "PERSON.AGE"), ages, sum);
    expect("HOUSEHOLD", of(Kind::Average, "PERSON.AGE"), ages, average);
    const auto incomes = groups(region_, 3, income);
    expect("REGION", of(Kind::Sum, "PERSON.INCOME"), incomes, sum);
    expect("REGION", of(Kind::Average, "PERSON.INCOME"), incomes, average);
    expect("REGION", of(Kind::Sum, "PERSON.INCOME", "HOUSEHOLD.WT"), incomes, weightedSum);
    expect("AREA", of(Kind::Sum, "PERSON.AGE", "HOUSEHOLD.WT"), groups(area_, 1000, age),
           weightedSum);
}

TEST_F(Wide, mediansAndExtremesAgreeWithPlainLoops) {
    const auto of = [&](Kind kind, const char* value, const char* weight = "") {
        return program_.aggregate(kind, "PERSON", value, "", weight);
    };
    expect("HOUSEHOLD", of(Kind::Median, "PERSON.AGE"), groups(household_, households_, age),
           median);
    expect("REGION", of(Kind::Median, "PERSON.INCOME"), groups(region_, 3, income), median);
    expect("AREA", of(Kind::Median, "PERSON.INCOME", "HOUSEHOLD.WT"), groups(area_, 1000, income),
           weightedMedian);
    const auto least = [](const Group& group) {
        return group.values.empty() ? blankReal
                                    : *std::min_element(group.values.begin(), group.values.end());
    };
    expect("AREA", of(Kind::Minimum, "PERSON.INCOME"), groups(area_, 1000, income), least);
    expect("REGION", of(Kind::Minimum, "PERSON.AGE"), groups(region_, 3, age), least);
}

TEST_F(Wide, cancellingEndsSelectionsToo) {
    for (const unsigned threads : {1U, 2U}) {
        program_.bound.definitions.clear();
        for (int i = 0; i < 200; ++i)
            program_.add("COUNTRY", "NEW", ValueType::Real,
                         program_.aggregate(Kind::Median, "PERSON", "PERSON.INCOME", "",
                                            i % 2 == 0 ? "" : "HOUSEHOLD.WT"));
        execution::RunOptions options;
        options.threads = threads;
        options.progressInterval = {};
        const CountedReads reads(*db_->dictionary.findEntity("PERSON")->findVariable("INCOME"));
        std::uint64_t before = 0;
        int calls = 0;
        options.progress = [&](int, int, int) {
            before = reads.records();
            return ++calls == 3;
        };
        language::Messages messages;
        EXPECT_TRUE(execution::run(program_.bound, options, messages).cancelled);
        EXPECT_EQ(calls, 3);
        EXPECT_LE(reads.records() - before, threads * 2 * 65536);
    }
}

} // namespace
} // namespace kelx::test
