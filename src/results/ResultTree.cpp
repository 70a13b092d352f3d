// SPDX-License-Identifier: GPL-3.0-or-later
#include "results/ResultTree.h"

#include <QIcon>
#include <QStandardItemModel>

namespace {

QStandardItem* processItem(std::size_t number) {
    auto* item = new QStandardItem(QStringLiteral("PROC-%1").arg(number, 3, 10, QLatin1Char('0')));
    item->setEditable(false);
    item->setCheckable(false);
    return item;
}

QStandardItem* tableItem(const TableBase& table) {
    auto* item = new QStandardItem(table.tableName());
    item->setEditable(false);
    item->setCheckable(true);
    item->setToolTip(table.title().toHtmlEscaped());
    return item;
}

} // namespace

ResultPlace::ResultPlace(const QModelIndex& index) {
    if (!index.isValid())
        return;
    const bool isTable = index.parent().isValid();
    process = isTable ? index.parent().row() : index.row();
    table = isTable ? index.row() : -1;
}

void fillResultTree(QStandardItemModel& model, const ResultProcesses& processes) {
    model.clear();
    auto* header = new QStandardItem;
    header->setIcon(QIcon(QStringLiteral(":/icons/res/icons/48px-Statistics-output.png")));
    model.setHorizontalHeaderItem(0, header);
    std::size_t number = 0;
    for (const auto& process : processes) {
        QStandardItem* top = processItem(++number);
        for (int table = 0; table < process->count(); ++table)
            top->appendRow(tableItem(*process->table(table)));
        model.appendRow(top);
    }
}

QModelIndex newestResult(const QStandardItemModel& model) {
    const QModelIndex process = model.index(model.rowCount() - 1, 0);
    const QModelIndex table = model.index(0, 0, process);
    return table.isValid() ? table : process;
}
