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
    bool parseName(ast::Table& table);
    void parseKind(ast::Table& table, ast::Program& program);
    void parseQuantiles(ast::Table& table);

    // What the kind is about: variables, an entity, tables.
    bool parseSubject(ast::Table& table);
    bool parseEntity(ast::Table& table, const std::string& expected);
    bool parseVariables(std::vector<ast::Name>& list);
    bool parseMeasures(std::vector<ast::Measure>& measures);
    bool parseList(ast::Table& table);
    bool parseTables(std::vector<ast::Name>& tables);

    void parseClauses(ast::Table& table);
    bool parseClause(ast::Table& table);
    bool parseBy(ast::Table& table);
    bool parseOf(ast::Table& table);
    bool parseCondition(ast::Table& table, const Token& clause);
    bool parseSetting(ast::Table& table, const Token& clause);

    ClauseReader& clauses_;
    TokenCursor& cursor_;
    bool hasName_ = true;     ///< where TABLE asks for one
    bool hasSubject_ = false; ///< or a fault in it was told
};

} // namespace kelx::language
