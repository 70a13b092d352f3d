// SPDX-License-Identifier: Apache-2.0
#include "language/definition_aggregates.h"

#include "language/definition_values.h"
#include "language/text.h"

namespace kelx::language {

namespace {

using ast::DefinitionKind;
using Kind = Aggregate::Kind;

Kind kindOf(DefinitionKind kind) {
    switch (kind) {
    case DefinitionKind::Average:
        return Kind::Average;
    case DefinitionKind::Median:
        return Kind::Median;
    case DefinitionKind::Minimum:
        return Kind::Minimum;
    case DefinitionKind::Maximum:
        return Kind::Maximum;
    default:
        return Kind::Sum;
    }
}

ast::NodePtr nodeOf(ast::NodeKind kind, const ast::Name& name) {
    auto node = std::make_unique<ast::Node>();
    node->kind = kind;
    node->position = name.position;
    node->span = name.span;
    return node;
}

ast::NodePtr nameNode(const ast::Name& name) {
    ast::NodePtr node = nodeOf(ast::NodeKind::Name, name);
    node->name = name;
    return node;
}

/// NOT MISSING(name) and the like.
ast::NodePtr notNode(const char* function, const ast::Name& name) {
    ast::NodePtr call = nodeOf(ast::NodeKind::Call, name);
    call->name.name = function;
    call->arguments.push_back(nameNode(name));
    ast::NodePtr node = nodeOf(ast::NodeKind::Operation, name);
    node->operation = Operation::Not;
    node->operatorText = "NOT";
    node->arguments.push_back(std::move(call));
    return node;
}

ast::NodePtr inNode(const ast::RangedVariable& part) {
    ast::NodePtr node = nodeOf(ast::NodeKind::Operation, part.name);
    node->operation = Operation::In;
    node->operatorText = "IN";
    node->intervals = part.intervals;
    node->arguments.push_back(nameNode(part.name));
    return node;
}

} // namespace

ValueType naturalType(const Definition& definition) {
    if (!definition.numerator)
        return ValueType::None;
    const Aggregate& aggregate = *definition.numerator;
    const bool whole = aggregate.value == nullptr || aggregate.value->type != ValueType::Real;
    switch (aggregate.kind) {
    case Kind::Minimum:
    case Kind::Maximum:
        return whole ? ValueType::Integer : ValueType::Real;
    case Kind::Count:
    case Kind::Sum:
        return whole && !definition.denominator && aggregate.weight == nullptr ? ValueType::Integer
                                                                               : ValueType::Real;
    default:
        return ValueType::Real;
    }
}

bool DefinitionAggregates::make(const ast::Definition& ast, const Entity& owner,
                                const CheckedSettings& run, Definition& into) {
    bool good = makeParts(ast, owner, into);
    ExpressionPtr weight;
    if (ast.weight != nullptr) {
        weight = expressions_.number(*ast.weight, "WEIGHT");
        good = weight != nullptr && good;
    }
    if (!good)
        return false;
    good = addOwnFilter(ast, into);
    for (std::optional<Aggregate>* part : {&into.numerator, &into.denominator}) {
        if (!*part)
            continue;
        good = addWeight(weight, **part) && good;
        if (ast.weight == nullptr && weighs(*run.settings, into))
            (*part)->weight = run.settings->weight;
        addSettings(run, **part);
    }
    return good;
}

bool DefinitionAggregates::makeParts(const ast::Definition& ast, const Entity& owner,
                                     Definition& into) {
    Aggregate& first = into.numerator.emplace();
    switch (ast.kind) {
    case DefinitionKind::Count:
        return count(*ast.of, owner, first);
    case DefinitionKind::Ratio: {
        if (!share(ast.shares[0], ast.kindWord, owner, first))
            return false;
        Aggregate& valid = into.denominator.emplace();
        valid.over = first.over;
        return addValid(ast.shares[0].name, first) && addValid(ast.shares[0].name, valid);
    }
    case DefinitionKind::Fraction: {
        const bool good = share(ast.shares[0], "NUM", owner, first);
        return share(ast.shares[1], "DENOM", owner, into.denominator.emplace()) && good;
    }
    case DefinitionKind::Indicator: {
        const bool good = gather(*ast.value, "NUM", owner, first);
        first.kind = Kind::Sum;
        return gather(*ast.denominator, "DENOM", owner, into.denominator.emplace()) && good;
    }
    default:
        first.kind = kindOf(ast.kind);
        return gather(*ast.value, ast.kindWord, owner, first);
    }
}

bool DefinitionAggregates::count(const ast::Name& name, const Entity& owner, Aggregate& into) {
    into.over = expressions_.entity(name.name, name.position);
    return into.over != nullptr && checkBelow(into.over, owner, "COUNT", name.position);
}

bool DefinitionAggregates::gather(const ast::Node& node, const std::string& word,
                                  const Entity& owner, Aggregate& into) {
    if (into.kind == Kind::Count)
        into.kind = Kind::Sum;
    into.value = expressions_.measure(node, word);
    if (into.value == nullptr)
        return false;
    into.over = into.value->entity;
    return checkBelow(into.over, owner, word, node.position);
}

bool DefinitionAggregates::share(const ast::RangedVariable& part, const std::string& word,
                                 const Entity& owner, Aggregate& into) {
    ExpressionPtr filter = expressions_.condition(*inNode(part), word);
    if (filter == nullptr)
        return false;
    into.over = filter->entity;
    into.filters.push_back(std::move(filter));
    return checkBelow(into.over, owner, word, part.name.position);
}

bool DefinitionAggregates::addValid(const ast::Name& name, Aggregate& into) {
    for (const char* function : {"MISSING", "NOTAPPLICABLE"}) {
        ExpressionPtr filter = expressions_.condition(*notNode(function, name), "RATIO");
        if (filter == nullptr)
            return false;
        into.filters.push_back(std::move(filter));
    }
    return true;
}

bool DefinitionAggregates::checkBelow(const Entity* entity, const Entity& owner,
                                      const std::string& word, Position position) {
    if (entity == nullptr) {
        context_.report(Error::NotBelow, position, {word, owner.name, "the same for all records"});
        return false;
    }
    if (entity != &owner && owner.isAncestorOf(*entity))
        return true;
    context_.report(Error::NotBelow, position, {word, owner.name, "about " + entity->name});
    return false;
}

/// Whether the weight of the run applies: where each record that is gone over has one. The least
/// and the greatest value know no weight.
bool DefinitionAggregates::weighs(const RunSettings& run, const Definition& definition) {
    const Kind kind = definition.numerator->kind;
    if (run.weightMode != WeightMode::Explicit || run.weight == nullptr || kind == Kind::Minimum ||
        kind == Kind::Maximum)
        return false;
    const Entity* about = run.weight->entity;
    const auto hasWeight = [&](const std::optional<Aggregate>& part) {
        return !part || about == nullptr || about->isAncestorOf(*part->over);
    };
    return hasWeight(definition.numerator) && hasWeight(definition.denominator);
}

bool DefinitionAggregates::addWeight(const ExpressionPtr& weight, Aggregate& into) {
    into.weight = weight;
    return weight == nullptr || checkAbove(context_, *weight, *into.over, "WEIGHT");
}

/// The universal filter and the selection, where they say something about the records.
void DefinitionAggregates::addSettings(const CheckedSettings& run, Aggregate& into) {
    const RunSettings& settings = *run.settings;
    addFilter(settings.filter, into);
    if (!settings.selection)
        return;
    addFilter(settings.selection->expression, into);
    if (settings.selection->areas.empty())
        return;
    into.areas = {run.settings, &*settings.selection};
    checkAreas(context_, run, *into.over);
}

/// False where the filter is on another branch.
bool DefinitionAggregates::addFilter(const ExpressionPtr& filter, Aggregate& into) {
    if (filter == nullptr)
        return true;
    const Entity* about = filter->entity;
    const bool below = about != nullptr && about != into.over && into.over->isAncestorOf(*about);
    if (about != nullptr && !below && !about->isAncestorOf(*into.over))
        return false;
    into.filters.push_back(filter);
    if (below && told_.emplace(filter.get(), into.over).second)
        context_.report(Warning::FilterBelow, filter->position,
                        {about->name, into.over->name, "filter"});
    return true;
}

bool DefinitionAggregates::addOwnFilter(const ast::Definition& ast, Definition& into) {
    if (ast.filter == nullptr)
        return true;
    const ExpressionPtr filter = expressions_.condition(*ast.filter, "FILTER");
    if (filter == nullptr)
        return false;
    bool used = addFilter(filter, *into.numerator);
    if (into.denominator)
        used = addFilter(filter, *into.denominator) || used;
    if (!used)
        context_.report(Error::AggregateBranch, filter->position,
                        {filter->entity->name, ast.kindWord, into.numerator->over->name});
    return used;
}

} // namespace kelx::language
