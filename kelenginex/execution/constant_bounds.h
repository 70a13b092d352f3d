// SPDX-License-Identifier: Apache-2.0
// The ends of intervals as values of one type.
#pragma once

#include "execution/interval_table.h"
#include "language/bound.h"

#include <string>
#include <vector>

namespace kelx::execution {

/// Throws std::runtime_error for a text.
double asReal(const language::Constant& constant);
std::vector<IntervalTable<double>::Bounds>
realBounds(const std::vector<language::Interval>& intervals);
/// Throws std::runtime_error where an end is no text.
std::vector<IntervalTable<std::string>::Bounds>
textBounds(const std::vector<language::Interval>& intervals);

} // namespace kelx::execution
