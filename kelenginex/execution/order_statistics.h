// SPDX-License-Identifier: Apache-2.0
// Exact medians and quantiles of cells and of cells taken together.
#pragma once

#include "execution/crew.h"
#include "execution/kernels.h"
#include "execution/measure_figures.h"
#include "execution/value_lists.h"

#include <cstddef>
#include <cstdint>
#include <memory>
#include <vector>

namespace kelx::execution {

/// Values are counted by bins of equal width, once for each large cell. Where rows join cells,
/// their counts are added; they tell the bins that hold the wanted values, and only the values of
/// these are looked at again.
class OrderStatistics {
public:
    /// The lists are grouped.
    OrderStatistics(std::shared_ptr<const ValueLists> lists, const MeasureForm& form,
                    unsigned threads);

    /// Counts the valid values of each cell, by bins in large ones. Throws Cancelled.
    void count(const StageShare& share, Progress& progress);
    const std::vector<std::uint64_t>& counts() const { return counts_; }
    /// The quantiles of all rows, side by side; NaN for none. Throws Cancelled.
    std::vector<double> quantiles(const RowCells& rows, const StageShare& share,
                                  Progress& progress) const;

private:
    friend class RowQuantiles;

    void chooseScale();
    void chooseBins();
    void countPiece(std::size_t piece);
    bool isLarge(std::size_t cell) const;
    std::size_t binPlaces() const;

    std::shared_ptr<const ValueLists> lists_;
    MeasureForm form_;
    unsigned threads_;
    BinScale scale_;
    std::vector<std::uint64_t> counts_;
    std::vector<ValuePiece> pieces_;        ///< of large cells
    std::vector<std::uint32_t> firstPiece_; ///< by cell
    std::vector<std::uint32_t> binCounts_;  ///< of all pieces, side by side
    std::vector<Sum> binWeights_;           ///< the same, where weighted
};

} // namespace kelx::execution
