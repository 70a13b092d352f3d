// SPDX-License-Identifier: GPL-3.0-or-later
// How wide texts are in a sheet. The fonts of the workbook need not be on this machine, so widths
// are estimated by kinds of characters.
#pragma once

#include <QList>
#include <QStringView>

/// In widths of a digit, as the columns of a sheet are measured.
double textWidth(QStringView text);

/// The widest text of each column.
class ColumnWidths {
public:
    void take(qsizetype column, QStringView text) { take(column, textWidth(text)); }
    void take(qsizetype column, double width);
    int columns() const { return static_cast<int>(widest_.size()); }
    /// With some room, never too narrow to click on and never wider than is readable.
    double width(qsizetype column) const;

private:
    QList<double> widest_;
};
