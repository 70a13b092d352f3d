// SPDX-License-Identifier: Apache-2.0
#include "language/table_placer.h"

#include "language/text.h"

#include <algorithm>

namespace kelx::language {

namespace {

const Variable* automaticWeight(const Entity* entity) {
    while (entity != nullptr && entity->weightVar == nullptr)
        entity = entity->parent;
    return entity == nullptr ? nullptr : entity->weightVar;
}

/// A count has one figure for each record, and so must its weight.
bool weighsBelow(const TableCommand& command) {
    const Entity* weighted = command.weight->entity;
    return weighted != nullptr && weighted != command.countEntity &&
           command.countEntity->isAncestorOf(*weighted);
}

bool isList(const TableCommand& command) {
    return command.kind == TableKind::AreaList || command.kind == TableKind::View;
}

void raise(std::optional<int>& least, const std::optional<int>& other) {
    if (other && *other > least.value_or(0))
        least = other;
}

void raise(std::optional<int>& least, const Expression& expression) {
    if (expression.variable != nullptr)
        raise(least, expression.variable->sensitive);
    for (const auto& argument : expression.arguments)
        raise(least, *argument);
}

} // namespace

bool TablePlacer::place(TableCommand& command, const CheckedSettings& settings) {
    command.unit = command.countEntity;
    if (command.measure != nullptr && !include(command, *command.measure))
        return false;
    for (const ExpressionPtr& dimension : command.dimensions) {
        if (!include(command, *dimension))
            return false;
    }
    if (!isList(command) &&
        ((command.tally != nullptr && !include(command, *command.tally)) || !placeWeight(command)))
        return false;
    if (command.unit == nullptr) {
        context_.report(Error::NothingCounted, command.position, {command.name});
        return false;
    }
    protect(command);
    const RunSettings& run = *settings.settings;
    if (!checkFilter(command, command.filter, "filter") ||
        !checkFilter(command, run.filter, "universal filter"))
        return false;
    if (!run.selection)
        return true;
    checkAreas(command, settings);
    return checkFilter(command, run.selection->expression, "selection");
}

/// A list shows no figures of its own.
void TablePlacer::protect(TableCommand& command) {
    if (isList(command))
        return;
    raise(command.sensitive, command.unit->sensitive);
    for (const ExpressionPtr& dimension : command.dimensions)
        raise(command.sensitive, *dimension);
    if (command.measure == nullptr)
        return;
    const auto [known, isNew] = sensitive_.try_emplace(command.measure);
    if (isNew)
        raise(known->second, *command.measure);
    raise(command.sensitive, known->second);
}

bool TablePlacer::include(TableCommand& command, const Expression& part) {
    if (lower(command.unit, part.entity))
        return true;
    context_.report(Error::Branches, part.position, {command.unit->name, part.entity->name});
    return false;
}

/// A count of records is a count: only a weight that the program asks for applies to it.
bool TablePlacer::placeWeight(TableCommand& command) {
    const RunSettings& run = *command.settings;
    if (command.weight == nullptr && run.weightMode == WeightMode::Explicit)
        command.weight = run.weight;
    if (command.weight != nullptr) {
        const bool own = command.weight != run.weight;
        if (command.kind == TableKind::Count && weighsBelow(command)) {
            context_.report(Error::WeightBelow, own ? command.weight->position : command.position,
                            {command.weight->entity->name, command.countEntity->name});
            return false;
        }
        if (lower(command.unit, command.weight->entity))
            return true;
        context_.report(Error::Branches, own ? command.weight->position : command.position,
                        {command.unit->name, command.weight->entity->name});
        return false;
    }
    if (run.weightMode != WeightMode::Automatic || command.kind == TableKind::Count)
        return true;
    const Variable* variable = automaticWeight(command.unit);
    if (variable == nullptr)
        return true;
    command.weight = expressions_.variable(*variable, command.position);
    return command.weight != nullptr;
}

bool TablePlacer::checkFilter(const TableCommand& command, const ExpressionPtr& filter,
                              const std::string& what) {
    if (filter == nullptr || filter->entity == nullptr ||
        filter->entity->isAncestorOf(*command.unit))
        return true;
    const bool below = command.unit->isAncestorOf(*filter->entity);
    const bool isNew = told_.emplace(filter, command.unit).second;
    if (isNew && below)
        context_.report(Warning::FilterBelow, filter->position,
                        {filter->entity->name, command.unit->name, what});
    else if (isNew)
        context_.report(Error::FilterBranch, filter->position,
                        {what, filter->entity->name, command.unit->name});
    return below;
}

void TablePlacer::checkAreas(const TableCommand& command, const CheckedSettings& settings) {
    const auto& areas = settings.settings->selection->areas;
    if (areas.empty() || !told_.emplace(settings.settings, command.unit).second)
        return;
    const bool reachable = std::any_of(areas.begin(), areas.end(), [&](const auto& area) {
        return area.entity->isAncestorOf(*command.unit);
    });
    if (!reachable)
        context_.report(Warning::SelectionBelow, settings.selectionPosition,
                        {areas.front().entity->name, command.unit->name});
}

} // namespace kelx::language
