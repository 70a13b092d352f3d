// SPDX-License-Identifier: Apache-2.0
// Measures of a country small enough to work out by hand.
#include "measure_fixture.h"

#include <gtest/gtest.h>

#include <cmath>

namespace kelx::test {
namespace {

using execution::Figure;
using language::TableKind;

class Measures : public testing::Test {
protected:
    MeasureRows of(TableKind kind, const std::string& what, const std::string& by = {},
                   const std::string& clauses = {}, const std::string& settings = {},
                   int parts = 4) {
        return measure(country_.dictionary, {kind, what, by, clauses, settings, parts},
                       {1, 3, 65536});
    }
    static std::map<std::string, double> first(const MeasureRows& rows) {
        std::map<std::string, double> result;
        for (const auto& [name, figures] : rows) {
            if (name != "none" && name != "even")
                result[name] = number(figures.at(0));
        }
        return result;
    }
    SmallCountry country_;
};

// Ages by sex: men 34 7 7 15, women 70 (one is coded missing, one not applicable, one blank).
TEST_F(Measures, ofWholeNumbersLeaveOutWhatIsNoValue) {
    EXPECT_EQ(first(of(TableKind::Average, "PERSON.AGE", "PERSON.SEX")),
              (std::map<std::string, double>{{"1", 15.75}, {"2", 70}, {"all", 26.6}}));
    EXPECT_EQ(first(of(TableKind::Median, "PERSON.AGE", "PERSON.SEX")),
              (std::map<std::string, double>{{"1", 11}, {"2", 70}, {"all", 15}}));
    const MeasureRows sums = of(TableKind::Sum, "PERSON.AGE", "PERSON.SEX");
    EXPECT_EQ(sums.at("1"), (std::vector<Figure>{std::int64_t{63}}));
    EXPECT_EQ(sums.at("none"), (std::vector<Figure>{std::int64_t{0}}));
    EXPECT_EQ(of(TableKind::Minimum, "PERSON.AGE").at("all"),
              (std::vector<Figure>{std::int64_t{7}}));
    EXPECT_EQ(of(TableKind::Maximum, "PERSON.AGE").at("none"), (std::vector<Figure>{Figure()}));
    // An expression goes another way than a column, to the same figures.
    EXPECT_EQ(of(TableKind::Sum, "PERSON.AGE + 0", "PERSON.SEX"), sums);
    EXPECT_EQ(first(of(TableKind::Median, "PERSON.AGE + 0", "PERSON.SEX")),
              (std::map<std::string, double>{{"1", 11}, {"2", 70}, {"all", 15}}));
}

// Incomes: North 100.5 0 (and a blank), South 0 20 (and a blank), Sud-Oué 100.5 -3.
TEST_F(Measures, ofReals) {
    using Rows = std::map<std::string, double>;
    EXPECT_EQ(first(of(TableKind::Sum, "PERSON.INCOME", "PROVINCE.NAME")),
              (Rows{{"North", 100.5}, {"South", 20}, {"Sud-Oué", 97.5}, {"all", 218}}));
    EXPECT_EQ(first(of(TableKind::Median, "PERSON.INCOME", "PROVINCE.NAME")),
              (Rows{{"North", 50.25}, {"South", 10}, {"Sud-Oué", 48.75}, {"all", 10}}));
    EXPECT_EQ(first(of(TableKind::Minimum, "PERSON.INCOME")), (Rows{{"", -3}, {"all", -3}}));
    EXPECT_EQ(first(of(TableKind::Maximum, "PERSON.INCOME", "HOUSEHOLD.TYPE")),
              (Rows{{"1", 100.5}, {"2", 100.5}, {"all", 100.5}}));
    EXPECT_TRUE(std::holds_alternative<double>(of(TableKind::Sum, "PERSON.INCOME").at("none")[0]));
}

// -3 0 0 20 100.5 100.5: h is 1.25, 2.5 and 3.75 from 0.
TEST_F(Measures, quantilesInterpolate) {
    EXPECT_EQ(of(TableKind::Quantile, "PERSON.INCOME").at("all"),
              (std::vector<Figure>{0.0, 10.0, 80.375}));
    EXPECT_EQ(of(TableKind::Quantile, "PERSON.INCOME", {}, {}, {}, 5).at("all"),
              (std::vector<Figure>{0.0, 0.0, 20.0, 100.5}));
    EXPECT_EQ(of(TableKind::Quantile, "PERSON.AGE").at("all"),
              (std::vector<Figure>{7.0, 15.0, 34.0}));
}

// Weights of those with an income: 1.5 1.5 0.5 0.5 1 1 for 100.5 0 0 20 100.5 -3, 6 in all.
TEST_F(Measures, withWeights) {
    const std::string weight = "WEIGHT HOUSEHOLD.WT";
    EXPECT_DOUBLE_EQ(number(of(TableKind::Average, "PERSON.INCOME", {}, weight).at("all")[0]),
                     (1.5 * 100.5 + 0.5 * 20 + 100.5 - 3) / 6);
    // Ascending: -3 reaches 1, the zeros 3, 20 reaches 3.5.
    EXPECT_EQ(of(TableKind::Median, "PERSON.INCOME", {}, weight).at("all"),
              (std::vector<Figure>{0.0}));
    EXPECT_EQ(
        of(TableKind::Quantile, "PERSON.INCOME", {}, weight, {}, 12).at("all"),
        (std::vector<Figure>{-3.0, -3.0, 0.0, 0.0, 0.0, 0.0, 20.0, 100.5, 100.5, 100.5, 100.5}));
    // Ages: 34 (1.5), 7 7 70 (0.5 each), 15 (1).
    EXPECT_EQ(of(TableKind::Median, "PERSON.AGE", {}, weight).at("all"),
              (std::vector<Figure>{15.0}));
    EXPECT_EQ(of(TableKind::Sum, "PERSON.AGE", {}, weight).at("all"),
              (std::vector<Figure>{1.5 * 34 + 7 + 15 + 35}));
    EXPECT_EQ(of(TableKind::Minimum, "PERSON.AGE", {}, weight).at("all"),
              (std::vector<Figure>{std::int64_t{7}}));
    // A tally multiplies the weight; a job that is false makes it 0.
    MeasureQuestion question{TableKind::Sum, "PERSON.INCOME", {}, weight, {}};
    question.tally = "PERSON.JOB";
    EXPECT_EQ(measure(country_.dictionary, question).at("all"),
              (std::vector<Figure>{1.5 * 100.5 + 0.5 * 20 + 100.5}));
}

// Ages of men 7 7 15 34: sum 63, squares about 15.75 are 486.75.
TEST_F(Measures, statistics) {
    for (const char* age : {"PERSON.AGE", "PERSON.AGE * 1.0"}) {
        const std::vector<Figure> men = of(TableKind::Stats, age, "PERSON.SEX").at("1");
        const double expected[] = {4,
                                   63,
                                   15.75,
                                   11,
                                   7,
                                   34,
                                   std::sqrt(486.75 / 3),
                                   486.75 / 3,
                                   std::sqrt(486.75 / 3) / 15.75 * 100,
                                   std::sqrt(486.75 / 3) / 2};
        ASSERT_EQ(men.size(), 10U);
        for (std::size_t i = 0; i < men.size(); ++i)
            EXPECT_DOUBLE_EQ(number(men[i]), expected[i]) << age << i;
        const std::vector<Figure> women = of(TableKind::Stats, age, "PERSON.SEX").at("2");
        EXPECT_EQ(women[0], Figure(std::int64_t{1}));
        EXPECT_EQ(number(women[3]), 70);
        for (const std::size_t i : {6, 7, 8, 9})
            EXPECT_EQ(women[i], Figure()) << "of one case";
        const std::vector<Figure> none = of(TableKind::Stats, age).at("none");
        EXPECT_EQ(number(none[0]), 0);
        EXPECT_EQ(number(none[1]), 0);
        for (const std::size_t i : {2, 3, 4, 5, 6, 7, 8, 9})
            EXPECT_EQ(none[i], Figure());
    }
    // Weighted, 34 and 15 with 1.5 and 1, 7 twice with 0.5: 4 - 0.5 cases of men.
    const std::vector<Figure> men =
        of(TableKind::Stats, "PERSON.AGE", "PERSON.SEX", "WEIGHT HOUSEHOLD.WT").at("1");
    const double mean = (51.0 + 15 + 7) / 3.5;
    const double squares =
        1.5 * std::pow(34 - mean, 2) + std::pow(15 - mean, 2) + std::pow(7 - mean, 2);
    EXPECT_EQ(number(men[0]), 3.5);
    EXPECT_DOUBLE_EQ(number(men[7]), squares / 2.5);
    EXPECT_DOUBLE_EQ(number(men[9]), std::sqrt(squares / 2.5 / 3.5));
}

// 7 7 15 34: (2 (7 + 14 + 45 + 136) - 63) / (4 * 63) - 1.
TEST_F(Measures, gini) {
    const double expected = (2.0 * 202 - 63) / (4 * 63) - 1;
    EXPECT_DOUBLE_EQ(number(of(TableKind::Gini, "PERSON.AGE", "PERSON.SEX").at("1")[0]), expected);
    EXPECT_DOUBLE_EQ(number(of(TableKind::Gini, "PERSON.AGE * 1.0", "PERSON.SEX").at("1")[0]),
                     expected);
    EXPECT_EQ(of(TableKind::Gini, "PERSON.AGE", "PERSON.SEX").at("none")[0], Figure());
    EXPECT_EQ(number(of(TableKind::Gini, "PERSON.AGE", "PERSON.SEX").at("2")[0]), 0);
}

TEST_F(Measures, keepOnlyCellsWithAValue) {
    for (const char* age : {"PERSON.AGE", "PERSON.AGE + 0"}) {
        const MeasureRows rows = of(TableKind::Average, age, "HOUSEHOLD.NUMBER BY PROVINCE.CODE");
        // Household 1 of province 01 has one valid age, household 2 none.
        EXPECT_EQ(first(rows), (std::map<std::string, double>{
                                   {"1|01", 34}, {"1|02", 28}, {"2|03", 15}, {"all", 26.6}}));
    }
    const MeasureRows none =
        of(TableKind::Median, "PERSON.INCOME", "PERSON.SEX", "FILTER PERSON.NAME = \"Cid\"");
    EXPECT_EQ(none.size(), 3U);
    EXPECT_EQ(none.at("all")[0], Figure());
    EXPECT_EQ(of(TableKind::Sum, "PERSON.AGE", {}, "FILTER PERSON.NAME = \"Cid\"").at("all"),
              (std::vector<Figure>{std::int64_t{0}}));
}

TEST_F(Measures, takeFiltersSelectionsAndUpperMeasures) {
    using Rows = std::map<std::string, double>;
    EXPECT_EQ(first(of(TableKind::Median, "PERSON.INCOME", {}, "FILTER PERSON.SEX = 1")),
              (Rows{{"", 0}, {"all", 0}}));
    EXPECT_EQ(first(of(TableKind::Maximum, "PERSON.INCOME", "PROVINCE.CODE", {},
                       "RUNDEF r SELECTION INLINE PROVINCE \"02\"")),
              (Rows{{"02", 20}, {"all", 20}}));
    EXPECT_EQ(
        first(of(TableKind::Average, "PERSON.AGE", {}, {}, "RUNDEF r FILTER PERSON.AGE < 20")),
        (Rows{{"", 29.0 / 3}, {"all", 29.0 / 3}}));
    // Types of the households that persons live in: 1 1 2 1 1 1 2 2.
    EXPECT_EQ(first(of(TableKind::Average, "HOUSEHOLD.TYPE", "PERSON.SEX")),
              (Rows{{"1", 1.25}, {"2", 1.5}, {"all", 1.375}}));
    EXPECT_EQ(first(of(TableKind::Sum, "PERSON.JOB", "PERSON.SEX")),
              (Rows{{"1", 1}, {"2", 2}, {"all", 3}}));
    EXPECT_EQ(first(of(TableKind::Average, "PERSON.JOB")), (Rows{{"", 3.0 / 7}, {"all", 3.0 / 7}}));
}

TEST_F(Measures, breakByArea) {
    language::BoundProgram program = measureProgram(
        country_.dictionary, {TableKind::Sum, "PERSON.AGE", "PERSON.SEX", {}, "RUNDEF r"});
    auto settings = std::make_shared<language::RunSettings>(*program.tables[0].settings);
    settings->areaBreak = country_.dictionary.findEntity("PROVINCE");
    program.tables[0].settings = settings;
    language::Messages messages;
    const execution::TableResult table = execution::run(program, {}, messages).tables.at(0);
    EXPECT_EQ(recordCounts(table), (Figures{{"01|1", 1}, {"02|1", 2}, {"02|2", 1}, {"03|1", 1}}));
    EXPECT_EQ(table.dimensions.at(0).categories.at(0).label, "North");
    program.tables[0].isHidden = true;
    EXPECT_EQ(execution::run(program, {}, messages).tables.at(0).dimensions.size(), 1U);
}

} // namespace
} // namespace kelx::test
