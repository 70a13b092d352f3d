// SPDX-License-Identifier: GPL-3.0-or-later
#include "results/FrequencyModel.h"

#include <QFont>

namespace {

QVariant alignment(int column) {
    return QVariant((column == FrequencyModel::LabelColumn ? Qt::AlignLeft : Qt::AlignRight) |
                    Qt::AlignVCenter);
}

} // namespace

void FrequencyModel::setTable(const FrequencyTable& table) {
    beginResetModel();
    table_ = table;
    endResetModel();
}

int FrequencyModel::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : static_cast<int>(table_.rows().size());
}

int FrequencyModel::columnCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : ColumnCount;
}

QString FrequencyModel::cell(const FrequencyRow& row, int column) const {
    switch (column) {
    case CodeColumn:
        return row.code;
    case LabelColumn:
        return table_.labelOf(row);
    case CountColumn:
        return table_.shownCount(row);
    default:
        return FrequencyTable::shownPercent(row);
    }
}

QVariant FrequencyModel::data(const QModelIndex& index, int role) const {
    if (!index.isValid())
        return {};
    const FrequencyRow& row = table_.rows()[index.row()];
    switch (role) {
    case Qt::DisplayRole:
        return cell(row, index.column());
    case Qt::ToolTipRole:
        return index.column() == CountColumn ? row.count : QString();
    case Qt::TextAlignmentRole:
        return alignment(index.column());
    case Qt::FontRole: {
        QFont font;
        font.setBold(row.kind == FrequencyRow::Kind::Total);
        font.setItalic(row.kind == FrequencyRow::Kind::Missing ||
                       row.kind == FrequencyRow::Kind::NotApplicable);
        return font;
    }
    default:
        return {};
    }
}

QVariant FrequencyModel::headerData(int section, Qt::Orientation orientation, int role) const {
    if (orientation != Qt::Horizontal)
        return {};
    if (role == Qt::TextAlignmentRole)
        return alignment(section);
    if (role != Qt::DisplayRole)
        return {};
    return table_.headings().value(section);
}
