// SPDX-License-Identifier: Apache-2.0
// Whether two expressions always have the same values.
#pragma once

#include "language/bound.h"

namespace kelx::plan {

/// True where both have the same shape and the same leaves; null equals null.
bool sameExpression(const language::Expression* a, const language::Expression* b);

} // namespace kelx::plan
