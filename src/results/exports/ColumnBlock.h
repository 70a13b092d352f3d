// SPDX-License-Identifier: GPL-3.0-or-later
// Columns of a table that stand side by side on a page: those of a wide table stand in several
// blocks, each beside the labels of the rows.
#pragma once

#include <QtGlobal>

#include <algorithm>

struct ColumnBlock {
    qsizetype labels = 0; ///< number of first columns that stand in the blocks before as well
    qsizetype first = 0;
    qsizetype end = 0;

    bool opens() const { return first == 0; } ///< the first one
    qsizetype size() const { return labels + end - first; }
    /// The column of the table that stands at this place.
    qsizetype column(qsizetype place) const {
        return place < labels ? place : first + place - labels;
    }
    /// How many of count columns of the table stand here.
    int shown(qsizetype from, qsizetype count) const {
        const auto common = [&](qsizetype begin, qsizetype limit) {
            return std::max<qsizetype>(0, std::min(from + count, limit) - std::max(from, begin));
        };
        return static_cast<int>(common(0, labels) + common(first, end));
    }
};
