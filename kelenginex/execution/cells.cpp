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
    // The table is chosen by the uppermost bits and the slot by the lowest: both from all of it.
    result *= 0xc4ceb9fe1a85ec53ULL;
    return result ^ result >> 33;
}

std::size_t HashCells::find(const std::uint64_t* codes) {
    const std::uint64_t full = hash(codes);
    if (tables_.empty()) {
        tables_.resize(1);
        lastTable_ = 0;
    }
    if (tables_.size() == 1 && size_ == mostInOne)
        makeMany();
    Table& table = tableOf(full);
    if (table.used == table.most)
        grow(table);
    const auto wanted = static_cast<std::uint32_t>(full);
    const std::size_t mask = table.slots.size() - 1;
    std::size_t at = wanted & mask;
    for (; table.slots[at].cell != 0; at = (at + 1) & mask) {
        const std::size_t cell = table.slots[at].cell - 1;
        if (table.slots[at].hash == wanted && std::equal(codes, codes + dimensions_, codesOf(cell)))
            return cell;
    }
    const std::size_t cell = append(codes);
    table.slots[at] = {static_cast<std::uint32_t>(cell + 1), wanted};
    ++table.used;
    return cell;
}

std::size_t HashCells::append(const std::uint64_t* codes) {
    const std::size_t number = size_ / pieceCells;
    if (number == pieces_.size()) {
        Piece& next = pieces_.emplace_back();
        if (number > 0) { // one that is not the first is likely to be filled
            next.codes.reserve(pieceCells * dimensions_);
            next.counts.reserve(pieceCells);
            next.sums.reserve(pieceCells);
        }
    }
    Piece& piece = pieces_[number];
    piece.codes.insert(piece.codes.end(), codes, codes + dimensions_);
    piece.counts.push_back(0);
    piece.sums.emplace_back();
    return size_++;
}

void HashCells::put(Table& table, Slot slot) {
    const std::size_t mask = table.slots.size() - 1;
    std::size_t at = slot.hash & mask;
    while (table.slots[at].cell != 0)
        at = (at + 1) & mask;
    table.slots[at] = slot;
    ++table.used;
}

/// Tables bear different loads, else all of them would grow at about the same time.
void HashCells::grow(Table& table) {
    const std::size_t fewest = tables_.size() == 1 ? 1024 : 256;
    std::vector<Slot> old = std::move(table.slots);
    const auto number = static_cast<std::size_t>(&table - tables_.data());
    const std::size_t slots = std::max(old.size() * 2, fewest);
    table.slots.assign(slots, {});
    table.used = 0;
    table.most = slots / 2 - slots / 4 * number / tables_.size();
    for (const Slot& slot : old) {
        if (slot.cell != 0)
            put(table, slot);
    }
}

void HashCells::makeMany() {
    tables_ = LargeVector<Table, 16>(manyTables);
    lastTable_ = manyTables - 1;
    for (Table& table : tables_)
        grow(table);
    for (std::size_t cell = 0; cell < size_; ++cell) {
        const std::uint64_t full = hash(codesOf(cell));
        Table& table = tableOf(full);
        if (table.used == table.most)
            grow(table);
        put(table, {static_cast<std::uint32_t>(cell + 1), static_cast<std::uint32_t>(full)});
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
    size_ = 0;
    for (Piece& piece : pieces_) {
        piece.codes.clear();
        piece.counts.clear();
        piece.sums.clear();
    }
    for (Table& table : tables_) {
        std::fill(table.slots.begin(), table.slots.end(), Slot{});
        table.used = 0;
    }
}

} // namespace kelx::execution
