// SPDX-License-Identifier: GPL-3.0-or-later
#include "results/tables/TableArealist.h"

#include "results/tables/AreaLayout.h"

TableLayout TableArealist::layOut() const {
    return areaLayout(output(), options());
}
