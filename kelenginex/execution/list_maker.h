// SPDX-License-Identifier: Apache-2.0
// Makes area lists and views: the records themselves.
#pragma once

#include "execution/table_maker.h"

#include <memory>

namespace kelx::execution {

std::unique_ptr<TableMaker> makeListMaker(const plan::PlannedTable& table, const Entity& unit);

} // namespace kelx::execution
