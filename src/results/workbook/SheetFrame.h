// SPDX-License-Identifier: GPL-3.0-or-later
// What the sheets of grids and of reports have in common besides headers: how large they may be and
// the lines below the table.
#pragma once

#include <QCoreApplication>
#include <QStringList>

class TableBase;
class Workbook;

class SheetFrame {
    Q_DECLARE_TR_FUNCTIONS(SheetFrame)

public:
    /// What a reader must know: cells that were suppressed, texts that were cut.
    static QStringList closingLines(const Workbook& book, const TableBase& table);
    /// Throws WorkbookError where a sheet has not so many rows, closing lines besides, or columns.
    static void checkSize(const TableBase& table, qint64 rows, qint64 columns);
};
