// SPDX-License-Identifier: GPL-3.0-or-later
// Draws the cells of a report in the frames of a printed table.
#pragma once

#include <QStyledItemDelegate>

class ResTableDelegate : public QStyledItemDelegate {
    Q_OBJECT

public:
    using QStyledItemDelegate::QStyledItemDelegate;

    void paint(QPainter* painter, const QStyleOptionViewItem& option,
               const QModelIndex& index) const override;

protected:
    void initStyleOption(QStyleOptionViewItem* option, const QModelIndex& index) const override;
};
