// SPDX-License-Identifier: Apache-2.0
#include "language/parser.h"

#include "language/clause_reader.h"
#include "language/definition_parser.h"
#include "language/execute_parser.h"
#include "language/table_parser.h"
#include "language/text.h"

namespace kelx::language {

namespace {

constexpr ClausePlace inRundef{isRunClause, isTableClause, "it belongs to a table, not to RUNDEF",
                               "a clause of RUNDEF, such as SELECTION or FILTER, or a command"};

const char* const styleFile = "the name of a style file in quotes";

class Parser {
public:
    Parser(const std::vector<Token>& tokens, Messages& messages)
        : clauses_(tokens, messages), cursor_(clauses_.cursor()), definitions_(clauses_),
          tables_(clauses_) {}

    ast::Program run() {
        while (!cursor_.atEnd())
            parseCommand();
        return std::move(program_);
    }

private:
    void parseCommand();
    void skipLostClauses();
    void parseWeight();
    void parseExecute();
    void parseStyle();
    bool parseAreaBreak(ast::RunDefinition& run);
    void parseRunDefinition();
    void parseRunName(ast::RunDefinition& run);
    std::size_t runNameWords() const;
    bool parseRunClause(ast::RunDefinition& run);
    bool parseRunValue(ast::RunDefinition& run, const Token& clause);
    bool parseRunWeight(ast::RunDefinition& run, const Token& clause);
    bool parseSelection(ast::RunDefinition& run);
    bool parseInlineSelection(ast::RunDefinition& run);

    ClauseReader clauses_;
    TokenCursor& cursor_;
    DefinitionParser definitions_;
    TableParser tables_;
    ast::Program program_;
};

void Parser::parseCommand() {
    const Token& token = cursor_.peek();
    if (token.is(Keyword::Rundef))
        return parseRunDefinition();
    if (token.is(Keyword::Define))
        return definitions_.parse(program_);
    if (token.is(Keyword::Tablestyle))
        return parseStyle();
    if (token.is(Keyword::Table) || (placesOf(token.keyword) & isTableKind) != 0)
        return tables_.parse(program_);
    if (token.is(Keyword::Execute))
        return parseExecute();
    if (token.is(Keyword::Weight))
        return parseWeight();
    if (cursor_.atClause()) {
        clauses_.misplaced("it must follow the command that it belongs to");
        return skipLostClauses();
    }
    cursor_.unexpected("a command, such as RUNDEF, TABLE or FREQ", wordsFor(startsCommand));
    cursor_.take();
    cursor_.skipToCommand();
}

/// They belong to the same command, wherever it is.
void Parser::skipLostClauses() {
    const auto startsCommandHere = [this] {
        const Token& token = cursor_.peek();
        const bool both = token.is(Keyword::Weight) || token.is(Keyword::Tablestyle);
        return cursor_.atEnd() || cursor_.atCommand() || (both && token.firstOnLine);
    };
    for (cursor_.skipToClause(); !startsCommandHere(); cursor_.skipToClause())
        cursor_.take();
}

void Parser::parseWeight() {
    cursor_.take();
    ast::WeightCommand command;
    if (clauses_.readExpression(command.weight))
        program_.emplace_back(std::move(command));
    else
        cursor_.skipToClause();
}

void Parser::parseExecute() {
    if (std::optional<ast::Execute> execute = language::parseExecute(cursor_))
        program_.emplace_back(std::move(*execute));
    else
        cursor_.skipToCommand();
}

/// Alone, as where DEFINE has lost its line, it is a setting of the run.
void Parser::parseStyle() {
    cursor_.take();
    std::optional<std::string> file;
    if (clauses_.readText(file, styleFile))
        program_.emplace_back(ast::StyleCommand{std::move(*file)});
    else
        cursor_.skipToClause();
}

void Parser::parseRunDefinition() {
    clauses_.startCommand();
    ast::RunDefinition run;
    run.position = cursor_.take().position;
    parseRunName(run);
    while (!cursor_.atEnd() && !cursor_.atCommand()) {
        if (!parseRunClause(run))
            cursor_.skipToClause();
    }
    program_.emplace_back(std::move(run));
}

/// A name of several words stands on the line of RUNDEF, which it ends, or before a clause.
void Parser::parseRunName(ast::RunDefinition& run) {
    const TokenKind kind = cursor_.peek().kind;
    const bool word = kind == TokenKind::Word && !cursor_.atClause() && !cursor_.atCommand();
    if (!word && kind != TokenKind::Text && kind != TokenKind::Number)
        return;
    run.name = cursor_.take().value();
    if (kind == TokenKind::Text)
        return;
    for (std::size_t words = runNameWords(); words > 0; --words)
        run.name += " " + cursor_.take().value();
}

/// How many more words belong to the name; none where one of them may be a misspelt clause.
std::size_t Parser::runNameWords() const {
    constexpr std::size_t most = 20;
    const std::vector<std::string> others = wordsFor(isRunClause | startsCommand);
    for (std::size_t words = 0; words < most; ++words) {
        const Token& token = cursor_.peek(words);
        const unsigned places = placesOf(token.keyword);
        if (token.kind == TokenKind::End || token.firstOnLine ||
            (places & (isRunClause | startsCommand)) != 0)
            return words;
        const bool word = token.kind == TokenKind::Word || token.kind == TokenKind::Number;
        if (!word || !nearest(token.text, others).empty())
            break;
    }
    return 0;
}

bool Parser::parseRunClause(ast::RunDefinition& run) {
    const Token& clause = cursor_.peek();
    if (!clauses_.canRead(clause, inRundef))
        return false;
    cursor_.take();
    if (!clauses_.firstTime(clause))
        return false;
    if (parseRunValue(run, clause))
        return true;
    if (cursor_.peek().is(clause.keyword)) // as where the name of the run is the word
        clauses_.forget(clause);
    return false;
}

bool Parser::parseRunValue(ast::RunDefinition& run, const Token& clause) {
    switch (clause.keyword) {
    case Keyword::Title:
        return clauses_.readText(run.title, "the title in quotes");
    case Keyword::Selection:
        return parseSelection(run);
    case Keyword::Selectionlabel:
        return clauses_.readText(run.selectionLabel, "a label");
    case Keyword::Filter:
        return clauses_.readExpression(run.filter);
    case Keyword::Filterlabel:
        return clauses_.readText(run.filterLabel, "a label");
    case Keyword::Decimals:
        return clauses_.readDecimals(run.decimals);
    case Keyword::Dictionary:
        run.dictionaryPosition = cursor_.peek().position;
        return clauses_.readText(run.dictionary, "the name of the dictionary file in quotes");
    case Keyword::Areabreak:
        return parseAreaBreak(run);
    case Keyword::Tablestyle:
        return clauses_.readText(run.tableStyle, styleFile);
    case Keyword::Graphstyle:
        return clauses_.readText(run.graphStyle, styleFile);
    case Keyword::Mapstyle:
        return clauses_.readText(run.mapStyle, styleFile);
    default:
        return parseRunWeight(run, clause);
    }
}

bool Parser::parseAreaBreak(ast::RunDefinition& run) {
    const Token& first = cursor_.peek();
    run.areaBreak = clauses_.expressions().parseName("an entity", false);
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
    return !clause.is(Keyword::Weight) || clauses_.readExpression(run.weight);
}

bool Parser::parseSelection(ast::RunDefinition& run) {
    run.selectionPosition = cursor_.peek().position;
    if (cursor_.peek().kind == TokenKind::Text) {
        run.selection = ast::SelectionFile{cursor_.take().value()};
        return true;
    }
    if (cursor_.takeKeyword(Keyword::Inline))
        return parseInlineSelection(run);
    ast::NodePtr expression = clauses_.expressions().parseSelection();
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

} // namespace

ast::Program parse(const std::vector<Token>& tokens, Messages& messages) {
    return Parser(tokens, messages).run();
}

} // namespace kelx::language
