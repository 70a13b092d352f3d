// SPDX-License-Identifier: Apache-2.0
// Which rows of a table add up to which.
#pragma once

#include "execution/progress.h"
#include "output/rows.h"

#include <cstddef>
#include <cstdint>
#include <limits>
#include <span>
#include <vector>

namespace kelx::output {

/// Lines: rows that differ in one dimension alone, of its valid categories and their total, in the
/// order of their places. Rows of MV and NA stand on no line of that dimension.
class TableLines {
public:
    using Line = std::span<const std::uint32_t>;
    static constexpr std::uint32_t none = std::numeric_limits<std::uint32_t>::max();

    /// Throws execution::Cancelled. The table must outlive it.
    TableLines(const RowTable& table, execution::Progress& progress);

    std::size_t dimensions() const { return all_.size(); }
    std::size_t count(std::size_t dimension) const { return all_[dimension].begins.size() - 1; }
    Line line(std::size_t dimension, std::size_t number) const;
    /// The number of a row's line; none for MV and NA.
    std::uint32_t numberOf(std::size_t dimension, std::size_t row) const {
        return all_[dimension].numbers[row];
    }
    bool isTotal(std::size_t dimension, std::size_t row) const {
        return table_.place(dimension, row) == table_.valid[dimension];
    }
    /// The row at another place of a row's line, or none.
    std::uint32_t neighbour(std::size_t dimension, std::size_t row, std::uint32_t place) const;

private:
    struct Direction {
        std::vector<std::uint32_t> rows;
        std::vector<std::uint32_t> begins;
        std::vector<std::uint32_t> numbers; ///< by row
    };

    void order(std::size_t dimension, execution::Progress& progress);
    void split(std::size_t dimension, execution::Progress& progress);
    bool onOneLine(std::size_t dimension, std::uint32_t a, std::uint32_t b) const;

    const RowTable& table_;
    std::vector<Direction> all_;
};

} // namespace kelx::output
