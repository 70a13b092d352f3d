// SPDX-License-Identifier: Apache-2.0
#include "language/table_parser.h"

#include "language/text.h"

namespace kelx::language {

namespace {

constexpr ClausePlace inTable{isTableClause, isRunClause, "it belongs to RUNDEF, before the tables",
                              "a clause of the table, such as BY or TITLE, or a new command"};

} // namespace

void TableParser::parse(ast::Program& program) {
    clauses_.startCommand();
    ast::Table table;
    const Token& first = cursor_.peek();
    table.position = first.position;
    table.span.begin = first.begin;
    if (cursor_.takeKeyword(Keyword::Table))
        parseName(table);
    parseKind(table, program);
}

void TableParser::parseName(ast::Table& table) {
    const bool named = cursor_.peek().kind == TokenKind::Word && !cursor_.peek().is(Keyword::As) &&
                       !((placesOf(cursor_.peek().keyword) & isTableKind) != 0 &&
                         !cursor_.peek(1).is(Keyword::As) &&
                         (placesOf(cursor_.peek(1).keyword) & isTableKind) == 0);
    if (named)
        table.name = std::string(cursor_.take().text);
    else
        cursor_.unexpected("the name of the table");
    cursor_.takeKeyword(Keyword::As);
}

void TableParser::parseKind(ast::Table& table, ast::Program& program) {
    const Token& kind = cursor_.peek();
    const unsigned places = placesOf(kind.keyword);
    if ((places & isTableKind) == 0) {
        cursor_.unexpected("AS and the kind of the table, such as FREQ", wordsFor(isTableKind));
        return cursor_.skipToCommand();
    }
    if ((places & notSupportedYet) != 0) {
        clauses_.notSupported();
        return cursor_.skipToCommand();
    }
    cursor_.take();
    table.kind = kind.keyword;
    table.kindWord = kind.is(Keyword::Frequency) ? "FREQ" : upperCase(kind.text);
    parseLists(table);
    parseClauses(table);
    table.span.end = cursor_.lastEnd();
    program.emplace_back(std::move(table));
}

void TableParser::parseLists(ast::Table& table) {
    if (table.kind == Keyword::Count) {
        cursor_.takeKeyword(Keyword::Of);
        const Token& entity = cursor_.peek();
        table.entity = clauses_.expressions().parseName("the entity to count", false);
        if (table.entity && !table.entity->entity.empty()) {
            cursor_.report(Error::Unexpected, entity.position,
                           {"a variable", "the entity to count", ""});
            table.entity.reset();
        }
        if (!table.entity)
            cursor_.skipToClause();
        return;
    }
    cursor_.takeKeyword(Keyword::Of);
    table.dimensions.emplace_back();
    if (!parseVariables(table.dimensions.back()))
        cursor_.skipToClause();
}

bool TableParser::parseVariables(std::vector<ast::Name>& list) {
    do {
        std::optional<ast::Name> name = clauses_.expressions().parseName(
            "a variable, such as Entity.Variable, or Entity.* for all of them", true);
        if (!name)
            return false;
        list.push_back(std::move(*name));
    } while (cursor_.takeSymbol(","));
    return true;
}

void TableParser::parseClauses(ast::Table& table) {
    while (!cursor_.atEnd() && !cursor_.atCommand()) {
        if (!parseClause(table))
            cursor_.skipToClause();
    }
}

bool TableParser::parseClause(ast::Table& table) {
    const Token& clause = cursor_.peek();
    if (const std::optional<bool> passedOver = clauses_.passOver(clause, inTable))
        return *passedOver;
    const bool dimension = clause.is(Keyword::By) || clause.is(Keyword::Tally);
    if (dimension && table.kind == Keyword::Count)
        return clauses_.misplaced("COUNT counts the records of an entity; use FREQ for a table");
    if (clause.is(Keyword::Of))
        return clauses_.misplaced("it follows the kind of the table directly");
    cursor_.take();
    if (clause.is(Keyword::By)) {
        table.dimensions.emplace_back();
        return parseVariables(table.dimensions.back());
    }
    if (!clauses_.firstTime(clause))
        return false;
    switch (clause.keyword) {
    case Keyword::Weight:
        return clauses_.readExpression(table.weight);
    case Keyword::Tally:
        return clauses_.readExpression(table.tally);
    case Keyword::Filter:
        return clauses_.readExpression(table.filter);
    case Keyword::Title:
        return clauses_.readText(table.title, "the title in quotes");
    default:
        return clauses_.readDecimals(table.decimals);
    }
}

} // namespace kelx::language
