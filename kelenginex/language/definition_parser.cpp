// SPDX-License-Identifier: Apache-2.0
#include "language/definition_parser.h"

#include "language/text.h"

#include <limits>

namespace kelx::language {

namespace {

using ast::DefinitionKind;

constexpr unsigned tableOrRun = isTableClause | isRunClause;

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
        clauses_.readCount("SAMPLE", 1, std::numeric_limits<int>::max());
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

} // namespace kelx::language
