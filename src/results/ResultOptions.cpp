// SPDX-License-Identifier: GPL-3.0-or-later
#include "results/ResultOptions.h"

#include "results/options/ArealistViewOptionsDialog.h"
#include "results/options/FormatDialog.h"
#include "results/options/OrderDialog.h"
#include "results/tables/TableBase.h"

namespace {

void askArealist(TableBase& table, QWidget* parent) {
    ArealistViewOptionsDialog dialog({table.columnOrder(), table.hideNa(), table.hideMv(),
                                      table.hideTotal(), table.showTotalsRow()},
                                     parent);
    if (dialog.exec() != QDialog::Accepted)
        return;
    const ArealistViewOptionsDialog::Options options = dialog.options();
    table.setColumnOrder(options.columnOrder);
    table.setHideNa(options.hideNa);
    table.setHideMv(options.hideMv);
    table.setHideTotal(options.hideTotal);
    table.setShowTotalsRow(options.showTotalsRow);
    table.rebuild();
}

void askOrder(TableBase& table, QWidget* parent) {
    // A style file may hold any number.
    const int order = table.rowsOrder();
    const bool known = order == TableViewConfig::Ascending || order == TableViewConfig::Descending;
    OrderDialog dialog(known ? order : TableViewConfig::Default, parent);
    if (dialog.exec() != QDialog::Accepted)
        return;
    table.setRowsOrder(dialog.order());
    table.rebuild();
}

void askFormat(TableBase& table, QWidget* parent) {
    FormatDialog dialog(table.columnOrder(), table.hideNa(), table.hideMv(), parent);
    if (dialog.exec() != QDialog::Accepted)
        return;
    table.setHideNa(dialog.hideNa());
    table.setHideMv(dialog.hideMv());
    table.setColumnOrder(dialog.columnOrder());
    table.rebuild();
}

} // namespace

void askViewOptions(TableBase& table, QWidget* parent) {
    if (table.kind() == tablekind::areaList)
        askArealist(table, parent);
    else if (table.metadata().categoryCounts.size() == 1)
        askOrder(table, parent);
    else
        askFormat(table, parent);
}
