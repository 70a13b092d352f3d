// SPDX-License-Identifier: GPL-3.0-or-later
#include "results/tables/TableAverage.h"

#include "results/tables/AverageLayout.h"

void TableAverage::headerClicked(int /*column*/) {
    setRowsOrder((rowsOrder() + 1) % 3);
}

TableLayout TableAverage::layOut() const {
    return averageLayout(output(), options(), preferences());
}
