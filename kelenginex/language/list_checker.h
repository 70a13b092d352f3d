// SPDX-License-Identifier: Apache-2.0
// Checks the columns of AREALIST and VIEW: variables, and tables that each row has its part of.
#pragma once

#include "language/ast.h"
#include "language/checker_context.h"
#include "language/expression_checker.h"
#include "language/table_placer.h"
#include "language/table_register.h"

#include <map>
#include <optional>
#include <string>
#include <vector>

namespace kelx::language {

class ListChecker {
public:
    ListChecker(CheckerContext& context, ExpressionChecker& expressions, TablePlacer& placer,
                TableRegister& tables)
        : context_(context), expressions_(expressions), placer_(placer), tables_(tables) {}

    /// Fills entity and columns; tables that are columns are added before the list. Weight and
    /// tally of the command go to those of them that have none of their own. False where a fault
    /// was reported.
    bool check(const ast::Table& table, TableCommand& command);

private:
    bool checkAreaData(const Entity& entity, Position position);
    void takeTables(const std::vector<ast::Name>& names);
    std::optional<std::size_t> nextTable(const ast::Name& name);
    void distinguish(std::size_t number, std::string& name);
    bool addColumn(const ast::Name& name, TableCommand& command);
    bool addVariables(const ast::Name& name, TableCommand& command);
    bool addVariable(const Variable& variable, Position position, TableCommand& command);
    bool addTable(std::size_t number, Position position, TableCommand& command);
    std::optional<std::string> unfit(std::size_t number, const Entity& entity) const;
    bool place(std::size_t number, const TableCommand& list, TableCommand& hidden,
               Position position);
    /// Variables of that name in the rows' entity or above it.
    std::vector<const Variable*> inReach(const std::string& name, const Entity& entity) const;
    void reportUnknown(const ast::Name& name, TableCommand& command);
    void tellUseless(const ast::Table& table, const TableCommand& command);

    CheckerContext& context_;
    ExpressionChecker& expressions_;
    TablePlacer& placer_;
    TableRegister& tables_;
    /// Of the list being checked: the tables that a name means, in lower case, and how many of them
    /// are columns already.
    struct Ahead {
        std::vector<std::size_t> tables;
        std::size_t taken = 0;
        bool told = false; ///< that it is not clear which ones
    };
    std::map<std::string, Ahead> ahead_;
};

} // namespace kelx::language
