// SPDX-License-Identifier: GPL-3.0-or-later
#include "results/workbook/ReportSheet.h"

#include "results/tables/TableBase.h"
#include "results/workbook/CellFigure.h"
#include "results/workbook/CellProgress.h"
#include "results/workbook/SheetFrame.h"

#include <algorithm>

namespace {

constexpr int tableColumn = 1; ///< the first one holds the labels of the facts
constexpr double firstColumnWidth = 1.0;
constexpr qint64 mostFactRows = 24;
/// About half of a window: with more of them that stand still, no room is left to scroll in.
constexpr int mostFrozenRows = 15;

int columnsOf(const TableBase& table, const SheetHeader& header) {
    return static_cast<int>(std::max<qsizetype>(
        {table.columnHeaders().size(), table.reportCells().width(), header.columns()}));
}

} // namespace

ReportSheet::ReportSheet(const TableBase& table)
    : table_(table), header_(table), columns_(columnsOf(table, header_)) {}

void ReportSheet::checkSize() const {
    SheetFrame::checkSize(table_,
                          mostFactRows + table_.metadata().variableLabels.size() + header_.rows() +
                              table_.reportCells().size(),
                          qint64{columns_} + tableColumn);
}

void ReportSheet::write(Workbook& book, CellProgress& progress) {
    writeFacts(book);
    ++row_;
    header_.write(book, row_, tableColumn, CellStyle::Header);
    header_.measure(widths_);
    row_ += header_.rows();
    if (row_ <= mostFrozenRows)
        book.freeze(row_, 0);
    writeRows(book, progress);
    for (const QString& line : SheetFrame::closingLines(book, table_)) {
        ++row_;
        wide(book, tableColumn, line, CellStyle::Value);
    }
    book.setColumnWidth(0, firstColumnWidth);
    for (int column = 0; column < columns_; ++column)
        book.setColumnWidth(tableColumn + column, widths_.width(column));
}

/// A row from its column to the table's last.
void ReportSheet::wide(Workbook& book, int column, const QString& text, CellStyle style) {
    book.text(row_, column, text, style);
    book.merge({row_, column, 1, columns_ + 1 - column});
    ++row_;
}

void ReportSheet::pair(Workbook& book, const QString& label, const QString& value) {
    wide(book, 0, label, CellStyle::Label);
    wide(book, tableColumn, value, CellStyle::Value);
}

void ReportSheet::writeFacts(Workbook& book) {
    const TableMetadata& facts = table_.metadata();
    pair(book, tr("Title"), facts.title);
    pair(book, tr("Database"), facts.database);
    pair(book, tr("Geographic Area"), facts.geographicArea());
    if (facts.tally)
        pair(book, tr("Tally"), *facts.tally);
    if (facts.weight)
        pair(book, tr("Weight"), *facts.weight);
    if (facts.filter)
        pair(book, tr("Filter"), *facts.filter);
    if (facts.universalFilter)
        pair(book, tr("Universal Filter"), *facts.universalFilter);
    if (facts.sort)
        pair(book,
             tr("Sorted (%1) by").arg(facts.sort->ascending ? tr("Ascending") : tr("Descending")),
             facts.sort->variable);
    writeSubject(book);
}

void ReportSheet::writeSubject(Workbook& book) {
    const TableMetadata& facts = table_.metadata();
    if (facts.kind == tablekind::areaList) {
        pair(book, tr("Entity"),
             facts.entityLabel.isEmpty() ? facts.entityName : facts.entityLabel);
        pair(book, tr("Key"), facts.key);
        return;
    }
    wide(book, 0, facts.isCrosstab() ? tr("Crosstab") : facts.kindName, CellStyle::Label);
    for (qsizetype i = 0; i < facts.variableLabels.size(); ++i)
        wide(book, tableColumn, (i == 0 ? tr("of ") : tr("by ")) + facts.variableTitle(i),
             CellStyle::Value);
}

void ReportSheet::writeRows(Workbook& book, CellProgress& progress) {
    const ResultRows& rows = table_.reportCells();
    const QList<quint8> totals = table_.reportTotalRows();
    for (qsizetype from = 0; from < rows.size(); ++from, ++row_) {
        const int columns = static_cast<int>(rows.columns(from));
        for (int column = 0; column < columns; ++column)
            writeCell(book, from, column, totals.value(from) != 0);
        progress.add(columns);
    }
}

void ReportSheet::writeCell(Workbook& book, qsizetype from, int column, bool isTotal) {
    const ResultRows& rows = table_.reportCells();
    const int at = tableColumn + column;
    const CellFigure figure(rows.text(from, column));
    if (figure.kind == CellFigure::Kind::Empty)
        return book.blank(row_, at, isTotal ? CellStyle::TotalText : CellStyle::Text);
    const QString display = SheetFrame::cellText(rows, from, column, figure);
    widths_.take(column, display);
    if (rows.isTextColumn(column) || !figure.isNumber())
        book.text(row_, at, display, isTotal ? CellStyle::TotalText : CellStyle::Text);
    else if (figure.kind == CellFigure::Kind::Whole)
        book.number(row_, at, figure.value, isTotal ? CellStyle::TotalInteger : CellStyle::Integer);
    else
        book.number(row_, at, figure.value, isTotal ? CellStyle::TotalReal : CellStyle::Real);
}
