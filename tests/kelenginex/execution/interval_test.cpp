// SPDX-License-Identifier: GPL-3.0-or-later
// Many intervals at once, and long chains of OR.
#include "define_fixture.h"
#include "execution/interval_table.h"
#include "execution/or_parts.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <ctime>
#include <functional>
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

/// What the cases of a SWITCH ask of a person.
struct Person {
    std::optional<std::int64_t> age, size, tenure;
    double income = 0; ///< NaN: blank
    std::string district;
};

/// A case, and the same as a plain question.
struct PlainCase {
    std::string text;
    std::function<bool(const Person&)> holds;
};

class RandomSwitches : public testing::Test {
protected:
    static constexpr std::size_t districts = 7, homes = 20, members = 9;

    RandomSwitches() {
        catalog::Entity& district = db_.entity("COUNTRY", "DISTRICT", {districts});
        db_.entity("DISTRICT", "HOME", std::vector<std::uint64_t>(districts, homes));
        db_.entity("HOME", "PERSON", std::vector<std::uint64_t>(districts * homes, members));
        std::vector<std::optional<std::string>> codes;
        TestDatabase::Integers tenures, ages, sizes;
        std::vector<double> incomes;
        for (std::size_t i = 0; i < districts * homes * members; ++i) {
            if (i % (homes * members) == 0)
                codes.emplace_back("0" + std::to_string(codes.size() + 1));
            if (i % members == 0)
                tenures.push_back(any(5));
            ages.push_back(any(30));
            sizes.push_back(any(3)); // of four bytes
            if (sizes.back())
                sizes.back() = *sizes.back() * 1000000007;
            incomes.push_back(random_() % 10 == 0 ? blankReal : step(20));
            people_.push_back(
                {ages.back(), sizes.back(), tenures.back(), incomes.back(), *codes.back()});
        }
        district.codeVar = &db_.texts("DISTRICT", "CODE", codes);
        db_.integers("HOME", "TENURE", tenures);
        db_.integers("PERSON", "AGE", ages);
        db_.integers("PERSON", "SIZE", sizes);
        db_.reals("PERSON", "INCOME", incomes);
    }

    std::optional<std::int64_t> any(unsigned below) {
        return random_() % 10 == 0 ? std::nullopt : std::optional<std::int64_t>(random_() % below);
    }
    double step(unsigned below) { return static_cast<double>(random_() % below) / 2 - 3; }

    PlainCase madeCase() {
        const auto a = static_cast<std::int64_t>(random_() % 30);
        const auto b = static_cast<std::int64_t>(random_() % 30);
        const double x = step(20);
        const std::string one = std::to_string(a);
        const std::string number = std::to_string(x);
        switch (random_() % 11) {
        case 0:
            return {"PERSON.AGE = " + one, [=](const Person& p) { return p.age == a; }};
        case 1:
            return {"PERSON.AGE IN (" + one + ":" + std::to_string(a + 3) + ")",
                    [=](const Person& p) { return p.age >= a && p.age <= a + 3; }};
        case 2:
            return {"PERSON.AGE < " + std::to_string(a / 6),
                    [=](const Person& p) { return p.age && *p.age < a / 6; }};
        case 3:
            return {"PERSON.AGE = " + one + " OR PERSON.AGE = " + std::to_string(b),
                    [=](const Person& p) { return p.age == a || p.age == b; }};
        case 4:
            return {"PERSON.INCOME = " + number, [=](const Person& p) { return p.income == x; }};
        case 5:
            return {"PERSON.INCOME < " + std::to_string(x - 5),
                    [=](const Person& p) { return p.income < x - 5; }};
        case 6:
            return {std::to_string(x + 5) + " < PERSON.INCOME",
                    [=](const Person& p) { return p.income > x + 5; }};
        case 7:
            return {"HOME.TENURE = " + std::to_string(a % 5),
                    [=](const Person& p) { return p.tenure == a % 5; }};
        case 8:
            return {"DISTRICT = \"0" + std::to_string(a % 9) + "\"",
                    [=](const Person& p) { return p.district == "0" + std::to_string(a % 9); }};
        case 9:
            return {"PERSON.AGE + HOME.TENURE = " + one,
                    [=](const Person& p) { return p.age && p.tenure && *p.age + *p.tenure == a; }};
        default:
            return {"PERSON.SIZE = " + std::to_string(a % 3 * 1000000007),
                    [=](const Person& p) { return p.size == a % 3 * 1000000007; }};
        }
    }

    TestDatabase db_;
    std::mt19937 random_{11};
    std::vector<Person> people_;
};

TEST_F(RandomSwitches, giveWhatAskingOneCaseAfterTheOtherGives) {
    for (int round = 0; round < 40; ++round) {
        std::string program = "RUNDEF r NOWEIGHT\nDEFINE PERSON.NEW AS SWITCH\n";
        std::vector<PlainCase> cases;
        for (int i = 0; i < 14; ++i) {
            cases.push_back(madeCase());
            program += "CASE " + cases.back().text + " ASSIGN " + std::to_string(i) + "\n";
        }
        Figures expected;
        TestDatabase::Integers wanted;
        for (const Person& person : people_) {
            const auto first = std::find_if(cases.begin(), cases.end(), [&](const PlainCase& one) {
                return one.holds(person);
            });
            wanted.emplace_back(first - cases.begin());
            const std::string number = std::to_string(first - cases.begin());
            ++expected[number + "|" + number];
        }
        const std::string name = "WANTED" + std::to_string(round);
        db_.integers("PERSON", name, wanted);
        program += "ELSE 14\nFREQ PERSON.NEW BY PERSON." + name;
        const Outcome outcome = runAll(db_.dictionary, program);
        ASSERT_EQ(figures(outcome.result.tables.at(0)), expected) << program;
    }
}

/// One level of many records, and cases without end.
class LongSwitches : public testing::Test {
protected:
    static constexpr std::size_t records = 400000;
    static constexpr int count = 20000;

    LongSwitches() {
        db_.entity("COUNTRY", "PERSON", {records});
        std::vector<double> incomes;
        for (std::size_t i = 0; i < records; ++i)
            incomes.push_back(static_cast<double>(i % (2 * count)));
        db_.reals("PERSON", "INCOME", incomes);
    }

    std::string cases(const std::string& before) {
        std::string text = "DEFINE PERSON.NEW AS SWITCH";
        for (int i = 0; i < count; ++i)
            text += "\nCASE " + before + std::to_string(i) + " ASSIGN " + std::to_string(i % 2);
        return text + " ELSE 2\nFREQ PERSON.NEW";
    }

    /// Of all threads, so that a busy machine takes none of it.
    static double secondsWorked() { return static_cast<double>(std::clock()) / CLOCKS_PER_SEC; }
    TestDatabase db_;
};

TEST_F(LongSwitches, lookCasesOfOneVariableUp) {
    const auto program = compiled(db_.dictionary, cases("PERSON.INCOME = "));
    const double begin = secondsWorked();
    language::Messages messages;
    const auto result = execution::run(program, {}, messages);
    EXPECT_LT(secondsWorked() - begin, 5); // one after the other they take minutes
    EXPECT_EQ(figures(result.tables.at(0)),
              (Figures{{"0", records / 4}, {"1", records / 4}, {"2", records / 2}}));
}

TEST_F(LongSwitches, areStoppedInTheirMidst) {
    const auto program = compiled(db_.dictionary, cases("PERSON.INCOME / 2 = "));
    double asked = 0;
    execution::RunOptions options;
    options.progress = [&](int, int elapsed, int) {
        asked = secondsWorked();
        return elapsed >= 300;
    };
    language::Messages messages;
    const auto result = execution::run(program, options, messages);
    EXPECT_TRUE(result.cancelled);
    EXPECT_LT(secondsWorked() - asked, 3); // a whole block takes longer
}

} // namespace
} // namespace kelx::test
