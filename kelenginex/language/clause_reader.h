// SPDX-License-Identifier: Apache-2.0
// What all commands share when their clauses are read.
#pragma once

#include "language/ast.h"
#include "language/expression_parser.h"
#include "language/token_cursor.h"

#include <cstdint>
#include <optional>
#include <set>
#include <string>

namespace kelx::language {

/// Where clauses are read: which can stand there, and which show that something is misplaced.
struct ClausePlace {
    unsigned own, other;
    const char* otherReason;
    const char* expected;
};

class ClauseReader {
public:
    ClauseReader(const std::vector<Token>& tokens, Messages& messages)
        : cursor_(tokens, messages), expressions_(cursor_) {}

    TokenCursor& cursor() { return cursor_; }
    ExpressionParser& expressions() { return expressions_; }

    void startCommand() { given_.clear(); }
    /// False for the second of two equal clauses of a command, which is reported.
    bool firstTime(const Token& clause);
    /// It was not there to be read: another one may still come.
    void forget(const Token& clause) { given_.erase(clause.keyword); }
    /// Takes the word and tells why it cannot stand here, unless it was reported already; false.
    bool misplaced(const std::string& reason);
    /// False for a word that is no clause of the place; it is taken and reported.
    bool canRead(const Token& clause, const ClausePlace& place);

    // False where a fault was reported.
    bool readExpression(ast::NodePtr& into);
    bool readText(std::optional<std::string>& into, const char* what);
    bool readDecimals(std::optional<int>& into);
    /// A whole number from least to most; nothing where a fault was reported.
    std::optional<int> readCount(const std::string& clause, int least, int most);

private:
    TokenCursor cursor_;
    ExpressionParser expressions_;
    std::set<Keyword> given_; ///< clauses of the command being read
};

} // namespace kelx::language
