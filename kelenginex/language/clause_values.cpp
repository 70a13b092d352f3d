// SPDX-License-Identifier: Apache-2.0
#include "language/clause_values.h"

#include <charconv>

namespace kelx::language {

namespace {

template <typename Number>
std::optional<Number> wholeOf(std::string_view text) {
    Number value = 0;
    const char* const end = text.data() + text.size();
    const auto read = std::from_chars(text.data(), end, value);
    return read.ec == std::errc() && read.ptr == end ? std::optional<Number>(value) : std::nullopt;
}

} // namespace

bool readText(TokenCursor& cursor, std::optional<std::string>& into, const char* what) {
    const TokenKind kind = cursor.peek().kind;
    if (kind != TokenKind::Text && kind != TokenKind::Label) {
        cursor.unexpected(what);
        return false;
    }
    into = cursor.take().value();
    return true;
}

bool readDecimals(TokenCursor& cursor, std::optional<int>& into) {
    constexpr int most = 15;
    const Token& token = cursor.peek();
    const bool number = token.kind == TokenKind::Number;
    if (!number && token.kind != TokenKind::Text) {
        cursor.unexpected("the number of decimals");
        return false;
    }
    cursor.take();
    const std::optional<int> value = number ? wholeOf<int>(token.text) : std::nullopt;
    if (value && *value >= 0 && *value <= most)
        into = value;
    else
        cursor.report(Error::BadDecimals, token.position, {describe(token)});
    return true;
}

std::optional<std::int64_t> readWhole(TokenCursor& cursor, std::int64_t least, const char* what) {
    const Token& token = cursor.peek();
    std::optional<std::int64_t> value;
    if (token.kind == TokenKind::Number)
        value = wholeOf<std::int64_t>(token.text);
    if (value && *value >= least) {
        cursor.take();
        return value;
    }
    cursor.unexpected(std::string(what) + ", a whole number from " + std::to_string(least));
    return std::nullopt;
}

} // namespace kelx::language
