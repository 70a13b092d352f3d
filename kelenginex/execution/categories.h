// SPDX-License-Identifier: Apache-2.0
// From codes that occurred to categories with labels, and from cells to a finished result.
#pragma once

#include "execution/result.h"
#include "execution/table_cells.h"
#include "plan/plan.h"

namespace kelx::execution {

/// Classifies the codes of each dimension, once for each code, and joins what is MV and NA.
TableResult finishTable(const plan::PlannedTable& table, const TableShape& shape,
                        const TableCells& cells);

} // namespace kelx::execution
