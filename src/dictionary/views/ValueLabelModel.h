// SPDX-License-Identifier: GPL-3.0-or-later
// The values of one variable and their labels as a table.
#pragma once

#include "dictionary/mirror/ValueLabelElement.h"

#include <QAbstractTableModel>
#include <QList>

class TKpVariable;

class ValueLabelModel : public QAbstractTableModel {
    Q_OBJECT

public:
    enum Column { ValueColumn, LabelColumn, ColumnCount };

    using QAbstractTableModel::QAbstractTableModel;

    void setVariable(const TKpVariable* variable); ///< copies; null empties the table

    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

private:
    QList<ValueLabelElement> elements_;
    bool numeric_ = false;
};
