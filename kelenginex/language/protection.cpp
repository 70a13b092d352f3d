// SPDX-License-Identifier: Apache-2.0
#include "language/protection.h"

namespace kelx::language {

namespace {

/// A compound code tells the codes of all levels above.
void raiseByCodes(std::optional<int>& least, const Entity* entity) {
    for (; entity != nullptr; entity = entity->parent) {
        if (entity->codeVar != nullptr)
            language::raise(least, entity->codeVar->sensitive);
    }
}

void raiseBy(std::optional<int>& least, const std::optional<Aggregate>& aggregate) {
    if (!aggregate)
        return;
    language::raise(least, aggregate->over->sensitive);
    language::raise(least, aggregate->value.get());
    language::raise(least, aggregate->weight.get());
    for (const ExpressionPtr& filter : aggregate->filters)
        language::raise(least, filter.get());
}

} // namespace

void raise(std::optional<int>& least, const std::optional<int>& other) {
    if (other && *other > least.value_or(0))
        least = other;
}

void raise(std::optional<int>& least, const Expression* expression) {
    if (expression == nullptr)
        return;
    if (expression->variable != nullptr)
        raise(least, expression->variable->sensitive);
    if (expression->operation == Operation::CompoundCode)
        raiseByCodes(least, expression->codeEntity);
    for (const auto& argument : expression->arguments)
        raise(least, argument.get());
}

std::optional<int> protectionOf(const Definition& definition) {
    std::optional<int> least;
    raise(least, definition.value.get());
    raiseBy(least, definition.numerator);
    raiseBy(least, definition.denominator);
    for (const ExpressionPtr& filter : definition.filters)
        raise(least, filter.get());
    return least;
}

std::optional<int> TableProtection::of(const TableCommand& command) {
    std::optional<int> least = command.sensitive;
    const RunSettings& run = *command.settings;
    raise(least, command.unit->sensitive);
    for (const ExpressionPtr& dimension : command.dimensions)
        raise(least, dimension.get());
    raiseByCodes(least, run.areaBreak);
    for (const ExpressionPtr* part :
         {&command.measure, &command.weight, &command.tally, &command.filter, &run.filter})
        raiseBy(least, *part);
    if (run.selection)
        raiseBy(least, run.selection->expression);
    return least;
}

void TableProtection::raiseBy(std::optional<int>& least, const ExpressionPtr& expression) {
    if (expression == nullptr)
        return;
    const auto [known, isNew] = known_.try_emplace(expression);
    if (isNew)
        raise(known->second, expression.get());
    raise(least, known->second);
}

} // namespace kelx::language
