// SPDX-License-Identifier: Apache-2.0
#include "language/parser.h"

#include "language/clause_values.h"
#include "language/definition_parser.h"
#include "language/expression_parser.h"
#include "language/text.h"
#include "language/token_cursor.h"

#include <set>

namespace kelx::language {

namespace {

/// Where clauses are read: which can stand there, and which show that something is misplaced.
struct ClausePlace {
    unsigned own, other;
    const char* otherReason;
    const char* expected;
};

constexpr ClausePlace inTable{isTableClause, isRunClause, "it belongs to RUNDEF, before the tables",
                              "a clause of the table, such as BY or TITLE, or a new command"};
constexpr ClausePlace inRundef{isRunClause, isTableClause, "it belongs to a table, not to RUNDEF",
                               "a clause of RUNDEF, such as SELECTION or FILTER, or a command"};

const char* const styleFile = "the name of a style file in quotes";

std::vector<std::string> joined(std::vector<std::string> words,
                                const std::vector<std::string>& more) {
    words.insert(words.end(), more.begin(), more.end());
    return words;
}

class Parser {
public:
    Parser(const std::vector<Token>& tokens, Messages& messages)
        : cursor_(tokens, messages), expressions_(cursor_), definitions_(cursor_, expressions_) {}

    ast::Program run() {
        while (!cursor_.atEnd())
            parseCommand();
        return std::move(program_);
    }

private:
    // Commands.
    void parseCommand();
    void parseRunDefinition();
    void parseStyle();
    void parseTable();
    void parseTableKind(ast::Table& table);
    void parseLists(ast::Table& table);
    void parseTableClauses(ast::Table& table);
    bool parseTableClause(ast::Table& table);
    bool parseRunClause(ast::RunDefinition& run);

    // Clauses.
    bool parseVariables(std::vector<ast::Name>& list);
    bool parseSelection(ast::RunDefinition& run);
    bool parseInlineSelection(ast::RunDefinition& run);
    bool parseExpression(ast::NodePtr& into);
    bool parseAreaBreak(ast::RunDefinition& run);
    bool parseRunWeight(ast::RunDefinition& run, const Token& clause);
    bool misplaced(const std::string& reason);
    void notSupported();
    bool firstTime(const Token& clause);
    std::optional<bool> passOver(const Token& clause, const ClausePlace& place);

    TokenCursor cursor_;
    ExpressionParser expressions_;
    DefinitionParser definitions_;
    ast::Program program_;
    std::set<Keyword> given_;       ///< clauses of the command being read
    std::set<Keyword> unsupported_; ///< told already
};

void Parser::parseCommand() {
    const Token& token = cursor_.peek();
    const unsigned places = placesOf(token.keyword);
    if (token.is(Keyword::Rundef))
        return parseRunDefinition();
    if (token.is(Keyword::Define))
        return definitions_.parse(program_);
    if (token.is(Keyword::Tablestyle))
        return parseStyle();
    if (token.is(Keyword::Table) ||
        ((places & isTableKind) != 0 && (places & notSupportedYet) == 0))
        return parseTable();
    if (token.is(Keyword::Weight)) {
        cursor_.take();
        ast::WeightCommand command;
        if (parseExpression(command.weight))
            program_.emplace_back(std::move(command));
        else
            cursor_.skipToClause();
        return;
    }
    if ((places & notSupportedYet) != 0) {
        notSupported();
        return (places & startsCommand) != 0 ? cursor_.skipToCommand() : cursor_.skipClause();
    }
    if (cursor_.atClause()) {
        misplaced("it must follow the command that it belongs to");
        return cursor_.skipToClause();
    }
    cursor_.unexpected("a command, such as RUNDEF, TABLE or FREQ", wordsFor(startsCommand));
    cursor_.take();
    cursor_.skipToCommand();
}

/// Tells once for each word, and leaves the cursor behind the word.
void Parser::notSupported() {
    const Token& token = cursor_.take();
    if (unsupported_.insert(token.keyword).second)
        cursor_.report(Error::NotSupported, token.position, {upperCase(token.text)});
}

bool Parser::misplaced(const std::string& reason) {
    const Token& token = cursor_.take();
    cursor_.report(Error::MisplacedClause, token.position, {upperCase(token.text), reason});
    return false;
}

bool Parser::firstTime(const Token& clause) {
    if (given_.insert(clause.keyword).second)
        return true;
    cursor_.report(Error::RepeatedClause, clause.position, {upperCase(clause.text)});
    return false;
}

/// What to answer for a clause that is not read here; nothing where it is to be read.
std::optional<bool> Parser::passOver(const Token& clause, const ClausePlace& place) {
    const unsigned places = placesOf(clause.keyword);
    if ((places & place.own) == 0) {
        if ((places & place.other) != 0)
            return misplaced(place.otherReason);
        cursor_.unexpected(place.expected, joined(wordsFor(place.own), wordsFor(startsCommand)));
        cursor_.take();
        return false;
    }
    if ((places & notSupportedYet) == 0 || place.own == isRunClause)
        return std::nullopt;
    notSupported();
    cursor_.skipClause();
    return true;
}

/// Alone, as where DEFINE has lost its line, it is a setting of the run.
void Parser::parseStyle() {
    cursor_.take();
    std::optional<std::string> file;
    if (readText(cursor_, file, styleFile))
        program_.emplace_back(ast::StyleCommand{std::move(*file)});
    else
        cursor_.skipToClause();
}

void Parser::parseRunDefinition() {
    given_.clear();
    ast::RunDefinition run;
    run.position = cursor_.take().position;
    const TokenKind kind = cursor_.peek().kind;
    const bool word = kind == TokenKind::Word && !cursor_.atClause() && !cursor_.atCommand();
    if (word || kind == TokenKind::Text || kind == TokenKind::Number)
        run.name = cursor_.take().value();
    while (!cursor_.atEnd() && !cursor_.atCommand()) {
        if (!parseRunClause(run))
            cursor_.skipToClause();
    }
    program_.emplace_back(std::move(run));
}

bool Parser::parseRunClause(ast::RunDefinition& run) {
    const Token& clause = cursor_.peek();
    if (const std::optional<bool> passedOver = passOver(clause, inRundef))
        return *passedOver;
    cursor_.take();
    if (!firstTime(clause))
        return false;
    switch (clause.keyword) {
    case Keyword::Title:
        return readText(cursor_, run.title, "the title in quotes");
    case Keyword::Selection:
        return parseSelection(run);
    case Keyword::Selectionlabel:
        return readText(cursor_, run.selectionLabel, "a label");
    case Keyword::Filter:
        return parseExpression(run.filter);
    case Keyword::Filterlabel:
        return readText(cursor_, run.filterLabel, "a label");
    case Keyword::Decimals:
        return readDecimals(cursor_, run.decimals);
    case Keyword::Dictionary:
        run.dictionaryPosition = cursor_.peek().position;
        return readText(cursor_, run.dictionary, "the name of the dictionary file in quotes");
    case Keyword::Areabreak:
        return parseAreaBreak(run);
    case Keyword::Tablestyle:
        return readText(cursor_, run.tableStyle, styleFile);
    case Keyword::Graphstyle:
        return readText(cursor_, run.graphStyle, styleFile);
    case Keyword::Mapstyle:
        return readText(cursor_, run.mapStyle, styleFile);
    default:
        return parseRunWeight(run, clause);
    }
}

bool Parser::parseAreaBreak(ast::RunDefinition& run) {
    const Token& first = cursor_.peek();
    run.areaBreak = expressions_.parseName("an entity", false);
    if (!run.areaBreak || run.areaBreak->entity.empty())
        return run.areaBreak.has_value();
    cursor_.report(Error::Unexpected, first.position, {"a variable", "an entity", ""});
    run.areaBreak.reset();
    return false;
}

/// WEIGHT, AUTOWEIGHT and NOWEIGHT exclude each other.
bool Parser::parseRunWeight(ast::RunDefinition& run, const Token& clause) {
    if (run.weightMode) {
        cursor_.report(
            Error::MisplacedClause, clause.position,
            {upperCase(clause.text), "WEIGHT, AUTOWEIGHT and NOWEIGHT exclude each other"});
        return false;
    }
    run.weightMode = clause.is(Keyword::Weight)       ? WeightMode::Explicit
                     : clause.is(Keyword::Autoweight) ? WeightMode::Automatic
                                                      : WeightMode::None;
    return !clause.is(Keyword::Weight) || parseExpression(run.weight);
}

bool Parser::parseSelection(ast::RunDefinition& run) {
    run.selectionPosition = cursor_.peek().position;
    if (cursor_.peek().kind == TokenKind::Text) {
        run.selection = ast::SelectionFile{cursor_.take().value()};
        return true;
    }
    if (cursor_.takeKeyword(Keyword::Inline))
        return parseInlineSelection(run);
    ast::NodePtr expression = expressions_.parseSelection();
    const bool good = expression != nullptr;
    run.selection = std::move(expression);
    return good;
}

bool Parser::parseInlineSelection(ast::RunDefinition& run) {
    ast::InlineSelection areas;
    bool good = true;
    do {
        const Token& entity = cursor_.peek();
        if (entity.kind != TokenKind::Word || cursor_.atClause() || cursor_.atCommand()) {
            cursor_.unexpected("an entity and the code of an area in quotes");
            good = false;
            break;
        }
        cursor_.take();
        ast::SelectionArea area{std::string(entity.text), {}, {}, entity.position};
        if (cursor_.peek().kind != TokenKind::Text) {
            cursor_.unexpected("the compound code of an area of " + upperCase(entity.text) +
                               " in quotes");
            good = false;
            break;
        }
        area.code = cursor_.take().value();
        if (cursor_.peek().kind == TokenKind::Text)
            area.label = cursor_.take().value();
        areas.push_back(std::move(area));
    } while (cursor_.peek().kind == TokenKind::Word && !cursor_.atClause() && !cursor_.atCommand());
    run.selection = std::move(areas);
    return good;
}

bool Parser::parseExpression(ast::NodePtr& into) {
    into = expressions_.parse();
    return into != nullptr;
}

void Parser::parseTable() {
    given_.clear();
    ast::Table table;
    const Token& first = cursor_.peek();
    table.position = first.position;
    table.span.begin = first.begin;
    if (cursor_.takeKeyword(Keyword::Table)) {
        const bool named = cursor_.peek().kind == TokenKind::Word &&
                           !cursor_.peek().is(Keyword::As) &&
                           !((placesOf(cursor_.peek().keyword) & isTableKind) != 0 &&
                             !cursor_.peek(1).is(Keyword::As) &&
                             (placesOf(cursor_.peek(1).keyword) & isTableKind) == 0);
        if (named)
            table.name = std::string(cursor_.take().text);
        else
            cursor_.unexpected("the name of the table");
        cursor_.takeKeyword(Keyword::As);
    }
    parseTableKind(table);
}

void Parser::parseTableKind(ast::Table& table) {
    const Token& kind = cursor_.peek();
    const unsigned places = placesOf(kind.keyword);
    if ((places & isTableKind) == 0) {
        cursor_.unexpected("AS and the kind of the table, such as FREQ", wordsFor(isTableKind));
        return cursor_.skipToCommand();
    }
    if ((places & notSupportedYet) != 0) {
        notSupported();
        return cursor_.skipToCommand();
    }
    cursor_.take();
    table.kind = kind.keyword;
    table.kindWord = kind.is(Keyword::Frequency) ? "FREQ" : upperCase(kind.text);
    parseLists(table);
    parseTableClauses(table);
    table.span.end = cursor_.lastEnd();
    program_.emplace_back(std::move(table));
}

void Parser::parseLists(ast::Table& table) {
    if (table.kind == Keyword::Count) {
        cursor_.takeKeyword(Keyword::Of);
        const Token& entity = cursor_.peek();
        table.entity = expressions_.parseName("the entity to count", false);
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

bool Parser::parseVariables(std::vector<ast::Name>& list) {
    do {
        std::optional<ast::Name> name = expressions_.parseName(
            "a variable, such as Entity.Variable, or Entity.* for all of them", true);
        if (!name)
            return false;
        list.push_back(std::move(*name));
    } while (cursor_.takeSymbol(","));
    return true;
}

void Parser::parseTableClauses(ast::Table& table) {
    while (!cursor_.atEnd() && !cursor_.atCommand()) {
        if (!parseTableClause(table))
            cursor_.skipToClause();
    }
}

bool Parser::parseTableClause(ast::Table& table) {
    const Token& clause = cursor_.peek();
    if (const std::optional<bool> passedOver = passOver(clause, inTable))
        return *passedOver;
    const bool dimension = clause.is(Keyword::By) || clause.is(Keyword::Tally);
    if (dimension && table.kind == Keyword::Count)
        return misplaced("COUNT counts the records of an entity; use FREQ for a table");
    if (clause.is(Keyword::Of))
        return misplaced("it follows the kind of the table directly");
    cursor_.take();
    if (clause.is(Keyword::By)) {
        table.dimensions.emplace_back();
        return parseVariables(table.dimensions.back());
    }
    if (!firstTime(clause))
        return false;
    switch (clause.keyword) {
    case Keyword::Weight:
        return parseExpression(table.weight);
    case Keyword::Tally:
        return parseExpression(table.tally);
    case Keyword::Filter:
        return parseExpression(table.filter);
    case Keyword::Title:
        return readText(cursor_, table.title, "the title in quotes");
    default:
        return readDecimals(cursor_, table.decimals);
    }
}

} // namespace

ast::Program parse(const std::vector<Token>& tokens, Messages& messages) {
    return Parser(tokens, messages).run();
}

} // namespace kelx::language
