// SPDX-License-Identifier: GPL-3.0-or-later
// Rows of texts in one piece of memory: a table of millions of cells takes some bytes for each.
#pragma once

#include <QString>

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

/// Filled row by row, from the first cell to the last; UTF-8. Rows may differ in length.
class CellTexts {
public:
    void reserve(qsizetype rows, qsizetype cells);
    void startRow();
    void add(std::string_view text); ///< a cell behind the others of the row begun last
    void add(const QString& text) { add(std::string_view(text.toStdString())); }

    qsizetype rows() const { return static_cast<qsizetype>(rowStarts_.size()); }
    qsizetype columns(qsizetype row) const;    ///< of that row
    qsizetype width() const { return width_; } ///< of the longest row
    /// Empty beyond the row's end. Valid until the next change.
    std::string_view at(qsizetype row, qsizetype column) const;

private:
    std::string texts_;
    std::vector<std::uint64_t> ends_;      ///< of each cell's text
    std::vector<std::uint64_t> rowStarts_; ///< number of each row's first cell
    qsizetype width_ = 0;
};
