// SPDX-License-Identifier: Apache-2.0
// The figures of a table while it is being made.
#pragma once

#include "execution/discard.h"
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

/// Cells of a large domain, found by their codes: hash tables with open addressing. It grows bit by
/// bit, so that whoever adds to it is never held up for long: cells lie in pieces that stay where
/// they are, and past some size there are many tables that grow one by one.
class HashCells {
public:
    explicit HashCells(std::size_t dimensions = 1) : dimensions_(dimensions) {}

    /// Adds to the cell of so many codes as there are dimensions, and gives its number: cells are
    /// numbered as they come up.
    std::size_t add(const std::uint64_t* codes, std::uint64_t count, const Sum& sum);
    void addTo(std::size_t cell, std::uint64_t count, const Sum& sum) {
        Piece& piece = pieces_[cell / pieceCells];
        piece.counts[cell % pieceCells] += count;
        piece.sums[cell % pieceCells].add(sum);
    }
    /// In the order in which the other's cells came up; false where it was ended.
    bool merge(const HashCells& other, const GoOn& goOn);
    void clear();

    std::size_t size() const { return size_; }
    std::span<const std::uint64_t> codes(std::size_t cell) const {
        return {codesOf(cell), dimensions_};
    }
    std::uint64_t count(std::size_t cell) const {
        return pieces_[cell / pieceCells].counts[cell % pieceCells];
    }
    const Sum& sum(std::size_t cell) const {
        return pieces_[cell / pieceCells].sums[cell % pieceCells];
    }

private:
    static constexpr std::size_t pieceCells = 1U << 14;
    static constexpr std::size_t manyTables = 1024;
    static constexpr std::size_t mostInOne = 1U << 16; ///< cells

    struct Piece {
        std::vector<std::uint64_t> codes, counts;
        std::vector<Sum> sums;
    };
    struct Slot {
        std::uint32_t cell = 0; ///< + 1, 0 where free
        std::uint32_t hash = 0;
    };
    struct Table {
        std::vector<Slot> slots;
        std::size_t used = 0;
        std::size_t most = 0; ///< before it grows
    };
    const std::uint64_t* codesOf(std::size_t cell) const {
        return pieces_[cell / pieceCells].codes.data() + cell % pieceCells * dimensions_;
    }
    Table& tableOf(std::uint64_t hash) { return tables_[(hash >> 54) & lastTable_]; }
    std::size_t find(const std::uint64_t* codes);
    std::size_t append(const std::uint64_t* codes);
    void grow(Table& table);
    void makeMany();
    std::uint64_t hash(const std::uint64_t* codes) const;
    static void put(Table& table, Slot slot);

    std::size_t dimensions_;
    std::size_t size_ = 0;
    std::size_t lastTable_ = 0;
    LargeVector<Piece, 16> pieces_;
    LargeVector<Table, 16> tables_;
};

} // namespace kelx::execution
