// SPDX-License-Identifier: Apache-2.0
// The rows of a table with all its totals, from its cells.
#pragma once

#include "execution/progress.h"
#include "execution/result.h"
#include "output/table.h"

#include <cstddef>
#include <cstdint>
#include <span>
#include <vector>

namespace kelx::output {

/// In one dimension the places of a row are valid categories, then the total, then MV and NA. Rows
/// are made in their final order, one dimension inside the other: first those of each category,
/// then those of the total, whose cells are joined where they agree in the dimensions that follow.
/// So nothing is kept but the joined cells on the way down, and each row once.
class RowMaker {
public:
    /// Throws std::runtime_error where there are too many rows, and execution::Cancelled.
    RowMaker(const execution::TableResult& result, execution::Progress& progress);

    /// Places by row, one list for each dimension.
    std::vector<Column::Numbers>& places() { return places_; }
    std::vector<Value>& figures() { return figures_; }

private:
    /// Joined cells: they agree with cell `first` in all dimensions that are still to be laid out.
    struct Part {
        std::uint32_t first = 0;
        std::uint64_t records = 0;
        execution::Sum sum;
    };
    using Parts = std::span<const Part>;
    /// A stretch of the work, for the progress.
    struct Stretch {
        double begin = 0;
        double end = 1;
    };

    void makeAll(const std::vector<Part>& cells);
    void make(std::size_t dimension, Parts parts, bool onlyTotals, const Stretch& stretch);
    void makeInside(std::size_t dimension, std::uint32_t place, Parts parts, bool onlyTotals,
                    const Stretch& stretch);
    Parts joined(std::size_t dimension, Parts parts);
    void addRow(Parts parts, const Stretch& stretch);
    std::uint32_t category(const Part& part, std::size_t dimension) const {
        return result_.cells.categories(part.first)[dimension];
    }
    bool agreeFrom(std::size_t dimension, const Part& a, const Part& b) const;

    const execution::TableResult& result_;
    execution::Progress& progress_;
    std::vector<std::uint32_t> valid_;      ///< number of valid categories by dimension
    std::vector<std::uint32_t> place_;      ///< of the row that is being made
    std::vector<std::vector<Part>> totals_; ///< joined cells by dimension
    bool counting_ = false;                 ///< rows are only counted
    std::size_t rows_ = 0;
    std::vector<Column::Numbers> places_;
    std::vector<Value> figures_;
};

} // namespace kelx::output
