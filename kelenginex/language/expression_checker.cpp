// SPDX-License-Identifier: Apache-2.0
#include "language/expression_checker.h"

#include "language/text.h"

#include <algorithm>

namespace kelx::language {

namespace {

using ast::NodeKind;

bool isNumeric(ValueType type) {
    return type == ValueType::Integer || type == ValueType::Real;
}

ValueType typeOf(const Constant& constant) {
    constexpr ValueType types[] = {ValueType::Integer, ValueType::Real, ValueType::String,
                                   ValueType::Boolean};
    return types[constant.index()];
}

/// A truth value that is stored has a code, 0 or 1, which is as good as a number.
bool hasNumber(const Expression& expression) {
    return isNumeric(expression.type) || (expression.type == ValueType::Boolean &&
                                          expression.operation == Operation::VariableValue);
}

bool comparable(const Expression& left, const Expression& right) {
    if (isNumeric(left.type) || isNumeric(right.type))
        return hasNumber(left) && hasNumber(right);
    return left.type == right.type;
}

bool isOrder(Operation operation) {
    return operation != Operation::Equal && operation != Operation::NotEqual;
}

/// What to do about a number against a text: a constant can be written as the other kind.
std::string quoteHint(const Expression& left, const Expression& right) {
    const Expression& text = left.type == ValueType::String ? left : right;
    const Expression& number = &text == &left ? right : left;
    if (text.type != ValueType::String || !isNumeric(number.type))
        return "";
    if (text.operation == Operation::Constant)
        return " Leave out the quotes.";
    if (number.operation != Operation::Constant)
        return "";
    return text.operation == Operation::CompoundCode ? " Put the code in quotes."
                                                     : " Put the number in quotes.";
}

const char* describe(Parameter parameter) {
    switch (parameter) {
    case Parameter::Number:
        return "a number";
    case Parameter::Whole:
        return "a whole number";
    case Parameter::Text:
        return "a text";
    case Parameter::Variable:
        return "a variable";
    default:
        return "an entity";
    }
}

bool accepts(Parameter parameter, ValueType type) {
    switch (parameter) {
    case Parameter::Number:
        return isNumeric(type);
    case Parameter::Whole:
        return type == ValueType::Integer;
    case Parameter::Text:
        return type == ValueType::String;
    default:
        return true;
    }
}

bool isAbove(const Constant& low, const Constant& high) {
    if (const auto* text = std::get_if<std::string>(&low))
        return std::holds_alternative<std::string>(high) && *text > std::get<std::string>(high);
    const auto number = [](const Constant& c) {
        const auto* integer = std::get_if<std::int64_t>(&c);
        return integer != nullptr ? static_cast<long double>(*integer)
                                  : static_cast<long double>(std::get<double>(c));
    };
    return !std::holds_alternative<std::string>(high) && number(low) > number(high);
}

/// As a sentence begins.
std::string capitalized(std::string text) {
    text.replace(0, 1, upperCase(text.substr(0, 1)));
    return text;
}

std::string countOf(std::size_t arguments) {
    return std::to_string(arguments) + (arguments == 1 ? " argument" : " arguments");
}

std::unique_ptr<Expression> make(Operation operation, ValueType type, Position position) {
    auto expression = std::make_unique<Expression>();
    expression->operation = operation;
    expression->type = type;
    expression->position = position;
    return expression;
}

} // namespace

const char* describe(ValueType type) {
    switch (type) {
    case ValueType::String:
        return "a text";
    case ValueType::Boolean:
        return "a condition";
    default:
        return "a number";
    }
}

bool lower(const Entity*& entity, const Entity* other) {
    if (entity == nullptr || other == nullptr || entity->isAncestorOf(*other)) {
        entity = other == nullptr ? entity : other;
        return true;
    }
    return other->isAncestorOf(*entity);
}

ExpressionPtr ExpressionChecker::finished(Built&& built, std::string text) {
    if (built == nullptr)
        return nullptr;
    auto expression = std::make_shared<Expression>(std::move(*built));
    built.reset();
    expression->text = std::move(text);
    return expression;
}

std::string ExpressionChecker::source(ast::Span span) const {
    return simplified(context_.program().substr(span.begin, span.end - span.begin));
}

ExpressionPtr ExpressionChecker::condition(const ast::Node& node, const std::string& clause) {
    Built built = check(node);
    if (built != nullptr && built->type != ValueType::Boolean) {
        context_.report(Error::NotACondition, node.position, {clause, describe(built->type)});
        return nullptr;
    }
    return finished(std::move(built), source(node.span));
}

ExpressionPtr ExpressionChecker::number(const ast::Node& node, const std::string& clause) {
    Built built = check(node);
    if (built != nullptr && !hasNumber(*built)) {
        context_.report(Error::NotANumber, node.position, {clause, describe(built->type)});
        return nullptr;
    }
    return finished(std::move(built), source(node.span));
}

ExpressionPtr ExpressionChecker::measure(const ast::Node& node, const std::string& clause) {
    Built built = check(node);
    if (built != nullptr && built->type == ValueType::String) {
        context_.report(Error::NotANumber, node.position, {clause, describe(built->type)});
        return nullptr;
    }
    return finished(std::move(built), source(node.span));
}

ExpressionPtr ExpressionChecker::recordNumber(const Entity& entity, Position position) {
    Built built = make(Operation::RecordNumber, ValueType::Integer, position);
    built->entity = built->codeEntity = &entity;
    return finished(std::move(built), entity.name);
}

ExpressionPtr ExpressionChecker::variable(const ast::Name& name) {
    return finished(checkName(name, name.position), source(name.span));
}

ExpressionPtr ExpressionChecker::variable(const Variable& variable, Position position) {
    return finished(value(variable, position), variable.fullName());
}

const Entity* ExpressionChecker::entity(const std::string& name, Position position) {
    const Entity* found = context_.names().entity(name);
    if (found == nullptr)
        context_.report(
            Error::UnknownEntity, position,
            {inQuotes(name), context_.wantsHints() ? context_.names().similarEntity(name) : ""});
    return found;
}

ExpressionChecker::Built ExpressionChecker::check(const ast::Node& node) {
    switch (node.kind) {
    case NodeKind::Constant:
        return checkConstant(node);
    case NodeKind::Name:
        return checkName(node.name, node.position);
    case NodeKind::Call:
        return checkCall(node);
    default:
        return checkOperation(node);
    }
}

ExpressionChecker::Built ExpressionChecker::checkConstant(const ast::Node& node) {
    Built built = make(Operation::Constant, typeOf(node.constant), node.position);
    built->constant = node.constant;
    return built;
}

void ExpressionChecker::reportUnknown(const ast::Name& name, const std::string& owner,
                                      const std::string& hint) {
    const std::string& entity = name.entity;
    if (context_.isExpected(owner, name.name))
        return;
    const bool number = entity.empty() && name.name[0] >= '0' && name.name[0] <= '9';
    if (number) {
        context_.report(Error::BadNumber, name.position, {inQuotes(name.name)});
    } else if (context_.isDefining(owner, name.name)) {
        context_.report(Error::SelfReference, name.namePosition, {inQuotes(name.name)});
        context_.expectDefining();
    } else {
        context_.report(
            Error::UnknownVariable, name.namePosition,
            {entity.empty() ? inQuotes(name.name) : inQuotes(name.name) + " in " + entity, hint});
    }
}

const Variable* ExpressionChecker::find(const ast::Name& name) {
    if (name.entity.empty())
        return findAlone(name);
    if (context_.isExpected(name.entity, name.name))
        return nullptr;
    const Entity* owner = entity(name.entity, name.position);
    if (owner == nullptr)
        return nullptr;
    const Variable* found = context_.names().variable(*owner, name.name);
    if (found == nullptr)
        reportUnknown(name, owner->name,
                      context_.wantsHints() ? context_.names().similarVariable(*owner, name.name)
                                            : "");
    return found;
}

const Variable* ExpressionChecker::findAlone(const ast::Name& name) {
    const auto& all = context_.names().variables(name.name);
    if (all.size() == 1)
        return all.front();
    if (all.size() > 1) {
        std::string choices;
        for (const Variable* variable : all)
            choices += (choices.empty() ? "" : ", ") + variable->fullName();
        context_.report(Error::AmbiguousName, name.position, {inQuotes(name.name), choices});
        return nullptr;
    }
    const Entity* entity = context_.names().entity(name.name);
    if (entity == nullptr) {
        reportUnknown(name, "",
                      context_.wantsHints() ? context_.names().similarVariable(name.name) : "");
        return nullptr;
    }
    const Variable* example = entity->codeVar != nullptr  ? entity->codeVar
                              : entity->variables.empty() ? nullptr
                                                          : entity->variables.front().get();
    context_.report(Error::EntityNotVariable, name.position,
                    {name.name, example != nullptr ? example->fullName() : entity->name + ".NAME"});
    return nullptr;
}

ExpressionChecker::Built ExpressionChecker::checkName(const ast::Name& name, Position position) {
    const Variable* variable = find(name);
    if (variable == nullptr)
        return nullptr;
    return value(*variable, position);
}

ExpressionChecker::Built ExpressionChecker::value(const Variable& variable, Position position) {
    if (!context_.checkData(variable, position))
        return nullptr;
    Built built = make(Operation::VariableValue, context_.typeOf(variable), position);
    built->variable = &variable;
    built->entity = variable.entity;
    return built;
}

ExpressionChecker::Built ExpressionChecker::checkOperation(const ast::Node& node) {
    switch (node.operation) {
    case Operation::And:
    case Operation::Or:
    case Operation::Not:
        return checkLogic(node);
    case Operation::In:
        return checkIn(node);
    case Operation::Add:
    case Operation::Subtract:
    case Operation::Multiply:
    case Operation::Divide:
    case Operation::Negate:
        return checkArithmetic(node);
    default:
        return checkComparison(node);
    }
}

/// Takes over an argument and its entity.
bool ExpressionChecker::append(Expression& to, Built argument) {
    const Entity* entity = to.entity;
    if (!lower(entity, argument->entity)) {
        context_.report(Error::Branches, argument->position,
                        {to.entity->name, argument->entity->name});
        return false;
    }
    to.entity = entity;
    to.arguments.push_back(std::move(argument));
    return true;
}

ExpressionChecker::Built ExpressionChecker::checkLogic(const ast::Node& node) {
    Built built = make(node.operation, ValueType::Boolean, node.position);
    bool good = true;
    for (const ast::NodePtr& part : node.arguments) {
        Built argument = check(*part);
        if (argument != nullptr && argument->type != ValueType::Boolean) {
            context_.report(Error::OperandType, part->position,
                            {node.operatorText, "conditions", describe(argument->type)});
            argument = nullptr;
        }
        good = argument != nullptr && append(*built, std::move(argument)) && good;
    }
    if (!good)
        return nullptr;
    return built;
}

ExpressionChecker::Built ExpressionChecker::checkArithmetic(const ast::Node& node) {
    Built built = make(node.operation, ValueType::Integer, node.position);
    bool good = true;
    for (const ast::NodePtr& part : node.arguments) {
        Built argument = check(*part);
        if (argument != nullptr && !isNumeric(argument->type)) {
            context_.report(Error::OperandType, part->position,
                            {inQuotes(node.operatorText), "numbers", describe(argument->type)});
            argument = nullptr;
        }
        if (argument != nullptr && argument->type == ValueType::Real)
            built->type = ValueType::Real;
        good = argument != nullptr && append(*built, std::move(argument)) && good;
    }
    if (node.operation == Operation::Divide)
        built->type = ValueType::Real;
    if (!good)
        return nullptr;
    return built;
}

/// The entity that a name alone stands for, null for anything else.
const Entity* ExpressionChecker::entityAlone(const ast::Node& node) const {
    if (node.kind != NodeKind::Name || !node.name.entity.empty())
        return nullptr;
    return context_.names().entity(node.name.name);
}

/// Against a text, the name of an entity is its compound code.
ExpressionChecker::Built ExpressionChecker::comparand(const ast::Node& node, bool withText) {
    const Entity* alone = entityAlone(node);
    const bool onlyEntity = alone != nullptr && context_.names().variables(node.name.name).empty();
    if (alone != nullptr && (withText || onlyEntity))
        return compoundCode(*alone, node.position);
    return check(node);
}

ExpressionChecker::Built ExpressionChecker::checkComparison(const ast::Node& node) {
    const ast::Node& leftNode = *node.arguments[0];
    const ast::Node& rightNode = *node.arguments[1];
    Built left, right;
    if (entityAlone(leftNode) != nullptr) {
        right = check(rightNode);
        left = comparand(leftNode, right != nullptr && right->type == ValueType::String);
    } else {
        left = check(leftNode);
        right = comparand(rightNode, left != nullptr && left->type == ValueType::String);
    }
    if (left == nullptr || right == nullptr)
        return nullptr;
    if (!comparable(*left, *right)) {
        context_.report(
            Error::CompareTypes, rightNode.position,
            {capitalized(describe(left->type)), describe(right->type), quoteHint(*left, *right)});
        return nullptr;
    }
    if (isOrder(node.operation) && left->type == ValueType::Boolean && left->type == right->type) {
        context_.report(Error::CompareTypes, rightNode.position,
                        {capitalized(describe(left->type)), "another by " + node.operatorText,
                         " Use = or <>, or compare a variable with 0 or 1."});
        return nullptr;
    }
    Built built = make(node.operation, ValueType::Boolean, node.position);
    const bool good = append(*built, std::move(left)) && append(*built, std::move(right));
    if (!good)
        return nullptr;
    return built;
}

ExpressionChecker::Built ExpressionChecker::checkIn(const ast::Node& node) {
    const bool texts = std::any_of(
        node.intervals.begin(), node.intervals.end(), [](const ast::Interval& interval) {
            const auto& end = interval.bounds.low ? interval.bounds.low : interval.bounds.high;
            return end && std::holds_alternative<std::string>(*end);
        });
    Built operand = comparand(*node.arguments[0], texts);
    if (operand == nullptr)
        return nullptr;
    Built built = make(Operation::In, ValueType::Boolean, node.position);
    bool good = true;
    for (const ast::Interval& interval : node.intervals) {
        good = checkInterval(interval, *operand) && good;
        built->intervals.push_back(interval.bounds);
    }
    if (!append(*built, std::move(operand)) || !good)
        return nullptr;
    return built;
}

bool ExpressionChecker::checkInterval(const ast::Interval& interval, const Expression& operand) {
    for (const auto& end : {interval.bounds.low, interval.bounds.high}) {
        if (!end)
            continue;
        const Built constant = make(Operation::Constant, typeOf(*end), interval.position);
        if (comparable(operand, *constant))
            continue;
        context_.report(Error::CompareTypes, interval.position,
                        {capitalized(describe(operand.type)), describe(constant->type),
                         quoteHint(operand, *constant)});
        return false;
    }
    const auto& [low, high] = interval.bounds;
    if (low && high && isAbove(*low, *high))
        context_.report(Warning::EmptyInterval, interval.position,
                        {std::string(context_.program().substr(
                            interval.span.begin, interval.span.end - interval.span.begin))});
    return true;
}

ExpressionChecker::Built ExpressionChecker::compoundCode(const Entity& entity, Position position) {
    bool found = false;
    for (const Entity* level = &entity; level != nullptr; level = level->parent) {
        if (level->codeVar == nullptr)
            continue;
        found = true;
        if (!context_.checkData(*level->codeVar, position))
            return nullptr;
    }
    if (!found) {
        context_.report(Error::NoCode, position, {entity.name});
        return nullptr;
    }
    Built built = make(Operation::CompoundCode, ValueType::String, position);
    built->entity = built->codeEntity = &entity;
    return built;
}

ExpressionChecker::Built ExpressionChecker::checkCall(const ast::Node& node) {
    const FunctionEntry* function = findFunction(node.name.name);
    if (function == nullptr) {
        std::vector<std::string> known;
        for (const FunctionEntry& entry : functionTable())
            known.emplace_back(entry.name);
        const std::string hint =
            context_.wantsHints() ? didYouMean(nearest(node.name.name, known)) : "";
        context_.report(Error::UnknownFunction, node.position, {inQuotes(node.name.name), hint});
        return nullptr;
    }
    if (node.arguments.size() != function->parameters.size()) {
        context_.report(Error::ArgumentCount, node.position,
                        {function->name, function->form, countOf(node.arguments.size())});
        return nullptr;
    }
    if (function->parameters[0] == Parameter::Entity)
        return checkArgument(*node.arguments[0], *function, 0);
    Built built = make(Operation::Function, function->result, node.position);
    built->function = function->name;
    bool good = true;
    for (std::size_t i = 0; i < node.arguments.size(); ++i) {
        Built argument = checkArgument(*node.arguments[i], *function, i);
        good = argument != nullptr && append(*built, std::move(argument)) && good;
    }
    if (!good)
        return nullptr;
    if (built->type == ValueType::None)
        built->type = built->arguments[0]->type;
    return built;
}

ExpressionChecker::Built ExpressionChecker::checkArgument(const ast::Node& node,
                                                          const FunctionEntry& function,
                                                          std::size_t index) {
    const Parameter parameter = function.parameters[index];
    const bool name = node.kind == NodeKind::Name;
    if (parameter == Parameter::Entity && name && node.name.entity.empty()) {
        const Entity* found = entity(node.name.name, node.position);
        if (found == nullptr)
            return nullptr;
        return compoundCode(*found, node.position);
    }
    const bool value = parameter != Parameter::Entity && parameter != Parameter::Variable;
    Built built;
    if (value || (name && parameter == Parameter::Variable)) {
        built = check(node);
        if (built == nullptr || accepts(parameter, built->type))
            return built;
    }
    context_.report(Error::ArgumentType, node.position,
                    {std::to_string(index + 1), function.name, describe(parameter)});
    return nullptr;
}

} // namespace kelx::language
