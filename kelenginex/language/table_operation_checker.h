// SPDX-License-Identifier: Apache-2.0
// Checks TABOP and TABLIST: what they are made of, and that the parts suit each other.
#pragma once

#include "language/ast.h"
#include "language/checker_context.h"
#include "language/table_register.h"

#include <memory>
#include <optional>
#include <string>

namespace kelx::language {

class TableOperationChecker {
public:
    TableOperationChecker(CheckerContext& context, TableRegister& tables)
        : context_(context), tables_(tables) {}

    // Fill the command and the facts. False where a fault was reported.
    bool checkTabop(const ast::Table& table, TableCommand& command, TableFacts& facts);
    bool checkTablist(const ast::Table& table, TableCommand& command, TableFacts& facts);

private:
    using Built = std::unique_ptr<Expression>;

    Built build(const ast::Node& node, TableCommand& command);
    Built buildFigure(const ast::Node& node, TableCommand& command);
    Built refuse(const ast::Node& node, const char* reason = "");
    std::optional<std::size_t> operand(const ast::Name& name, TableCommand& command);
    bool haveSameShape(const TableCommand& command, Position position);
    bool standBeside(const ast::Name& name, std::size_t number, const TableCommand& command);
    void take(TableCommand& command, TableFacts& facts);

    CheckerContext& context_;
    TableRegister& tables_;
};

} // namespace kelx::language
