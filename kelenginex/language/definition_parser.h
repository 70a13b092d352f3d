// SPDX-License-Identifier: Apache-2.0
// Reads DEFINE: the name, how the values are made, and the clauses.
#pragma once

#include "language/ast.h"
#include "language/expression_parser.h"
#include "language/token_cursor.h"

#include <set>

namespace kelx::language {

class DefinitionParser {
public:
    DefinitionParser(TokenCursor& cursor, ExpressionParser& expressions)
        : cursor_(cursor), expressions_(expressions) {}

    /// From the word DEFINE to the next command.
    void parse(ast::Program& program);

private:
    bool readName();
    bool readKind();
    bool readExpression();
    bool readEntity();
    bool readRecode();
    bool readRecodeItem();
    bool readSwitch();
    bool readSample();
    bool readShare();
    bool readFraction();
    bool readIndicator();
    bool expect(Keyword keyword, const char* what);

    void readClauses(ast::Program& program);
    bool readClause(ast::Program& program);
    bool readNewClause(const Token& clause, ast::Program& program);
    bool readElse(const Token& clause);
    bool readType(const Token& clause);
    bool readRanges(std::vector<ast::Interval>& intervals);
    bool readValueLabels();
    bool atValueLabel() const;
    bool readLiteral(std::optional<ast::Literal>& into, const char* what);
    bool readAlias();
    bool readGroup();
    bool readSave();
    bool readSensitive();
    bool readStyle(ast::Program& program);
    bool readInto(ast::NodePtr& into);
    bool misplaced(const Token& clause, const char* reason);

    TokenCursor& cursor_;
    ExpressionParser& expressions_;
    ast::Definition definition_;
    std::set<Keyword> given_; ///< clauses of the definition being read
};

} // namespace kelx::language
