// SPDX-License-Identifier: Apache-2.0
#include "language/output_clause_parser.h"

#include "language/text.h"

#include <algorithm>
#include <array>

namespace kelx::language {

namespace {

constexpr std::array<std::string_view, 9> types = {"xls", "xlsx", "csv",  "pdf", "html",
                                                   "xml", "text", "json", "txt"};
constexpr std::array<std::string_view, 3> formats = {"ascii", "unicode", "utf8"};
constexpr std::array<std::string_view, 8> graphWords = {"pie",  "bar", "horizontal", "multi",
                                                        "line", "age", "pyramid",    "overwrite"};

template <std::size_t n>
bool isOneOf(const std::array<std::string_view, n>& words, const Token& token) {
    return token.kind == TokenKind::Word &&
           std::find(words.begin(), words.end(), lowerCase(token.text)) != words.end();
}

bool isWord(const Token& token, std::string_view word) {
    return token.kind == TokenKind::Word && lowerCase(token.text) == word;
}

/// A column may be called as a kind of table or a clause is, but not at the start of a line.
bool atColumn(const TokenCursor& cursor) {
    const Token& token = cursor.peek();
    const bool other = token.firstOnLine && (cursor.atClause() || cursor.atCommand());
    const bool clause = cursor.atClause() && !cursor.peek(1).isSymbol(".");
    return token.kind == TokenKind::Text || (token.kind == TokenKind::Word && !other && !clause);
}

void readColumn(TokenCursor& cursor, ast::Sort& sort) {
    const Token& first = cursor.take();
    sort.columnPosition = first.position;
    sort.column = first.value();
    if (first.kind == TokenKind::Text)
        return;
    ast::Name name;
    name.position = name.namePosition = first.position;
    name.name = sort.column;
    if (cursor.peek().isSymbol(".") && cursor.peek(1).kind == TokenKind::Word) {
        cursor.take();
        name.entity = std::move(name.name);
        name.namePosition = cursor.peek().position;
        name.name = std::string(cursor.take().text);
        sort.column = name.entity + "." + name.name;
    }
    name.span = {first.begin, cursor.lastEnd()};
    sort.name = std::move(name);
}

} // namespace

bool parseSort(ClauseReader& clauses, Position position, ast::Table& table) {
    TokenCursor& cursor = clauses.cursor();
    ast::Sort sort;
    sort.position = sort.columnPosition = position;
    sort.descending = isWord(cursor.peek(), "desc");
    if (sort.descending || isWord(cursor.peek(), "asc"))
        cursor.take();
    if (atColumn(cursor))
        readColumn(cursor, sort);
    constexpr std::size_t mostNumbers = 2;
    constexpr int mostRows = 2'000'000'000;
    while (cursor.peek().kind == TokenKind::Number && sort.numbers.size() < mostNumbers) {
        const std::optional<int> number = clauses.readCount("SORT", 0, mostRows);
        if (!number)
            return false;
        sort.numbers.push_back(*number);
    }
    table.sort = std::move(sort);
    return true;
}

bool parseOutfile(ClauseReader& clauses, ast::Table& table) {
    TokenCursor& cursor = clauses.cursor();
    ast::OutFile out;
    out.position = cursor.peek().position;
    if (isOneOf(types, cursor.peek()))
        out.type = lowerCase(cursor.take().text);
    else if (cursor.peek().kind == TokenKind::Word)
        cursor.unexpected("a type of file, such as XLS or CSV, or a file name in quotes",
                          {types.begin(), types.end()});
    out.filePosition = cursor.peek().position;
    if (!cursor.takeFileName(out.file, "the name of the file in quotes"))
        return false;
    out.formatPosition = cursor.peek().position;
    if (isOneOf(formats, cursor.peek()))
        out.format = lowerCase(cursor.take().text);
    out.overwrite = isWord(cursor.peek(), "overwrite");
    if (out.overwrite)
        cursor.take();
    table.outfile = std::move(out);
    return true;
}

bool parseOutgraph(ClauseReader& clauses, ast::Table& table) {
    TokenCursor& cursor = clauses.cursor();
    if (cursor.peek().kind == TokenKind::Word && cursor.peek(1).kind == TokenKind::Text)
        cursor.take();
    std::string file;
    if (!cursor.takeFileName(file, "the name of a graph file in quotes"))
        return false;
    while (isOneOf(graphWords, cursor.peek()))
        cursor.take();
    table.outgraph = true;
    return true;
}

bool parseSave(ClauseReader& clauses, ast::Table& table) {
    TokenCursor& cursor = clauses.cursor();
    std::string file;
    if (!cursor.takeFileName(file, "the name of the file in quotes"))
        return false;
    if (isWord(cursor.peek(), "overwrite"))
        cursor.take();
    table.save = std::move(file);
    return true;
}

} // namespace kelx::language
