// SPDX-License-Identifier: Apache-2.0
// Gives meaning to expressions: names, types, entities.
#pragma once

#include "language/ast.h"
#include "language/bound.h"
#include "language/checker_context.h"
#include "language/function_table.h"

#include <memory>
#include <string>

namespace kelx::language {

class ExpressionChecker {
public:
    explicit ExpressionChecker(CheckerContext& context) : context_(context) {}

    // Null where a fault was reported. `clause` names the clause in messages.
    ExpressionPtr condition(const ast::Node& node, const std::string& clause);
    ExpressionPtr number(const ast::Node& node, const std::string& clause);
    /// What a table measures: a number, or a truth value as 0 or 1.
    ExpressionPtr measure(const ast::Node& node, const std::string& clause);
    /// The number of the record's ancestor, from 0.
    static ExpressionPtr recordNumber(const Entity& entity, Position position);
    /// A variable as the dimension of a table.
    ExpressionPtr variable(const ast::Name& name);
    /// The variable by itself, not as a program names it.
    ExpressionPtr variable(const Variable& variable, Position position);
    const Entity* entity(const std::string& name, Position position);
    const Variable* find(const ast::Name& name);

    // Parts of expressions that others put together; null and false for a reported fault.
    using Built = std::unique_ptr<Expression>;
    Built check(const ast::Node& node);
    Built checkName(const ast::Name& name, Position position);
    bool checkInterval(const ast::Interval& interval, const Expression& operand);
    bool append(Expression& to, Built argument); ///< takes over the argument and its entity
    static ExpressionPtr finished(Built&& built, std::string text);
    std::string source(ast::Span span) const; ///< of the program, blanks simplified

private:
    Built checkConstant(const ast::Node& node);
    Built checkOperation(const ast::Node& node);
    Built checkLogic(const ast::Node& node);
    Built checkArithmetic(const ast::Node& node);
    Built checkComparison(const ast::Node& node);
    Built checkIn(const ast::Node& node);
    Built checkCall(const ast::Node& node);
    Built checkArgument(const ast::Node& node, const FunctionEntry& function, std::size_t index);
    Built comparand(const ast::Node& node, bool withText);
    Built compoundCode(const Entity& entity, Position position);
    Built value(const Variable& variable, Position position);
    const Variable* findAlone(const ast::Name& name);
    const Entity* entityAlone(const ast::Node& node) const;
    void reportUnknown(const ast::Name& name, const std::string& owner, const std::string& hint);

    CheckerContext& context_;
};

const char* describe(ValueType type); ///< a number, a text, a condition

/// The lower of two entities; null for none. False where neither lies on the other's branch.
bool lower(const Entity*& entity, const Entity* other);

} // namespace kelx::language
