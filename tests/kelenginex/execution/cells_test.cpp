// SPDX-License-Identifier: Apache-2.0
// Cells of a large domain: each counted once in the order in which it came up, and found as quickly
// whatever its codes look like.
#include "execution/cells.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <bit>
#include <chrono>
#include <functional>
#include <limits>

namespace kelx::execution {
namespace {

constexpr std::uint64_t cellCount = 200000; // past the size where there are many tables

using CodeOf = std::function<std::uint64_t(std::uint64_t)>;

/// Adds to all cells as many times.
HashCells filled(const CodeOf& codeOf, int rounds = 2) {
    HashCells cells(1);
    for (int round = 0; round < rounds; ++round)
        for (std::uint64_t i = 0; i < cellCount; ++i) {
            const std::uint64_t code = codeOf(i);
            cells.add(&code, i, Sum{});
        }
    return cells;
}

std::chrono::duration<double> fastest(const CodeOf& codeOf) {
    std::chrono::duration<double> best{std::numeric_limits<double>::max()};
    for (int round = 0; round < 3; ++round) {
        const auto begin = std::chrono::steady_clock::now();
        filled(codeOf, 8);
        best =
            std::min<std::chrono::duration<double>>(best, std::chrono::steady_clock::now() - begin);
    }
    return best;
}

std::uint64_t whole(std::uint64_t i) {
    return i;
}
std::uint64_t real(std::uint64_t i) {
    return std::bit_cast<std::uint64_t>(static_cast<double>(i));
}
std::uint64_t cents(std::uint64_t i) {
    return std::bit_cast<std::uint64_t>(static_cast<double>(i) / 100);
}

TEST(HashCells, CountsEachCellInTheOrderOfItsFirstRecord) {
    const HashCells cells = filled(real);
    ASSERT_EQ(cells.size(), cellCount);
    for (std::uint64_t i = 0; i < cellCount; ++i) {
        ASSERT_EQ(cells.codes(i)[0], real(i));
        ASSERT_EQ(cells.count(i), 2 * i);
    }
}

TEST(HashCells, MergesAndClearsWhileItHasManyTables) {
    HashCells cells = filled(whole);
    ASSERT_TRUE(cells.merge(filled(cents), [] { return true; }));
    EXPECT_EQ(cells.size(), 2 * cellCount - 1); // both begin with the code 0
    EXPECT_FALSE(cells.merge(filled(real), [] { return false; }));
    cells.clear();
    EXPECT_EQ(cells.size(), 0U);
    const std::uint64_t code = real(7);
    EXPECT_EQ(cells.add(&code, 5, Sum{}), 0U);
    EXPECT_EQ(cells.count(0), 5U);
}

TEST(HashCells, FindsCellsAsQuicklyWhateverTheirCodesLookLike) {
    const auto plain = fastest(whole);
    const CodeOf millions = [](std::uint64_t i) { return i * 1000000; };
    const CodeOf blocks = [](std::uint64_t i) { return i * 1024; };
    for (const CodeOf& codeOf : {millions, blocks, CodeOf(real), CodeOf(cents)})
        EXPECT_LT(fastest(codeOf).count(), 2.5 * plain.count());
}

} // namespace
} // namespace kelx::execution
