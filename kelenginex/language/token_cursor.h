// SPDX-License-Identifier: Apache-2.0
// A place in the tokens of a program, and how faults are told from there.
#pragma once

#include "language/lexer.h"
#include "language/message_table.h"

#include <initializer_list>
#include <string>
#include <string_view>
#include <vector>

namespace kelx::language {

class TokenCursor {
public:
    /// The tokens end with an End.
    TokenCursor(const std::vector<Token>& tokens, Messages& messages)
        : tokens_(tokens), messages_(messages) {}

    const Token& peek(std::size_t ahead = 0) const;
    const Token& take(); ///< the End is never passed
    bool takeSymbol(std::string_view symbol);
    bool takeKeyword(Keyword keyword);
    /// A text that is not empty; false where there is none, which is reported.
    bool takeFileName(std::string& file, const std::string& expected);
    bool atEnd() const { return peek().kind == TokenKind::End; }
    /// End of the last token taken, in the program.
    std::size_t lastEnd() const { return at_ == 0 ? 0 : tokens_[at_ - 1].end(); }

    bool atClause() const;  ///< a word that begins a clause
    bool atCommand() const; ///< a word that begins a command where one is expected
    void skipToClause();    ///< to the next clause or command
    /// Of which commands the clauses are told from other words; those of tables and of RUNDEF
    /// unless told otherwise.
    void setClauses(unsigned places) { clauses_ = places; }
    /// To the next command past words that are not understood: there the name of a kind of table
    /// begins a command only at the start of a line.
    void skipToCommand();

    template <typename Code>
    void report(Code code, Position position, std::initializer_list<std::string> values = {}) {
        messages_.add(makeMessage(code, position, values));
    }
    /// What was found at the cursor and what could stand there. `words` are spellings that the
    /// token may be a misspelling of. Silent where the token was reported before.
    void unexpected(const std::string& expected, const std::vector<std::string>& words = {});
    /// The token at the cursor was reported, so what is wrong with it otherwise is no news.
    bool isReported() const {
        return peek().kind == TokenKind::Invalid || peek().isReported || reportedAt_ == at_;
    }

private:
    bool startsCommandHere() const;

    const std::vector<Token>& tokens_;
    Messages& messages_;
    std::size_t at_ = 0;
    unsigned clauses_ = isTableClause | isRunClause;
    std::size_t reportedAt_ = static_cast<std::size_t>(-1);
};

/// A token as a message shows it.
std::string describe(const Token& token);

} // namespace kelx::language
