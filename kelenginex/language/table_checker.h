// SPDX-License-Identifier: Apache-2.0
// Checks tables: their variables, what they count, weights and filters.
#pragma once

#include "language/ast.h"
#include "language/checker_context.h"
#include "language/expression_checker.h"
#include "language/list_checker.h"
#include "language/run_checker.h"
#include "language/sort_checker.h"
#include "language/table_operation_checker.h"
#include "language/table_placer.h"
#include "language/table_register.h"

#include <vector>

namespace kelx::language {

class TableChecker {
public:
    TableChecker(CheckerContext& context, ExpressionChecker& expressions, BoundProgram& program)
        : context_(context), expressions_(expressions), program_(program),
          placer_(context, expressions), tables_(context, program),
          lists_(context, expressions, placer_, tables_), operations_(context, tables_),
          sorts_(context, tables_) {}

    /// Adds the tables of one command: lists of variables make their product.
    void check(const ast::Table& table, const CheckedSettings& settings);
    void finish(); ///< at the end of the program

private:
    using List = std::vector<ExpressionPtr>;
    /// A command without variables, and where its clauses come from.
    struct Model {
        TableCommand command;
        TableFacts facts;
        const ast::Table& table;
        const CheckedSettings& settings;
        bool good; ///< false where a clause has a fault
    };

    bool checkCommand(Model& model);
    bool takeClauses(Model& model);
    bool checkProduct(Model& model);
    bool checkMade(Model& model);
    bool checkList(Model& model);

    bool variables(const std::vector<ast::Name>& names, List& list);
    bool measures(const ast::Table& table, List& list);
    bool startsWithArea(const ast::Table& table) const;
    const Variable* variableOf(const ast::Name& name) const;
    bool tellsAreasApart(const Variable& variable, const std::vector<ast::Name>& others) const;
    bool isCompoundCode(const Variable& variable) const;
    bool areaMeasures(const ast::Table& table, std::vector<List>& lists);
    bool addAll(List& list, const ast::Name& name);
    bool addProduct(const std::vector<List>& lists, const Model& model);
    bool addOne(TableCommand command, const Model& model, std::size_t number, std::size_t count);
    bool takeSort(TableCommand& command, const TableFacts& facts, const Model& model);
    void tellUseless(const Model& model);

    CheckerContext& context_;
    ExpressionChecker& expressions_;
    const BoundProgram& program_;
    TablePlacer placer_;
    TableRegister tables_;
    ListChecker lists_;
    TableOperationChecker operations_;
    SortChecker sorts_;
    bool sorted_ = false; ///< one of the tables of the command has the column of its SORT
};

} // namespace kelx::language
