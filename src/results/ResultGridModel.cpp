// SPDX-License-Identifier: GPL-3.0-or-later
#include "results/ResultGridModel.h"

#include "results/tables/TableBase.h"

#include <utility>

void ResultGridModel::showTable(const TableBase* table) {
    beginResetModel();
    Contents shown;
    names_.clear();
    if (table != nullptr) {
        for (const QString& name : table->columnHeaders())
            names_ += shortHeader(name);
        shown.header = ResultHeader(*table);
        shown.cells = table->cells();
        shown.alignments = table->columnAlignments();
        shown.columns = static_cast<int>(names_.size());
        shown.rows = shown.header.rows() + static_cast<int>(shown.cells.size());
    }
    setContents(std::move(shown));
    endResetModel();
}

QVariant ResultGridModel::headerData(int section, Qt::Orientation orientation, int role) const {
    if (orientation == Qt::Horizontal && role == Qt::ToolTipRole)
        return names_.value(section).toHtmlEscaped();
    if (role != Qt::DisplayRole)
        return ResultModel::headerData(section, orientation, role);
    if (orientation == Qt::Horizontal)
        return named_ ? names_.value(section) : QString::number(section + 1);
    const int cell = section - firstCellRow();
    return cell < 0 ? QString() : QString::number(cell + 1);
}

void ResultGridModel::setColumnsNamed(bool named) {
    if (std::exchange(named_, named) != named && columnCount() > 0)
        emit headerDataChanged(Qt::Horizontal, 0, columnCount() - 1);
}
