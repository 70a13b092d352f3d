// SPDX-License-Identifier: Apache-2.0
#include "execution/cells.h"

#include <algorithm>

namespace kelx::execution {

void DenseCells::resize(std::size_t cells, bool weighted, std::size_t sumsOfCell) {
    lanes = sumsOfCell;
    counts.assign(cells, 0);
    sums.assign(weighted ? cells * lanes : 0, {});
}

Sum DenseCells::sum(std::size_t cell) const {
    Sum result;
    for (std::size_t lane = 0; lane < lanes && !sums.empty(); ++lane)
        result.add(sums[cell * lanes + lane]);
    return result;
}

void DenseCells::add(std::size_t cell, std::uint64_t records, const Sum& sum) {
    counts[cell] += records;
    sums[cell * lanes].add(sum);
}

void DenseCells::merge(const DenseCells& other) {
    for (std::size_t i = 0; i < counts.size(); ++i)
        counts[i] += other.counts[i];
    for (std::size_t i = 0; i < sums.size(); ++i)
        sums[i].add(other.sums[i]);
}

void DenseCells::clear() {
    std::fill(counts.begin(), counts.end(), 0);
    std::fill(sums.begin(), sums.end(), Sum{});
}

std::uint64_t HashCells::hash(const std::uint64_t* codes) const {
    std::uint64_t result = 0x9e3779b97f4a7c15ULL;
    for (std::size_t i = 0; i < dimensions_; ++i) {
        result = (result ^ codes[i]) * 0xff51afd7ed558ccdULL;
        result ^= result >> 32;
    }
    return result;
}

std::size_t HashCells::find(const std::uint64_t* codes) {
    if ((counts_.size() + 1) * 2 > slots_.size())
        grow();
    const std::size_t mask = slots_.size() - 1;
    std::size_t slot = static_cast<std::size_t>(hash(codes)) & mask;
    while (slots_[slot] != 0) {
        const std::size_t cell = slots_[slot] - 1;
        if (std::equal(codes, codes + dimensions_, codes_.data() + cell * dimensions_))
            return cell;
        slot = (slot + 1) & mask;
    }
    codes_.insert(codes_.end(), codes, codes + dimensions_);
    counts_.push_back(0);
    sums_.emplace_back();
    slots_[slot] = counts_.size();
    return counts_.size() - 1;
}

void HashCells::grow() {
    slots_.assign(std::max<std::size_t>(slots_.size() * 2, 1024), 0);
    const std::size_t mask = slots_.size() - 1;
    for (std::size_t cell = 0; cell < counts_.size(); ++cell) {
        std::size_t slot = static_cast<std::size_t>(hash(codes(cell).data())) & mask;
        while (slots_[slot] != 0)
            slot = (slot + 1) & mask;
        slots_[slot] = cell + 1;
    }
}

std::size_t HashCells::add(const std::uint64_t* codes, std::uint64_t count, const Sum& sum) {
    const std::size_t cell = find(codes);
    addTo(cell, count, sum);
    return cell;
}

bool HashCells::merge(const HashCells& other, const GoOn& goOn) {
    constexpr std::size_t patience = 4096;
    for (std::size_t cell = 0; cell < other.size(); ++cell) {
        if (cell % patience == patience - 1 && !goOn())
            return false;
        add(other.codes(cell).data(), other.count(cell), other.sum(cell));
    }
    return true;
}

void HashCells::clear() {
    codes_.clear();
    counts_.clear();
    sums_.clear();
    std::fill(slots_.begin(), slots_.end(), 0);
}

} // namespace kelx::execution
