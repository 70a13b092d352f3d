// SPDX-License-Identifier: Apache-2.0
#include "language/table_parser.h"

#include "language/output_clause_parser.h"
#include "language/text.h"

namespace kelx::language {

namespace {

constexpr ClausePlace inTable{isTableClause, isRunClause, "it belongs to RUNDEF, before the tables",
                              "a clause of the table, such as BY or TITLE, or a new command"};

const char* const styleFile = "the name of a style file in quotes";
const char* const aVariable = "a variable, such as Entity.Variable, or Entity.* for all of them";

bool isList(Keyword kind) {
    return kind == Keyword::Arealist || kind == Keyword::View;
}

/// Made of other tables.
bool isMade(Keyword kind) {
    return kind == Keyword::Tabop || kind == Keyword::Tablist;
}

std::string wordOf(const Token& kind) {
    switch (kind.keyword) {
    case Keyword::Frequency:
        return "FREQ";
    case Keyword::Minimum:
        return "MIN";
    case Keyword::Maximum:
        return "MAX";
    default:
        return upperCase(kind.text);
    }
}

std::string expectedBy(Keyword kind) {
    switch (kind) {
    case Keyword::Frequency:
    case Keyword::Crosstabs:
        return aVariable;
    case Keyword::Count:
        return "the entity to count";
    case Keyword::Arealist:
    case Keyword::View:
        return "the entity to list";
    case Keyword::Tabop:
        return "an expression of tables";
    case Keyword::Tablist:
        return "the name of a table";
    default:
        return "what to measure: a variable or an expression";
    }
}

bool isOperator(const Token& token) {
    return token.isSymbol("+") || token.isSymbol("-") || token.isSymbol("*") || token.isSymbol("/");
}

} // namespace

void TableParser::parse(ast::Program& program) {
    clauses_.startCommand();
    ast::Table table;
    const Token& first = cursor_.peek();
    table.position = first.position;
    table.span.begin = first.begin;
    hasName_ = !cursor_.takeKeyword(Keyword::Table) || parseName(table);
    parseKind(table, program);
}

/// A kind of table is the name where another kind follows it. A form whose name was left blank
/// writes AS at once.
bool TableParser::parseName(ast::Table& table) {
    const bool named = cursor_.peek().kind == TokenKind::Word && !cursor_.peek().is(Keyword::As) &&
                       !((placesOf(cursor_.peek().keyword) & isTableKind) != 0 &&
                         !cursor_.peek(1).is(Keyword::As) &&
                         (placesOf(cursor_.peek(1).keyword) & isTableKind) == 0);
    if (named)
        table.name = std::string(cursor_.take().text);
    const bool faulty = !named && !cursor_.peek().is(Keyword::As);
    if (faulty)
        cursor_.unexpected("the name of the table");
    cursor_.takeKeyword(Keyword::As);
    return !faulty;
}

void TableParser::parseKind(ast::Table& table, ast::Program& program) {
    const Token& kind = cursor_.peek();
    if ((placesOf(kind.keyword) & isTableKind) == 0) {
        cursor_.unexpected("AS and the kind of the table, such as FREQ", wordsFor(isTableKind));
        return cursor_.skipToCommand();
    }
    cursor_.take();
    if (!hasName_ && (cursor_.atEnd() || cursor_.atCommand()))
        return; // the kind was meant as a name, and told
    table.kind = kind.keyword;
    table.kindWord = wordOf(kind);
    table.dimensions.emplace_back();
    if (table.kind == Keyword::Quantile)
        parseQuantiles(table);
    const Token& subject = cursor_.peek();
    table.hasOf = cursor_.takeKeyword(Keyword::Of);
    hasSubject_ = table.hasOf || !cursor_.atClause();
    if (hasSubject_ && !parseSubject(table)) {
        table.complete = false;
        cursor_.skipToClause();
    }
    if (!hasSubject_ && (placesOf(subject.keyword) & isTableClause) == 0) {
        cursor_.unexpected(expectedBy(table.kind));
        table.complete = false;
        hasSubject_ = true;
    }
    parseClauses(table);
    if (!hasSubject_) {
        table.complete = false;
        cursor_.report(Error::Unexpected, subject.position,
                       {describe(subject), expectedBy(table.kind), ""});
    }
    table.span.end = cursor_.lastEnd();
    program.emplace_back(std::move(table));
}

/// The number may also begin the expression that is measured.
void TableParser::parseQuantiles(ast::Table& table) {
    const Token& next = cursor_.peek(1);
    const bool subject = next.kind == TokenKind::Word || next.isSymbol("(");
    if (cursor_.peek().kind == TokenKind::Number && subject && !isOperator(next))
        table.quantiles =
            clauses_.readCount(table.kindWord, ast::leastQuantiles, ast::mostQuantiles);
}

bool TableParser::parseSubject(ast::Table& table) {
    switch (table.kind) {
    case Keyword::Frequency:
    case Keyword::Crosstabs:
        return parseVariables(table.dimensions.front());
    case Keyword::Count:
        return parseEntity(table, expectedBy(table.kind));
    case Keyword::Arealist:
    case Keyword::View:
        return parseList(table);
    case Keyword::Tabop:
        return clauses_.readExpression(table.operation);
    case Keyword::Tablist:
        return parseTables(table.names);
    default:
        return parseMeasures(table.measures);
    }
}

bool TableParser::parseEntity(ast::Table& table, const std::string& expected) {
    const Token& entity = cursor_.peek();
    table.entity = clauses_.expressions().parseName(expected, false);
    if (table.entity && !table.entity->entity.empty()) {
        cursor_.report(Error::Unexpected, entity.position, {"a variable", expected, ""});
        table.entity.reset();
    }
    return table.entity.has_value();
}

bool TableParser::parseVariables(std::vector<ast::Name>& list) {
    do {
        std::optional<ast::Name> name = clauses_.expressions().parseName(aVariable, true);
        if (!name)
            return false;
        list.push_back(std::move(*name));
    } while (cursor_.takeSymbol(","));
    return true;
}

bool TableParser::parseMeasures(std::vector<ast::Measure>& measures) {
    do {
        ast::Measure measure;
        if (cursor_.peek(1).isSymbol(".") && cursor_.peek(2).isSymbol("*"))
            measure.all = clauses_.expressions().parseName(aVariable, true);
        else if (!clauses_.readExpression(measure.expression))
            return false;
        measures.push_back(std::move(measure));
    } while (cursor_.takeSymbol(","));
    return true;
}

/// The entity, then the columns; the comma between them may be left out. A word before a text is a
/// clause that is misspelt.
bool TableParser::parseList(ast::Table& table) {
    if (!parseEntity(table, expectedBy(table.kind)))
        return false;
    const bool atName = cursor_.peek().kind == TokenKind::Word && !cursor_.atClause() &&
                        !cursor_.atCommand() && cursor_.peek(1).kind != TokenKind::Text;
    const bool columns = cursor_.takeSymbol(",") || atName;
    if (!columns)
        return true;
    do {
        std::optional<ast::Name> name =
            clauses_.expressions().parseName("a variable or the name of a table", true);
        if (!name)
            return false;
        table.names.push_back(std::move(*name));
    } while (cursor_.takeSymbol(","));
    return true;
}

bool TableParser::parseTables(std::vector<ast::Name>& tables) {
    do {
        const Token& token = cursor_.peek();
        const bool keyword = cursor_.atClause() || cursor_.atCommand();
        if (token.kind != TokenKind::Word ||
            (keyword && tables.empty() && !cursor_.peek(1).isSymbol(","))) {
            cursor_.unexpected("the name of a table");
            return false;
        }
        cursor_.take();
        ast::Name name;
        name.name = std::string(token.text);
        name.position = name.namePosition = token.position;
        name.span = {token.begin, token.end()};
        tables.push_back(std::move(name));
    } while (cursor_.takeSymbol(","));
    return true;
}

void TableParser::parseClauses(ast::Table& table) {
    while (!cursor_.atEnd() && !cursor_.atCommand()) {
        if (parseClause(table))
            continue;
        table.complete = false;
        cursor_.skipToClause();
    }
}

bool TableParser::parseClause(ast::Table& table) {
    const Token& clause = cursor_.peek();
    if (!clauses_.canRead(clause, inTable))
        return false;
    if (clause.is(Keyword::By))
        return parseBy(table);
    if (clause.is(Keyword::Of))
        return parseOf(table);
    if (clause.is(Keyword::Tally) && table.kind == Keyword::Count)
        return clauses_.misplaced("COUNT counts the records of an entity; use FREQ for a table");
    cursor_.take();
    if (!clauses_.firstTime(clause))
        return false;
    switch (clause.keyword) {
    case Keyword::Weight:
    case Keyword::Tally:
    case Keyword::Filter:
        return parseCondition(table, clause);
    case Keyword::Sort:
        return parseSort(clauses_, clause.position, table);
    case Keyword::Outfile:
        return parseOutfile(clauses_, table);
    case Keyword::Outgraph:
        return parseOutgraph(clauses_, table);
    case Keyword::Save:
        table.savePosition = cursor_.peek().position;
        return parseSave(clauses_, table);
    default:
        return parseSetting(table, clause);
    }
}

bool TableParser::parseBy(ast::Table& table) {
    if (table.kind == Keyword::Count)
        return clauses_.misplaced("COUNT counts the records of an entity; use FREQ for a table");
    if (isList(table.kind))
        return clauses_.misplaced("a list has a row for each record; use FREQ for a table");
    if (isMade(table.kind))
        return clauses_.misplaced("the tables that it is made of have their own variables");
    cursor_.take();
    table.dimensions.emplace_back();
    return parseVariables(table.dimensions.back());
}

bool TableParser::parseOf(ast::Table& table) {
    if (hasSubject_)
        return clauses_.misplaced("it follows the kind of the table directly");
    cursor_.take();
    hasSubject_ = true;
    return parseSubject(table);
}

bool TableParser::parseCondition(ast::Table& table, const Token& clause) {
    if (clause.is(Keyword::Weight)) {
        table.weightPosition = clause.position;
        return clauses_.readExpression(table.weight);
    }
    if (clause.is(Keyword::Tally)) {
        table.tallyPosition = clause.position;
        return clauses_.readExpression(table.tally);
    }
    table.filterPosition = clause.position;
    return clauses_.readExpression(table.filter);
}

bool TableParser::parseSetting(ast::Table& table, const Token& clause) {
    constexpr int mostRecords = 1'000'000'000;
    switch (clause.keyword) {
    case Keyword::Title:
        return clauses_.readText(table.title, "the title in quotes");
    case Keyword::Tablestyle:
        return clauses_.readText(table.tableStyle, styleFile);
    case Keyword::Graphstyle:
        return clauses_.readText(table.graphStyle, styleFile);
    case Keyword::Mapstyle:
        return clauses_.readText(table.mapStyle, styleFile);
    case Keyword::Sensitive:
        table.sensitivePosition = clause.position;
        table.sensitive = clauses_.readCount("SENSITIVE", 0, mostRecords);
        return table.sensitive.has_value();
    default:
        return clauses_.readDecimals(table.decimals);
    }
}

} // namespace kelx::language
