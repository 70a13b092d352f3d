// SPDX-License-Identifier: Apache-2.0
// Area lists, views, and tables of tables.
#include "hand_made.h"

#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

namespace kelx::test {
namespace {

using language::TableKind;
using Texts = std::vector<std::string>;

class Lists : public testing::Test {
protected:
    language::TableCommand& list(const std::string& name, TableKind kind) {
        auto& command = made_.add(name, kind);
        command.countEntity = made_.dictionary.findEntity("PROVINCE");
        command.unit = command.countEntity;
        return command;
    }
    /// A table under each of the list's records; returns its number.
    std::size_t hidden(const std::string& name, TableKind kind = TableKind::Frequency) {
        auto& command = made_.add(name, kind, {std::make_shared<language::Expression>()});
        command.isOutput = false;
        command.isHidden = true;
        return made_.program.tables.size() - 1;
    }
    static execution::TableResult records(std::vector<execution::ListValues> columns) {
        execution::TableResult result;
        result.list = std::make_shared<execution::ListResult>();
        result.list->records = {0, 1, 2};
        result.list->codes.values = {"01", "02", "03"};
        result.list->labels.values = {"South", "North"};
        result.list->labels.numbers = {1, 0, 1};
        result.list->columns = std::move(columns);
        return result;
    }
    execution::Dimension sexes(const Texts& categories = {"1. Male", "2. Female"}) {
        return dimension(made_.variable("PERSON", "SEX"), categories);
    }

    HandMade made_;
};

TEST_F(Lists, areasHaveTheColumnsOfTables) {
    auto& areas = list("LIST", TableKind::AreaList);
    const std::size_t sex = hidden("T1");
    const std::size_t all = hidden("T2", TableKind::Count);
    const std::size_t average = hidden("T3", TableKind::Average);
    made_.program.tables[average].measure = made_.expression("PERSON", "AGE");
    areas.columns = {{made_.expression("PROVINCE", "RATE"), {}, {}},
                     {nullptr, sex, {}},
                     {nullptr, all, {}},
                     {nullptr, average, {}}};
    // Nobody lives in the second province; the first has none of unknown sex but men and women.
    made_.take(average, measured({recordNumbers({0, 2})}, {{{0}, 0, {1, 2}}, {{1}, 0, {5}}}, 1,
                                 [](const auto& values) { return std::vector{mean(values)}; }));
    made_.take(0, records({{{0.5, std::monostate(), std::int64_t{2}}, {}}, {}, {}, {}}));
    made_.take(all, counted({recordNumbers({0, 2})}, {{{0}, 6, {}}, {{1}, 4, {}}}));
    made_.take(sex, counted({recordNumbers({0, 2}), sexes({"1. Male", "2", "MV"})},
                            {{{0, 0}, 3, {}}, {{0, 1}, 2, {}}, {{0, 2}, 1, {}}, {{1, 1}, 4, {}}}));
    const auto tables = made_.finish();
    ASSERT_EQ(tables.size(), 1U);
    const output::Table& table = tables.at("LIST");
    EXPECT_EQ(rowsOf(table), (Texts{"01,North,0.5,3,2,5,1,6,1.5", "02,South,,0,0,0,0,0,",
                                    "03,North,2,0,4,4,0,4,5"}));
    EXPECT_EQ(namesOf(table), (Texts{"PROVINCE.CMPCODE", "PROVINCE.NAME", "PROVINCE.RATE",
                                     "1. Male", "2", "T1 Total", "T1 MV", "T2", "T3"}));
    EXPECT_EQ(labelsOf(table), (Texts{"Province", "Name of the province", "RATE", "Male", "2",
                                      "$tot$", "$mv$", "T2", "T3"}));
    EXPECT_EQ(groupsOf(table), (Texts{"Province", "Name of the province", "PROVINCE.RATE", "T1 Sex",
                                      "T1 Sex", "T1 Sex", "T1 Sex", "T2", "T3 Age"}));
    EXPECT_EQ(table.type, 1);
    EXPECT_EQ(table.method, 0);
    EXPECT_EQ(table.dimension, 5);
    ASSERT_EQ(table.variables.size(), 5U);
    EXPECT_EQ(table.variables[0].name, "PROVINCE.NAME");
    EXPECT_EQ(table.variables[2].name, "PERSON.SEX");
    EXPECT_EQ(table.entity, made_.dictionary.findEntity("PROVINCE"));
    EXPECT_EQ(nlohmann::json::parse(output::asJson(table))["rows"][1],
              nlohmann::json::parse(R"(["02","South",null,0,0,0,0,0,null])"));
}

TEST_F(Lists, neighboursHaveDifferentHeadings) {
    auto& areas = list("LIST", TableKind::AreaList);
    made_.variable("PROVINCE", "RATE").label = "Name of the province";
    const std::size_t first = hidden("T1", TableKind::Count);
    const std::size_t second = hidden("T1", TableKind::Count);
    areas.columns = {{made_.expression("PROVINCE", "RATE"), {}, {}},
                     {nullptr, first, {}},
                     {nullptr, second, {}}};
    for (const std::size_t table : {first, second})
        made_.take(table, counted({recordNumbers({})}, {}));
    made_.take(0, records({{{1.0, 2.0, 3.0}, {}}, {}, {}}));
    EXPECT_EQ(groupsOf(made_.finish().at("LIST")),
              (Texts{"Province", "PROVINCE.NAME", "PROVINCE.RATE", "T1", "T1 (5)"}));
}

TEST_F(Lists, viewsShowRecordsAndHideWhatIsSensitive) {
    auto& view = list("VIEW", TableKind::View);
    view.columns = {{made_.expression("PROVINCE", "RATE"), {}, {}},
                    {made_.expression("PROVINCE", "CODE"), {}, {}}};
    made_.variable("PROVINCE", "RATE").sensitive = 2;
    made_.take(0, records({{{7.0, 8.0, std::monostate()}, {}}, {{"01", "02", "03"}, {}}}));
    const output::Table table = made_.finish().at("VIEW");
    EXPECT_EQ(rowsOf(table), (Texts{"01,,01", "02,,02", "03,,03"}));
    EXPECT_EQ(table.suppressed, 2);
    EXPECT_EQ(table.kind, "VIEW");
    EXPECT_EQ(table.dimension, 2);
    const std::string text = output::asText(table);
    EXPECT_NE(text.find("\n2 cells are suppressed.\n"), std::string::npos) << text;
}

TEST_F(Lists, columnsOfTablesAreSuppressedToo) {
    auto& areas = list("LIST", TableKind::AreaList);
    const std::size_t sex = hidden("T1");
    made_.program.tables[sex].sensitive = 3;
    areas.columns = {{nullptr, sex, {}}};
    made_.take(sex, counted({recordNumbers({0, 1, 2}), sexes()}, {{{0, 0}, 2, {}},
                                                                  {{0, 1}, 9, {}},
                                                                  {{1, 0}, 7, {}},
                                                                  {{1, 1}, 8, {}},
                                                                  {{2, 0}, 20, {}},
                                                                  {{2, 1}, 30, {}}}));
    made_.take(0, records({{}}));
    const output::Table table = made_.finish().at("LIST");
    // Two men in the first province: its women would tell them, and so would another province's.
    EXPECT_EQ(rowsOf(table), (Texts{"01,North,,,11", "02,South,,,15", "03,North,20,30,50"}));
    EXPECT_EQ(table.suppressed, 4);
}

TEST_F(Lists, tablesStandSideBySide) {
    made_.add("A", TableKind::Frequency, {made_.expression("PERSON", "SEX")});
    made_
        .add("B", TableKind::Frequency,
             {made_.expression("PERSON", "SEX"), made_.expression("PROVINCE", "CODE")})
        .isOutput = false;
    made_.add("C", TableKind::Average, {made_.expression("PERSON", "SEX")}).measure =
        made_.expression("PERSON", "AGE");
    made_.add("ALL", TableKind::Tablist).operands = {0, 1, 2};
    made_.program.tables[3].unit = nullptr;
    made_.take(0, counted({sexes({"1. Male", "3. Other", "MV"})},
                          {{{0}, 5, {}}, {{1}, 2, {}}, {{2}, 1, {}}}));
    made_.take(1, counted({sexes({"2. Female"}),
                           dimension(made_.variable("PROVINCE", "CODE"), {"1. North", "NA"})},
                          {{{0, 0}, 4, {}}, {{0, 1}, 6, {}}}));
    made_.take(2, measured({sexes({"1. Male"})}, {{{0}, 0, {3, 4}}}, 1,
                           [](const auto& values) { return std::vector{mean(values)}; }));
    const auto tables = made_.finish();
    EXPECT_EQ(tables.count("B"), 0U);
    const output::Table& table = tables.at("ALL");
    EXPECT_EQ(namesOf(table), (Texts{"PERSON.SEX", "A", "B 1. North", "B Total", "B NA", "C"}));
    EXPECT_EQ(rowsOf(table), (Texts{"1. Male,5,0,0,0,3.5", "2. Female,0,4,4,6,",
                                    "3. Other,2,0,0,0,", "Total,7,4,4,6,3.5", "MV,1,0,0,0,"}));
    EXPECT_EQ(table.type, 2);
    EXPECT_EQ(table.dimension, 1);
    EXPECT_EQ(table.unit, "PERSON"); // all three agree
    EXPECT_EQ(nlohmann::json::parse(output::asJson(table))["unit"], "PERSON");
}

/// The operation "A / B * 100" and such.
class Operations : public Lists {
protected:
    using Operation = language::Operation;
    using Node = std::unique_ptr<language::Expression>;

    static Node figure(std::size_t table) {
        auto node = std::make_unique<language::Expression>();
        node->operation = Operation::TableFigure;
        node->table = table;
        return node;
    }
    static Node number(language::Constant value) {
        auto node = std::make_unique<language::Expression>();
        node->constant = std::move(value);
        return node;
    }
    static Node of(Operation operation, Node a, Node b = nullptr) {
        auto node = std::make_unique<language::Expression>();
        node->operation = operation;
        node->arguments.push_back(std::move(a));
        if (b)
            node->arguments.push_back(std::move(b));
        return node;
    }
    void addOperands() {
        made_.add("A", TableKind::Frequency, {made_.expression("PERSON", "SEX")});
        made_.add("B", TableKind::Frequency, {made_.expression("PERSON", "SEX")});
    }
    output::Table worked(Node operation) {
        auto& command = made_.add("OP", TableKind::Tabop);
        command.unit = nullptr;
        command.operands = {0, 1};
        command.operation = std::move(operation);
        return made_.finish().at("OP");
    }
};

TEST_F(Operations, workRowByRowOverAllRows) {
    addOperands();
    made_.take(0, counted({sexes({"1. Male", "2. Female", "MV"})},
                          {{{0}, 1, {}}, {{1}, 3, {}}, {{2}, 5, {}}}));
    made_.take(1, counted({sexes({"2. Female", "4"})}, {{{0}, 4, {}}, {{1}, 6, {}}}));
    const output::Table table =
        worked(of(Operation::Multiply, of(Operation::Divide, figure(0), figure(1)),
                  number(std::int64_t{100})));
    EXPECT_EQ(rowsOf(table), (Texts{"1. Male,", "2. Female,75", "4,0", "Total,40", "MV,"}));
    EXPECT_EQ(rowsOf(*table.inTriples),
              (Texts{"1,Male,,", "2,Female,,75", "4,4,,0", "0,__tot__,tot,40", "0,__mv__,mv,"}));
    EXPECT_EQ(table.type, 3);
    EXPECT_EQ(table.method, 0);
    EXPECT_EQ(table.dimension, 1);
    EXPECT_EQ(table.variables.at(0).name, "PERSON.SEX");
}

TEST_F(Operations, wholeNumbersStayWholeAndWhatCannotBeIsBlank) {
    addOperands();
    made_.take(0, counted({sexes()}, {{{0}, 7, {}}, {{1}, std::uint64_t{1} << 62, {}}}));
    made_.take(1, counted({sexes()}, {{{0}, 9, {}}, {{1}, 1, {}}}));
    // -(A - B) + A * 4 - (A / (A - 7)): the first is 2 + 28 - none, the second too large
    const output::Table difference = worked(
        of(Operation::Add, of(Operation::Negate, of(Operation::Subtract, figure(0), figure(1))),
           of(Operation::Multiply, figure(0), number(std::int64_t{4}))));
    EXPECT_EQ(rowsOf(difference), (Texts{"1. Male,30", "2. Female,", "Total,"}));
    EXPECT_TRUE(std::holds_alternative<std::int64_t>(difference.at(0, 1)));
}

TEST_F(Operations, divisionByZeroIsBlank) {
    addOperands();
    made_.take(0, counted({sexes()}, {{{0}, 7, {}}, {{1}, 16, {}}}));
    made_.take(1, counted({sexes()}, {{{0}, 7, {}}, {{1}, 7, {}}}));
    EXPECT_EQ(rowsOf(worked(of(Operation::Divide, number(18.0),
                               of(Operation::Subtract, figure(0), figure(1))))),
              (Texts{"1. Male,", "2. Female,2", "Total,2"}));
}

TEST_F(Operations, severalDimensionsStandInTriples) {
    const std::vector<language::ExpressionPtr> by = {made_.expression("PROVINCE", "CODE"),
                                                     made_.expression("PERSON", "SEX")};
    made_.add("A", TableKind::Frequency, by);
    made_.add("B", TableKind::Frequency, by);
    const auto provinces = [&](const Texts& categories) {
        return dimension(made_.variable("PROVINCE", "CODE"), categories);
    };
    made_.take(0,
               counted({provinces({"1", "2"}), sexes({"1"})}, {{{0, 0}, 2, {}}, {{1, 0}, 3, {}}}));
    made_.take(1,
               counted({provinces({"2"}), sexes({"1", "2"})}, {{{0, 0}, 1, {}}, {{0, 1}, 1, {}}}));
    const output::Table table = worked(of(Operation::Subtract, figure(0), figure(1)));
    EXPECT_EQ(rowsOf(table), (Texts{"1,1,,1,1,,2", "1,1,,0,__tot__,tot,2", "2,2,,1,1,,2",
                                    "2,2,,2,2,,-1", "2,2,,0,__tot__,tot,1", "0,__tot__,tot,1,1,,4",
                                    "0,__tot__,tot,2,2,,-1", "0,__tot__,tot,0,__tot__,tot,3"}));
    EXPECT_EQ(table.dimension, 2);
}

TEST_F(Operations, refuseDifferentShapes) {
    addOperands();
    made_.take(0, counted({sexes()}, {{{0}, 7, {}}}));
    made_.take(1, counted({}, {{{}, 7, {}}}));
    try {
        worked(of(Operation::Add, figure(0), figure(1)));
        FAIL() << "tables of different shapes were added";
    } catch (const std::runtime_error& error) {
        EXPECT_STREQ(error.what(), "The tables A and B of OP have different shapes.");
    }
}

TEST_F(Operations, whatIsSuppressedStaysSo) {
    addOperands();
    made_.program.tables[0].sensitive = 3;
    made_.take(0, counted({sexes({"1", "2", "3"})}, {{{0}, 2, {}}, {{1}, 5, {}}, {{2}, 9, {}}}));
    made_.take(1, counted({sexes({"1", "2", "3"})}, {{{0}, 20, {}}, {{1}, 50, {}}, {{2}, 90, {}}}));
    const output::Table table = worked(of(Operation::Add, figure(0), figure(1)));
    EXPECT_EQ(rowsOf(table), (Texts{"1,", "2,", "3,99", "Total,176"}));
    EXPECT_EQ(table.suppressed, 2);
}

} // namespace
} // namespace kelx::test
