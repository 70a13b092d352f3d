// SPDX-License-Identifier: Apache-2.0
// The figures of a table while it is being made.
#pragma once

#include <cstddef>
#include <cstdint>
#include <span>
#include <vector>

namespace kelx::execution {

/// Cells of a small domain, side by side.
struct DenseCells {
    std::vector<std::uint64_t> counts;
    std::vector<double> sums; ///< empty where nothing is weighted

    void resize(std::size_t cells, bool weighted);
    void merge(const DenseCells& other);
    void clear();
};

/// Cells of a large domain, found by their codes: a hash table with open addressing.
class HashCells {
public:
    explicit HashCells(std::size_t dimensions = 1) : dimensions_(dimensions) {}

    /// Adds to the cell of so many codes as there are dimensions.
    void add(const std::uint64_t* codes, std::uint64_t count, double sum);
    void merge(const HashCells& other); ///< in the order in which the other's cells came up
    void clear();

    std::size_t size() const { return counts_.size(); }
    std::span<const std::uint64_t> codes(std::size_t cell) const {
        return {codes_.data() + cell * dimensions_, dimensions_};
    }
    std::uint64_t count(std::size_t cell) const { return counts_[cell]; }
    double sum(std::size_t cell) const { return sums_[cell]; }

private:
    std::size_t find(const std::uint64_t* codes);
    void grow();
    std::uint64_t hash(const std::uint64_t* codes) const;

    std::size_t dimensions_;
    std::vector<std::uint64_t> codes_, counts_;
    std::vector<double> sums_;
    std::vector<std::size_t> slots_; ///< cell + 1, 0 where free
};

} // namespace kelx::execution
