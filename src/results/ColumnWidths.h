// SPDX-License-Identifier: GPL-3.0-or-later
// How wide the columns of a result table are to be, whatever its size.
#pragma once

#include <QFontMetrics>
#include <QList>

class ResultModel;

/// Measures the longest text among the first and last rows of a sample, whose number of cells is
/// bounded, and among the headers of one column.
class ColumnWidths {
public:
    /// padding: pixels beside a text.
    ColumnWidths(const ResultModel& model, const QFont& font, int padding);

    int of(int column) const; ///< in pixels

private:
    QString longest(int column) const;
    int headerWidth(int column) const;

    const ResultModel* model_;
    QFontMetrics cells_;
    QFontMetrics headers_;
    int padding_;
    QList<int> sample_; ///< rows
};
