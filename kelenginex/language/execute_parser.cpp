// SPDX-License-Identifier: Apache-2.0
#include "language/execute_parser.h"

#include "language/text.h"

#include <set>

namespace kelx::language {

namespace {

bool atValue(const TokenCursor& cursor) {
    return cursor.peek().kind == TokenKind::Word && cursor.peek(1).isSymbol("=");
}

bool parseValue(TokenCursor& cursor, ast::Execute& execute, std::set<std::string>& names) {
    if (!atValue(cursor)) {
        cursor.unexpected("a name and its value between braces, as in name = {value}");
        return false;
    }
    const Token& name = cursor.take();
    cursor.take();
    if (cursor.peek().kind != TokenKind::Braced) {
        cursor.unexpected("the value of " + std::string(name.text) +
                          " between braces, as in name = {value}");
        return false;
    }
    const std::string_view value = cursor.take().text;
    if (!names.insert(lowerCase(name.text)).second)
        cursor.report(Error::RepeatedClause, name.position, {std::string(name.text)});
    else
        execute.values.push_back({std::string(name.text),
                                  std::string(value.substr(1, value.size() - 2)), name.position});
    return true;
}

} // namespace

std::optional<ast::Execute> parseExecute(TokenCursor& cursor) {
    ast::Execute execute;
    execute.position = cursor.take().position;
    execute.filePosition = cursor.peek().position;
    if (!cursor.takeFileName(execute.file, "the file name of a program in quotes"))
        return std::nullopt;
    std::set<std::string> names;
    cursor.takeSymbol(",");
    while (atValue(cursor)) {
        if (!parseValue(cursor, execute, names))
            return std::nullopt;
        if (cursor.takeSymbol(",") && !atValue(cursor))
            return parseValue(cursor, execute, names) ? std::optional(execute) : std::nullopt;
    }
    return execute;
}

} // namespace kelx::language
