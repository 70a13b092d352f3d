// SPDX-License-Identifier: Apache-2.0
// From codes that occurred to categories with labels, and from cells to a finished result.
#pragma once

#include "execution/progress.h"
#include "execution/result.h"
#include "execution/table_cells.h"
#include "plan/plan.h"

namespace kelx::execution {

/// Classifies the codes of each dimension, once for each code, and joins what is MV and NA. Throws
/// Cancelled.
TableResult finishTable(const plan::PlannedTable& table, const TableCells& cells,
                        Progress& progress);

} // namespace kelx::execution
