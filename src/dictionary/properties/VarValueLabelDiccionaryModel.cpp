// SPDX-License-Identifier: GPL-3.0-or-later
#include "dictionary/properties/VarValueLabelDiccionaryModel.h"

#include "app/widgets/RowIcon.h"

#include <algorithm>

VarValueLabelDiccionaryModel::VarValueLabelDiccionaryModel(QObject* parent)
    : QAbstractTableModel(parent),
      faultIcon_(rowIcon(QStringLiteral(":/icons/res/icons/48px-Missing.png"))) {}

void VarValueLabelDiccionaryModel::setList(const Categories::List& list, bool numeric) {
    beginResetModel();
    edits_.reset(list);
    numeric_ = numeric;
    faults_ = Categories::faults(list);
    endResetModel();
}

void VarValueLabelDiccionaryModel::append(const Categories::List& added) {
    if (added.isEmpty())
        return;
    const int first = rowCount();
    beginInsertRows({}, first, first + static_cast<int>(added.size()) - 1);
    edits_.append(added);
    faults_.resize(edits_.list().size());
    endInsertRows();
    refreshFaults();
    emit changed();
}

void VarValueLabelDiccionaryModel::remove(int row) {
    beginRemoveRows({}, row, row);
    edits_.remove(row);
    faults_.removeAt(row);
    endRemoveRows();
    refreshFaults();
    emit changed();
}

void VarValueLabelDiccionaryModel::clear() {
    beginResetModel();
    edits_.clear();
    faults_.clear();
    endResetModel();
    emit changed();
}

void VarValueLabelDiccionaryModel::undo() {
    if (!edits_.canUndo())
        return;
    beginResetModel();
    edits_.undo();
    faults_ = Categories::faults(edits_.list());
    endResetModel();
    emit changed();
}

int VarValueLabelDiccionaryModel::firstFault() const {
    const auto found = std::find_if(faults_.begin(), faults_.end(), [](Categories::Fault fault) {
        return fault != Categories::Fault::None;
    });
    return found != faults_.end() ? static_cast<int>(found - faults_.begin()) : -1;
}

QString VarValueLabelDiccionaryModel::faultText(int row) const {
    switch (faults_[row]) {
    case Categories::Fault::NoCode:
        return tr("The category \"%1\" has no code").arg(edits_.list()[row].label);
    case Categories::Fault::DuplicateCode:
        return tr("The code %1 stands more than once in the table").arg(edits_.list()[row].value);
    case Categories::Fault::None:
        break;
    }
    return {};
}

/// A change of one code may clear or raise the fault of another row.
void VarValueLabelDiccionaryModel::refreshFaults() {
    const QList<Categories::Fault> faults = Categories::faults(edits_.list());
    if (faults == faults_)
        return;
    faults_ = faults;
    emit dataChanged(index(0, CodeColumn), index(rowCount() - 1, LabelColumn),
                     {Qt::DecorationRole, Qt::ToolTipRole});
}

int VarValueLabelDiccionaryModel::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : static_cast<int>(edits_.list().size());
}

int VarValueLabelDiccionaryModel::columnCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : ColumnCount;
}

QVariant VarValueLabelDiccionaryModel::data(const QModelIndex& index, int role) const {
    if (!index.isValid())
        return {};
    const ValueLabelElement& element = edits_.list()[index.row()];
    const bool code = index.column() == CodeColumn;
    switch (role) {
    case Qt::DisplayRole:
    case Qt::EditRole:
        return code ? element.value : element.label;
    case Qt::TextAlignmentRole:
        return alignment(index.column());
    case Qt::ToolTipRole:
        if (faults_[index.row()] != Categories::Fault::None)
            return faultText(index.row()).toHtmlEscaped();
        return code ? QVariant() : element.label.toHtmlEscaped();
    case Qt::DecorationRole:
        if (code && faults_[index.row()] != Categories::Fault::None)
            return faultIcon_;
        return {};
    default:
        return {};
    }
}

QVariant VarValueLabelDiccionaryModel::alignment(int column) const {
    const Qt::Alignment side = numeric_ && column == CodeColumn ? Qt::AlignRight : Qt::AlignLeft;
    return QVariant(side | Qt::AlignVCenter);
}

QVariant VarValueLabelDiccionaryModel::headerData(int section, Qt::Orientation orientation,
                                                  int role) const {
    if (orientation != Qt::Horizontal)
        return {};
    if (role == Qt::TextAlignmentRole)
        return alignment(section);
    if (role == Qt::DisplayRole)
        return section == CodeColumn ? tr("Code") : tr("Label");
    return {};
}

Qt::ItemFlags VarValueLabelDiccionaryModel::flags(const QModelIndex& index) const {
    return QAbstractTableModel::flags(index) |
           (index.isValid() ? Qt::ItemIsEditable : Qt::NoItemFlags);
}

bool VarValueLabelDiccionaryModel::setData(const QModelIndex& index, const QVariant& value,
                                           int role) {
    if (!index.isValid() || role != Qt::EditRole)
        return false;
    const ValueLabelElement before = edits_.list()[index.row()];
    if (index.column() == CodeColumn)
        edits_.setCode(index.row(), value.toString());
    else
        edits_.setLabel(index.row(), value.toString());
    ValueLabelElement element = edits_.list()[index.row()];
    if (element == before)
        return true;
    emit dataChanged(index, index);
    refreshFaults();
    emit editedItem(&element);
    emit changed();
    return true;
}
