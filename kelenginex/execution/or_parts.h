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

/// What a condition asks: whether a variable or a compound code is in one of the intervals.
struct Question {
    const language::Expression* operand = nullptr; ///< null: something else
    std::vector<language::Interval> intervals;
};

/// The question that a comparison for equality with a constant, or IN, is.
Question questionOf(const language::Expression& condition);

/// The parts of an OR, and of those within it. Parts that compare the same variable, or the same
/// compound code, with constants for equality are put together as one IN.
OrParts orPartsOf(const language::Expression& expression);

} // namespace kelx::execution
