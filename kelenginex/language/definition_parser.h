// SPDX-License-Identifier: Apache-2.0
// Reads DEFINE: the name, how the values are made, and the clauses.
#pragma once

#include "language/ast.h"
#include "language/clause_reader.h"

namespace kelx::language {

class DefinitionParser {
public:
    explicit DefinitionParser(ClauseReader& clauses)
        : clauses_(clauses), cursor_(clauses.cursor()), expressions_(clauses.expressions()) {}

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
    bool readType(const Token& clause);
    bool readRanges(std::vector<ast::Interval>& intervals);
    bool readValueLabels();
    bool atValueLabel() const;
    bool atCodeWord() const;
    bool readLiteral(std::optional<ast::Literal>& into, const char* what);
    bool readAlias();
    bool readGroup();
    bool readSave();
    bool readSensitive();
    bool readStyle(ast::Program& program);

    ClauseReader& clauses_;
    TokenCursor& cursor_;
    ExpressionParser& expressions_;
    ast::Definition definition_;
};

} // namespace kelx::language
