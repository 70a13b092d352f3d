// SPDX-License-Identifier: GPL-3.0-or-later
// The header rows of a table in a sheet, with the cells that go over several columns or rows.
#pragma once

#include "results/workbook/TextWidth.h"
#include "results/workbook/Workbook.h"

#include <QList>
#include <QString>

#include <vector>

class TableBase;

class SheetHeader {
public:
    explicit SheetHeader(const TableBase& table);

    int rows() const { return static_cast<int>(cells_.size()); }
    int columns() const { return columns_; }
    /// From this row and column of the sheet on.
    void write(Workbook& book, int row, int column, CellStyle style) const;
    /// Of the texts that stand in one column only.
    void measure(ColumnWidths& widths) const;

private:
    struct Cell {
        QString text;
        bool isTaken = false;
        bool isWide = false; ///< of a text over several columns
    };

    void place(const QString& text, CellArea area);
    bool isFree(const CellArea& area) const;

    std::vector<std::vector<Cell>> cells_;
    std::vector<CellArea> merged_;
    int columns_ = 0;
};
