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
    : domains(std::move(of)), strides(domains.size()), weighted(isWeighted) {
    cells = 1;
    bool fits = number(false);
    neighbours = cells;
    fits = fits && number(true);
    if (!fits) {
        strides.clear();
        cells = 0;
    }
}

/// Gives the dimensions of one kind their strides; false where there are too many cells.
bool TableShape::number(bool longRuns) {
    for (std::size_t i = 0; i < domains.size(); ++i) {
        const CodeDomain& domain = domains[i];
        if (domain.hasLongRuns != longRuns)
            continue;
        const bool bounded =
            domain.physical != storage::Physical::Real64 && domain.size < mostDenseCells;
        if (!bounded || cells * domain.numbers() > mostDenseCells)
            return false;
        strides[i] = static_cast<std::uint32_t>(cells);
        cells *= static_cast<std::size_t>(domain.numbers());
    }
    return true;
}

TableCells::TableCells(const TableShape& shape, bool withFigures)
    : hashed(std::max<std::size_t>(shape.domains.size(), 1)), shape_(shape) {
    if (shape.dense() && withFigures)
        dense.resize(shape.cells, shape.weighted, shape.small() ? sumLanes : 1);
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
        const std::uint64_t slot = cell / shape_.strides[i] % domain.numbers();
        codes[i] = slot == domain.size ? storage::blankCode(storage::Physical::Code64)
                                       : domain.lowest + slot;
    }
}

} // namespace kelx::execution
