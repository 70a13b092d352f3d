// SPDX-License-Identifier: Apache-2.0
#include "language/clause_reader.h"

#include "language/text.h"

#include <charconv>

namespace kelx::language {

namespace {

std::vector<std::string> joined(std::vector<std::string> words,
                                const std::vector<std::string>& more) {
    words.insert(words.end(), more.begin(), more.end());
    return words;
}

} // namespace

bool ClauseReader::misplaced(const std::string& reason) {
    const bool told = cursor_.isReported();
    const Token& token = cursor_.take();
    if (!told)
        cursor_.report(Error::MisplacedClause, token.position, {upperCase(token.text), reason});
    return false;
}

bool ClauseReader::firstTime(const Token& clause) {
    if (given_.insert(clause.keyword).second)
        return true;
    cursor_.report(Error::RepeatedClause, clause.position, {upperCase(clause.text)});
    return false;
}

bool ClauseReader::canRead(const Token& clause, const ClausePlace& place) {
    const unsigned places = placesOf(clause.keyword);
    if ((places & place.own) != 0)
        return true;
    if ((places & place.other) != 0)
        return misplaced(place.otherReason);
    cursor_.unexpected(place.expected, joined(wordsFor(place.own), wordsFor(startsCommand)));
    cursor_.take();
    return false;
}

bool ClauseReader::readExpression(ast::NodePtr& into) {
    into = expressions_.parse();
    return into != nullptr;
}

bool ClauseReader::readText(std::optional<std::string>& into, const char* what) {
    const TokenKind kind = cursor_.peek().kind;
    if (kind != TokenKind::Text && kind != TokenKind::Label) {
        cursor_.unexpected(what);
        return false;
    }
    into = cursor_.take().value();
    return true;
}

bool ClauseReader::readDecimals(std::optional<int>& into) {
    constexpr int most = 15;
    const Token& token = cursor_.peek();
    const bool number = token.kind == TokenKind::Number;
    if (!number && token.kind != TokenKind::Text) {
        cursor_.unexpected("the number of decimals");
        return false;
    }
    cursor_.take();
    int value = -1;
    const char* const end = token.text.data() + token.text.size();
    if (number && std::from_chars(token.text.data(), end, value).ptr == end && value >= 0 &&
        value <= most)
        into = value;
    else
        cursor_.report(Error::BadDecimals, token.position, {describe(token)});
    return true;
}

std::optional<int> ClauseReader::readCount(const std::string& clause, int least, int most) {
    const Token& token = cursor_.peek();
    if (token.kind != TokenKind::Number) {
        cursor_.unexpected("the number of " + clause);
        return std::nullopt;
    }
    cursor_.take();
    int value = 0;
    const char* const end = token.text.data() + token.text.size();
    const auto read = std::from_chars(token.text.data(), end, value);
    if (read.ec == std::errc() && read.ptr == end && value >= least && value <= most)
        return value;
    cursor_.report(Error::BadCount, token.position,
                   {clause, std::to_string(least), std::to_string(most), shortened(token.text)});
    return std::nullopt;
}

} // namespace kelx::language
