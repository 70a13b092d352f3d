// SPDX-License-Identifier: GPL-3.0-or-later
// Edits the cells of the variables table.
#pragma once

#include <QStyledItemDelegate>

/// A tag takes digits only; every editor tells a screen reader which column it is for.
class VariableCellDelegate : public QStyledItemDelegate {
    Q_OBJECT

public:
    using QStyledItemDelegate::QStyledItemDelegate;

    QWidget* createEditor(QWidget* parent, const QStyleOptionViewItem& option,
                          const QModelIndex& index) const override;
};
