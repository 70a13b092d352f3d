// SPDX-License-Identifier: GPL-3.0-or-later
#include "dictionary/views/ValueLabelModel.h"

#include "dictionary/mirror/TKpVariable.h"

void ValueLabelModel::setVariable(const TKpVariable* variable) {
    beginResetModel();
    elements_.clear();
    if (variable != nullptr && variable->valueLabels)
        elements_ = *variable->valueLabels;
    numeric_ = variable != nullptr && variable->typeName == QLatin1String("INTEGER");
    endResetModel();
}

int ValueLabelModel::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : static_cast<int>(elements_.size());
}

int ValueLabelModel::columnCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : ColumnCount;
}

QVariant ValueLabelModel::data(const QModelIndex& index, int role) const {
    if (!index.isValid())
        return {};
    const ValueLabelElement& element = elements_[index.row()];
    if (role == Qt::DisplayRole)
        return index.column() == ValueColumn ? element.value : element.label;
    if (role == Qt::TextAlignmentRole && index.column() == ValueColumn && numeric_)
        return QVariant(Qt::AlignRight | Qt::AlignVCenter);
    return {};
}

QVariant ValueLabelModel::headerData(int section, Qt::Orientation orientation, int role) const {
    if (orientation != Qt::Horizontal)
        return {};
    if (role == Qt::TextAlignmentRole)
        return QVariant((section == ValueColumn && numeric_ ? Qt::AlignRight : Qt::AlignLeft) |
                        Qt::AlignVCenter);
    if (role == Qt::DisplayRole)
        return section == ValueColumn ? tr("Value") : tr("Label");
    return {};
}
