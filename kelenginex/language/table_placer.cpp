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

bool liesBelow(const Entity* entity, const Entity& other) {
    return entity != nullptr && entity != &other && other.isAncestorOf(*entity);
}

bool isList(const TableCommand& command) {
    return command.kind == TableKind::AreaList || command.kind == TableKind::View;
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
    if (!include(command, areaBreakOf(command)))
        return false;
    if (!isList(command) &&
        ((command.tally != nullptr && !include(command, *command.tally)) || !placeWeight(command)))
        return false;
    if (command.unit == nullptr) {
        context_.report(Error::NothingCounted, command.position, {command.name});
        return false;
    }
    if (!isList(command))
        command.sensitive = protection_.of(command);
    const RunSettings& run = *settings.settings;
    if (!checkFilter(command, command.filter, "filter") ||
        !checkFilter(command, run.filter, "universal filter"))
        return false;
    if (!run.selection)
        return true;
    checkAreas(context_, settings, *command.unit);
    return checkFilter(command, run.selection->expression, "selection");
}

bool TablePlacer::placeColumn(TableCommand& command, bool ownWeight, const TableCommand& list,
                              Position position) {
    if (command.kind == TableKind::Count && list.tally != nullptr &&
        liesBelow(list.tally->entity, *command.countEntity)) {
        context_.report(Error::TableColumn, position,
                        {command.name, "it counts " + command.countEntity->name +
                                           ", and the tally is about " + list.tally->entity->name +
                                           ", which lies below"});
        return false;
    }
    if (!ownWeight)
        command.weight = list.weight;
    if (command.tally == nullptr)
        command.tally = list.tally;
    return place(command, {command.settings, position});
}

bool TablePlacer::include(TableCommand& command, const Entity* areaBreak) {
    if (areaBreak == nullptr || lower(command.unit, areaBreak))
        return true;
    context_.report(Error::AreaBreakBranch, command.position,
                    {areaBreak->name, command.unit->name});
    return false;
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
        // A count has one figure for each record, and so must its weight.
        if (command.kind == TableKind::Count &&
            liesBelow(command.weight->entity, *command.countEntity)) {
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
    const Variable* stored = automaticWeight(command.unit);
    if (stored == nullptr)
        return true;
    const Variable* newest = context_.names().variable(*stored->entity, stored->name);
    command.weight = expressions_.variable(newest == nullptr ? *stored : *newest, command.position);
    if (command.weight == nullptr || command.weight->type != ValueType::String)
        return command.weight != nullptr;
    context_.report(Error::WeightIsText, command.position, {command.weight->text});
    return false;
}

bool TablePlacer::checkFilter(const TableCommand& command, const ExpressionPtr& filter,
                              const std::string& what) {
    if (filter == nullptr || filter->entity == nullptr ||
        filter->entity->isAncestorOf(*command.unit))
        return true;
    if (command.unit->isAncestorOf(*filter->entity))
        return true;
    if (told_.emplace(filter, command.unit).second)
        context_.report(Error::FilterBranch, filter->position,
                        {what, filter->entity->name, command.unit->name});
    return false;
}

void TablePlacer::tellFilter(const Entity& unit, const ExpressionPtr& filter,
                             const std::string& what) {
    if (filter != nullptr && liesBelow(filter->entity, unit) && told_.emplace(filter, &unit).second)
        context_.report(Warning::FilterBelow, filter->position,
                        {filter->entity->name, unit.name, what});
}

void TablePlacer::tellFilters(const std::vector<TableCommand>& tables) {
    for (const TableCommand& table : tables) {
        if (table.unit == nullptr || !table.isNeeded)
            continue;
        const RunSettings& run = *table.settings;
        tellFilter(*table.unit, table.filter, "filter");
        tellFilter(*table.unit, run.filter, "universal filter");
        if (run.selection)
            tellFilter(*table.unit, run.selection->expression, "selection");
    }
}

} // namespace kelx::language
