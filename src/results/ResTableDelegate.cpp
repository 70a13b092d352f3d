// SPDX-License-Identifier: GPL-3.0-or-later
#include "results/ResTableDelegate.h"

#include "results/ResultReportModel.h"

#include <QPainter>
#include <QTableView>

namespace {

int frameWidth(const QModelIndex& index) {
    const QString frame = index.data(resultrole::frame).toString();
    if (frame.isEmpty())
        return 0;
    return frame == QLatin1String("header") ? 3 : 1;
}

/// What a cell draws of a line between it and another; the other draws the rest. All of it is
/// within the cell, since what is drawn beside it goes when the neighbour is painted.
int share(int own, int other, bool first) {
    if (own != other)
        return own > other ? own : 0;
    return first ? (own + 1) / 2 : own / 2;
}

/// The lines of a cell, of which each may be empty.
QMargins lines(const QModelIndex& index, const QTableView* view) {
    const int own = frameWidth(index);
    const int row = index.row();
    const int column = index.column();
    const int below = row + (view != nullptr ? view->rowSpan(row, column) : 1);
    const int behind = column + (view != nullptr ? view->columnSpan(row, column) : 1);
    return {share(own, frameWidth(index.siblingAtColumn(column - 1)), true),
            share(own, frameWidth(index.siblingAtRow(row - 1)), true),
            share(own, frameWidth(index.siblingAtColumn(behind)), false),
            share(own, frameWidth(index.siblingAtRow(below)), false)};
}

} // namespace

void ResTableDelegate::initStyleOption(QStyleOptionViewItem* option,
                                       const QModelIndex& index) const {
    WideCellDelegate::initStyleOption(option, index);
    // The word of the frame stands where an icon would, and makes room for one.
    option->features &= ~QStyleOptionViewItem::HasDecoration;
    option->icon = QIcon();
    option->decorationSize = QSize();
}

void ResTableDelegate::paint(QPainter* painter, const QStyleOptionViewItem& option,
                             const QModelIndex& index) const {
    WideCellDelegate::paint(painter, option, index);
    if (frameWidth(index) == 0)
        return;
    const QRect cell = option.rect;
    const QRect inner = cell - lines(index, qobject_cast<const QTableView*>(option.widget));
    for (const QRect& line : QRegion(cell) - inner)
        painter->fillRect(line, Qt::black);
}
