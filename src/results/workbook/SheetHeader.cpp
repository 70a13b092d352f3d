// SPDX-License-Identifier: GPL-3.0-or-later
#include "results/workbook/SheetHeader.h"

#include "results/tables/TableBase.h"

#include <algorithm>

namespace {

struct HeaderItem {
    QString text;
    CellArea area;
};

QList<HeaderItem> itemsOf(const TableBase& table) {
    const auto texts = table.headerTexts();
    const auto spans = table.headerSpans();
    const auto positions = table.headerPositions();
    QList<HeaderItem> items;
    for (qsizetype row = 0; row < texts.size(); ++row)
        for (qsizetype item = 0; item < texts[row].size(); ++item) {
            const auto [columns, rows] = spans[row][item];
            const auto [column, atRow] = positions[row][item];
            items += {texts[row][item], {atRow, column, std::max(rows, 1), std::max(columns, 1)}};
        }
    return items;
}

} // namespace

SheetHeader::SheetHeader(const TableBase& table) {
    const auto items = itemsOf(table);
    int rows = 0;
    for (const HeaderItem& item : items) {
        rows = std::max(rows, item.area.row + item.area.rows);
        columns_ = std::max(columns_, item.area.column + item.area.columns);
    }
    cells_.assign(static_cast<std::size_t>(rows),
                  std::vector<Cell>(static_cast<std::size_t>(columns_)));
    for (const HeaderItem& item : items)
        place(item.text, item.area);
}

bool SheetHeader::isFree(const CellArea& area) const {
    for (int row = area.row; row < area.row + area.rows; ++row)
        for (int column = area.column; column < area.column + area.columns; ++column)
            if (cells_[static_cast<std::size_t>(row)][static_cast<std::size_t>(column)].isTaken)
                return false;
    return true;
}

/// Areas that overlap would make other programs ask for a repair.
void SheetHeader::place(const QString& text, CellArea area) {
    if (!isFree(area))
        area.rows = area.columns = 1;
    for (int row = area.row; row < area.row + area.rows; ++row)
        for (int column = area.column; column < area.column + area.columns; ++column)
            cells_[static_cast<std::size_t>(row)][static_cast<std::size_t>(column)].isTaken = true;
    Cell& first = cells_[static_cast<std::size_t>(area.row)][static_cast<std::size_t>(area.column)];
    first.text = text;
    first.isWide = area.columns > 1;
    if (area.rows > 1 || area.columns > 1)
        merged_.push_back(area);
}

void SheetHeader::write(Workbook& book, int row, int column, CellStyle style) const {
    for (const auto& cells : cells_) {
        for (std::size_t i = 0; i < cells.size(); ++i)
            if (cells[i].isTaken)
                book.text(row, column + static_cast<int>(i), cells[i].text, style);
        ++row;
    }
    for (CellArea area : merged_) {
        area.row += row - rows();
        area.column += column;
        book.merge(area);
    }
}

void SheetHeader::measure(ColumnWidths& widths) const {
    for (const auto& cells : cells_)
        for (std::size_t i = 0; i < cells.size(); ++i)
            if (!cells[i].isWide)
                widths.take(static_cast<qsizetype>(i), cells[i].text);
}
