// SPDX-License-Identifier: GPL-3.0-or-later
#include "results/tables/CellTexts.h"

#include <algorithm>

void CellTexts::reserve(qsizetype rows, qsizetype cells) {
    rowStarts_.reserve(static_cast<std::size_t>(rows));
    ends_.reserve(static_cast<std::size_t>(cells));
}

void CellTexts::startRow() {
    rowStarts_.push_back(ends_.size());
}

void CellTexts::add(std::string_view text) {
    Q_ASSERT(!rowStarts_.empty());
    texts_ += text;
    ends_.push_back(texts_.size());
    width_ = std::max(width_, static_cast<qsizetype>(ends_.size() - rowStarts_.back()));
}

qsizetype CellTexts::columns(qsizetype row) const {
    const auto index = static_cast<std::size_t>(row);
    const std::uint64_t end = index + 1 < rowStarts_.size() ? rowStarts_[index + 1] : ends_.size();
    return static_cast<qsizetype>(end - rowStarts_[index]);
}

std::string_view CellTexts::at(qsizetype row, qsizetype column) const {
    if (column < 0 || column >= columns(row))
        return {};
    const std::size_t cell =
        rowStarts_[static_cast<std::size_t>(row)] + static_cast<std::size_t>(column);
    const std::uint64_t begin = cell == 0 ? 0 : ends_[cell - 1];
    return std::string_view(texts_).substr(begin, ends_[cell] - begin);
}
