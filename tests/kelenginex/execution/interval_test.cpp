// SPDX-License-Identifier: GPL-3.0-or-later
// Many intervals at once, and long chains of OR.
#include "define_fixture.h"
#include "execution/interval_table.h"
#include "execution/or_parts.h"

#include <gtest/gtest.h>

#include <cmath>
#include <random>

namespace kelx::test {
namespace {

using Table = execution::IntervalTable<double>;

TEST(Intervals, theFirstThatHoldsAValueCounts) {
    std::mt19937 random(3);
    const auto end = [&]() -> std::optional<double> {
        const auto value = static_cast<double>(random() % 40) / 2;
        return random() % 8 == 0 ? std::nullopt : std::optional(value);
    };
    for (int round = 0; round < 300; ++round) {
        std::vector<Table::Bounds> intervals(random() % 12);
        for (Table::Bounds& interval : intervals)
            interval = {end(), end()};
        const Table table(intervals);
        for (double value = -1; value < 22; value += 0.25) {
            std::uint32_t expected = Table::none;
            for (std::size_t i = intervals.size(); i-- > 0;) {
                const auto& [low, high] = intervals[i];
                if ((!low || *low <= value) && (!high || value <= *high))
                    expected = static_cast<std::uint32_t>(i);
            }
            ASSERT_EQ(table.find(value), expected) << value << " in round " << round;
        }
        ASSERT_EQ(Table({{1, {}}, {{}, {}}}).find(std::nan("")), 1U);
    }
}

class ManyQuestions : public testing::Test {
protected:
    std::string cases(const std::string& before, int count, const std::string& behind) {
        std::string text;
        for (int i = 0; i < count; ++i)
            text += before + std::to_string(i) + behind;
        return text;
    }
    Figures of(const std::string& program) {
        last_ = runAll(country_.dictionary, "RUNDEF r NOWEIGHT\n" + program);
        return figures(last_.result.tables.at(0));
    }
    Figures once(const std::string& program) {
        last_ = runWith(country_.dictionary, program, {});
        return figures(last_.result.tables.at(0));
    }
    SmallCountry country_;
    Outcome last_;
};

// Ages of the persons: 34 99 (MV) 98 (NA) 7 7 70 blank 15.
TEST_F(ManyQuestions, orOfOneVariableIsOneQuestion) {
    const std::string ages = cases(" OR PERSON.AGE = ", 40, "");
    DefineProgram program(country_.dictionary);
    const auto condition = program.condition("PERSON.SEX = 2 AND (PERSON.SEX = 1" + ages +
                                             " OR 70 = PERSON.AGE OR PROVINCE = \"03\"" +
                                             " OR PROVINCE = \"02\" OR PERSON.AGE > 90)");
    const execution::OrParts parts = execution::orPartsOf(*condition->arguments.at(1));
    EXPECT_EQ(parts.parts.size(), 4U); // sex, ages, provinces, and what is no equality
    EXPECT_EQ(parts.made.size(), 2U);
    EXPECT_EQ(of("FREQ PERSON.SEX FILTER PERSON.SEX = 1" + ages), (Figures{{"1", 4}}));
    EXPECT_EQ(of("FREQ PERSON.SEX FILTER PROVINCE = \"03\" OR PERSON.AGE = 34 OR PERSON.AGE = 98"
                 " OR PROVINCE = \"01\" AND PERSON.SEX = 2"),
              (Figures{{"1", 2}, {"2", 3}}));
    EXPECT_EQ(of("FREQ PERSON.SEX FILTER PERSON.INCOME = 20 OR PERSON.INCOME = -3"
                 " OR PERSON.NAME = \"Ana\" OR PERSON.NAME = \"Eva\""),
              (Figures{{"1", 3}, {"2", 2}}));
}

TEST_F(ManyQuestions, takeNoLongerThanTheyAreMany) {
    const std::string areas = cases(" OR HOUSEHOLD = \"x", 30000, "\"");
    EXPECT_EQ(once("RUNDEF s SELECTION HOUSEHOLD = \"032\"" + areas + "\nFREQ PERSON.SEX"),
              (Figures{{"1", 1}, {"2", 1}}));
    const std::string rows = cases(" (", 40000, ":100000 = 1)");
    EXPECT_EQ(once("DEFINE PERSON.NEW AS RECODE PERSON.AGE (7 = 5)" + rows + "\nFREQ PERSON.NEW"),
              (Figures{{"1", 5}, {"5", 2}, {"MV", 1}}));
    EXPECT_EQ(
        once("DEFINE PERSON.NEW AS RECODE PERSON.INCOME (0 = 5)" + rows + "\nFREQ PERSON.NEW"),
        (Figures{{"1", 3}, {"5", 2}, {"MV", 3}}));
    const std::string several = cases("\nCASE PERSON.AGE = ", 25000, " ASSIGN 3");
    EXPECT_EQ(once("DEFINE PERSON.NEW AS SWITCH CASE PERSON.AGE > 90 ASSIGN 1" + several +
                   "\nFREQ PERSON.NEW"),
              (Figures{{"1", 2}, {"3", 5}, {"MV", 1}}));
}

TEST_F(ManyQuestions, aSwitchOfTwoVariablesAsksEachInTurn) {
    EXPECT_EQ(of("DEFINE PERSON.NEW AS SWITCH CASE PERSON.AGE > 50 ASSIGN 1 "
                 "CASE PERSON.SEX = 2 ASSIGN 2 CASE PERSON.AGE > 10 ASSIGN 3\nFREQ PERSON.NEW"),
              (Figures{{"1", 3}, {"2", 1}, {"3", 2}, {"MV", 2}}));
}

} // namespace
} // namespace kelx::test
