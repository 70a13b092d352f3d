// SPDX-License-Identifier: Apache-2.0
// Makes tables of measures: averages, sums, quantiles and the like.
#pragma once

#include "execution/table_maker.h"

#include <memory>

namespace kelx::execution {

std::unique_ptr<TableMaker> makeMeasureMaker(const plan::PlannedTable& table, const Entity& unit,
                                             const RunOptions& options);

} // namespace kelx::execution
