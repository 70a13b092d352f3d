// SPDX-License-Identifier: Apache-2.0
// Measures of values with few codes: counted like one more dimension.
#pragma once

#include "execution/table_maker.h"

#include <memory>

namespace kelx::execution {

/// Null where the measure is no variable of whole numbers or truth values, or where the table
/// would have too many cells.
std::unique_ptr<TableMaker> makeCodedMeasureMaker(const plan::PlannedTable& table,
                                                  const Entity& unit);

} // namespace kelx::execution
