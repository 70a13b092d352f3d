// SPDX-License-Identifier: GPL-3.0-or-later
// A table's report in a sheet: its facts, then headers and rows in frames.
#pragma once

#include "results/workbook/SheetHeader.h"
#include "results/workbook/TextWidth.h"
#include "results/workbook/Workbook.h"

#include <QCoreApplication>

class CellProgress;
class TableBase;

/// Throws WorkbookError and WritingCancelled.
class ReportSheet {
    Q_DECLARE_TR_FUNCTIONS(ReportSheet)

public:
    explicit ReportSheet(const TableBase& table);

    void checkSize() const;
    /// Into the sheet added last.
    void write(Workbook& book, CellProgress& progress);

private:
    void writeFacts(Workbook& book);
    void writeSubject(Workbook& book);
    void pair(Workbook& book, const QString& label, const QString& value);
    void wide(Workbook& book, int column, const QString& text, CellStyle style);
    void writeRows(Workbook& book, CellProgress& progress);
    void writeCell(Workbook& book, qsizetype from, int column, bool isTotal);

    const TableBase& table_;
    SheetHeader header_;
    ColumnWidths widths_;
    int columns_; ///< of the table
    int row_ = 0; ///< next one to write
};
