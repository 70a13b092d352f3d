// SPDX-License-Identifier: GPL-3.0-or-later
#include "results/tables/TableTablist.h"

#include "results/tables/TablistLayout.h"

void TableTablist::applyViewConfig(const TableViewConfig& config) {
    takeFormat(config);
    TableBase::applyViewConfig(config);
}

TableLayout TableTablist::layOut() const {
    return tablistLayout(output());
}
