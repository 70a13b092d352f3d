// SPDX-License-Identifier: Apache-2.0
// Layouts of measures, from results made by hand.
#include "hand_made.h"

#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

#include <algorithm>

namespace kelx::test {
namespace {

using language::TableKind;
using Texts = std::vector<std::string>;

class Measures : public testing::Test {
protected:
    Measures() {
        measure_ = made_.expression("PERSON", "AGE");
        sex_ = made_.expression("PERSON", "SEX");
    }
    language::TableCommand& add(TableKind kind, std::vector<language::ExpressionPtr> by = {}) {
        auto& command = made_.add("T", kind, std::move(by));
        command.measure = measure_;
        return command;
    }
    output::Table of(execution::TableResult result) {
        made_.take(0, std::move(result));
        return made_.finish().at("T");
    }
    execution::Dimension sexes(const Texts& categories = {"1. Male", "2. Female"}) {
        return dimension(made_.variable("PERSON", "SEX"), categories);
    }
    static std::vector<execution::Figure> largest(const std::vector<double>& values) {
        return {*std::max_element(values.begin(), values.end())};
    }

    HandMade made_;
    language::ExpressionPtr measure_, sex_;
};

TEST_F(Measures, averagesStandInTriplesWithEveryTotal) {
    add(TableKind::Average, {made_.expression("PROVINCE", "CODE"), sex_});
    const output::Table table = of(
        measured({dimension(made_.variable("PROVINCE", "CODE"), {"1. North", "2. South"}), sexes()},
                 {{{0, 0}, 0, {1, 2}}, {{0, 1}, 0, {6}}, {{1, 0}, 0, {10}}}, 1,
                 [](const auto& values) { return std::vector{mean(values)}; }));
    EXPECT_EQ(rowsOf(table),
              (Texts{"1,North,,1,Male,,1.5", "1,North,,2,Female,,6", "1,North,,0,__tot__,tot,3",
                     "2,South,,1,Male,,10", "2,South,,0,__tot__,tot,10",
                     "0,__tot__,tot,1,Male,,4.333333333333333", "0,__tot__,tot,2,Female,,6",
                     "0,__tot__,tot,0,__tot__,tot,4.75"}));
    EXPECT_EQ(table.method, 2);
    EXPECT_EQ(table.type, 0);
    EXPECT_EQ(table.dimension, 2);
    ASSERT_EQ(table.variables.size(), 3U);
    EXPECT_EQ(table.variables[0].name, "PERSON.AGE");
    EXPECT_EQ(table.variables[1].name, "PROVINCE.CODE");
    EXPECT_EQ(table.fields.back().label, "Age");
    EXPECT_FALSE(table.inTriples);
}

TEST_F(Measures, othersStandInTextsAndInTriplesForJson) {
    add(TableKind::Maximum, {sex_});
    const output::Table table =
        of(measured({sexes({"1. Male", "2", "MV", "NA"})},
                    {{{0}, 0, {1, 30}}, {{1}, 0, {6}}, {{2}, 0, {90}}, {{3}, 0, {4}}}, 1, largest));
    EXPECT_EQ(rowsOf(table), (Texts{"1. Male,30", "2,6", "Total,30", "MV,90", "NA,4"}));
    EXPECT_EQ(namesOf(table), (Texts{"PERSON.SEX", "Maximum"}));
    EXPECT_EQ(labelsOf(table), (Texts{"Sex", "Maximum"}));
    EXPECT_EQ(table.method, 3);
    EXPECT_EQ(table.dimension, 1);
    const auto json = nlohmann::json::parse(output::asJson(table));
    EXPECT_EQ(json["rows"], nlohmann::json::parse(R"([["1","Male","",30.0],["2","2","",6.0],
        ["0","__tot__","tot",30.0],["0","__mv__","mv",90.0],["0","__na__","na",4.0]])"));
    EXPECT_EQ(json["kind"], "MAXIMUM");
    EXPECT_EQ(json["variables"][0]["name"], "PERSON.AGE");
    EXPECT_EQ(output::asCsv(table), "PERSON.SEX,Maximum\r\n1. Male,30\r\n2,6\r\nTotal,30\r\n"
                                    "MV,90\r\nNA,4\r\n");
}

TEST_F(Measures, withoutByThereIsOneRow) {
    add(TableKind::Average);
    output::Table table = of(measured(
        {}, {{{}, 0, {1, 2}}}, 1, [](const auto& values) { return std::vector{mean(values)}; }));
    EXPECT_EQ(rowsOf(table), Texts{"PERSON.AGE,1.5"});
    EXPECT_EQ(table.dimension, 0);
    EXPECT_EQ(table.variables.size(), 1U);
}

TEST_F(Measures, severalFiguresHaveTheirOwnLabels) {
    add(TableKind::Stats, {sex_});
    const auto tenths = [](const std::vector<double>& values) {
        std::vector<execution::Figure> figures;
        for (std::int64_t i = 0; i < 10; ++i)
            figures.emplace_back(static_cast<std::int64_t>(values.size()) * 10 + i);
        figures[9] = std::monostate();
        return figures;
    };
    output::Table table = of(measured({sexes()}, {{{0}, 0, {1, 2}}, {{1}, 0, {3}}}, 10, tenths));
    EXPECT_EQ(rowsOf(table),
              (Texts{"1. Male,20,21,22,23,24,25,26,27,28,", "2. Female,10,11,12,13,14,15,16,17,18,",
                     "Total,30,31,32,33,34,35,36,37,38,"}));
    EXPECT_EQ(labelsOf(table), (Texts{"Sex", "Cases", "Sum", "Mean", "Median", "Minimum", "Maximum",
                                      "Standard deviation", "Variance", "Coefficient of variation",
                                      "Standard error"}));
    made_.program.tables.clear();
    add(TableKind::Quantile);
    table = of(measured({}, {{{}, 0, {1}}}, 3, [](const auto&) {
        return std::vector<execution::Figure>{1.0, 2.0, 3.0};
    }));
    EXPECT_EQ(labelsOf(table), (Texts{"Quantile 1", "Quantile 2", "Quantile 3"}));
    EXPECT_EQ(rowsOf(table), Texts{"1,2,3"});
    EXPECT_EQ(table.method, 9);
}

TEST_F(Measures, anEmptyTableHasItsTotal) {
    add(TableKind::Average, {sex_});
    EXPECT_EQ(rowsOf(of(measured({sexes({})}, {}, 1,
                                 [](const auto& values) { return std::vector{mean(values)}; }))),
              Texts{"0,__tot__,tot,"});
}

TEST_F(Measures, areasThatBreakTheRunAreTheFirstDimension) {
    auto& command = add(TableKind::Average, {sex_});
    language::RunSettings settings;
    settings.areaBreak = made_.dictionary.findEntity("PROVINCE");
    command.settings = std::make_shared<const language::RunSettings>(settings);
    const output::Table table = of(measured(
        {dimension(made_.variable("PROVINCE", "CODE"), {"1. North"}), sexes()}, {{{0, 0}, 0, {1}}},
        1, [](const auto& values) { return std::vector{mean(values)}; }));
    EXPECT_EQ(table.dimension, 2);
    ASSERT_EQ(table.variables.size(), 3U);
    EXPECT_EQ(table.variables[0].areas, nullptr);
    EXPECT_EQ(table.variables[1].areas, settings.areaBreak);
    EXPECT_EQ(table.variables[2].areas, nullptr);
}

TEST_F(Measures, textHasAllDimensionsAndFigures) {
    add(TableKind::Maximum, {sex_});
    EXPECT_EQ(
        output::asText(of(measured({sexes()}, {{{0}, 0, {1, 30}}, {{1}, 0, {6.5}}}, 1, largest))),
        R"(T (MAXIMUM)
Database: Test country
Area: All Database
Unit of count: PERSON

Sex        Maximum
------------------
1. Male         30
2. Female      6.5
Total           30
)");
}

} // namespace
} // namespace kelx::test
