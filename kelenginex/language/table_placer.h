// SPDX-License-Identifier: Apache-2.0
// Finds what records a table counts, and settles weight, filters and protection by it.
#pragma once

#include "language/checker_context.h"
#include "language/expression_checker.h"
#include "language/protection.h"
#include "language/run_checker.h"

#include <memory>
#include <set>
#include <string>
#include <utility>
#include <vector>

namespace kelx::language {

class TablePlacer {
public:
    TablePlacer(CheckerContext& context, ExpressionChecker& expressions)
        : context_(context), expressions_(expressions) {}

    /// Sets unit, weight and `sensitive`. False where a fault was reported.
    bool place(TableCommand& command, const CheckedSettings& settings);
    /// Settles anew what a table counts that is the column of a list, which gives it `weight` and
    /// `tally` where they are not null; `ownWeight` says that it keeps its own. False where a fault
    /// was reported.
    bool placeColumn(TableCommand& command, bool ownWeight, const TableCommand& list,
                     Position position);
    /// Warns, at the end of the program, of filters and selections that lie below what the tables
    /// that are made count.
    void tellFilters(const std::vector<TableCommand>& tables);

    TableProtection& protection() { return protection_; }

private:
    /// The unit becomes the part's entity where that is lower; false for one of another branch,
    /// which is reported.
    bool include(TableCommand& command, const Expression& part);
    bool include(TableCommand& command, const Entity* areaBreak);
    bool placeWeight(TableCommand& command);
    void tellFilter(const Entity& unit, const ExpressionPtr& filter, const std::string& what);
    bool checkFilter(const TableCommand& command, const ExpressionPtr& filter,
                     const std::string& what);

    CheckerContext& context_;
    ExpressionChecker& expressions_;
    /// What was told of an expression or settings and a counted entity.
    std::set<std::pair<std::shared_ptr<const void>, const Entity*>> told_;
    TableProtection protection_;
};

} // namespace kelx::language
