// SPDX-License-Identifier: Apache-2.0
// Protects hidden figures in tables of any number of dimensions.
#pragma once

#include "output/table_lines.h"

#include <cstddef>
#include <cstdint>
#include <vector>

namespace kelx::output {

/// A box has two places in each dimension that a row has a line in. Where all its corners are
/// hidden, they can be raised and lowered in turn without any line's sum changing, so none of them
/// follows from what is visible. A box hides more than is needed at times, but to find one asks for
/// no equations to be solved.
class HiddenBoxes {
public:
    /// Both must outlive it.
    HiddenBoxes(RowTable& table, const TableLines& lines, execution::Progress& progress);

    /// Completes a box for each hidden row that has none; false where all have one. Of the boxes
    /// that it looks at it takes the one that hides the fewest records.
    bool close();

private:
    using Rows = std::vector<std::uint32_t>;

    void protect(std::uint32_t row);
    void findDirections(std::uint32_t row);
    void startWithTotals(std::uint32_t row);
    void search(std::size_t depth, double cost);
    bool extend(std::size_t dimension, std::uint32_t place, double& cost);
    std::vector<std::uint32_t> placesFor(std::size_t dimension, std::uint32_t row) const;
    double costOf(std::uint32_t row) const;

    RowTable& table_;
    const TableLines& lines_;
    execution::Progress& progress_;
    std::vector<std::uint8_t> safe_; ///< by row: a corner of a hidden box
    std::vector<std::size_t> directions_;
    std::vector<std::vector<std::uint32_t>> places_; ///< to try, by direction
    Rows box_, best_;
    double bestCost_ = 0;
    std::size_t tries_ = 0;
};

} // namespace kelx::output
