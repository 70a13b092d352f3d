// SPDX-License-Identifier: Apache-2.0
// Checks DEFINE: how the values are made, and the variable that holds them.
#pragma once

#include "language/ast.h"
#include "language/definition_aggregates.h"
#include "language/definition_variable.h"
#include "language/expression_checker.h"
#include "language/run_checker.h"

namespace kelx::language {

class DefinitionChecker {
public:
    DefinitionChecker(CheckerContext& context, ExpressionChecker& expressions)
        : context_(context), expressions_(expressions), aggregates_(context, expressions),
          variables_(context, expressions) {}

    /// Adds the definition and makes its name known, also where it has faults.
    void check(const ast::Definition& ast, const CheckedSettings& run, BoundProgram& program);

private:
    bool makeValues(const ast::Definition& ast, const Entity& owner, const CheckedSettings& run,
                    Definition& into);
    bool makeExpression(const ast::Definition& ast, const Entity& owner, Definition& into);
    bool addFilter(const ast::Node& node, const Entity& owner, Definition& into);
    bool checkType(const ast::Definition& ast, ValueType natural);
    void expectNames(const std::string& entity, const ast::Definition& ast);

    CheckerContext& context_;
    ExpressionChecker& expressions_;
    DefinitionAggregates aggregates_;
    DefinitionVariable variables_;
};

} // namespace kelx::language
