// SPDX-License-Identifier: GPL-3.0-or-later
#include "dictionary/views/VariableTableModel.h"

#include "dictionary/mirror/TKpEntity.h"
#include "dictionary/mirror/TKpVariable.h"

#include <QDir>

namespace {

bool isNumberColumn(int column) {
    return column == VariableTableModel::SizeColumn ||
           column == VariableTableModel::CategoriesColumn;
}

QVariant cell(const TKpVariable& variable, int column) {
    switch (column) {
    case VariableTableModel::NameColumn:
        return variable.name;
    case VariableTableModel::LabelColumn:
        return variable.label;
    case VariableTableModel::TypeColumn:
        return variable.typeName;
    case VariableTableModel::GroupColumn:
        return variable.group;
    case VariableTableModel::SizeColumn:
        return variable.size;
    case VariableTableModel::CategoriesColumn:
        return variable.valueLabels ? static_cast<int>(variable.valueLabels->size()) : 0;
    default:
        return variable.fileExists ? VariableTableModel::tr("Found")
                                   : VariableTableModel::tr("Missing");
    }
}

QString toolTip(const TKpVariable& variable, int column) {
    if (column == VariableTableModel::FileColumn)
        return QDir::toNativeSeparators(variable.path);
    QStringList lines{variable.fullName};
    if (!variable.label.isEmpty())
        lines += variable.label;
    if (!variable.alias.isEmpty())
        lines += VariableTableModel::tr("Alias: %1").arg(variable.alias);
    if (!variable.documentation.isEmpty())
        lines += variable.documentation;
    return lines.join('\n');
}

} // namespace

void VariableTableModel::setEntity(const TKpEntity* entity) {
    beginResetModel();
    variables_ = entity == nullptr ? QList<TKpVariable*>() : entity->variables;
    endResetModel();
}

TKpVariable* VariableTableModel::variableAt(int row) const {
    return row >= 0 && row < variables_.size() ? variables_[row] : nullptr;
}

int VariableTableModel::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : static_cast<int>(variables_.size());
}

int VariableTableModel::columnCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : ColumnCount;
}

QVariant VariableTableModel::data(const QModelIndex& index, int role) const {
    const TKpVariable* variable = variableAt(index.row());
    if (variable == nullptr)
        return {};
    switch (role) {
    case Qt::DisplayRole:
        return cell(*variable, index.column());
    case Qt::DecorationRole:
        return decoration(*variable, index.column());
    case Qt::ToolTipRole:
        return toolTip(*variable, index.column());
    case Qt::TextAlignmentRole:
        return isNumberColumn(index.column()) ? QVariant(Qt::AlignRight | Qt::AlignVCenter)
                                              : QVariant();
    default:
        return {};
    }
}

QVariant VariableTableModel::decoration(const TKpVariable& variable, int column) const {
    if (column == NameColumn)
        return variableIcon_;
    return column == FileColumn && !variable.fileExists ? missingIcon_ : QVariant();
}

QVariant VariableTableModel::headerData(int section, Qt::Orientation orientation, int role) const {
    if (orientation != Qt::Horizontal)
        return {};
    if (role == Qt::TextAlignmentRole)
        return QVariant((isNumberColumn(section) ? Qt::AlignRight : Qt::AlignLeft) |
                        Qt::AlignVCenter);
    if (role != Qt::DisplayRole)
        return {};
    const QStringList titles{tr("Name"), tr("Label"),      tr("Type"), tr("Group"),
                             tr("Size"), tr("Categories"), tr("File")};
    return titles.value(section);
}
