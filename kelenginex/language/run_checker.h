// SPDX-License-Identifier: Apache-2.0
// Checks RUNDEF: what holds for the commands after it.
#pragma once

#include "language/ast.h"
#include "language/checker_context.h"
#include "language/expression_checker.h"

#include <memory>
#include <optional>
#include <string>

namespace kelx::language {

/// Settings and where they were made, for messages.
struct CheckedSettings {
    std::shared_ptr<const RunSettings> settings;
    Position selectionPosition;
};

/// Warns once where none of the areas that are selected is above or at an entity.
void checkAreas(CheckerContext& context, const CheckedSettings& run, const Entity& unit);

class RunChecker {
public:
    RunChecker(CheckerContext& context, ExpressionChecker& expressions)
        : context_(context), expressions_(expressions), tableStyle_(context.options().tableStyle) {}

    /// What holds before any RUNDEF.
    CheckedSettings defaults() const;
    CheckedSettings check(const ast::RunDefinition& run);
    /// WEIGHT as a command: holds from here on, wherever a later RUNDEF says nothing of weights.
    CheckedSettings setWeight(ExpressionPtr weight, const CheckedSettings& current);
    /// TABLESTYLE of a DEFINE: holds from here on, wherever RUNDEF names none.
    CheckedSettings setStyle(const ast::StyleCommand& style, const CheckedSettings& current);

private:
    RunSettings start() const;
    void setStyles(const ast::RunDefinition& run, RunSettings& settings) const;
    const Entity* areaBreak(const ast::Name& name);
    void checkDictionary(const ast::RunDefinition& run);
    AreaSelection selection(const ast::RunDefinition& run);
    AreaSelection fromFile(const std::string& file, Position position);
    AreaSelection fromInline(const ast::InlineSelection& areas);
    void addArea(AreaSelection& selection, const Entity* entity, const std::string& code,
                 Position position);

    CheckerContext& context_;
    ExpressionChecker& expressions_;
    ExpressionPtr weight_;
    std::optional<std::string> tableStyle_;
};

} // namespace kelx::language
