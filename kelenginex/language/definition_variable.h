// SPDX-License-Identifier: Apache-2.0
// The variable that DEFINE makes: its labels, codes, ranges and files.
#pragma once

#include "language/ast.h"
#include "language/expression_checker.h"

#include <filesystem>
#include <memory>
#include <optional>
#include <set>
#include <string>

namespace kelx::language {

class DefinitionVariable {
public:
    DefinitionVariable(CheckerContext& context, ExpressionChecker& expressions)
        : context_(context), expressions_(expressions) {}

    /// As the clauses tell; faults in them are reported and left out.
    std::shared_ptr<Variable> make(const ast::Definition& ast, const Entity& owner, ValueType type);
    /// DEFAULT; nothing where there is none or it does not suit.
    std::optional<Constant> otherwise(const ast::Definition& ast, const Variable& variable);
    std::optional<SaveClause> save(const ast::Definition& ast, Variable& variable);

private:
    void takeOver(const ast::Name& like, Variable& variable);
    std::optional<double> code(const std::optional<ast::Literal>& literal, const char* clause,
                               const Variable& variable);
    void addLabels(const ast::Definition& ast, Variable& variable);
    void addRanges(const ast::Definition& ast, Variable& variable);
    void reportValue(const char* clause, const Variable& variable, const ast::Literal& literal);

    CheckerContext& context_;
    ExpressionChecker& expressions_;
    std::set<std::filesystem::path> saved_; ///< real files of the program
};

/// Width that values of the expression may need on screen and in text files.
int sizeFor(ValueType type, const Expression* value);

} // namespace kelx::language
