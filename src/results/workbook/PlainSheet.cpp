// SPDX-License-Identifier: GPL-3.0-or-later
#include "results/workbook/PlainSheet.h"

#include "results/tables/TableBase.h"
#include "results/workbook/CellFigure.h"
#include "results/workbook/CellProgress.h"
#include "results/workbook/SheetFrame.h"
#include "results/workbook/SheetHeader.h"

#include <algorithm>

namespace {

constexpr int rightAligned = 2;
constexpr int alignmentMask = 31;

/// Figures in the general format are shortened to that.
constexpr std::size_t longestFigure = 11;

/// Gives the width that it needs.
double writeCell(Workbook& book, const ResultRows& rows, const CellArea& cell, qsizetype from,
                 bool isNumeric) {
    const std::string_view raw = rows.text(from, cell.column);
    const CellFigure figure(raw);
    if (isNumeric && figure.isNumber()) {
        book.number(cell.row, cell.column, figure.value, CellStyle::Plain);
        return static_cast<double>(std::min(raw.size(), longestFigure));
    }
    if (figure.kind == CellFigure::Kind::Empty)
        return 0;
    const QString text = SheetFrame::cellText(rows, from, cell.column, figure);
    book.text(cell.row, cell.column, text, CellStyle::Plain);
    return textWidth(text);
}

} // namespace

void plainsheet::checkSize(const TableBase& table) {
    const SheetHeader header(table);
    SheetFrame::checkSize(table, header.rows() + table.cells().size(),
                          std::max<qint64>(header.columns(), table.cells().width()));
}

void plainsheet::write(Workbook& book, const TableBase& table, CellProgress& progress) {
    const SheetHeader header(table);
    header.write(book, 0, 0, CellStyle::GridHeader);
    ColumnWidths widths;
    header.measure(widths);
    const ResultRows& rows = table.cells();
    const QList<int> alignments = table.columnAlignments();
    int row = header.rows();
    book.freeze(row, rows.isTextColumn(0) && header.columns() > 1 ? 1 : 0);
    for (qsizetype from = 0; from < rows.size(); ++from, ++row) {
        const int columns = static_cast<int>(rows.columns(from));
        for (int column = 0; column < columns; ++column)
            widths.take(column,
                        writeCell(book, rows, {row, column}, from,
                                  (alignments.value(column) & alignmentMask) == rightAligned));
        progress.add(columns);
    }
    for (int column = 0; column < widths.columns(); ++column)
        book.setColumnWidth(column, widths.width(column));
    for (const QString& line : SheetFrame::closingLines(book, table))
        book.text(++row, 0, line, CellStyle::Plain);
}
