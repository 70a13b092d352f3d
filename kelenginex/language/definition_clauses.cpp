// SPDX-License-Identifier: Apache-2.0
#include "language/definition_parser.h"

#include "language/text.h"

#include <limits>

namespace kelx::language {

namespace {

using ast::DefinitionKind;

struct TypeName {
    const char* word;
    ValueType type;
};

constexpr TypeName typeNames[] = {{"INTEGER", ValueType::Integer},
                                  {"REAL", ValueType::Real},
                                  {"STRING", ValueType::String},
                                  {"BOOL", ValueType::Boolean},
                                  {"BOOLEAN", ValueType::Boolean}};

std::optional<ValueType> typeOf(const Token& token) {
    const std::string word = upperCase(token.text);
    for (const TypeName& entry : typeNames) {
        if (word == entry.word)
            return entry.type;
    }
    return std::nullopt;
}

std::vector<std::string> typeWords() {
    std::vector<std::string> words;
    for (const TypeName& entry : typeNames)
        words.emplace_back(entry.word);
    return words;
}

bool takesElse(const ast::Definition& definition) {
    return definition.kind == DefinitionKind::Recode || definition.kind == DefinitionKind::Switch ||
           !definition.complete;
}

} // namespace

void DefinitionParser::readClauses(ast::Program& program) {
    while (!cursor_.atEnd() && !cursor_.atCommand()) {
        if (!readClause(program))
            cursor_.skipToClause();
    }
}

bool DefinitionParser::readClause(ast::Program& program) {
    const Token& clause = cursor_.peek();
    const unsigned places = placesOf(clause.keyword);
    if ((places & (isDefineClause | isTableClause | isRunClause)) == 0) {
        std::vector<std::string> words = wordsFor(isDefineClause);
        for (std::string& word : wordsFor(startsCommand))
            words.push_back(std::move(word));
        cursor_.unexpected("a clause of DEFINE, such as TYPE or VARLABEL, or a new command", words);
        cursor_.take();
        return false;
    }
    if ((places & isDefineClause) == 0)
        return clauses_.misplaced((places & isTableClause) != 0 ? "it belongs to a table"
                                                                : "it belongs to RUNDEF");
    if (clause.is(Keyword::Else) && !takesElse(definition_))
        return clauses_.misplaced("it belongs to RECODE and SWITCH; DEFAULT sets the value that "
                                  "stands where there is no other");
    cursor_.take();
    return clauses_.firstTime(clause) && readNewClause(clause, program);
}

bool DefinitionParser::readNewClause(const Token& clause, ast::Program& program) {
    ast::Definition& d = definition_;
    switch (clause.keyword) {
    case Keyword::Else:
        return clauses_.readExpression(d.otherwise);
    case Keyword::Weight:
        d.weightPosition = clause.position;
        return clauses_.readExpression(d.weight);
    case Keyword::Filter:
        return clauses_.readExpression(d.filter);
    case Keyword::Type:
        return readType(clause);
    case Keyword::Decimals:
        return clauses_.readDecimals(d.decimals);
    case Keyword::Range:
        return readRanges(d.ranges);
    case Keyword::Varlabel:
        return clauses_.readText(d.label, "the label in quotes");
    case Keyword::Valuelabels:
        return readValueLabels();
    case Keyword::Doc:
        return clauses_.readText(d.documentation, "the documentation in quotes");
    case Keyword::Default:
        return readLiteral(d.defaultValue, "the value that stands where there is no other");
    case Keyword::Missing:
        return readLiteral(d.missing, "the code for missing values");
    case Keyword::Notapp:
        return readLiteral(d.notapp, "the code for values that do not apply");
    case Keyword::Sensitive:
        return readSensitive();
    case Keyword::Like:
        d.like = expressions_.parseName("the variable whose labels and codes to take over", false);
        return d.like.has_value();
    case Keyword::Save:
        return readSave();
    case Keyword::Alias:
        return readAlias();
    case Keyword::Group:
        return readGroup();
    default:
        return readStyle(program);
    }
}

bool DefinitionParser::readType(const Token& clause) {
    definition_.type = typeOf(cursor_.peek());
    if (!definition_.type) {
        cursor_.unexpected("INTEGER, REAL, STRING or BOOL", typeWords());
        return false;
    }
    definition_.typePosition = clause.position;
    cursor_.take();
    return true;
}

/// (1 : 3) (5 : 5), of which the parentheses may be left out where there is one.
bool DefinitionParser::readRanges(std::vector<ast::Interval>& intervals) {
    if (!cursor_.peek().isSymbol("("))
        return expressions_.parseInterval(intervals);
    while (cursor_.takeSymbol("(")) {
        do {
            if (!expressions_.parseInterval(intervals))
                return false;
        } while (cursor_.takeSymbol(","));
        if (!cursor_.takeSymbol(")")) {
            cursor_.unexpected("\",\" and more values, or \")\"");
            return false;
        }
    }
    return true;
}

/// A word is a code only where its label follows; MIN and the like too, which no text follows as
/// tables.
bool DefinitionParser::atCodeWord() const {
    const Token& token = cursor_.peek();
    const bool command = (placesOf(token.keyword) & startsAnywhere) != 0;
    return token.kind == TokenKind::Word && !token.is(Keyword::True) && !token.is(Keyword::False) &&
           !cursor_.atClause() && !command && cursor_.peek(1).kind == TokenKind::Text;
}

bool DefinitionParser::atValueLabel() const {
    const Token& token = cursor_.peek();
    if (token.kind == TokenKind::Word)
        return atCodeWord() || ((token.is(Keyword::True) || token.is(Keyword::False)) &&
                                cursor_.peek(1).kind == TokenKind::Text);
    return token.kind == TokenKind::Number || token.kind == TokenKind::Text || token.isSymbol("-");
}

bool DefinitionParser::readValueLabels() {
    do {
        std::optional<ast::Literal> value;
        std::optional<std::string> label;
        if (atCodeWord()) {
            const Token& word = cursor_.take();
            value = ast::Literal{std::string(word.text), std::string(word.text), word.position};
        }
        if ((!value && !readLiteral(value, "a code and its label, as in 1 \"Yes\"")) ||
            !clauses_.readText(label, ("the label of " + value->text + " in quotes").c_str()))
            return false;
        definition_.valueLabels.push_back({std::move(*value), std::move(*label)});
    } while (atValueLabel());
    return true;
}

bool DefinitionParser::readLiteral(std::optional<ast::Literal>& into, const char* what) {
    ast::Literal literal;
    literal.position = cursor_.peek().position;
    const bool minus = cursor_.takeSymbol("-");
    const Token& token = cursor_.peek();
    const bool truth = token.is(Keyword::True) || token.is(Keyword::False);
    const bool word = token.kind == TokenKind::Word && !token.reserved;
    const bool text = !minus && (token.kind == TokenKind::Text || word);
    if (token.kind != TokenKind::Number && !text && (minus || !truth)) {
        cursor_.unexpected(minus ? "a number" : what);
        return false;
    }
    cursor_.take();
    literal.text = (minus ? "-" : "") + token.value();
    literal.constant = literal.text;
    if (truth)
        literal.constant = token.is(Keyword::True);
    if (token.kind == TokenKind::Number) {
        const std::optional<Constant> number = expressions_.readNumber(token, minus);
        if (!number)
            return false;
        literal.constant = *number;
    }
    into = std::move(literal);
    return true;
}

bool DefinitionParser::readAlias() {
    const Token& token = cursor_.peek();
    const bool other = (placesOf(token.keyword) & (isDefineClause | startsAnywhere)) != 0;
    const bool word = token.kind == TokenKind::Word && !other;
    if (!word && token.kind != TokenKind::Text) {
        cursor_.unexpected("a short name that is no word of the language");
        return false;
    }
    definition_.aliasPosition = token.position;
    definition_.alias = cursor_.take().value();
    return true;
}

/// Without quotes, and with other clauses before it on its line, it goes to the end of the line or
/// to the next clause of DEFINE.
bool DefinitionParser::readGroup() {
    const Token& token = cursor_.peek();
    if (token.kind == TokenKind::Text || token.kind == TokenKind::Label)
        return clauses_.readText(definition_.group, "");
    const bool word =
        token.kind == TokenKind::Word && !token.firstOnLine &&
        (!token.reserved || cursor_.peek(1).firstOnLine || cursor_.peek(1).kind == TokenKind::End);
    if (!word && token.kind != TokenKind::Number) {
        cursor_.unexpected("the name of a group");
        return false;
    }
    std::string& group = definition_.group.emplace(cursor_.take().text);
    const auto atNext = [&] {
        return (placesOf(cursor_.peek().keyword) & (isDefineClause | startsCommand)) != 0;
    };
    while (!cursor_.atEnd() && !cursor_.peek().firstOnLine && !atNext()) {
        group += cursor_.peek().begin > cursor_.lastEnd() ? " " : "";
        group += cursor_.take().text;
    }
    return true;
}

bool DefinitionParser::readSave() {
    ast::SaveFile save;
    const char* const expected = "the name of a file in quotes";
    save.position = cursor_.peek().position;
    if (!cursor_.takeFileName(save.file, expected))
        return false;
    save.overwrite = cursor_.takeKeyword(Keyword::Overwrite);
    definition_.save = std::move(save);
    return true;
}

bool DefinitionParser::readSensitive() {
    const std::optional<int> number =
        clauses_.readCount("SENSITIVE", 0, std::numeric_limits<int>::max());
    definition_.sensitive = number;
    return number.has_value();
}

bool DefinitionParser::readStyle(ast::Program& program) {
    if (cursor_.peek().is(Keyword::Tablestyle))
        cursor_.take();
    std::optional<std::string> file;
    if (!clauses_.readText(file, "the name of a table style file in quotes"))
        return false;
    program.emplace_back(ast::StyleCommand{std::move(*file)});
    return true;
}

} // namespace kelx::language
