// SPDX-License-Identifier: Apache-2.0
// Goes through the cells of a table row by row, totals included.
#pragma once

#include "execution/progress.h"
#include "execution/result.h"
#include "output/rows.h"

#include <cstddef>
#include <cstdint>
#include <span>
#include <vector>

namespace kelx::output {

/// Rows are made in their final order, one dimension inside the other: first those of each
/// category, then those of the total, whose cells are joined where they agree in the dimensions
/// that follow. So nothing is kept but the joined cells on the way down, and each row once. For a
/// measure, cells that would be joined stand side by side instead: its figures need them all.
class RowMaker {
public:
    RowMaker(const execution::TableResult& result, execution::Progress& progress);

    /// Gives the table its places, records and figures.
    void fill(RowTable& table);

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

    void makeAll(const std::vector<Part>& cells, double whole);
    void reserve();
    void make(std::size_t dimension, Parts parts, bool onlyTotals, const Stretch& stretch);
    void makeInside(std::size_t dimension, std::uint32_t place, Parts parts, bool onlyTotals,
                    const Stretch& stretch);
    Parts joined(std::size_t dimension, Parts parts);
    void sortFrom(std::size_t dimension, std::vector<Part>& parts);
    void addRow(Parts parts, const Stretch& stretch);
    void addFigure(Parts parts);
    void work(RowTable& table);
    std::uint32_t category(const Part& part, std::size_t dimension) const {
        return result_.cells.categories(part.first)[dimension];
    }
    bool agreeFrom(std::size_t dimension, const Part& a, const Part& b) const;

    const execution::TableResult& result_;
    execution::Progress& progress_;
    std::vector<std::uint32_t> valid_;                 ///< number of valid categories by dimension
    std::vector<std::uint32_t> place_;                 ///< of the row that is being made
    std::vector<execution::LargeVector<Part>> totals_; ///< joined cells by dimension
    bool withoutFirstTotal_ = false; ///< nobody reads the total of the first dimension
    bool counting_ = false;          ///< rows are only counted
    std::size_t rows_ = 0;
    std::vector<Column::Numbers> places_;
    execution::LargeVector<std::uint64_t> records_;
    Column::Figures figures_;
    execution::RowCells cells_; ///< of a measure
};

} // namespace kelx::output
