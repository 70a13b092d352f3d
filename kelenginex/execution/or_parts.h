// SPDX-License-Identifier: Apache-2.0
// What long chains of OR ask of one variable, as one question.
#pragma once

#include "language/bound.h"

#include <memory>
#include <vector>

namespace kelx::execution {

struct OrParts {
    std::vector<const language::Expression*> parts;          ///< of which one must hold
    std::vector<std::unique_ptr<language::Expression>> made; ///< those that were put together
};

/// The parts of an OR, and of those within it. Parts that compare the same variable, or the same
/// compound code, with constants for equality are put together as one IN.
OrParts orPartsOf(const language::Expression& expression);

} // namespace kelx::execution
