// SPDX-License-Identifier: GPL-3.0-or-later
// A row for each area: its code, its name, then variables and the columns of tables.
#pragma once

#include "results/tables/TableLayout.h"
#include "results/tables/TableViewConfig.h"

class TKelOutput;

/// Columns are ordered and hidden within their groups; the code stays first.
TableLayout areaLayout(TKelOutput& output, const TableViewConfig& options);
