// SPDX-License-Identifier: Apache-2.0
// The quantiles of all rows of a table, worked out together.
#pragma once

#include "execution/order_statistics.h"

#include <cstddef>
#include <cstdint>
#include <mutex>
#include <utility>
#include <vector>

namespace kelx::execution {

/// Values that are put into bins at once.
constexpr std::size_t binnedAtOnce = 4096;

struct WeightedValue {
    double value = 0;
    double weight = 0;
    bool operator<(const WeightedValue& other) const {
        return value != other.value ? value < other.value : weight < other.weight;
    }
};

class RowQuantiles {
public:
    RowQuantiles(const OrderStatistics& statistics, const RowCells& rows);

    std::vector<double> work(const StageShare& share, Progress& progress);

private:
    /// A row whose values are found by bins.
    struct LargeRow {
        std::size_t row = 0;
        std::vector<std::uint64_t> ranks;                ///< wanted, without weights
        std::vector<std::uint64_t> picked;               ///< the same among the values picked
        std::vector<std::uint8_t> wanted;                ///< bins
        WantedBins bounds;                               ///< points at them
        std::vector<double> targets;                     ///< running weights, where weighted
        std::vector<std::size_t> bins;                   ///< where they are reached
        std::vector<std::pair<std::size_t, Sum>> before; ///< weight before each wanted bin
        std::mutex mutex;                                ///< of what follows
        std::vector<double> values;
        std::vector<WeightedValue> weightedValues;
    };
    /// Consecutive pieces that one thread goes over.
    struct Item {
        std::size_t begin = 0;
        std::size_t end = 0;
    };

    void findLargeRows(Progress& progress);
    std::vector<std::uint64_t> ranksOf(std::size_t row) const;
    void choose(LargeRow& row, const GoOn& goOn);
    void chooseByWeight(LargeRow& row, const std::vector<Sum>& weights);
    template <class Use>
    void forEachBin(std::uint32_t cell, Use use) const;
    void makeItems(Progress& progress);
    void pick(const Item& item, const GoOn& goOn);
    void pickWeighted(const ValuePiece& piece);
    void pickPlain(const ValuePiece& piece);
    void finish(LargeRow& row, const GoOn& goOn);
    void finishSmall(std::size_t row, const GoOn& goOn);
    void writePlain(std::size_t row, const std::vector<std::uint64_t>& ranks,
                    const std::vector<double>& values);
    void writeWeighted(LargeRow& row, const GoOn& goOn);
    double* resultOf(std::size_t row) { return result_.data() + row * (parts() - 1); }
    std::size_t parts() const { return of_.form_.parts; }

    const OrderStatistics& of_;
    const RowCells& rows_;
    std::vector<std::uint64_t> counts_; ///< by row
    std::vector<std::unique_ptr<LargeRow>> large_;
    std::vector<std::size_t> small_;
    std::vector<std::uint32_t> cellRows_; ///< numbers of large rows, cell by cell
    std::vector<std::size_t> cellBegins_;
    std::vector<ValuePiece> pieces_;
    std::vector<Item> items_;
    std::vector<double> result_;
};

} // namespace kelx::execution
