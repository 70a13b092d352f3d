// SPDX-License-Identifier: Apache-2.0
// SORT of finished tables.
#include "hand_made.h"
#include "output/sorting.h"

#include <gtest/gtest.h>

#include <stdexcept>

namespace kelx::test {
namespace {

using language::SortClause;
using language::TableKind;
using Texts = std::vector<std::string>;

class Sorting : public testing::Test {
protected:
    /// A frequency: 1 Low 5, 2 Éle 9, 3 High 5, 10 Zero 1, total 20, missing 30.
    Texts sorted(const std::string& column, bool descending = false, std::optional<int> limit = {},
                 std::optional<int> sensitive = {}) {
        made_.program.tables.clear();
        auto& command = made_.add("T", TableKind::Frequency, {made_.expression("PERSON", "SEX")});
        command.sort = SortClause{column, {}, descending, limit, {4, 7}};
        command.sensitive = sensitive;
        made_.take(
            0, counted({dimension(made_.variable("PERSON", "SEX"),
                                  {"1. Low", "2. Éle", "3. High", "10. Zero", "MV"})},
                       {{{0}, 5, {}}, {{1}, 9, {}}, {{2}, 5, {}}, {{3}, 1, {}}, {{4}, 30, {}}}));
        Texts codes;
        const auto tables = made_.finish();
        const output::Table& table = tables.at("T");
        for (std::int64_t row = 0; row < table.rows(); ++row)
            codes.push_back(output::toText(table.at(row, 2)) + output::toText(table.at(row, 0)));
        return codes;
    }
    HandMade made_;
};

TEST_F(Sorting, byTheFigureAndMarkersStayLast) {
    EXPECT_EQ(sorted(""), (Texts{"10", "1", "3", "2", "tot0", "mv0"}));
    EXPECT_EQ(sorted("", true), (Texts{"2", "1", "3", "10", "tot0", "mv0"}));
    EXPECT_EQ(sorted("t", true, 2), (Texts{"2", "1", "tot0", "mv0"}));
    EXPECT_EQ(sorted("Persons", false, 0), (Texts{"10", "1", "3", "2", "tot0", "mv0"}));
}

TEST_F(Sorting, byCodeOrLabel) {
    EXPECT_EQ(sorted("person.sex", true), (Texts{"10", "3", "2", "1", "tot0", "mv0"}));
    EXPECT_EQ(sorted("SEX"), (Texts{"1", "2", "3", "10", "tot0", "mv0"}));
    EXPECT_EQ(sorted("PERSON.SEX label"), (Texts{"3", "1", "10", "2", "tot0", "mv0"}));
}

TEST_F(Sorting, blanksComeLast) {
    // 1 and 5 are suppressed: the one is small, the other beside it.
    const Texts up = sorted("", false, {}, 2);
    EXPECT_EQ(up, (Texts{"3", "2", "1", "10", "tot0", "mv0"}));
    EXPECT_EQ(sorted("", true, {}, 2), (Texts{"2", "3", "1", "10", "tot0", "mv0"}));
}

TEST_F(Sorting, anUnknownColumnIsToldWithTheKnownOnes) {
    try {
        sorted("INCOME");
        FAIL() << "a column that is not there was sorted by";
    } catch (const output::SortFault& fault) {
        EXPECT_EQ(fault.message().text,
                  "T has no column \"INCOME\" to be sorted by. Its columns are PERSON.SEX, "
                  "PERSON.SEX label, PERSON.SEX kind, PERSON.");
        EXPECT_EQ(fault.message().position.line, 4);
        EXPECT_EQ(fault.message().position.column, 7);
    }
}

TEST_F(Sorting, textsAndTriplesStayTogether) {
    auto& command = made_.add("M", TableKind::Maximum, {made_.expression("PERSON", "SEX")});
    command.measure = made_.expression("PERSON", "AGE");
    command.sort = SortClause{"age", {}, true, 1, {}};
    made_.take(0, measured({dimension(made_.variable("PERSON", "SEX"), {"1. A", "2. B"})},
                           {{{0}, 0, {2}}, {{1}, 0, {3.5}}}, 1, [](const auto& values) {
                               return std::vector<execution::Figure>{values.back()};
                           }));
    const output::Table table = made_.finish().at("M");
    EXPECT_EQ(rowsOf(table), (Texts{"2. B,3.5", "Total,3.5"}));
    EXPECT_EQ(rowsOf(*table.inTriples), (Texts{"2,B,,3.5", "0,__tot__,tot,3.5"}));
}

TEST_F(Sorting, listsBySomeColumn) {
    const auto listed = [&](const std::string& column, bool descending,
                            std::optional<int> element = {}) {
        made_.program.tables.clear();
        auto& list = made_.add("L", TableKind::AreaList);
        list.countEntity = made_.dictionary.findEntity("PROVINCE");
        auto& hidden =
            made_.add("T1", TableKind::Frequency, {std::make_shared<language::Expression>()});
        hidden.isHidden = true;
        hidden.isOutput = false;
        list.columns = {{made_.expression("PROVINCE", "RATE"), {}, {}}, {nullptr, 1, {}}};
        list.sort = SortClause{column, element, descending, {}, {3, 1}};
        execution::TableResult records;
        records.list = std::make_shared<execution::ListResult>();
        records.list->records = {0, 1, 2};
        records.list->codes.values = {"01", "02", "03"};
        records.list->labels.values = {"b", "c"};
        records.list->labels.numbers = {1, 0, 1};
        records.list->columns = {{{2.5, std::monostate(), std::int64_t{2}}, {}}, {}};
        made_.take(0, std::move(records));
        made_.take(1,
                   counted({recordNumbers({0, 1, 2}),
                            dimension(made_.variable("PERSON", "SEX"), {"1. Male", "2. Female"})},
                           {{{0, 0}, 9, {}}, {{1, 1}, 10, {}}, {{2, 0}, 3, {}}, {{2, 1}, 1, {}}}));
        const output::Table table = made_.finish().at("L");
        std::string codes;
        for (std::int64_t row = 0; row < table.rows(); ++row)
            codes += output::toText(table.at(row, 0)).substr(1);
        return codes;
    };
    EXPECT_EQ(listed("", false), "312");
    EXPECT_EQ(listed("rate", true), "132");
    EXPECT_EQ(listed("PROVINCE", true), "321");
    EXPECT_EQ(listed("NAME", false), "213");
    EXPECT_EQ(listed("PROVINCE.CODE", true), "321");
    EXPECT_EQ(listed("T1", true), "213");
    EXPECT_EQ(listed("T1", true, 1), "132");
    EXPECT_EQ(listed("T1", true, 3), "213");
    EXPECT_EQ(listed("T1", true, 4), "213") << "a limit that keeps all";
    EXPECT_EQ(listed("2. female", true), "231");
    EXPECT_EQ(listed("Male", true), "132");
}

} // namespace
} // namespace kelx::test
