// SPDX-License-Identifier: Apache-2.0
// How many records a figure must be made of, by the variables that have a say in it.
#pragma once

#include "language/bound.h"

#include <map>
#include <optional>

namespace kelx::language {

/// Takes over the other number where it is larger.
void raise(std::optional<int>& least, const std::optional<int>& other);
/// The same for every variable of an expression, which may be null.
void raise(std::optional<int>& least, const Expression* expression);

/// Of what the values are made: expressions, conditions, weights and the counted records.
std::optional<int> protectionOf(const Definition& definition);

/// How tables are protected. Many may share an expression, which is gone through once.
class TableProtection {
public:
    /// By all that decides what a table shows: its clause, unit, dimensions, measure, weight, tally
    /// and the conditions of its own and of its run. Not for lists, which show no figures of their
    /// own.
    std::optional<int> of(const TableCommand& command);

private:
    void raiseBy(std::optional<int>& least, const ExpressionPtr& expression);

    std::map<ExpressionPtr, std::optional<int>> known_;
};

} // namespace kelx::language
