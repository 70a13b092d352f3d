// SPDX-License-Identifier: Apache-2.0
// From codes that occurred to categories with labels, and from cells to a finished result.
#pragma once

#include "execution/progress.h"
#include "execution/result.h"
#include "execution/table_cells.h"
#include "plan/plan.h"

#include <cstdint>
#include <vector>

namespace kelx::execution {

/// Classifies the codes of each dimension, once for each code, and joins what is MV and NA. Places,
/// where asked for, tells for each cell, in the order of forEach(), the cell of the result that it
/// has become part of. Throws Cancelled.
TableResult finishTable(const plan::PlannedTable& table, const TableCells& cells,
                        Progress& progress, std::vector<std::uint32_t>* places = nullptr);

} // namespace kelx::execution
