// SPDX-License-Identifier: Apache-2.0
// Checks where a table is written to, and the files that its looks come from.
#pragma once

#include "language/ast.h"
#include "language/checker_context.h"

#include <cstddef>

namespace kelx::language {

/// OUTFILE and SAVE, into absolute paths.
void takeFiles(const ast::Table& table, CheckerContext& context, TableCommand& command);
/// Tells the context where the table is written to, for the end of the program.
void noteFiles(const ast::Table& table, const TableCommand& command, CheckerContext& context);
/// Own styles, else those of the run.
void takeStyles(const ast::Table& table, const CheckerContext& context, TableCommand& command);
/// Of several tables that one command makes, each has JSON files of its own.
void numberFiles(TableCommand& command, std::size_t number);

} // namespace kelx::language
