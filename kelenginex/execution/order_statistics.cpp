// SPDX-License-Identifier: Apache-2.0
#include "execution/order_statistics.h"

#include "execution/row_quantiles.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace kelx::execution {
namespace {

constexpr std::uint16_t mostBins = 2048;
/// A cell of fewer values costs less to go over than its bins.
constexpr std::uint64_t largeCell = 8192;
/// Bins take a small part of the room of the values that they count.
constexpr std::uint64_t valuesOfBin = 16;

} // namespace

OrderStatistics::OrderStatistics(std::shared_ptr<const ValueLists> lists, const MeasureForm& form,
                                 unsigned threads)
    : lists_(std::move(lists)), form_(form), threads_(threads) {}

bool OrderStatistics::isLarge(std::size_t cell) const {
    return lists_->size(cell) >= largeCell;
}

/// Bins and one more for what is no value.
std::size_t OrderStatistics::binPlaces() const {
    return std::size_t{scale_.bins} + 1;
}

/// All cells have the same bins, so that rows can add them up: fewer where most cells are small.
void OrderStatistics::chooseBins() {
    std::uint64_t values = 0;
    std::uint64_t cells = 0;
    for (std::size_t cell = 0; cell < lists_->cells(); ++cell) {
        if (isLarge(cell)) {
            values += lists_->size(cell);
            ++cells;
        }
    }
    const std::uint64_t fit = values / std::max<std::uint64_t>(cells, 1) / valuesOfBin;
    scale_.bins = static_cast<std::uint16_t>(
        std::clamp<std::uint64_t>(fit, largeCell / valuesOfBin, mostBins));
}

/// Bins lie where most values are: a few far away, infinite ones too, share the outermost.
void OrderStatistics::chooseScale() {
    chooseBins();
    scale_.missing = lists_->exclusions.missing;
    scale_.notApplicable = lists_->exclusions.notApplicable;
    std::vector<double> sample = lists_->sample();
    std::erase_if(sample, [](double value) { return !std::isfinite(value); });
    if (sample.empty())
        return;
    std::sort(sample.begin(), sample.end());
    const std::size_t out = sample.size() / 256;
    double low = sample[out];
    double high = sample[sample.size() - 1 - out];
    if (low == high) {
        low = sample.front();
        high = sample.back();
    }
    const double perUnit = scale_.bins / (high - low);
    scale_.lowest = low;
    scale_.perUnit = std::isnormal(perUnit) ? perUnit : 0;
}

void OrderStatistics::count(const StageShare& share, Progress& progress) {
    chooseScale();
    counts_.assign(lists_->cells(), 0);
    firstPiece_.assign(lists_->cells() + 1, 0);
    const LargeVector<ValuePiece> all = lists_->pieces(progress);
    std::vector<std::size_t> small;
    for (std::size_t i = 0; i < all.size(); ++i) {
        progress.check();
        if (isLarge(all[i].cell)) {
            pieces_.push_back(all[i]);
            ++firstPiece_[all[i].cell + 1];
        } else {
            counts_[all[i].cell] = all[i].count;
        }
    }
    for (std::size_t cell = 0; cell < lists_->cells(); ++cell) {
        firstPiece_[cell + 1] += firstPiece_[cell];
        progress.check();
        if (lists_->mayExclude && !isLarge(cell)) {
            counts_[cell] = 0;
            lists_->forEachValue(static_cast<std::uint32_t>(cell),
                                 [&](double, double) { ++counts_[cell]; });
        }
    }
    binCounts_.assign(pieces_.size() * binPlaces(), 0);
    binWeights_.assign(form_.weighted ? pieces_.size() * binPlaces() : 0, {});
    shareOut(
        pieces_.size(), threads_, share,
        [this](std::size_t piece, const GoOn&) { countPiece(piece); }, progress);
    for (std::size_t i = 0; i < pieces_.size(); ++i)
        counts_[pieces_[i].cell] += pieces_[i].count - binCounts_[i * binPlaces() + scale_.bins];
}

/// Neighbours count in different tables, so that equal ones do not wait for each other.
void OrderStatistics::countPiece(std::size_t piece) {
    std::array<std::uint16_t, binnedAtOnce> bin;
    std::array<std::uint32_t, mostBins + 1> other{};
    std::uint32_t* counts = binCounts_.data() + piece * binPlaces();
    Sum* sums = form_.weighted ? binWeights_.data() + piece * binPlaces() : nullptr;
    lists_->forEach(pieces_[piece], bin.size(),
                    [&](const double* values, const double* weights, std::size_t count) {
                        kernels().binReals(values, count, scale_, bin.data());
                        std::size_t i = 0;
                        for (; i + 2 <= count; i += 2) {
                            ++counts[bin[i]];
                            ++other[bin[i + 1]];
                        }
                        if (i < count)
                            ++counts[bin[i]];
                        for (i = 0; i < count && sums != nullptr; ++i)
                            sums[bin[i]].add(weights[i]);
                    });
    for (std::size_t i = 0; i < binPlaces(); ++i)
        counts[i] += other[i];
}

std::vector<double> OrderStatistics::quantiles(const RowCells& rows, const StageShare& share,
                                               Progress& progress) const {
    return RowQuantiles(*this, rows).work(share, progress);
}

} // namespace kelx::execution
