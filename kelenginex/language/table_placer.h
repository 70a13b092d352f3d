// SPDX-License-Identifier: Apache-2.0
// Finds what records a table counts, and settles weight, filters and protection by it.
#pragma once

#include "language/checker_context.h"
#include "language/expression_checker.h"
#include "language/run_checker.h"

#include <map>
#include <memory>
#include <optional>
#include <set>
#include <string>
#include <utility>

namespace kelx::language {

class TablePlacer {
public:
    TablePlacer(CheckerContext& context, ExpressionChecker& expressions)
        : context_(context), expressions_(expressions) {}

    /// Sets unit, weight and `sensitive`. False where a fault was reported.
    bool place(TableCommand& command, const CheckedSettings& settings);
    /// The unit becomes the part's entity where that is lower; false for one of another branch,
    /// which is reported.
    bool include(TableCommand& command, const Expression& part);

private:
    bool placeWeight(TableCommand& command);
    bool checkFilter(const TableCommand& command, const ExpressionPtr& filter,
                     const std::string& what);
    void protect(TableCommand& command);
    void checkAreas(const TableCommand& command, const CheckedSettings& settings);

    CheckerContext& context_;
    ExpressionChecker& expressions_;
    /// What was told of an expression or settings and a counted entity.
    std::set<std::pair<std::shared_ptr<const void>, const Entity*>> told_;
    /// How measures are protected, which many tables may share.
    std::map<ExpressionPtr, std::optional<int>> sensitive_;
};

} // namespace kelx::language
