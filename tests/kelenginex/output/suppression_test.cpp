// SPDX-License-Identifier: Apache-2.0
// Small cells, and what would give them away.
#include "hand_made.h"
#include "output/suppression.h"

#include <gtest/gtest.h>

#include <random>

namespace kelx::test {
namespace {

using language::TableKind;
using Texts = std::vector<std::string>;

class Suppression : public testing::Test {
protected:
    output::Table of(std::vector<execution::Dimension> dimensions,
                     const std::vector<HandCell>& cells, int least) {
        std::vector<language::ExpressionPtr> by(dimensions.size(),
                                                made_.expression("PERSON", "SEX"));
        made_.program.tables.clear();
        made_.add("T", TableKind::Frequency, by).sensitive = least;
        made_.take(0, counted(std::move(dimensions), cells));
        return made_.finish().at("T");
    }
    execution::Dimension codes(const Texts& categories) {
        return dimension(made_.variable("PERSON", "SEX"), categories);
    }
    HandMade made_;
};

TEST_F(Suppression, hidesTheSmallestCellBesideASmallOne) {
    const output::Table table = of({codes({"1", "2", "3", "MV"})},
                                   {{{0}, 2, {}}, {{1}, 10, {}}, {{2}, 7, {}}, {{3}, 4, {}}}, 5);
    EXPECT_EQ(rowsOf(table),
              (Texts{"1,1,,", "2,2,,10", "3,3,,", "0,__tot__,tot,19", "0,__mv__,mv,"}));
    EXPECT_EQ(table.suppressed, 3);
    EXPECT_NE(output::asText(table).find("\n3 cells are suppressed.\n"), std::string::npos);
    EXPECT_NE(output::asJson(table).find("\"suppressed\":3"), std::string::npos);
}

TEST_F(Suppression, leavesNoneAndEnoughAlone) {
    EXPECT_EQ(of({codes({"1", "2"})}, {{{0}, 5, {}}, {{1}, 6, {}}}, 5).suppressed, 0);
    EXPECT_EQ(of({codes({})}, {}, 5).suppressed, 0);
    EXPECT_EQ(rowsOf(of({}, {{{}, 0, {}}}, 5)).size(), 1U);
}

TEST_F(Suppression, hidesTheTotalWhereItTellsTheOnlyCell) {
    EXPECT_EQ(rowsOf(of({codes({"1"})}, {{{0}, 2, {}}}, 5)), (Texts{"1,1,,", "0,__tot__,tot,"}));
    const output::Table table = of({}, {{{}, 3, {}}}, 5);
    EXPECT_EQ(rowsOf(table), Texts{""});
    EXPECT_NE(output::asText(table).find("\n1 cell is suppressed.\n"), std::string::npos);
}

TEST_F(Suppression, goesOnAlongTheOtherDimension) {
    // Of 2 20 30 / 10 40 50 the 2 is small: the 20 and the 10 beside it, the 40 beside both.
    const output::Table table = of({codes({"1", "2"}), codes({"1", "2", "3"})},
                                   {{{0, 0}, 2, {}},
                                    {{0, 1}, 20, {}},
                                    {{0, 2}, 30, {}},
                                    {{1, 0}, 10, {}},
                                    {{1, 1}, 40, {}},
                                    {{1, 2}, 50, {}}},
                                   5);
    EXPECT_EQ(rowsOf(table),
              (Texts{"1,1,,1,1,,", "1,1,,2,2,,", "1,1,,3,3,,30", "1,1,,0,__tot__,tot,52",
                     "2,2,,1,1,,", "2,2,,2,2,,", "2,2,,3,3,,50", "2,2,,0,__tot__,tot,100",
                     "0,__tot__,tot,1,1,,12", "0,__tot__,tot,2,2,,60", "0,__tot__,tot,3,3,,80",
                     "0,__tot__,tot,0,__tot__,tot,152"}));
}

/// Rows with one place set free make a line; it must not have a single hidden row that counts.
void expectNoLineTellsItsCell(const output::RowTable& table) {
    for (std::size_t d = 0; d < table.places.size(); ++d) {
        std::map<std::vector<std::uint32_t>, int> hidden;
        for (std::size_t row = 0; row < table.rows(); ++row) {
            std::vector<std::uint32_t> line;
            for (std::size_t other = 0; other < table.places.size(); ++other)
                line.push_back(other == d ? 0 : table.place(other, row));
            if (table.place(d, row) <= table.valid[d])
                hidden[line] += table.isHidden(row) ? 1 : 0;
        }
        for (const auto& [line, count] : hidden)
            ASSERT_NE(count, 1) << "a line of dimension " << d << " tells its hidden cell";
    }
}

TEST_F(Suppression, noCellFollowsFromItsLines) {
    std::mt19937 random(7);
    const auto upTo = [&](unsigned most) { return static_cast<unsigned>(random() % most); };
    for (int round = 0; round < 400; ++round) {
        const unsigned width = 1 + upTo(4);
        std::vector<execution::Dimension> dimensions;
        std::uint32_t all = 1;
        for (unsigned d = 0; d < width; ++d) {
            Texts names;
            for (unsigned i = 1; i <= 1 + upTo(4); ++i)
                names.push_back(std::to_string(i));
            if (upTo(2) == 0)
                names.emplace_back("MV");
            dimensions.push_back(codes(names));
            all *= static_cast<std::uint32_t>(names.size());
        }
        std::vector<HandCell> cells;
        for (std::uint32_t number = 0; number < all; ++number) {
            std::vector<std::uint32_t> places(width);
            std::uint32_t rest = number;
            for (unsigned d = width; d-- > 0;) {
                const auto size = static_cast<std::uint32_t>(dimensions[d].categories.size());
                places[d] = rest % size;
                rest /= size;
            }
            if (upTo(4) > 0)
                cells.push_back({places, 1 + upTo(upTo(3) == 0 ? 4 : 60), {}});
        }
        execution::TableResult result = counted(dimensions, cells);
        made_.program.tables.clear();
        result.command = &made_.add("T", TableKind::Frequency, {});
        execution::Progress silent({});
        output::RowTable table = output::makeRows(result, silent);
        const output::RowTable before = output::makeRows(result, silent);
        const int least = 2 + static_cast<int>(upTo(6));
        output::suppress(table, least, silent);
        for (std::size_t row = 0; row < table.rows(); ++row) {
            const bool small =
                table.records[row] > 0 && table.records[row] < static_cast<std::uint64_t>(least);
            ASSERT_TRUE(!small || table.isHidden(row)) << round;
            const auto& figure = (*table.figures[0])[row];
            ASSERT_EQ(std::holds_alternative<std::monostate>(figure), table.isHidden(row));
            ASSERT_TRUE(table.isHidden(row) || figure == (*before.figures[0])[row]);
        }
        expectNoLineTellsItsCell(table);
    }
}

} // namespace
} // namespace kelx::test
