// SPDX-License-Identifier: Apache-2.0
// Measures of values of many kinds: reals, large numbers, results of expressions.
#pragma once

#include "execution/table_maker.h"

#include <memory>

namespace kelx::execution {

std::unique_ptr<TableMaker> makeWideMeasureMaker(const plan::PlannedTable& table,
                                                 const Entity& unit, const RunOptions& options);

} // namespace kelx::execution
