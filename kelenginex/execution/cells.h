// SPDX-License-Identifier: Apache-2.0
// The figures of a table while it is being made.
#pragma once

#include "execution/sum.h"

#include <cstddef>
#include <cstdint>
#include <functional>
#include <span>
#include <vector>

namespace kelx::execution {

/// Asked now and then by long work; false ends it, with its result unfinished.
using GoOn = std::function<bool()>;

/// Cells of a small domain, side by side.
struct DenseCells {
    std::vector<std::uint64_t> counts;
    std::vector<Sum> sums; ///< empty where nothing is weighted
    std::size_t lanes = 1; ///< sums of a cell, side by side

    void resize(std::size_t cells, bool weighted, std::size_t sumsOfCell);
    Sum sum(std::size_t cell) const;
    void add(std::size_t cell, std::uint64_t records, const Sum& sum);
    void merge(const DenseCells& other);
    void clear();
};

/// Cells of a large domain, found by their codes: a hash table with open addressing.
class HashCells {
public:
    explicit HashCells(std::size_t dimensions = 1) : dimensions_(dimensions) {}

    /// Adds to the cell of so many codes as there are dimensions, and gives its number: cells are
    /// numbered as they come up.
    std::size_t add(const std::uint64_t* codes, std::uint64_t count, const Sum& sum);
    void addTo(std::size_t cell, std::uint64_t count, const Sum& sum) {
        counts_[cell] += count;
        sums_[cell].add(sum);
    }
    /// In the order in which the other's cells came up; false where it was ended.
    bool merge(const HashCells& other, const GoOn& goOn);
    void clear();

    std::size_t size() const { return counts_.size(); }
    std::span<const std::uint64_t> codes(std::size_t cell) const {
        return {codes_.data() + cell * dimensions_, dimensions_};
    }
    std::uint64_t count(std::size_t cell) const { return counts_[cell]; }
    const Sum& sum(std::size_t cell) const { return sums_[cell]; }

private:
    std::size_t find(const std::uint64_t* codes);
    void grow();
    std::uint64_t hash(const std::uint64_t* codes) const;

    std::size_t dimensions_;
    std::vector<std::uint64_t> codes_, counts_;
    std::vector<Sum> sums_;
    std::vector<std::size_t> slots_; ///< cell + 1, 0 where free
};

} // namespace kelx::execution
