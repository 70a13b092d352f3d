// SPDX-License-Identifier: Apache-2.0
// Random data of several chunks against plain loops, and runs that are stopped.
#include "counting_column.h"
#include "small_country.h"

#include <gtest/gtest.h>

#include <chrono>
#include <cmath>
#include <random>
#include <thread>

namespace kelx::test {
namespace {

/// Households of 0 to 6 persons, 1.2 million persons, values by a fixed generator.
class LargeCountry : public TestDatabase {
public:
    static constexpr std::size_t households = 400000;

    LargeCountry() {
        std::mt19937 random(42);
        const auto below = [&](unsigned n) { return static_cast<std::int64_t>(random() % n); };
        std::vector<std::uint64_t> sizes(households);
        for (std::uint64_t& size : sizes)
            size = random() % 7;
        entity("COUNTRY", "HOUSEHOLD", {households});
        entity("HOUSEHOLD", "PERSON", sizes);
        std::vector<double> weights;
        for (std::size_t h = 0; h < households; ++h) {
            type.push_back(below(6));
            weights.push_back(0.1 + static_cast<double>(below(1000)) / 7);
            for (std::uint64_t i = 0; i < sizes[h]; ++i)
                household.push_back(h);
        }
        const std::size_t persons = household.size();
        for (std::size_t i = 0; i < persons; ++i) {
            sex.push_back(below(2) + 1);
            age.push_back(below(50) == 0 ? std::optional<std::int64_t>() : below(100));
            work.push_back(below(5000) - 100);
            income.push_back(static_cast<double>(below(40)) / 4);
            late.push_back(i + 1000 > persons ? 1 : 0);
            rising.push_back(static_cast<double>(i) / 4);
        }
        weight = weights;
        Integers rank;
        for (std::size_t h = 0; h < households; ++h)
            rank.push_back(static_cast<std::int64_t>(h / 100));
        integers("HOUSEHOLD", "RANK", rank);
        integers("HOUSEHOLD", "TYPE", type);
        reals("HOUSEHOLD", "WT", weights);
        integers("PERSON", "SEX", sex);
        integers("PERSON", "AGE", age);
        integers("PERSON", "WORK", work);
        integers("PERSON", "LATE", late);
        reals("PERSON", "INCOME", income);
        reals("PERSON", "RISING", rising);
    }

    catalog::Variable& variable(const std::string& entity, const std::string& name) {
        return *dictionary.findEntity(entity)->findVariable(name);
    }

    Integers type, sex, age, work, late;
    std::vector<double> weight, income, rising;
    std::vector<std::size_t> household;
};

class Large : public testing::Test {
protected:
    static void SetUpTestSuite() { country_ = std::make_unique<LargeCountry>(); }
    static void TearDownTestSuite() { country_.reset(); }

    Figures of(const std::string& program) {
        outcome_ = runAll(country_->dictionary, program);
        return figures(outcome_.result.tables.at(0));
    }
    /// Adds up by a key for each person; an empty key is left out.
    template <class Key, class Value>
    static Figures expected(Key key, Value value) {
        Figures result;
        for (std::size_t i = 0; i < country_->household.size(); ++i) {
            const std::string name = key(i);
            if (!name.empty())
                result[name] += value(i);
        }
        return result;
    }
    static std::string text(const std::optional<std::int64_t>& value) {
        return value ? std::to_string(*value) : "MV";
    }
    static void expectNear(const Figures& actual, const Figures& expected) {
        ASSERT_EQ(actual.size(), expected.size());
        for (const auto& [key, value] : expected)
            EXPECT_NEAR(actual.at(key), value, 1e-9 * std::fabs(value)) << key;
    }
    static double one(std::size_t) { return 1; }

    static std::unique_ptr<LargeCountry> country_;
    Outcome outcome_;
};
std::unique_ptr<LargeCountry> Large::country_;

TEST_F(Large, frequencies) {
    const LargeCountry& c = *country_;
    EXPECT_EQ(of("FREQ PERSON.SEX"), expected([&](auto i) { return text(c.sex[i]); }, one));
    EXPECT_EQ(of("FREQ PERSON.AGE"), expected([&](auto i) { return text(c.age[i]); }, one));
    EXPECT_EQ(of("FREQ PERSON.WORK"), expected([&](auto i) { return text(c.work[i]); }, one));
}

TEST_F(Large, crosstabsOfSmallLargeAndHashedDomains) {
    const LargeCountry& c = *country_;
    EXPECT_EQ(
        of("FREQ HOUSEHOLD.TYPE BY PERSON.SEX"),
        expected([&](auto i) { return text(c.type[c.household[i]]) + "|" + text(c.sex[i]); }, one));
    EXPECT_EQ(of("FREQ PERSON.AGE BY HOUSEHOLD.TYPE FILTER PERSON.SEX = 2"),
              expected(
                  [&](auto i) {
                      return *c.sex[i] == 2 ? text(c.age[i]) + "|" + text(c.type[c.household[i]])
                                            : "";
                  },
                  one));
    of("FREQ PERSON.INCOME BY PERSON.SEX FILTER PERSON.AGE < 3");
    double records = 0;
    for (const auto& [key, value] : figures(outcome_.result.tables[0]))
        records += value;
    double young = 0;
    for (const auto& age : c.age)
        young += age && *age < 3 ? 1 : 0;
    EXPECT_EQ(records, young);
    EXPECT_EQ(outcome_.result.tables[0].cells.size(), 80U);
}

TEST_F(Large, weightedSumsAreTheSameOnAnyNumberOfThreads) {
    const LargeCountry& c = *country_;
    const auto weight = [&](std::size_t i) { return c.weight[c.household[i]]; };
    expectNear(of("FREQ HOUSEHOLD.TYPE BY PERSON.SEX WEIGHT HOUSEHOLD.WT"),
               expected([&](auto i) { return text(c.type[c.household[i]]) + "|" + text(c.sex[i]); },
                        weight));
    expectNear(
        of("FREQ PERSON.SEX FILTER PERSON.AGE >= 15 WEIGHT HOUSEHOLD.WT TALLY PERSON.INCOME"),
        expected([&](auto i) { return c.age[i] && *c.age[i] >= 15 ? text(c.sex[i]) : ""; },
                 [&](std::size_t i) { return weight(i) * c.income[i]; }));
}

/// Sums of whole multiples of 2^-60, rounded once.
class Exact {
public:
    void add(double value) { sum_ += static_cast<Wide>(std::ldexp(value, 60)); }
    double value() const { return std::ldexp(static_cast<double>(sum_), -60); }

private:
    __extension__ using Wide = __int128;
    Wide sum_ = 0;
};

TEST_F(Large, weightedSumsAreRoundedOnce) {
    const LargeCountry& c = *country_;
    Exact all;
    std::map<std::string, Exact> bySex, byWork;
    for (std::size_t i = 0; i < c.household.size(); ++i) {
        const double weight = c.weight[c.household[i]];
        all.add(weight);
        bySex[text(c.sex[i])].add(weight);
        byWork[text(c.work[i]) + "|" + text(c.sex[i])].add(weight);
    }
    const auto values = [](const std::map<std::string, Exact>& sums) {
        Figures result;
        for (const auto& [key, sum] : sums)
            result[key] = sum.value();
        return result;
    };
    EXPECT_EQ(of("FREQ PERSON.SEX WEIGHT HOUSEHOLD.WT"), values(bySex));
    EXPECT_EQ(of("FREQ PERSON.SEX WEIGHT HOUSEHOLD.WT FILTER PERSON.AGE < 200 OR TRUE"),
              values(bySex));
    EXPECT_EQ(of("FREQ PERSON.WORK BY PERSON.SEX WEIGHT HOUSEHOLD.WT"), values(byWork));
    EXPECT_EQ(of("COUNT PERSON WEIGHT HOUSEHOLD.WT").at(""), all.value());
    of("FREQ PERSON.INCOME BY PERSON.WORK WEIGHT HOUSEHOLD.WT");
    execution::Sum total;
    const execution::Cells& cells = outcome_.result.tables[0].cells;
    for (std::size_t i = 0; i < cells.size(); ++i)
        total.add(cells[i].sum);
    EXPECT_EQ(total.value(), all.value());
}

TEST_F(Large, tablesOfAPassShareItsTime) {
    execution::RunOptions options;
    const auto start = std::chrono::steady_clock::now();
    const Outcome outcome = runWith(
        country_->dictionary, "FREQ PERSON.SEX, PERSON.AGE, PERSON.WORK, PERSON.INCOME", options);
    const std::chrono::duration<double> passed = std::chrono::steady_clock::now() - start;
    double told = 0;
    for (const auto& table : outcome.result.tables) {
        EXPECT_GT(table.seconds, 0);
        told += table.seconds;
    }
    EXPECT_LE(told, passed.count());
}

/// Each table in a pass of its own, on one thread, or two tables on all threads.
TEST_F(Large, tablesWithoutRoomWait) {
    const char* program = "FREQ PERSON.AGE BY PERSON.SEX WEIGHT HOUSEHOLD.WT\n"
                          "FREQ PERSON.AGE\nMEDIAN PERSON.AGE BY PERSON.SEX\nFREQ PERSON.WORK";
    const Outcome whole = runWith(country_->dictionary, program, {});
    const std::uint64_t persons = country_->household.size();
    for (const auto& [bytes, passes] : {std::pair<std::size_t, unsigned>{1, 3}, {60000, 2}}) {
        const CountedReads reads(country_->variable("PERSON", "AGE"));
        execution::RunOptions options;
        options.threads = 2;
        options.cellBytes = bytes;
        const Outcome parted = runWith(country_->dictionary, program, options);
        EXPECT_EQ(reads.records(), passes * persons);
        for (std::size_t i = 0; i < 4; ++i) {
            EXPECT_EQ(figures(parted.result.tables[i]), figures(whole.result.tables[i]));
            EXPECT_EQ(recordCounts(parted.result.tables[i]), recordCounts(whole.result.tables[i]));
        }
    }
}

TEST_F(Large, blocksRuledOutLoseNothing) {
    EXPECT_EQ(of("FREQ PERSON.LATE FILTER PERSON.LATE = 1").at("1"), 999);
    EXPECT_EQ(of("RUNDEF r FILTER PERSON.LATE = 1 OR PERSON.WORK = 4899\nCOUNT PERSON").at(""),
              expected(
                  [&](auto i) {
                      return *country_->late[i] == 1 || *country_->work[i] == 4899 ? "x" : "";
                  },
                  one)
                  .at("x"));
}

/// Records that are read of a person's variable by a table of it; the filter's own apart.
TEST_F(Large, blocksRuledOutAreNotRead) {
    constexpr std::uint64_t block = 65536;
    struct Case {
        const char* table;
        std::uint64_t most;
    };
    const Case cases[] = {
        {"FREQ PERSON.SEX FILTER PERSON.LATE = 1", 2 * block},
        {"FREQ PERSON.SEX FILTER PERSON.RISING < 1000", block},
        {"FREQ PERSON.SEX FILTER 16390 > PERSON.RISING AND PERSON.RISING >= 16380", 2 * block},
        {"FREQ PERSON.SEX FILTER PERSON.RISING IN (-5:-1, 20, 400)", block},
        {"FREQ PERSON.SEX FILTER HOUSEHOLD.TYPE = 77", 0},
        {"FREQ PERSON.SEX FILTER HOUSEHOLD.RANK < 3", 4 * block},
        {"FREQ PERSON.SEX FILTER HOUSEHOLD.RANK = 3 OR PERSON.RISING IN (7)", 4 * block},
        {"FREQ PERSON.SEX FILTER FALSE AND PERSON.AGE = 3", 0},
        {"MEDIAN PERSON.SEX FILTER HOUSEHOLD.WT < 0", 0},
        {"DEFINE HOUSEHOLD.N AS SUM PERSON.SEX FILTER HOUSEHOLD.WT < 0\nFREQ HOUSEHOLD.N", 0},
        {"DEFINE HOUSEHOLD.N AS SUM PERSON.SEX FILTER HOUSEHOLD.RANK < 3\nFREQ HOUSEHOLD.N",
         4 * block}};
    for (const Case& one : cases) {
        const CountedReads reads(country_->variable("PERSON", "SEX"));
        runWith(country_->dictionary, one.table, {});
        EXPECT_LE(reads.records(), one.most) << one.table;
    }
    const CountedReads reads(country_->variable("PERSON", "LATE"));
    runWith(country_->dictionary, "RUNDEF r FILTER PERSON.LATE = 1\nCOUNT HOUSEHOLD", {});
    EXPECT_LE(reads.records(), 2 * block);
    EXPECT_GT(reads.records(), 0U);
}

TEST_F(Large, householdsWithAnyPassingPerson) {
    const LargeCountry& c = *country_;
    std::map<std::size_t, bool> any;
    for (std::size_t i = 0; i < c.household.size(); ++i) {
        if (c.age[i] && *c.age[i] > 95)
            any[c.household[i]] = true;
    }
    EXPECT_EQ(of("RUNDEF r FILTER PERSON.AGE > 95\nCOUNT HOUSEHOLD").at(""),
              static_cast<double>(any.size()));
}

class Stopping : public Large, public testing::WithParamInterface<unsigned> {};

/// After the answer each thread ends the step at hand, and may have begun one more.
TEST_P(Stopping, leavesNothingAndComesSoon) {
    const std::string tables[] = {"FREQ PERSON.INCOME BY PERSON.WORK\n",
                                  "MEDIAN PERSON.INCOME BY PERSON.WORK\n",
                                  "COUNT COUNTRY FILTER PERSON.INCOME * 2 < 0\n"};
    for (const std::string& table : tables) {
        const CountedReads reads(country_->variable("PERSON", "INCOME"));
        execution::RunOptions options;
        options.threads = GetParam();
        options.progressInterval = {};
        int calls = 0;
        std::uint64_t before = 0;
        options.progress = [&](int, int, int) {
            before = reads.records();
            return ++calls == 2;
        };
        std::string program;
        for (int i = 0; i < 200; ++i)
            program += table;
        const Outcome outcome = runWith(country_->dictionary, program, options);
        EXPECT_TRUE(outcome.result.cancelled) << table;
        EXPECT_TRUE(outcome.result.tables.empty());
        EXPECT_EQ(calls, 2);
        EXPECT_LE(reads.records() - before, GetParam() * 2 * 65536) << table;
    }
}

TEST_P(Stopping, tellsProgressInOrder) {
    execution::RunOptions options;
    options.threads = GetParam();
    const auto caller = std::this_thread::get_id();
    int last = 0;
    options.progress = [&](int expected, int elapsed, int percent) {
        EXPECT_EQ(std::this_thread::get_id(), caller);
        EXPECT_GE(percent, last);
        EXPECT_LE(percent, 100);
        EXPECT_GE(expected, elapsed);
        last = percent;
        return false;
    };
    const Outcome outcome =
        runWith(country_->dictionary, "FREQ PERSON.INCOME BY PERSON.WORK", options);
    EXPECT_FALSE(outcome.result.cancelled);
    EXPECT_EQ(last, 100);
}

TEST_P(Stopping, carriesWhatTheCallbackThrows) {
    execution::RunOptions options;
    options.threads = GetParam();
    int calls = 0;
    options.progressInterval = {};
    options.progress = [&](int, int, int) -> bool {
        if (++calls > 1)
            throw std::runtime_error("enough");
        return false;
    };
    EXPECT_THROW(runWith(country_->dictionary, "FREQ PERSON.INCOME BY PERSON.WORK", options),
                 std::runtime_error);
}

INSTANTIATE_TEST_SUITE_P(Threads, Stopping, testing::Values(1U, 2U));

} // namespace
} // namespace kelx::test
