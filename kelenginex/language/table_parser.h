// SPDX-License-Identifier: Apache-2.0
// Reads tables and their clauses, with and without the word TABLE.
#pragma once

#include "language/ast.h"
#include "language/clause_reader.h"

#include <vector>

namespace kelx::language {

class TableParser {
public:
    explicit TableParser(ClauseReader& clauses) : clauses_(clauses), cursor_(clauses.cursor()) {}

    /// Appends the table at the cursor, where one can be read.
    void parse(ast::Program& program);

private:
    void parseName(ast::Table& table);
    void parseKind(ast::Table& table, ast::Program& program);
    void parseLists(ast::Table& table);
    bool parseVariables(std::vector<ast::Name>& list);
    void parseClauses(ast::Table& table);
    bool parseClause(ast::Table& table);

    ClauseReader& clauses_;
    TokenCursor& cursor_;
};

} // namespace kelx::language
