// SPDX-License-Identifier: GPL-3.0-or-later
// Draws the text of a cell that spans columns in the part of it that is seen.
#pragma once

#include <QStyledItemDelegate>

class WideCellDelegate : public QStyledItemDelegate {
    Q_OBJECT

public:
    using QStyledItemDelegate::QStyledItemDelegate;

    void paint(QPainter* painter, const QStyleOptionViewItem& option,
               const QModelIndex& index) const override;
};
