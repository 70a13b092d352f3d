// SPDX-License-Identifier: Apache-2.0
// The rows of a table with all its totals, from its cells.
#pragma once

#include "execution/progress.h"
#include "execution/result.h"
#include "output/table.h"

#include <cstddef>
#include <cstdint>
#include <memory>
#include <string>
#include <vector>

namespace kelx::output {

/// Figures by place. In a dimension the places are valid categories, then the total, then MV and
/// NA; rows are in the order of their places, one dimension inside the other.
struct RowTable {
    const language::TableCommand* command = nullptr;
    std::vector<execution::Dimension> dimensions;
    std::vector<TableVariable> variables;                 ///< of the dimensions
    std::vector<std::uint32_t> valid;                     ///< valid categories by dimension
    std::vector<std::shared_ptr<Column::Numbers>> places; ///< by dimension, of each row
    std::vector<std::shared_ptr<Column::Figures>> figures;
    std::vector<std::string> figureNames;
    execution::LargeVector<std::uint64_t> records; ///< behind each row
    std::vector<std::uint8_t> hidden;              ///< by row; empty: no row is suppressed
    Figure none; ///< what stands where there is no row: 0 of a count
    double seconds = 0;

    std::size_t rows() const { return figures.front()->size(); }
    std::uint32_t place(std::size_t dimension, std::size_t row) const {
        return (*places[dimension])[row];
    }
    bool isHidden(std::size_t row) const { return !hidden.empty() && hidden[row] != 0; }
    bool isMarker(std::size_t row) const; ///< a total, MV or NA in some dimension
    std::int64_t suppressed() const;
};

/// Totals count valid categories only; MV and NA rows stand where they occur; empty combinations
/// are left out, but for the grand total. Memory grows with the rows that there are to be. Throws
/// std::runtime_error where they would be more than execution::mostRows, and execution::Cancelled.
RowTable makeRows(execution::TableResult result, execution::Progress& progress);

/// The category of a place; null for the total.
const execution::Category* categoryAt(const RowTable& table, std::size_t dimension,
                                      std::uint32_t place);
/// "1. Male", the code alone where it is its own label, "Total", "MV" or "NA".
std::string placeName(const execution::Category* category);
/// Places of a dimension, occurring or not.
std::uint32_t placesOf(const RowTable& table, std::size_t dimension);

} // namespace kelx::output
