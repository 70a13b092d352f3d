// SPDX-License-Identifier: GPL-3.0-or-later
// Averages: of all records, by one variable, or by several as a crosstab.
#pragma once

#include "results/tables/TableLayout.h"
#include "results/tables/TableViewConfig.h"

class TKelOutput;

TableLayout averageLayout(TKelOutput& output, const TableViewConfig& options,
                          const TablePreferences& preferences);
