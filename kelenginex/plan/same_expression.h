// SPDX-License-Identifier: Apache-2.0
// Whether two expressions always have the same values.
#pragma once

#include "language/bound.h"

#include <cstddef>
#include <unordered_map>

namespace kelx::plan {

/// True where both have the same shape and the same leaves; null equals null.
bool sameExpression(const language::Expression* a, const language::Expression* b);

/// Same expressions have the same hash. It goes only a few levels down, so that hashing all parts
/// of an expression takes no longer than the expression is large.
struct ExpressionHash {
    std::size_t operator()(const language::Expression* expression) const;
};
struct ExpressionEqual {
    bool operator()(const language::Expression* a, const language::Expression* b) const {
        return sameExpression(a, b);
    }
};
/// Found by any expression that is the same; the expressions must outlive the map.
template <class T>
using ExpressionMap =
    std::unordered_map<const language::Expression*, T, ExpressionHash, ExpressionEqual>;

} // namespace kelx::plan
