// SPDX-License-Identifier: Apache-2.0
// What the figures in the cells of a table are called.
#pragma once

#include "language/bound.h"

#include <string>
#include <vector>

namespace kelx::language {

/// One name for each figure of a cell.
std::vector<std::string> figureNames(const TableCommand& command);

} // namespace kelx::language
