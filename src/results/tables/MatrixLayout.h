// SPDX-License-Identifier: GPL-3.0-or-later
// A crosstab of three variables: blocks of columns for the first one, rows for the second, columns
// within each block for the third.
#pragma once

#include "results/tables/TableLayout.h"
#include "results/tables/TableViewConfig.h"

#include <optional>

class TKelOutput;

/// For outputs of three variables that suit CrossTable. Nothing where it would have too many cells.
std::optional<TableLayout> matrixLayout(TKelOutput& output, const TableViewConfig& options,
                                        const TablePreferences& preferences);
