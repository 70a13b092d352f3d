// SPDX-License-Identifier: GPL-3.0-or-later
#include "results/workbook/SheetFrame.h"

#include "results/tables/TableBase.h"
#include "results/workbook/CellFigure.h"
#include "results/workbook/Workbook.h"
#include "results/workbook/WorkbookError.h"
#include "results/workbook/WorkbookText.h"

namespace {
constexpr qint64 closingRows = 3;
}

QString SheetFrame::cellText(const ResultRows& rows, qsizetype row, qsizetype column,
                             const CellFigure& figure) {
    return figure.kind == CellFigure::Kind::Digits ? rows.raw(row, column).trimmed()
                                                   : rows.display(row, column);
}

QStringList SheetFrame::closingLines(const Workbook& book, const TableBase& table) {
    QStringList lines;
    if (const QString note = table.metadata().suppressedNote(); !note.isEmpty())
        lines += note;
    if (book.hasCutTexts())
        lines += tr("Texts were cut off after %1 characters, which is all that a cell holds")
                     .arg(WorkbookText::maxLength);
    return lines;
}

void SheetFrame::checkSize(const TableBase& table, qint64 rows, qint64 columns) {
    if (rows + closingRows > Workbook::maxRows)
        throw WorkbookError::tooManyRows(table.tableName(), rows + closingRows);
    if (columns > Workbook::maxColumns)
        throw WorkbookError::tooManyColumns(table.tableName(), columns);
}
