// SPDX-License-Identifier: GPL-3.0-or-later
#include "results/ResTableDelegate.h"

#include "results/ResultReportModel.h"

#include <QPainter>

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
    const QString frame = index.data(resultrole::frame).toString();
    if (frame.isEmpty())
        return;
    painter->save();
    painter->setPen(QPen(Qt::black, frame == QLatin1String("header") ? 3 : 1));
    painter->drawRect(option.rect); // the right and lower lines are the neighbours' own
    painter->restore();
}
