// SPDX-License-Identifier: GPL-3.0-or-later
// A crosstab: a row for each combination of all variables but the last, whose categories are the
// columns. In the report the outer variables stand as rows above their blocks.
#pragma once

#include "results/tables/TableLayout.h"
#include "results/tables/TableViewConfig.h"

class TKelOutput;

/// For outputs that suit CrossTable. One with too many cells has headers and a note only.
TableLayout crossLayout(TKelOutput& output, const TableViewConfig& options,
                        const TablePreferences& preferences);
/// The same, or for three variables the matrix where the options ask for it and it is not too
/// large.
TableLayout crosstabLayout(TKelOutput& output, const TableViewConfig& options,
                           const TablePreferences& preferences);

/// The rows with each change of one of the first columns told in a row of its own, and those
/// columns empty elsewhere.
CellTexts groupedRows(const CellTexts& rows, qsizetype columns);
