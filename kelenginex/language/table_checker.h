// SPDX-License-Identifier: Apache-2.0
// Checks tables: their variables, what they count, weights and filters.
#pragma once

#include "language/ast.h"
#include "language/checker_context.h"
#include "language/expression_checker.h"
#include "language/run_checker.h"

#include <map>
#include <set>
#include <string>
#include <utility>
#include <vector>

namespace kelx::language {

class TableChecker {
public:
    TableChecker(CheckerContext& context, ExpressionChecker& expressions)
        : context_(context), expressions_(expressions) {}

    /// Adds the tables of one command: lists of variables make their product.
    void check(const ast::Table& table, const CheckedSettings& settings, BoundProgram& program);

private:
    using List = std::vector<ExpressionPtr>;

    List variables(const std::vector<ast::Name>& names, bool& good);
    void addAll(List& list, const ast::Name& name, bool& good);
    std::vector<List> lists(const ast::Table& table, bool& good);
    void addProduct(const std::vector<List>& lists, const TableCommand& model,
                    const CheckedSettings& settings, const ast::Table& table,
                    BoundProgram& program);
    bool place(TableCommand& command, const CheckedSettings& settings);
    bool placeWeight(TableCommand& command);
    bool include(TableCommand& command, const Expression& part);
    bool checkFilter(const TableCommand& command, const ExpressionPtr& filter,
                     const std::string& what);
    void checkAreas(const TableCommand& command, const CheckedSettings& settings);
    std::string nameFor(const ast::Table& table, std::size_t number, std::size_t count);
    std::string shortName(const std::string& kind);

    CheckerContext& context_;
    ExpressionChecker& expressions_;
    std::set<std::string> names_;         ///< of tables, in lower case
    std::map<std::string, int> numbered_; ///< of each kind
    /// What was told of an expression or settings and a counted entity.
    std::set<std::pair<const void*, const Entity*>> told_;
};

} // namespace kelx::language
