// SPDX-License-Identifier: Apache-2.0
#include "execution/table_cells.h"

#include "execution/kernels.h"

#include <algorithm>
#include <utility>

namespace kelx::execution {
namespace {

constexpr std::uint64_t mostDenseCells = 1U << 20;

} // namespace

TableShape::TableShape(std::vector<CodeDomain> of, bool isWeighted)
    : domains(std::move(of)), weighted(isWeighted) {
    std::uint64_t total = 1;
    for (const CodeDomain& domain : domains) {
        const bool small =
            domain.physical != storage::Physical::Real64 && domain.size < mostDenseCells;
        if (!small || total * (domain.size + 1) > mostDenseCells) {
            strides.clear();
            return;
        }
        strides.push_back(static_cast<std::uint32_t>(total));
        total *= domain.size + 1;
    }
    cells = static_cast<std::size_t>(total);
}

TableCells::TableCells(const TableShape& shape)
    : hashed(std::max<std::size_t>(shape.domains.size(), 1)), shape_(shape) {
    if (shape.dense()) // kernels for one-byte cell numbers add to all 256
        dense.resize(std::max<std::size_t>(shape.cells, 256), shape.weighted,
                     shape.small() ? sumLanes : 1);
}

bool TableCells::take(TableCells& other, const GoOn& goOn) {
    if (shape_.dense()) {
        dense.merge(other.dense);
        other.dense.clear();
        return true;
    }
    if (hashed.size() == 0) {
        std::swap(hashed, other.hashed);
        return true;
    }
    const bool whole = hashed.merge(other.hashed, goOn);
    other.hashed.clear();
    return whole;
}

void TableCells::decode(std::size_t cell, std::vector<std::uint64_t>& codes) const {
    for (std::size_t i = 0; i < codes.size(); ++i) {
        const CodeDomain& domain = shape_.domains[i];
        const std::uint64_t slot = cell / shape_.strides[i] % (domain.size + 1);
        codes[i] = slot == domain.size ? storage::blankCode(storage::Physical::Code64)
                                       : domain.lowest + slot;
    }
}

} // namespace kelx::execution
