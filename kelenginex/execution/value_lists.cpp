// SPDX-License-Identifier: Apache-2.0
#include "execution/value_lists.h"

#include "execution/progress.h"

#include <numeric>

namespace kelx::execution {

void ValueLists::add(std::uint32_t cell, const ValueStretch& stretch) {
    if (stretch.count == 0)
        return;
    if (!added_.empty() && added_.back() == cell) {
        ValueStretch& last = stretches_.back();
        const bool follows =
            last.values + last.count == stretch.values &&
            (last.weights == nullptr ? stretch.weights == nullptr
                                     : last.weights + last.count == stretch.weights);
        if (follows) {
            last.count += stretch.count;
            return;
        }
    }
    added_.push_back(cell);
    stretches_.push_back(stretch);
}

void ValueLists::group(std::size_t cells, Progress& progress) {
    begins_.assign(cells + 1, 0);
    sizes_.assign(cells, 0);
    for (const std::uint32_t cell : added_) {
        progress.check();
        ++begins_[cell + 1];
    }
    progress.checkNow();
    std::partial_sum(begins_.begin(), begins_.end(), begins_.begin());
    progress.checkNow();
    LargeVector<ValueStretch> grouped(stretches_.size());
    progress.checkNow();
    LargeVector<std::size_t> next(begins_.begin(), begins_.end() - 1);
    for (std::size_t i = 0; i < added_.size(); ++i) {
        progress.check();
        grouped[next[added_[i]]++] = stretches_[i];
        sizes_[added_[i]] += stretches_[i].count;
    }
    stretches_ = std::move(grouped);
    added_ = {};
}

LargeVector<ValuePiece> ValueLists::pieces(Progress& progress) const {
    LargeVector<ValuePiece> result;
    result.reserve(cells());
    for (std::size_t cell = 0; cell < cells(); ++cell) {
        std::size_t stretch = begins_[cell];
        std::uint64_t offset = 0;
        for (std::uint64_t left = sizes_[cell]; left > 0;) {
            progress.check();
            const std::uint64_t count = std::min(left, mostInPiece);
            result.push_back({static_cast<std::uint32_t>(cell), stretch, offset, count});
            left -= count;
            offset += count;
            while (left > 0 && offset >= stretches_[stretch].count)
                offset -= stretches_[stretch++].count;
        }
    }
    return result;
}

std::vector<double> ValueLists::sample() const {
    constexpr std::size_t places = 256;
    constexpr std::uint64_t inPlace = 16;
    const std::uint64_t all = std::accumulate(sizes_.begin(), sizes_.end(), std::uint64_t{0});
    std::vector<double> result;
    std::uint64_t begin = 0; // of the stretch, among all values
    std::size_t place = 0;
    for (const ValueStretch& stretch : stretches_) {
        for (; place < places; ++place) {
            const std::uint64_t at = all / places * place + all % places * place / places;
            if (at >= begin + stretch.count)
                break;
            const std::uint64_t end = std::min(stretch.count, at - begin + inPlace);
            for (std::uint64_t i = at - begin; i < end; ++i) {
                if (!exclusions.excludes(stretch.values[i]))
                    result.push_back(stretch.values[i]);
            }
        }
        begin += stretch.count;
    }
    return result;
}

} // namespace kelx::execution
