// SPDX-License-Identifier: GPL-3.0-or-later
// What the sheets of grids and of reports have in common besides headers: how large they may be,
// the texts of cells and the lines below the table.
#pragma once

#include <QCoreApplication>
#include <QStringList>

class ResultRows;
class TableBase;
class Workbook;
struct CellFigure;

class SheetFrame {
    Q_DECLARE_TR_FUNCTIONS(SheetFrame)

public:
    /// As it is shown; figures that only a text can hold keep all digits.
    static QString cellText(const ResultRows& rows, qsizetype row, qsizetype column,
                            const CellFigure& figure);
    /// What a reader must know: cells that were suppressed, texts that were cut.
    static QStringList closingLines(const Workbook& book, const TableBase& table);
    /// Throws WorkbookError where a sheet has not so many rows, closing lines besides, or columns.
    static void checkSize(const TableBase& table, qint64 rows, qint64 columns);
};
