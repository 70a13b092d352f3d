// SPDX-License-Identifier: Apache-2.0
// Reads the clauses of a table that say in what order and where to it is given: SORT, OUTFILE,
// OUTGRAPH and SAVE.
#pragma once

#include "language/ast.h"
#include "language/clause_reader.h"

namespace kelx::language {

// The clause's word is taken already. False where a fault was reported.
bool parseSort(ClauseReader& clauses, Position position, ast::Table& table);
bool parseOutfile(ClauseReader& clauses, ast::Table& table);
bool parseOutgraph(ClauseReader& clauses, ast::Table& table);
bool parseSave(ClauseReader& clauses, ast::Table& table);

} // namespace kelx::language
