// SPDX-License-Identifier: GPL-3.0-or-later
// The sums below a list's columns.
#pragma once

#include "results/tables/CellTexts.h"

#include <vector>

/// "Total", then the sum of each column's whole numbers. A column of texts, one with another number
/// among its own, one whose sum 64 bits cannot hold and one whose sum is 0 have none.
void addTotalsRow(CellTexts& cells, const std::vector<bool>& textColumns);
