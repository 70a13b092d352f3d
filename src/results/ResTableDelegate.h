// SPDX-License-Identifier: GPL-3.0-or-later
// Draws the cells of a report in the frames of a printed table.
#pragma once

#include "results/WideCellDelegate.h"

class ResTableDelegate : public WideCellDelegate {
    Q_OBJECT

public:
    using WideCellDelegate::WideCellDelegate;

    void paint(QPainter* painter, const QStyleOptionViewItem& option,
               const QModelIndex& index) const override;

protected:
    void initStyleOption(QStyleOptionViewItem* option, const QModelIndex& index) const override;
};
