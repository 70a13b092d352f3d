// SPDX-License-Identifier: Apache-2.0
// Small cells, and what would give them away.
#include "hand_made.h"
#include "output/suppression.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <map>
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

/// The hidden rows on each line, by the places of the other dimensions.
using HiddenLines = std::vector<std::vector<std::size_t>>;
HiddenLines hiddenLinesOf(const output::RowTable& table) {
    HiddenLines result;
    for (std::size_t d = 0; d < table.places.size(); ++d) {
        std::map<std::vector<std::uint32_t>, std::vector<std::size_t>> lines;
        for (std::size_t row = 0; row < table.rows(); ++row) {
            std::vector<std::uint32_t> line;
            for (std::size_t other = 0; other < table.places.size(); ++other)
                line.push_back(other == d ? table.valid[d] : table.place(other, row));
            if (table.place(d, row) > table.valid[d])
                continue;
            auto& hidden = lines[line];
            if (table.isHidden(row))
                hidden.push_back(row);
        }
        for (auto& [line, hidden] : lines)
            result.push_back(std::move(hidden));
    }
    return result;
}

bool isTotalOfLine(const output::RowTable& table, const std::vector<std::size_t>& line,
                   std::size_t row) {
    for (const std::size_t other : line) {
        for (std::size_t d = 0; d < table.places.size(); ++d) {
            if (table.place(d, other) != table.place(d, row))
                return table.place(d, row) == table.valid[d];
        }
    }
    return false;
}

/// Solves the sums of all lines for the hidden rows, as someone would who has the visible ones:
/// Gauss and Jordan in the remainders of a prime. Gives the number of rows that have one value.
std::size_t solvedIn(const output::RowTable& table) {
    constexpr std::int64_t prime = 1'000'000'007;
    const auto power = [](std::int64_t base, std::int64_t exponent) {
        std::int64_t result = 1;
        for (; exponent > 0; exponent /= 2, base = base * base % prime)
            result = exponent % 2 == 1 ? result * base % prime : result;
        return result;
    };
    std::map<std::size_t, std::size_t> unknowns;
    for (std::size_t row = 0; row < table.rows(); ++row) {
        if (table.isHidden(row))
            unknowns.emplace(row, unknowns.size());
    }
    std::vector<std::vector<std::int64_t>> equations;
    for (const std::vector<std::size_t>& line : hiddenLinesOf(table)) {
        equations.emplace_back(unknowns.size());
        for (const std::size_t row : line)
            equations.back()[unknowns[row]] = isTotalOfLine(table, line, row) ? prime - 1 : 1;
    }
    std::size_t rank = 0;
    for (std::size_t column = 0; column < unknowns.size(); ++column) {
        const auto pivot =
            std::find_if(equations.begin() + static_cast<std::ptrdiff_t>(rank), equations.end(),
                         [&](const auto& e) { return e[column] != 0; });
        if (pivot == equations.end())
            continue;
        std::swap(*pivot, equations[rank]);
        const std::int64_t inverse = power(equations[rank][column], prime - 2);
        for (std::int64_t& value : equations[rank])
            value = value * inverse % prime;
        for (std::size_t other = 0; other < equations.size(); ++other) {
            const std::int64_t factor = equations[other][column];
            for (std::size_t i = 0; other != rank && factor != 0 && i < unknowns.size(); ++i)
                equations[other][i] =
                    (equations[other][i] + (prime - factor) * equations[rank][i]) % prime;
        }
        ++rank;
    }
    return static_cast<std::size_t>(
        std::count_if(equations.begin(), equations.end(), [](const auto& equation) {
            return std::count_if(equation.begin(), equation.end(),
                                 [](std::int64_t value) { return value != 0; }) == 1;
        }));
}

/// Categories have a record at least: a small rest to share out would tell what each one has.
void expectRoomOnLines(const output::RowTable& table, std::uint64_t least) {
    for (const std::vector<std::size_t>& line : hiddenLinesOf(table)) {
        if (line.empty() || std::any_of(line.begin(), line.end(), [&](std::size_t row) {
                return line.size() == 1 || isTotalOfLine(table, line, row);
            }))
            continue;
        std::uint64_t records = 0;
        for (const std::size_t row : line)
            records += table.records[row];
        ASSERT_GE(records, std::max<std::uint64_t>(least, line.size() + 1));
    }
}

TEST_F(Suppression, leavesRoomBetweenSmallCells) {
    // 1 and 1 of 20 with 18 in sight would each be 1.
    const auto rows = [&](int least) {
        return rowsOf(
            of({codes({"1", "2", "3"})}, {{{0}, 1, {}}, {{1}, 1, {}}, {{2}, 18, {}}}, least));
    };
    EXPECT_EQ(rows(3), (Texts{"1,1,,", "2,2,,", "3,3,,", "0,__tot__,tot,20"}));
    EXPECT_EQ(rows(2), rows(3));
}

TEST_F(Suppression, findsWhatFollowsFromSeveralLines) {
    // Two blocks of four small cells, and one small cell whose row and column both have hidden
    // neighbours: rows and columns of one block tell it, as the block's own sums are known.
    std::vector<HandCell> cells;
    for (std::uint32_t row = 0; row < 4; ++row) {
        for (std::uint32_t column = 0; column < 4; ++column) {
            const bool block = row / 2 == column / 2;
            const bool bridge = row == 1 && column == 2;
            cells.push_back({{row, column}, block ? 3U : bridge ? 2U : 50 + row * 4 + column, {}});
        }
    }
    execution::TableResult result =
        counted({codes({"1", "2", "3", "4"}), codes({"1", "2", "3", "4"})}, cells);
    made_.program.tables.clear();
    result.command = &made_.add("T", TableKind::Frequency, {});
    execution::Progress silent({});
    output::RowTable table = output::makeRows(result, silent);
    output::suppress(table, 5, silent);
    EXPECT_EQ(solvedIn(table), 0U);
    EXPECT_EQ(table.suppressed(), 10); // one more between the blocks, of the fewest records
    EXPECT_TRUE(table.isHidden(2)) << "first row, third column";
}

TEST_F(Suppression, isQuickInLargeTables) {
    std::mt19937 random(3);
    const auto seconds = [&](const std::vector<std::uint32_t>& sizes) {
        std::vector<execution::Dimension> dimensions;
        std::vector<HandCell> cells{{{}, 0, {}}};
        for (const std::uint32_t size : sizes) {
            Texts names;
            std::vector<HandCell> longer;
            for (std::uint32_t i = 0; i < size; ++i)
                names.push_back(std::to_string(i));
            for (const HandCell& cell : cells) {
                for (std::uint32_t i = 0; i < size; ++i) {
                    longer.push_back(cell);
                    longer.back().categories.push_back(i);
                    longer.back().records = 1 + random() % (random() % 4 == 0 ? 4 : 60);
                }
            }
            dimensions.push_back(codes(names));
            cells = std::move(longer);
        }
        execution::TableResult result = counted(dimensions, cells);
        made_.program.tables.clear();
        result.command = &made_.add("T", TableKind::Frequency, {});
        execution::Progress silent({});
        output::RowTable table = output::makeRows(result, silent);
        const double start = silent.seconds();
        output::suppress(table, 5, silent);
        EXPECT_GT(table.suppressed(), 10000);
        EXPECT_LT(table.suppressed(), 60000);
        return silent.seconds() - start;
    };
    EXPECT_LT(seconds({1000, 100}), 3); // the aim is 1, on a machine at rest
    EXPECT_LT(seconds({46, 46, 47}), 3);
}

TEST_F(Suppression, noCellFollowsFromTheOthers) {
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
        ASSERT_EQ(solvedIn(table), 0U) << round;
        expectRoomOnLines(table, static_cast<std::uint64_t>(least));
    }
}

} // namespace
} // namespace kelx::test
