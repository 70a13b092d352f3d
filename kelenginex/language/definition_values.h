// SPDX-License-Identifier: Apache-2.0
// The values of DEFINE that a record takes from itself and from what lies above it.
#pragma once

#include "language/ast.h"
#include "language/expression_checker.h"

#include <optional>

namespace kelx::language {

/// A clause's value as a constant of the type; nothing where it does not suit.
std::optional<Constant> constantFor(const ast::Literal& literal, ValueType type);

/// False, which is reported, for an expression that is not of the entity or above it.
bool checkAbove(CheckerContext& context, const Expression& part, const Entity& entity,
                const std::string& what, const char* hint = "");

/// Makes the expression of one DEFINE.
class DefinitionValues {
public:
    DefinitionValues(CheckerContext& context, ExpressionChecker& expressions,
                     const ast::Definition& definition, const Entity& owner)
        : context_(context), expressions_(expressions), definition_(definition), owner_(owner) {}

    /// Null where a fault was reported. Its type is the one asked for, or its own.
    ExpressionPtr make();

private:
    using Built = ExpressionChecker::Built;

    Built plain();
    Built recode();
    Built switchOver();
    Built number();
    Built sample();
    bool addValues(Expression& to, std::vector<Built> values);
    bool unify(Expression& to, std::vector<Built>& values);
    Built toText(Built number) const;

    CheckerContext& context_;
    ExpressionChecker& expressions_;
    const ast::Definition& definition_;
    const Entity& owner_;
};

} // namespace kelx::language
