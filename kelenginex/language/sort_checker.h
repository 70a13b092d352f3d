// SPDX-License-Identifier: Apache-2.0
// Checks SORT against what a table has.
#pragma once

#include "language/ast.h"
#include "language/checker_context.h"
#include "language/table_register.h"

namespace kelx::language {

class SortChecker {
public:
    SortChecker(CheckerContext& context, const TableRegister& tables)
        : context_(context), tables_(tables) {}

    /// Sets command.sort, unless the table cannot be sorted, which is a warning. The command is
    /// finished otherwise. False where the table has no such column; the caller tells. The columns
    /// of lists, TABLIST and areas are known only when they are made.
    bool take(const ast::Sort& sort, const TableFacts& facts, TableCommand& command);
    void reportNoColumn(const ast::Sort& sort, const TableCommand& command);

private:
    enum class Found { Variable, Table, Field, None };

    Found find(const ast::Sort& sort, const TableCommand& command) const;
    bool isVariableOf(const ast::Name& name, const TableCommand& command) const;
    bool isTableOf(const std::string& name, const TableCommand& command) const;
    bool mayBeField(const std::string& name, const TableCommand& command) const;
    std::vector<std::string> columnsOf(const TableCommand& command) const;

    CheckerContext& context_;
    const TableRegister& tables_;
};

} // namespace kelx::language
