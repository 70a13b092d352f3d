// SPDX-License-Identifier: GPL-3.0-or-later
#include "results/ResultModel.h"

#include <QFont>

QFont headingFont() {
    QFont font;
    font.setPointSize(9);
    font.setWeight(QFont::Bold);
    return font;
}

int ResultModel::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : contents_.rows;
}

int ResultModel::columnCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : contents_.columns;
}

const HeaderItem* ResultModel::headerAt(int row, int column) const {
    if (row < contents_.top || row >= firstCellRow() || column < contents_.left)
        return nullptr;
    return contents_.header.at(row - contents_.top, column - contents_.left);
}

bool ResultModel::isHeader(int row, int column) const {
    return row >= contents_.top && column >= contents_.left &&
           contents_.header.covers(row - contents_.top, column - contents_.left);
}

bool ResultModel::isCell(int row, int column) const {
    const int cell = row - firstCellRow();
    return cell >= 0 && cell < cellRows() && column >= contents_.left &&
           column - contents_.left < contents_.cells.columns(cell);
}

QString ResultModel::text(int row, int column) const {
    if (const HeaderItem* item = headerAt(row, column))
        return item->shown;
    return isCell(row, column)
               ? contents_.cells.display(row - firstCellRow(), column - contents_.left)
               : QString();
}

QString ResultModel::raw(int row, int column) const {
    if (const HeaderItem* item = headerAt(row, column))
        return item->raw;
    return isCell(row, column) ? contents_.cells.raw(row - firstCellRow(), column - contents_.left)
                               : QString();
}

CellKind ResultModel::kind(int row, int column) const {
    if (headerAt(row, column) != nullptr)
        return CellKind::Header;
    if (!isCell(row, column))
        return CellKind::Blank;
    return contents_.alignments.value(column - contents_.left, 2) == 2 ? CellKind::Number
                                                                       : CellKind::Text;
}

Qt::Alignment ResultModel::alignment(int row, int column) const {
    switch (kind(row, column)) {
    case CellKind::Header:
        return Qt::AlignCenter;
    case CellKind::Number:
        return Qt::AlignRight | Qt::AlignVCenter;
    default:
        return Qt::AlignLeft | Qt::AlignVCenter;
    }
}

QVariant ResultModel::data(const QModelIndex& index, int role) const {
    if (!checkIndex(index, CheckIndexOption::IndexIsValid))
        return {};
    const int row = index.row();
    const int column = index.column();
    switch (role) {
    case Qt::DisplayRole:
        return text(row, column);
    case resultrole::raw:
        return raw(row, column);
    case resultrole::kind:
        return static_cast<int>(kind(row, column));
    case Qt::TextAlignmentRole:
        return QVariant::fromValue(alignment(row, column));
    default:
        return look(row, column, role);
    }
}

QVariant ResultModel::look(int row, int column, int role) const {
    const HeaderItem* item = headerAt(row, column);
    if (item == nullptr)
        return {};
    switch (role) {
    case Qt::BackgroundRole:
        return item->background;
    case Qt::ForegroundRole:
        return readableOn(item->background);
    case Qt::FontRole:
        return headingFont();
    case Qt::ToolTipRole:
        return item->raw.toHtmlEscaped();
    default:
        return {};
    }
}

QList<CellSpan> ResultModel::spans() const {
    QList<CellSpan> spans;
    for (const HeaderItem& item : contents_.header.items())
        if (item.span.isWide())
            spans += {item.span.row + contents_.top, item.span.column + contents_.left,
                      item.span.rows, item.span.columns};
    return spans;
}
