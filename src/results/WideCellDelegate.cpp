// SPDX-License-Identifier: GPL-3.0-or-later
#include "results/WideCellDelegate.h"

#include <QTableView>

void WideCellDelegate::paint(QPainter* painter, const QStyleOptionViewItem& option,
                             const QModelIndex& index) const {
    QStyleOptionViewItem seen = option;
    const auto* view = qobject_cast<const QTableView*>(option.widget);
    if (view != nullptr && view->columnSpan(index.row(), index.column()) > 1)
        seen.rect &= view->viewport()->rect();
    QStyledItemDelegate::paint(painter, seen, index);
}
