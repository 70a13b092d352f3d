// SPDX-License-Identifier: Apache-2.0
#include "language/token_cursor.h"

#include "language/other_words.h"
#include "language/text.h"

#include <algorithm>

namespace kelx::language {

const Token& TokenCursor::peek(std::size_t ahead) const {
    return tokens_[std::min(at_ + ahead, tokens_.size() - 1)];
}

const Token& TokenCursor::take() {
    const Token& token = tokens_[at_];
    if (at_ + 1 < tokens_.size())
        ++at_;
    return token;
}

bool TokenCursor::takeSymbol(std::string_view symbol) {
    const bool found = peek().isSymbol(symbol);
    if (found)
        take();
    return found;
}

bool TokenCursor::takeKeyword(Keyword keyword) {
    const bool found = peek().is(keyword);
    if (found)
        take();
    return found;
}

bool TokenCursor::takeFileName(std::string& file, const std::string& expected) {
    if (peek().kind != TokenKind::Text) {
        unexpected(expected);
        return false;
    }
    const Token& token = take();
    file = token.value();
    if (file.empty())
        report(Error::Unexpected, token.position, {"an empty text", expected, ""});
    return !file.empty();
}

bool TokenCursor::atClause() const {
    const bool function = peek().is(Keyword::Missing) && peek(1).isSymbol("(");
    return !function && (placesOf(peek().keyword) & clauses_) != 0;
}

bool TokenCursor::atCommand() const {
    return (placesOf(peek().keyword) & startsCommand) != 0;
}

/// Elsewhere on a line, the name of a kind of table may be part of what is skipped, as in DEFINE
/// A.B AS SUM C.D.
bool TokenCursor::startsCommandHere() const {
    const unsigned places = placesOf(peek().keyword);
    if ((places & startsAnywhere) != 0)
        return true;
    const bool afterAs = at_ > 0 && tokens_[at_ - 1].is(Keyword::As);
    return (places & startsCommand) != 0 && peek().firstOnLine && !afterAs;
}

void TokenCursor::skipToClause() {
    while (!atEnd() && !atClause() && !atCommand())
        take();
}

void TokenCursor::skipToCommand() {
    while (!atEnd() && !startsCommandHere())
        take();
}

void TokenCursor::unexpected(const std::string& expected, const std::vector<std::string>& words) {
    if (isReported())
        return;
    reportedAt_ = at_;
    std::string hint;
    const bool isWord =
        messages_.wantsHints() && peek().kind == TokenKind::Word && peek().is(Keyword::None);
    if (isWord)
        hint = ourWordFor(peek().text);
    if (hint.empty() && isWord)
        hint = nearest(peek().text, words);
    report(Error::Unexpected, peek().position,
           {describe(peek()), expected, hint.empty() ? "" : " Did you mean " + hint + "?"});
}

std::string describe(const Token& token) {
    switch (token.kind) {
    case TokenKind::End:
        return "the end of the program";
    case TokenKind::Text:
        return "the text " + inQuotes(token.value());
    case TokenKind::Label:
        return "the label " + inQuotes(token.text);
    case TokenKind::Number:
        return "the number " + shortened(token.text);
    case TokenKind::Word:
        return token.reserved ? "the reserved word " + upperCase(token.text) : inQuotes(token.text);
    default:
        return inQuotes(token.text);
    }
}

} // namespace kelx::language
