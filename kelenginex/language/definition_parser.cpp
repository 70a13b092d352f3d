// SPDX-License-Identifier: Apache-2.0
#include "language/definition_parser.h"

#include "language/text.h"

#include <algorithm>
#include <limits>

namespace kelx::language {

namespace {

using ast::DefinitionKind;

constexpr unsigned tableOrRun = isTableClause | isRunClause;

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

DefinitionKind kindOf(Keyword keyword) {
    switch (keyword) {
    case Keyword::Count:
        return DefinitionKind::Count;
    case Keyword::Sum:
        return DefinitionKind::Sum;
    case Keyword::Average:
        return DefinitionKind::Average;
    case Keyword::Median:
        return DefinitionKind::Median;
    case Keyword::Minimum:
        return DefinitionKind::Minimum;
    case Keyword::Maximum:
        return DefinitionKind::Maximum;
    case Keyword::Recode:
        return DefinitionKind::Recode;
    case Keyword::Switch:
        return DefinitionKind::Switch;
    case Keyword::Number:
        return DefinitionKind::Number;
    case Keyword::Sample:
        return DefinitionKind::SampleRandom;
    case Keyword::Ratio:
        return DefinitionKind::Ratio;
    case Keyword::Fraction:
        return DefinitionKind::Fraction;
    case Keyword::Indicator:
        return DefinitionKind::Indicator;
    default:
        return DefinitionKind::Expression;
    }
}

/// A word before another is no expression, but may be a misspelt kind.
bool looksLikeKind(const Token& word, const Token& next) {
    return word.kind == TokenKind::Word && word.is(Keyword::None) && !word.reserved &&
           next.kind == TokenKind::Word && next.is(Keyword::None) &&
           !nearest(word.text, wordsFor(isDefineKind)).empty();
}

bool takesElse(const ast::Definition& definition) {
    return definition.kind == DefinitionKind::Recode || definition.kind == DefinitionKind::Switch ||
           !definition.complete;
}

} // namespace

void DefinitionParser::parse(ast::Program& program) {
    clauses_.startCommand();
    definition_ = {};
    const Token& word = cursor_.take();
    definition_.position = word.position;
    definition_.span.begin = word.begin;
    bool styled = false;
    while (cursor_.peek().is(Keyword::Tablestyle)) {
        styled = readStyle(program) || styled;
        const Token& next = cursor_.peek();
        if (styled && (next.kind != TokenKind::Word || next.reserved))
            return;
    }
    cursor_.setClauses(tableOrRun | isDefineClause);
    definition_.complete = readName() && readKind();
    if (definition_.name.name.empty())
        cursor_.skipToCommand();
    else if (!definition_.complete)
        cursor_.skipToClause();
    definition_.kindSpan.end = cursor_.lastEnd();
    readClauses(program);
    definition_.span.end = cursor_.lastEnd();
    cursor_.setClauses(tableOrRun);
    if (!definition_.name.name.empty())
        program.emplace_back(std::move(definition_));
}

bool DefinitionParser::readName() {
    const char* const expected = "the name of the new variable, as in Entity.Name";
    const Token& first = cursor_.peek();
    std::optional<ast::Name> name = expressions_.parseName(expected, false);
    if (!name)
        return false;
    definition_.name = std::move(*name);
    if (!definition_.name.entity.empty())
        return true;
    cursor_.report(Error::Unexpected, first.position, {describe(first), expected, ""});
    return false;
}

bool DefinitionParser::expect(Keyword keyword, const char* what) {
    if (cursor_.takeKeyword(keyword))
        return true;
    cursor_.unexpected(what, wordsOf(keyword));
    return false;
}

bool DefinitionParser::readKind() {
    cursor_.takeKeyword(Keyword::As);
    const Token& word = cursor_.peek();
    definition_.kindPosition = word.position;
    definition_.kindSpan.begin = word.begin;
    definition_.kind = kindOf(word.keyword);
    if (definition_.kind == DefinitionKind::Expression)
        return readExpression();
    definition_.kindWord = upperCase(cursor_.take().text);
    switch (definition_.kind) {
    case DefinitionKind::Count:
    case DefinitionKind::Number:
        return readEntity();
    case DefinitionKind::Recode:
        return readRecode();
    case DefinitionKind::Switch:
        return readSwitch();
    case DefinitionKind::SampleRandom:
        return readSample();
    case DefinitionKind::Ratio:
        return readShare();
    case DefinitionKind::Fraction:
        return readFraction();
    case DefinitionKind::Indicator:
        return readIndicator();
    default:
        cursor_.takeKeyword(Keyword::Of);
        return clauses_.readExpression(definition_.value);
    }
}

bool DefinitionParser::readExpression() {
    const Token& word = cursor_.peek();
    const bool nothing = cursor_.atEnd() || cursor_.atCommand() || cursor_.atClause();
    if (nothing || looksLikeKind(word, cursor_.peek(1))) {
        cursor_.unexpected("an expression, or how the variable is made, such as COUNT or RECODE",
                           wordsFor(isDefineKind));
        return false;
    }
    return clauses_.readExpression(definition_.value);
}

bool DefinitionParser::readEntity() {
    cursor_.takeKeyword(Keyword::Of);
    const char* const expected =
        definition_.kind == DefinitionKind::Count ? "the entity to count" : "an entity";
    const Token& first = cursor_.peek();
    definition_.of = expressions_.parseName(expected, false);
    if (!definition_.of)
        return false;
    if (definition_.of->entity.empty())
        return true;
    cursor_.report(Error::Unexpected, first.position, {"a variable", expected, ""});
    return false;
}

bool DefinitionParser::readRecode() {
    cursor_.takeKeyword(Keyword::Of);
    definition_.of = expressions_.parseName("the variable to recode", false);
    if (!definition_.of)
        return false;
    do {
        if (!readRecodeItem())
            return false;
    } while (cursor_.peek().isSymbol("("));
    return true;
}

bool DefinitionParser::readRecodeItem() {
    if (!cursor_.takeSymbol("(")) {
        cursor_.unexpected("an interval and its new value, as in (1 : 9 = 2)");
        return false;
    }
    std::vector<ast::Interval> intervals;
    if (!expressions_.parseInterval(intervals))
        return false;
    if (!cursor_.takeSymbol("=")) {
        cursor_.unexpected("\"=\" and the new value");
        return false;
    }
    ast::Assignment assignment;
    assignment.interval = intervals.front();
    if (!clauses_.readExpression(assignment.value))
        return false;
    if (!cursor_.takeSymbol(")")) {
        cursor_.unexpected("\")\"");
        return false;
    }
    definition_.assignments.push_back(std::move(assignment));
    return true;
}

bool DefinitionParser::readSwitch() {
    do {
        ast::Assignment assignment;
        if (!expect(Keyword::Case, "CASE and a condition") ||
            !clauses_.readExpression(assignment.condition) ||
            !expect(Keyword::Assign, "an operator, or ASSIGN and the value") ||
            !clauses_.readExpression(assignment.value))
            return false;
        definition_.assignments.push_back(std::move(assignment));
    } while (cursor_.peek().is(Keyword::Case));
    return true;
}

bool DefinitionParser::readSample() {
    if (cursor_.takeKeyword(Keyword::Systematic)) {
        definition_.kind = DefinitionKind::SampleSystematic;
    } else if (!cursor_.takeKeyword(Keyword::Random)) {
        cursor_.unexpected("RANDOM or SYSTEMATIC", {"RANDOM", "SYSTEMATIC"});
        return false;
    }
    const std::optional<int> number =
        clauses_.readWhole("SAMPLE", 1, std::numeric_limits<int>::max());
    definition_.sample = number.value_or(1);
    return number.has_value();
}

bool DefinitionParser::readShare() {
    std::optional<ast::Name> name = expressions_.parseName("the variable to look at", false);
    if (!name)
        return false;
    definition_.shares.push_back({std::move(*name), {}});
    if (cursor_.peek().isSymbol("("))
        return readRanges(definition_.shares.back().intervals);
    cursor_.unexpected("the values that count, as in (1 : 3) (5 : 5)");
    return false;
}

bool DefinitionParser::readFraction() {
    return expect(Keyword::Num, "NUM, a variable and its values") && readShare() &&
           expect(Keyword::Denom, "DENOM, a variable and its values") && readShare();
}

bool DefinitionParser::readIndicator() {
    return expect(Keyword::Num, "NUM and an expression") &&
           clauses_.readExpression(definition_.value) &&
           expect(Keyword::Denom, "an operator, or DENOM and an expression") &&
           clauses_.readExpression(definition_.denominator);
}

void DefinitionParser::readClauses(ast::Program& program) {
    while (!cursor_.atEnd() && !cursor_.atCommand()) {
        if (!readClause(program))
            cursor_.skipToClause();
    }
}

bool DefinitionParser::readClause(ast::Program& program) {
    const Token& clause = cursor_.peek();
    const unsigned places = placesOf(clause.keyword);
    if ((places & (isDefineClause | tableOrRun)) == 0) {
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

/// A word is a code only where its label follows.
bool DefinitionParser::atValueLabel() const {
    const Token& token = cursor_.peek();
    if (token.kind == TokenKind::Word)
        return !cursor_.atClause() && !cursor_.atCommand() &&
               cursor_.peek(1).kind == TokenKind::Text;
    return token.kind == TokenKind::Number || token.kind == TokenKind::Text || token.isSymbol("-");
}

bool DefinitionParser::readValueLabels() {
    do {
        std::optional<ast::Literal> value;
        std::optional<std::string> label;
        if (!readLiteral(value, "a code and its label, as in 1 \"Yes\"") ||
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
        const std::optional<Constant> number = numberOf(token.text);
        if (!number) {
            cursor_.report(Error::NumberTooLarge, token.position, {inQuotes(token.text)});
            return false;
        }
        literal.constant = minus ? negated(*number) : *number;
    }
    into = std::move(literal);
    return true;
}

bool DefinitionParser::readAlias() {
    const Token& token = cursor_.peek();
    const bool word = token.kind == TokenKind::Word && !token.reserved;
    if (!word && token.kind != TokenKind::Text) {
        cursor_.unexpected("a short name that is no word of the language");
        return false;
    }
    definition_.aliasPosition = token.position;
    definition_.alias = cursor_.take().value();
    return true;
}

/// Without quotes it goes to the end of the line or to the next clause.
bool DefinitionParser::readGroup() {
    const Token& token = cursor_.peek();
    if (token.kind == TokenKind::Text)
        return clauses_.readText(definition_.group, "");
    const bool word =
        token.kind == TokenKind::Word && !token.firstOnLine &&
        (!token.reserved || cursor_.peek(1).firstOnLine || cursor_.peek(1).kind == TokenKind::End);
    if (!word && token.kind != TokenKind::Number) {
        cursor_.unexpected("the name of a group");
        return false;
    }
    std::string& group = definition_.group.emplace(cursor_.take().text);
    while (!cursor_.atEnd() && !cursor_.peek().firstOnLine && !cursor_.atClause() &&
           !cursor_.atCommand()) {
        group += cursor_.peek().begin > cursor_.lastEnd() ? " " : "";
        group += cursor_.take().text;
    }
    return true;
}

bool DefinitionParser::readSave() {
    ast::SaveFile save;
    const char* const expected = "the name of a file in quotes";
    save.position = cursor_.peek().position;
    std::optional<std::string> file;
    if (!clauses_.readText(file, expected))
        return false;
    if (file->empty()) {
        cursor_.report(Error::Unexpected, save.position, {"an empty text", expected, ""});
        return false;
    }
    save.file = std::move(*file);
    save.overwrite = cursor_.takeKeyword(Keyword::Overwrite);
    definition_.save = std::move(save);
    return true;
}

bool DefinitionParser::readSensitive() {
    const std::optional<int> number =
        clauses_.readWhole("SENSITIVE", 0, std::numeric_limits<int>::max());
    if (number.value_or(0) > 0)
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
