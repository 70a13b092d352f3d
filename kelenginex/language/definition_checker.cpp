// SPDX-License-Identifier: Apache-2.0
#include "language/definition_checker.h"

#include "catalog/type_names.h"
#include "language/definition_values.h"
#include "language/protection.h"
#include "language/text.h"

namespace kelx::language {

namespace {

using ast::DefinitionKind;

bool isGathered(DefinitionKind kind) {
    switch (kind) {
    case DefinitionKind::Expression:
    case DefinitionKind::Recode:
    case DefinitionKind::Switch:
    case DefinitionKind::Number:
    case DefinitionKind::SampleRandom:
    case DefinitionKind::SampleSystematic:
        return false;
    default:
        return true;
    }
}

/// What a variable is made of is protected in it too, unless the program says that nothing is given
/// away.
void protect(const ast::Definition& ast, const Definition& definition) {
    std::optional<int>& sensitive = definition.variable->sensitive;
    if (ast.sensitive)
        sensitive = *ast.sensitive > 0 ? ast.sensitive : std::nullopt;
    else
        raise(sensitive, protectionOf(definition));
}

/// Numbers and truth values become each other, and numbers texts; texts stay texts.
bool converts(ValueType from, ValueType to) {
    const bool number = from == ValueType::Integer || from == ValueType::Real;
    return from == to || number || (from != ValueType::String && to != ValueType::String);
}

} // namespace

void DefinitionChecker::check(const ast::Definition& ast, const CheckedSettings& run,
                              BoundProgram& program) {
    const Entity* owner =
        ast.name.entity.empty() ? nullptr : expressions_.entity(ast.name.entity, ast.name.position);
    if (owner == nullptr)
        return expectNames(ast.name.entity, ast);
    Definition definition;
    definition.position = ast.position;
    definition.settings = run.settings;
    definition.text =
        trimmed(context_.program().substr(ast.span.begin, ast.span.end - ast.span.begin));
    context_.setDefining(owner->name, ast.name.name);
    const bool good = ast.complete && makeValues(ast, *owner, run, definition);
    const Expression* value = definition.value.get();
    const ValueType natural = value != nullptr ? value->type : naturalType(definition);
    const ValueType type = ast.type.value_or(good ? natural : ValueType::Integer);
    definition.variable = variables_.make(ast, *owner, type);
    context_.setDefining("", "");
    if (!good || !checkType(ast, natural))
        return expectNames(owner->name, ast);
    definition.variable->size = sizeFor(type, value);
    definition.otherwise = variables_.otherwise(ast, *definition.variable);
    protect(ast, definition);
    definition.save = variables_.save(ast, *definition.variable);
    context_.define(*definition.variable);
    program.definitions.push_back(std::move(definition));
}

void DefinitionChecker::expectNames(const std::string& entity, const ast::Definition& ast) {
    context_.expectName(entity, ast.name.name);
    if (ast.alias)
        context_.expectName(entity, *ast.alias);
}

bool DefinitionChecker::makeValues(const ast::Definition& ast, const Entity& owner,
                                   const CheckedSettings& run, Definition& into) {
    return isGathered(ast.kind) ? aggregates_.make(ast, owner, run, into)
                                : makeExpression(ast, owner, into);
}

bool DefinitionChecker::makeExpression(const ast::Definition& ast, const Entity& owner,
                                       Definition& into) {
    into.value = DefinitionValues(context_, expressions_, ast, owner).make();
    bool good = into.value != nullptr;
    if (ast.weight != nullptr && ast.kind != DefinitionKind::Number) {
        context_.report(Error::MisplacedClause, ast.weightPosition,
                        {"WEIGHT", "it belongs to what gathers records, such as COUNT or SUM"});
        good = false;
    }
    return (ast.filter == nullptr || addFilter(*ast.filter, owner, into)) && good;
}

/// One on an entity below keeps the records that have a passing one, as for tables.
bool DefinitionChecker::addFilter(const ast::Node& node, const Entity& owner, Definition& into) {
    ExpressionPtr filter = expressions_.condition(node, "FILTER");
    if (filter == nullptr)
        return false;
    const Entity* about = filter->entity;
    const bool above = about == nullptr || about->isAncestorOf(owner);
    if (!above && !owner.isAncestorOf(*about)) {
        context_.report(Error::Branches, filter->position, {owner.name, about->name});
        return false;
    }
    if (!above)
        context_.report(Warning::FilterBelow, filter->position,
                        {about->name, owner.name, "filter"});
    into.filters.push_back(std::move(filter));
    return true;
}

bool DefinitionChecker::checkType(const ast::Definition& ast, ValueType natural) {
    const ValueType type = ast.type.value_or(natural);
    if (converts(natural, type))
        return true;
    const bool value = natural == ValueType::String && type != ValueType::Boolean;
    context_.report(Error::TypeConversion, ast.typePosition,
                    {natural == ValueType::String    ? "A text"
                     : natural == ValueType::Boolean ? "A condition"
                                                     : "A number",
                     catalog::typeName(type), value ? " VAL reads the number in a text." : ""});
    return false;
}

} // namespace kelx::language
