// SPDX-License-Identifier: Apache-2.0
#include "language/definition_values.h"

#include "language/text.h"

#include <cmath>

namespace kelx::language {

namespace {

using ast::DefinitionKind;
using Built = ExpressionChecker::Built;

Built make(Operation operation, ValueType type, Position position) {
    auto expression = std::make_unique<Expression>();
    expression->operation = operation;
    expression->type = type;
    expression->position = position;
    return expression;
}

Built makeConstant(Constant constant, ValueType type, Position position) {
    Built built = make(Operation::Constant, type, position);
    built->constant = std::move(constant);
    return built;
}

bool isNumeric(ValueType type) {
    return type == ValueType::Integer || type == ValueType::Real;
}

std::optional<Constant> wholeFor(const Constant& constant) {
    if (const auto* real = std::get_if<double>(&constant)) {
        constexpr double limit = 9.2e18;
        if (!(std::fabs(*real) < limit))
            return std::nullopt;
        return static_cast<std::int64_t>(std::llround(*real));
    }
    if (const auto* truth = std::get_if<bool>(&constant))
        return std::int64_t{*truth ? 1 : 0};
    return std::holds_alternative<std::string>(constant) ? std::nullopt
                                                         : std::optional<Constant>(constant);
}

std::optional<Constant> realFor(const Constant& constant) {
    if (std::holds_alternative<double>(constant))
        return constant;
    const std::optional<Constant> whole = wholeFor(constant);
    if (!whole)
        return std::nullopt;
    return static_cast<double>(std::get<std::int64_t>(*whole));
}

std::optional<Constant> truthFor(const Constant& constant) {
    if (std::holds_alternative<bool>(constant))
        return constant;
    const auto* whole = std::get_if<std::int64_t>(&constant);
    if (whole == nullptr || (*whole != 0 && *whole != 1))
        return std::nullopt;
    return *whole == 1;
}

/// A constant among the values of RECODE and SWITCH takes the type of the variable.
void convertConstant(Expression& value, ValueType type) {
    if (value.operation != Operation::Constant || type == ValueType::Integer)
        return;
    std::optional<Constant> converted;
    if (type == ValueType::Boolean)
        converted = truthFor(value.constant);
    else if (type == ValueType::Real)
        converted = realFor(value.constant);
    if (!converted)
        return;
    value.constant = *converted;
    value.type = type;
}

/// The type that holds values of both; None where there is none.
ValueType commonType(ValueType left, ValueType right) {
    if (left == right)
        return left;
    return isNumeric(left) && isNumeric(right) ? ValueType::Real : ValueType::None;
}

} // namespace

std::optional<Constant> constantFor(const ast::Literal& literal, ValueType type) {
    switch (type) {
    case ValueType::Integer:
        return wholeFor(literal.constant);
    case ValueType::Real:
        return realFor(literal.constant);
    case ValueType::Boolean:
        return truthFor(literal.constant);
    default:
        return literal.text;
    }
}

bool checkAbove(CheckerContext& context, const Expression& part, const Entity& entity,
                const std::string& what, const char* hint) {
    if (part.entity == nullptr || part.entity->isAncestorOf(entity))
        return true;
    if (entity.isAncestorOf(*part.entity))
        context.report(Error::BelowEntity, part.position,
                       {what, entity.name, part.entity->name, hint});
    else
        context.report(Error::Branches, part.position, {entity.name, part.entity->name});
    return false;
}

ExpressionPtr DefinitionValues::make() {
    Built built;
    switch (definition_.kind) {
    case DefinitionKind::Recode:
        built = recode();
        break;
    case DefinitionKind::Switch:
        built = switchOver();
        break;
    case DefinitionKind::Number:
        built = number();
        break;
    case DefinitionKind::SampleRandom:
    case DefinitionKind::SampleSystematic:
        built = sample();
        break;
    default:
        built = plain();
    }
    if (built == nullptr)
        return nullptr;
    const std::string what = definition_.kindWord.empty() ? "The expression" : definition_.kindWord;
    if (!checkAbove(context_, *built, owner_, what,
                    " COUNT, SUM and the like gather what lies below."))
        return nullptr;
    if (definition_.type == ValueType::String && isNumeric(built->type))
        built = toText(std::move(built));
    return expressions_.finished(std::move(built), expressions_.source(definition_.kindSpan));
}

Built DefinitionValues::toText(Built number) const {
    Built text = language::make(Operation::Function, ValueType::String, number->position);
    text->function = "STR";
    text->entity = number->entity;
    text->arguments.push_back(std::move(number));
    return text;
}

Built DefinitionValues::plain() {
    return definition_.value == nullptr ? nullptr : expressions_.check(*definition_.value);
}

Built DefinitionValues::recode() {
    Built tested = definition_.of
                       ? expressions_.checkName(*definition_.of, definition_.of->position)
                       : nullptr;
    Built built = language::make(Operation::Recode, ValueType::None, definition_.kindPosition);
    std::vector<Built> values;
    bool good = tested != nullptr;
    for (const ast::Assignment& assignment : definition_.assignments) {
        if (tested != nullptr)
            good = expressions_.checkInterval(assignment.interval, *tested) && good;
        built->intervals.push_back(assignment.interval.bounds);
        values.push_back(expressions_.check(*assignment.value));
    }
    good = good && expressions_.append(*built, std::move(tested));
    if (!addValues(*built, std::move(values)) || !good)
        return nullptr;
    return built;
}

Built DefinitionValues::switchOver() {
    Built built = language::make(Operation::Switch, ValueType::None, definition_.kindPosition);
    std::vector<Built> conditions, values;
    bool good = true;
    for (const ast::Assignment& assignment : definition_.assignments) {
        Built condition = expressions_.check(*assignment.condition);
        if (condition != nullptr && condition->type != ValueType::Boolean) {
            context_.report(Error::NotACondition, condition->position,
                            {"CASE", describe(condition->type)});
            condition = nullptr;
        }
        good = condition != nullptr && good;
        conditions.push_back(std::move(condition));
        values.push_back(expressions_.check(*assignment.value));
    }
    Built chosen = language::make(Operation::Switch, ValueType::None, definition_.kindPosition);
    good = addValues(*chosen, std::move(values)) && good;
    if (!good)
        return nullptr;
    built->type = chosen->type;
    for (std::size_t i = 0; i < chosen->arguments.size(); ++i) {
        if (i < conditions.size())
            good = expressions_.append(*built, std::move(conditions[i])) && good;
        good = expressions_.append(*built, std::move(chosen->arguments[i])) && good;
    }
    if (!good)
        return nullptr;
    return built;
}

/// The values and, behind them, that of ELSE.
bool DefinitionValues::addValues(Expression& to, std::vector<Built> values) {
    if (definition_.otherwise != nullptr)
        values.push_back(expressions_.check(*definition_.otherwise));
    bool good = true;
    for (const Built& value : values)
        good = value != nullptr && good;
    if (!good || !unify(to, values))
        return false;
    for (Built& value : values)
        good = expressions_.append(to, std::move(value)) && good;
    return good;
}

bool DefinitionValues::unify(Expression& to, std::vector<Built>& values) {
    for (Built& value : values) {
        if (definition_.type)
            convertConstant(*value, *definition_.type);
        if (definition_.type == ValueType::String && isNumeric(value->type))
            value = toText(std::move(value));
        const ValueType common =
            to.type == ValueType::None ? value->type : commonType(to.type, value->type);
        if (common == ValueType::None) {
            context_.report(Error::MixedValues, value->position,
                            {definition_.kindWord, describe(value->type)});
            return false;
        }
        to.type = common;
    }
    return true;
}

Built DefinitionValues::number() {
    const Entity* entity = expressions_.entity(definition_.of->name, definition_.of->position);
    if (entity == nullptr)
        return nullptr;
    if (entity == &owner_ || !entity->isAncestorOf(owner_)) {
        context_.report(Error::NumberEntity, definition_.of->position, {owner_.name, entity->name});
        return nullptr;
    }
    Built built = language::make(Operation::Number, ValueType::Integer, definition_.kindPosition);
    built->entity = &owner_;
    built->codeEntity = entity;
    if (definition_.weight != nullptr)
        context_.report(Warning::WeightIgnored, definition_.weightPosition);
    return built;
}

Built DefinitionValues::sample() {
    const bool random = definition_.kind == DefinitionKind::SampleRandom;
    Built built = random ? language::make(Operation::SampleRandom, ValueType::Integer,
                                          definition_.kindPosition)
                         : language::make(Operation::SampleSystematic, ValueType::Boolean,
                                          definition_.kindPosition);
    built->entity = &owner_;
    built->arguments.push_back(
        makeConstant(definition_.sample, ValueType::Integer, definition_.kindPosition));
    return built;
}

} // namespace kelx::language
