// SPDX-License-Identifier: Apache-2.0
// The values of DEFINE that are gathered from the records below.
#pragma once

#include "language/ast.h"
#include "language/expression_checker.h"
#include "language/run_checker.h"

#include <set>
#include <utility>

namespace kelx::language {

class DefinitionAggregates {
public:
    DefinitionAggregates(CheckerContext& context, ExpressionChecker& expressions)
        : context_(context), expressions_(expressions) {}

    /// Fills numerator and denominator. False where a fault was reported.
    bool make(const ast::Definition& ast, const Entity& owner, const CheckedSettings& run,
              Definition& into);

private:
    bool makeParts(const ast::Definition& ast, const Entity& owner, Definition& into);
    bool count(const ast::Name& name, const Entity& owner, Aggregate& into);
    bool gather(const ast::Node& node, const std::string& word, const Entity& owner,
                Aggregate& into);
    bool share(const ast::RangedVariable& part, const std::string& word, const Entity& owner,
               Aggregate& into);
    bool addValid(const ast::Name& name, Aggregate& into);
    bool checkBelow(const Entity* entity, const Entity& owner, const std::string& word,
                    Position position);
    static bool weighs(const RunSettings& run, const Definition& definition);
    bool addWeight(const ExpressionPtr& weight, Aggregate& into);
    void addSettings(const CheckedSettings& run, Aggregate& into);
    bool addFilter(const ExpressionPtr& filter, Aggregate& into);
    bool addOwnFilter(const ast::Definition& ast, Definition& into);

    CheckerContext& context_;
    ExpressionChecker& expressions_;
    /// Filters of which it was told that they lie below an entity.
    std::set<std::pair<const Expression*, const Entity*>> told_;
};

/// The type of what is gathered; None for none.
ValueType naturalType(const Definition& definition);

} // namespace kelx::language
