// SPDX-License-Identifier: GPL-3.0-or-later
#include "dictionary/views/VariableFilter.h"

#include "dictionary/views/VariableTableModel.h"

VariableFilter::VariableFilter(QObject* parent) : QSortFilterProxyModel(parent) {
    setSortCaseSensitivity(Qt::CaseInsensitive);
}

void VariableFilter::setText(const QString& text) {
    text_ = text.trimmed();
    invalidateFilter();
}

bool VariableFilter::filterAcceptsRow(int row, const QModelIndex& parent) const {
    for (const int column : {VariableTableModel::NameColumn, VariableTableModel::LabelColumn,
                             VariableTableModel::GroupColumn})
        if (sourceModel()
                ->index(row, column, parent)
                .data()
                .toString()
                .contains(text_, Qt::CaseInsensitive))
            return true;
    return false;
}
