// SPDX-License-Identifier: GPL-3.0-or-later
// The order of the categories that a user clicked for: codes as numbers where they are numbers.
#pragma once

#include <QSortFilterProxyModel>

class VarValueLabelDiccionaryProxyModel : public QSortFilterProxyModel {
    Q_OBJECT

public:
    using QSortFilterProxyModel::QSortFilterProxyModel;

protected:
    /// Numbers come before texts, so that any mixture has one order.
    bool lessThan(const QModelIndex& left, const QModelIndex& right) const override;
};
