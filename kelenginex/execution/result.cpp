// SPDX-License-Identifier: Apache-2.0
#include "execution/result.h"

#include <stdexcept>

namespace kelx::execution {

void throwTooManyRows(const language::TableCommand& command, std::size_t most) {
    throw std::runtime_error("The table " + command.name + " would have more than " +
                             std::to_string(most) +
                             " rows. Take fewer variables, or ones with fewer categories.");
}

void Cells::reserve(std::size_t cells) {
    categories_.reserve(cells * dimensions_);
    records_.reserve(cells);
    sums_.reserve(weighted_ ? cells : 0);
}

void Cells::add(const Cell& cell) {
    categories_.insert(categories_.end(), cell.categories.begin(), cell.categories.end());
    records_.push_back(cell.records);
    if (weighted_)
        sums_.push_back(cell.sum);
}

void Cells::join(const Cell& cell) {
    records_.back() += cell.records;
    if (weighted_)
        sums_.back().add(cell.sum);
}

} // namespace kelx::execution
