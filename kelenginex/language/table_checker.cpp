// SPDX-License-Identifier: Apache-2.0
#include "language/table_checker.h"

#include "language/text.h"

#include <algorithm>

namespace kelx::language {

namespace {

constexpr std::size_t mostTables = 10000;

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

/// Sizes of lists multiplied, up to the limit.
std::size_t productOf(const std::vector<std::vector<ExpressionPtr>>& lists) {
    std::size_t product = 1;
    for (const auto& list : lists)
        product = std::min(mostTables + 1, product * list.size());
    return product;
}

} // namespace

void TableChecker::check(const ast::Table& table, const CheckedSettings& settings,
                         BoundProgram& program) {
    TableCommand command;
    command.position = table.position;
    command.settings = settings.settings;
    command.title = table.title;
    command.decimals = table.decimals;
    command.text =
        trimmed(context_.program().substr(table.span.begin, table.span.end - table.span.begin));
    bool good = true;
    if (table.weight != nullptr) {
        command.weight = expressions_.number(*table.weight, "WEIGHT");
        good = command.weight != nullptr;
    }
    if (table.tally != nullptr) {
        command.tally = expressions_.number(*table.tally, "TALLY");
        good = command.tally != nullptr && good;
    }
    if (table.filter != nullptr) {
        command.filter = expressions_.condition(*table.filter, "FILTER");
        good = command.filter != nullptr && good;
    }
    if (table.kind == Keyword::Count) {
        command.kind = TableKind::Count;
        if (table.entity)
            command.countEntity = expressions_.entity(table.entity->name, table.entity->position);
        good = command.countEntity != nullptr && good;
    }
    const std::vector<List> all = lists(table, good);
    if (good)
        addProduct(all, command, settings, table, program);
}

std::vector<TableChecker::List> TableChecker::lists(const ast::Table& table, bool& good) {
    std::vector<List> result;
    for (const std::vector<ast::Name>& names : table.dimensions)
        result.push_back(variables(names, good));
    if (table.kind == Keyword::Crosstabs && table.dimensions.size() < 2) {
        context_.report(Error::CrosstabsWithoutBy, table.position);
        good = false;
    }
    return result;
}

TableChecker::List TableChecker::variables(const std::vector<ast::Name>& names, bool& good) {
    List list;
    for (const ast::Name& name : names) {
        if (name.all) {
            addAll(list, name, good);
            continue;
        }
        ExpressionPtr variable = expressions_.variable(name);
        good = variable != nullptr && good;
        list.push_back(std::move(variable));
    }
    return list;
}

void TableChecker::addAll(List& list, const ast::Name& name, bool& good) {
    const Entity* entity = expressions_.entity(name.entity, name.position);
    if (entity == nullptr) {
        good = false;
        return;
    }
    const std::vector<const Variable*>& all = context_.names().variablesOf(*entity);
    if (all.empty()) {
        context_.report(Error::NoVariables, name.position, {entity->name});
        good = false;
    }
    for (const Variable* variable : all) {
        list.push_back(expressions_.variable(*variable, name.position));
        good = list.back() != nullptr && good;
    }
}

/// Counts up like an odometer: the last list turns fastest.
void TableChecker::addProduct(const std::vector<List>& lists, const TableCommand& model,
                              const CheckedSettings& settings, const ast::Table& table,
                              BoundProgram& program) {
    const std::size_t count = productOf(lists);
    if (count == 0)
        return;
    if (program.tables.size() + count > mostTables) {
        context_.report(Error::TooManyTables, table.position, {std::to_string(mostTables)});
        return;
    }
    std::vector<std::size_t> turn(lists.size(), 0);
    for (std::size_t number = 1; number <= count; ++number) {
        TableCommand command = model;
        for (std::size_t i = 0; i < lists.size(); ++i)
            command.dimensions.push_back(lists[i][turn[i]]);
        if (!place(command, settings))
            return;
        command.name = nameFor(table, number, count);
        program.tables.push_back(std::move(command));
        for (std::size_t i = lists.size(); i-- > 0 && ++turn[i] == lists[i].size();)
            turn[i] = 0;
    }
}

/// Finds what the table counts, and settles weight and filters by it.
bool TableChecker::place(TableCommand& command, const CheckedSettings& settings) {
    command.unit = command.countEntity;
    for (const ExpressionPtr& dimension : command.dimensions) {
        if (!include(command, *dimension))
            return false;
    }
    if (command.tally != nullptr && !include(command, *command.tally))
        return false;
    if (!placeWeight(command))
        return false;
    const RunSettings& run = *settings.settings;
    if (!checkFilter(command, command.filter, "filter") ||
        !checkFilter(command, run.filter, "universal filter"))
        return false;
    if (!run.selection)
        return true;
    checkAreas(command, settings);
    return checkFilter(command, run.selection->expression, "selection");
}

bool TableChecker::include(TableCommand& command, const Expression& part) {
    if (lower(command.unit, part.entity))
        return true;
    context_.report(Error::Branches, part.position, {command.unit->name, part.entity->name});
    return false;
}

/// A count of records is a count: only a weight that the program asks for applies to it.
bool TableChecker::placeWeight(TableCommand& command) {
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

bool TableChecker::checkFilter(const TableCommand& command, const ExpressionPtr& filter,
                               const std::string& what) {
    if (filter == nullptr || filter->entity == nullptr ||
        filter->entity->isAncestorOf(*command.unit))
        return true;
    const bool below = command.unit->isAncestorOf(*filter->entity);
    const bool isNew = told_.emplace(filter.get(), command.unit).second;
    if (isNew && below)
        context_.report(Warning::FilterBelow, filter->position,
                        {filter->entity->name, command.unit->name});
    else if (isNew)
        context_.report(Error::FilterBranch, filter->position,
                        {what, filter->entity->name, command.unit->name});
    return below;
}

void TableChecker::checkAreas(const TableCommand& command, const CheckedSettings& settings) {
    const auto& areas = settings.settings->selection->areas;
    const bool reachable = std::any_of(areas.begin(), areas.end(), [&](const auto& area) {
        return area.entity->isAncestorOf(*command.unit);
    });
    if (areas.empty() || reachable || !told_.emplace(settings.settings.get(), command.unit).second)
        return;
    context_.report(Warning::SelectionBelow, settings.selectionPosition,
                    {areas.front().entity->name, command.unit->name});
}

std::string TableChecker::nameFor(const ast::Table& table, std::size_t number, std::size_t count) {
    if (table.name.empty())
        return shortName(table.kindWord);
    std::string name = count == 1 ? table.name : table.name + "_" + std::to_string(number);
    if (!names_.insert(lowerCase(name)).second)
        context_.report(Warning::TableNameAgain, table.position, {name});
    return name;
}

std::string TableChecker::shortName(const std::string& kind) {
    std::string name;
    do {
        name = kind + "_" + std::to_string(++numbered_[kind]);
    } while (!names_.insert(lowerCase(name)).second);
    return name;
}

} // namespace kelx::language
