// SPDX-License-Identifier: Apache-2.0
// Makes tables that count: frequencies, cross tables, numbers of records.
#pragma once

#include "execution/table_maker.h"

#include <memory>

namespace kelx::execution {

std::unique_ptr<TableMaker> makeFrequencyMaker(const plan::PlannedTable& table, const Entity& unit);

} // namespace kelx::execution
