// SPDX-License-Identifier: GPL-3.0-or-later
// The variables of one entity as a table.
#pragma once

#include "dictionary/views/RowIcon.h"

#include <QAbstractTableModel>
#include <QList>

class TKpEntity;
class TKpVariable;

/// Reads the mirror, which must live until the next setEntity().
class VariableTableModel : public QAbstractTableModel {
    Q_OBJECT

public:
    enum Column {
        NameColumn,
        LabelColumn,
        TypeColumn,
        GroupColumn,
        SizeColumn,
        CategoriesColumn,
        FileColumn,
        ColumnCount
    };

    using QAbstractTableModel::QAbstractTableModel;

    void setEntity(const TKpEntity* entity); ///< null empties the table
    TKpVariable* variableAt(int row) const;

    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

private:
    QVariant decoration(const TKpVariable& variable, int column) const;

    const QIcon variableIcon_ = rowIcon(QStringLiteral(":/icons/res/icons/variable.svg"));
    const QIcon missingIcon_ = rowIcon(QStringLiteral(":/icons/res/icons/missing.svg"));
    QList<TKpVariable*> variables_;
};
