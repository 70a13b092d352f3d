// SPDX-License-Identifier: Apache-2.0
#include "execution/row_quantiles.h"

#include "execution/ranks.h"
#include "execution/sorting.h"

#include <algorithm>
#include <array>
#include <limits>
#include <numeric>

namespace kelx::execution {
namespace {

/// A row of fewer values is put in order as it is.
constexpr std::uint64_t largeRow = 8192;
/// Values that a thread goes over before it takes more.
constexpr std::uint64_t itemValues = 1U << 16;
constexpr std::size_t rowsOfItem = 64;

} // namespace

RowQuantiles::RowQuantiles(const OrderStatistics& statistics, const RowCells& rows)
    : of_(statistics), rows_(rows),
      result_(rows.rows() * (parts() - 1), std::numeric_limits<double>::quiet_NaN()) {}

std::vector<double> RowQuantiles::work(const StageShare& share, Progress& progress) {
    findLargeRows(progress);
    const std::uint64_t third = (share.end - share.begin) / 3;
    const StageShare first{share.begin, share.begin + third};
    const StageShare second{first.end, first.end + third};
    const StageShare last{second.end, share.end};
    shareOut(
        large_.size(), of_.threads_, first,
        [this](std::size_t i, const GoOn& goOn) { choose(*large_[i], goOn); }, progress);
    makeItems(progress);
    shareOut(
        items_.size(), of_.threads_, second,
        [this](std::size_t i, const GoOn& goOn) { pick(items_[i], goOn); }, progress);
    const std::size_t batches = (small_.size() + rowsOfItem - 1) / rowsOfItem;
    const auto finishItem = [&](std::size_t i, const GoOn& goOn) {
        if (i < large_.size())
            return finish(*large_[i], goOn);
        const std::size_t begin = (i - large_.size()) * rowsOfItem;
        const std::size_t end = std::min(begin + rowsOfItem, small_.size());
        for (std::size_t k = begin; k < end && goOn(); ++k)
            finishSmall(small_[k], goOn);
    };
    shareOut(large_.size() + batches, of_.threads_, last, finishItem, progress);
    return std::move(result_);
}

void RowQuantiles::findLargeRows(Progress& progress) {
    cellBegins_.assign(of_.counts_.size() + 1, 0);
    for (std::size_t row = 0; row < rows_.rows(); ++row) {
        std::uint64_t count = 0;
        for (const std::uint32_t cell : rows_.of(row)) {
            progress.check();
            count += of_.counts_[cell];
        }
        counts_.push_back(count);
        if (count < largeRow) {
            if (count > 0)
                small_.push_back(row);
            continue;
        }
        large_.push_back(std::make_unique<LargeRow>());
        large_.back()->row = row;
        for (const std::uint32_t cell : rows_.of(row))
            ++cellBegins_[cell + 1];
    }
    std::partial_sum(cellBegins_.begin(), cellBegins_.end(), cellBegins_.begin());
    cellRows_.resize(cellBegins_.back());
    std::vector<std::size_t> next(cellBegins_.begin(), cellBegins_.end() - 1);
    for (std::size_t i = 0; i < large_.size(); ++i) {
        for (const std::uint32_t cell : rows_.of(large_[i]->row)) {
            progress.check();
            cellRows_[next[cell]++] = static_cast<std::uint32_t>(i);
        }
    }
}

std::vector<std::uint64_t> RowQuantiles::ranksOf(std::size_t row) const {
    std::vector<std::uint64_t> ranks;
    for (std::size_t i = 1; i < parts(); ++i) {
        const QuantilePlace place(counts_[row], i, parts());
        ranks.push_back(place.below);
        if (place.share != 0)
            ranks.push_back(place.below + 1);
    }
    std::sort(ranks.begin(), ranks.end());
    ranks.erase(std::unique(ranks.begin(), ranks.end()), ranks.end());
    return ranks;
}

/// use(bin, count, weight) in the same order at every run.
template <class Use>
void RowQuantiles::forEachBin(std::uint32_t cell, Use use) const {
    const std::size_t places = std::size_t{of_.scale_.bins} + 1;
    if (!of_.isLarge(cell)) {
        of_.lists_->forEachValue(cell, [&](double value, double weight) {
            std::uint16_t bin = 0;
            kernels().binReals(&value, 1, of_.scale_, &bin);
            use(bin, std::uint64_t{1}, Sum{weight, 0});
        });
        return;
    }
    for (std::size_t piece = of_.firstPiece_[cell]; piece < of_.firstPiece_[cell + 1]; ++piece) {
        for (std::size_t bin = 0; bin + 1 < places; ++bin)
            use(bin, std::uint64_t{of_.binCounts_[piece * places + bin]},
                of_.form_.weighted ? of_.binWeights_[piece * places + bin] : Sum{});
    }
}

void RowQuantiles::choose(LargeRow& row, const GoOn& goOn) {
    std::vector<std::uint64_t> counts(of_.scale_.bins);
    std::vector<Sum> weights(of_.form_.weighted ? counts.size() : 0);
    std::size_t cells = 0;
    for (const std::uint32_t cell : rows_.of(row.row)) {
        if (++cells % 256 == 0 && !goOn())
            return;
        forEachBin(cell, [&](std::size_t bin, std::uint64_t count, const Sum& weight) {
            counts[bin] += count;
            if (!weights.empty())
                weights[bin].add(weight);
        });
    }
    if (of_.form_.weighted)
        return chooseByWeight(row, weights);
    row.ranks = ranksOf(row.row);
    const BinChoice choice(counts, row.ranks);
    row.wanted = choice.wanted();
    row.bounds = wantedBins(row.wanted);
    row.picked = choice.ranks();
}

void RowQuantiles::chooseByWeight(LargeRow& row, const std::vector<Sum>& weights) {
    Sum all;
    for (const Sum& weight : weights)
        all.add(weight);
    row.wanted.assign(weights.size() + 1, 0);
    if (!(all.value() > 0))
        return;
    Sum running;
    std::size_t i = 1;
    for (std::size_t bin = 0; bin < weights.size(); ++bin) {
        const Sum before = running;
        running.add(weights[bin]);
        for (; i < parts() && running.value() >= quantileWeight(all.value(), i, parts()); ++i) {
            if (row.wanted[bin] == 0)
                row.before.emplace_back(bin, before);
            row.wanted[bin] = 1;
            row.targets.push_back(quantileWeight(all.value(), i, parts()));
            row.bins.push_back(bin);
        }
    }
}

void RowQuantiles::makeItems(Progress& progress) {
    const LargeVector<ValuePiece> all = of_.lists_->pieces(progress);
    pieces_.reserve(all.size());
    std::uint64_t values = itemValues;
    for (const ValuePiece& piece : all) {
        progress.check();
        if (cellBegins_[piece.cell] == cellBegins_[piece.cell + 1])
            continue;
        if (values >= itemValues) {
            items_.push_back({pieces_.size(), pieces_.size()});
            values = 0;
        }
        pieces_.push_back(piece);
        items_.back().end = pieces_.size();
        values += piece.count;
    }
}

void RowQuantiles::pick(const Item& item, const GoOn& goOn) {
    for (std::size_t i = item.begin; i < item.end; ++i) {
        if (i % 64 == 0 && !goOn())
            return;
        if (of_.form_.weighted)
            pickWeighted(pieces_[i]);
        else
            pickPlain(pieces_[i]);
    }
}

void RowQuantiles::pickPlain(const ValuePiece& piece) {
    std::array<std::uint16_t, binnedAtOnce> bin;
    std::array<double, binnedAtOnce> picked;
    of_.lists_->forEach(
        piece, bin.size(), [&](const double* values, const double*, std::size_t count) {
            kernels().binReals(values, count, of_.scale_, bin.data());
            for (std::size_t i = cellBegins_[piece.cell]; i < cellBegins_[piece.cell + 1]; ++i) {
                LargeRow& row = *large_[cellRows_[i]];
                const std::size_t kept =
                    kernels().pickBins(values, bin.data(), count, row.bounds, picked.data());
                const std::scoped_lock lock(row.mutex);
                row.values.insert(row.values.end(), picked.begin(),
                                  picked.begin() + static_cast<std::ptrdiff_t>(kept));
            }
        });
}

void RowQuantiles::pickWeighted(const ValuePiece& piece) {
    std::array<std::uint16_t, binnedAtOnce> bin;
    of_.lists_->forEach(
        piece, bin.size(), [&](const double* values, const double* weights, std::size_t count) {
            kernels().binReals(values, count, of_.scale_, bin.data());
            for (std::size_t i = cellBegins_[piece.cell]; i < cellBegins_[piece.cell + 1]; ++i) {
                LargeRow& row = *large_[cellRows_[i]];
                const std::scoped_lock lock(row.mutex);
                for (std::size_t k = 0; k < count; ++k) {
                    if (row.wanted[bin[k]] != 0)
                        row.weightedValues.push_back({values[k], weights[k]});
                }
            }
        });
}

void RowQuantiles::finish(LargeRow& row, const GoOn& goOn) {
    if (of_.form_.weighted)
        return writeWeighted(row, goOn);
    writePlain(row.row, row.ranks, valuesAt(std::move(row.values), row.picked, goOn));
}

void RowQuantiles::finishSmall(std::size_t number, const GoOn& goOn) {
    if (!of_.form_.weighted) {
        std::vector<double> values;
        for (const std::uint32_t cell : rows_.of(number))
            of_.lists_->forEachValue(cell, [&](double value, double) { values.push_back(value); });
        const std::vector<std::uint64_t> ranks = ranksOf(number);
        return writePlain(number, ranks, valuesAt(std::move(values), ranks, goOn));
    }
    LargeRow row;
    row.row = number;
    Sum all;
    for (const std::uint32_t cell : rows_.of(number))
        of_.lists_->forEachValue(cell, [&](double value, double weight) {
            row.weightedValues.push_back({value, weight});
            all.add(weight);
        });
    if (!(all.value() > 0))
        return;
    for (std::size_t i = 1; i < parts(); ++i)
        row.targets.push_back(quantileWeight(all.value(), i, parts()));
    writeWeighted(row, goOn);
}

void RowQuantiles::writePlain(std::size_t row, const std::vector<std::uint64_t>& ranks,
                              const std::vector<double>& values) {
    const auto at = [&](std::uint64_t rank) {
        const auto found = std::lower_bound(ranks.begin(), ranks.end(), rank);
        return values[static_cast<std::size_t>(found - ranks.begin())];
    };
    for (std::size_t i = 1; i < parts(); ++i) {
        const QuantilePlace place(counts_[row], i, parts());
        const double low = at(place.below);
        resultOf(row)[i - 1] = place.share == 0 ? low : place.between(low, at(place.below + 1));
    }
}

/// The values come in order, bin by bin; within a bin the running weight begins at what lies before
/// it. Where rounding keeps a target from being reached, the bin's last value is meant.
void RowQuantiles::writeWeighted(LargeRow& row, const GoOn& goOn) {
    std::vector<WeightedValue>& values = row.weightedValues;
    if (!sortValues(values, goOn))
        return;
    const bool byBins = !row.bins.empty();
    const auto binOf = [&](const WeightedValue& value) -> std::size_t {
        std::uint16_t bin = 0;
        if (byBins)
            kernels().binReals(&value.value, 1, of_.scale_, &bin);
        return bin;
    };
    Sum running;
    std::size_t target = 0;
    std::size_t current = 0;
    auto before = row.before.begin();
    for (std::size_t i = 0; i < values.size() && target < row.targets.size(); ++i) {
        const std::size_t bin = binOf(values[i]);
        if (before != row.before.end() && (i == 0 || bin != current)) {
            running = before->second;
            ++before;
        }
        current = bin;
        running.add(values[i].weight);
        const bool last = i + 1 == values.size() || binOf(values[i + 1]) != bin;
        const auto isHere = [&](std::size_t t) { return !byBins || row.bins[t] == bin; };
        for (; target < row.targets.size() && isHere(target) &&
               (last || running.value() >= row.targets[target]);
             ++target)
            resultOf(row.row)[target] = values[i].value;
    }
}

} // namespace kelx::execution
