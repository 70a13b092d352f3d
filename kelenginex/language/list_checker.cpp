// SPDX-License-Identifier: Apache-2.0
#include "language/list_checker.h"

#include "language/protection.h"
#include "language/text.h"

#include <algorithm>
#include <utility>

namespace kelx::language {

namespace {

bool areSame(const ExpressionPtr& a, const ExpressionPtr& b) {
    return a == b || (a != nullptr && b != nullptr && a->text == b->text);
}

/// Whether both go over the same records; what they are called does not matter.
bool isOfSameRun(const RunSettings& a, const RunSettings& b) {
    const AreaSelection all;
    const AreaSelection& x = a.selection ? *a.selection : all;
    const AreaSelection& y = b.selection ? *b.selection : all;
    const auto isSameArea = [](const AreaSelection::Area& one, const AreaSelection::Area& other) {
        return one.entity == other.entity && one.code == other.code;
    };
    return areSame(a.filter, b.filter) && areSame(x.expression, y.expression) &&
           std::equal(x.areas.begin(), x.areas.end(), y.areas.begin(), y.areas.end(), isSameArea);
}

std::string isOfOther(const Entity& counted, const Entity& listed) {
    return "it counts " + counted.name + ", which does not lie in " + listed.name;
}

} // namespace

bool ListChecker::check(const ast::Table& table, TableCommand& command) {
    if (table.entity)
        command.countEntity = expressions_.entity(table.entity->name, table.entity->position);
    if (command.countEntity == nullptr)
        return false;
    const Entity& entity = *command.countEntity;
    bool good = checkAreaData(entity, table.entity->position);
    takeTables(table.names);
    for (const ast::Name& name : table.names)
        good = addColumn(name, command) && good;
    if (table.names.empty() && command.kind == TableKind::View) {
        for (const Variable* variable : context_.names().variablesOf(entity))
            good = addVariable(*variable, table.entity->position, command) && good;
    }
    if (good)
        tellUseless(table, command);
    command.weight = command.tally = nullptr;
    return good;
}

/// Codes and labels are shown without being named.
bool ListChecker::checkAreaData(const Entity& entity, Position position) {
    bool good = true;
    for (const Entity* level = &entity; level != nullptr; level = level->parent) {
        if (level->codeVar != nullptr)
            good = context_.checkData(*level->codeVar, position) && good;
    }
    if (entity.labelVar != nullptr)
        good = context_.checkData(*entity.labelVar, position) && good;
    return good;
}

std::vector<const Variable*> ListChecker::inReach(const std::string& name,
                                                  const Entity& entity) const {
    std::vector<const Variable*> result;
    for (const Variable* variable : context_.names().variables(name)) {
        if (variable->entity->isAncestorOf(entity))
            result.push_back(variable);
    }
    return result;
}

/// Tools name the tables of variables alike where their entities differ only: a list that names as
/// many as there are means them in their order.
void ListChecker::takeTables(const std::vector<ast::Name>& names) {
    std::map<std::string, std::size_t> times;
    for (const ast::Name& name : names) {
        if (name.entity.empty() && !name.all)
            ++times[lowerCase(name.name)];
    }
    ahead_.clear();
    for (const auto& [name, count] : times)
        ahead_[name] = {tables_.findAll(name, count), 0, false};
}

/// The next table of that name; nothing where it is not clear which one, which is told.
std::optional<std::size_t> ListChecker::nextTable(const ast::Name& name) {
    auto& [tables, taken, told] = ahead_[lowerCase(name.name)];
    if (taken == tables.size()) {
        if (std::exchange(told, true))
            return std::nullopt;
        context_.report(Error::TableColumn, name.position,
                        {inQuotes(name.name), "several tables have this name, and not as many as "
                                              "the list names"});
        return std::nullopt;
    }
    return tables[taken++];
}

bool ListChecker::addColumn(const ast::Name& name, TableCommand& command) {
    const Entity& entity = *command.countEntity;
    if (name.all)
        return addVariables(name, command);
    if (!name.entity.empty()) {
        const ExpressionPtr variable = expressions_.variable(name);
        return variable != nullptr && addVariable(*variable->variable, name.position, command);
    }
    const std::vector<const Variable*> variables = inReach(name.name, entity);
    const bool table = tables_.find(name.name).has_value();
    if (variables.empty() && table) {
        const std::optional<std::size_t> number = nextTable(name);
        return number && addTable(*number, name.position, command);
    }
    if (variables.size() == 1) {
        if (table)
            context_.report(Warning::ColumnTwice, name.position, {inQuotes(name.name)});
        return addVariable(*variables.front(), name.position, command);
    }
    if (!tables_.isExpected(name.name))
        reportUnknown(name, command);
    return false;
}

/// A table may have been meant as well as a variable.
void ListChecker::reportUnknown(const ast::Name& name, TableCommand& command) {
    const bool isKnown = !context_.names().variables(name.name).empty() ||
                         context_.names().entity(name.name) != nullptr;
    const bool isNumber = name.name.front() >= '0' && name.name.front() <= '9';
    if (isKnown || isNumber) {
        if (const ExpressionPtr variable = expressions_.variable(name)) // tells what is wrong
            addVariable(*variable->variable, name.position, command);
    } else if (!context_.isExpected("", name.name)) {
        std::string hint = tables_.hintFor(name.name);
        if (hint.empty() && context_.wantsHints())
            hint = context_.names().similarVariable(name.name);
        context_.report(Error::UnknownColumn, name.position, {inQuotes(name.name), hint});
    }
}

bool ListChecker::addVariables(const ast::Name& name, TableCommand& command) {
    const Entity* entity = expressions_.entity(name.entity, name.position);
    if (entity == nullptr)
        return false;
    bool good = true;
    for (const Variable* variable : context_.names().variablesOf(*entity))
        good = good && addVariable(*variable, name.position, command);
    return good;
}

bool ListChecker::addVariable(const Variable& variable, Position position, TableCommand& command) {
    if (!tables_.hasRoomForColumn(position))
        return false;
    const Entity& entity = *command.countEntity;
    ExpressionPtr expression = expressions_.variable(variable, position);
    if (expression == nullptr)
        return false;
    if (variable.entity->isAncestorOf(entity)) {
        command.columns.push_back({std::move(expression), std::nullopt, position});
        return true;
    }
    if (entity.isAncestorOf(*variable.entity))
        context_.report(Error::ColumnBelow, position,
                        {variable.fullName(), variable.entity->name, entity.name});
    else
        context_.report(Error::Branches, position, {entity.name, variable.entity->name});
    return false;
}

/// Why the table has no part for each row; nothing where it has.
std::optional<std::string> ListChecker::unfit(std::size_t number, const Entity& entity) const {
    const TableCommand& table = tables_.table(number);
    if (table.kind == TableKind::Tabop || table.kind == TableKind::Tablist)
        return "it is made of other tables; take those";
    if (table.kind == TableKind::AreaList || table.kind == TableKind::View)
        return "it is a list itself";
    if (table.dimensions.size() > 1)
        return "it has more than one variable";
    if (!entity.isAncestorOf(*table.unit))
        return isOfOther(*table.unit, entity);
    return std::nullopt;
}

bool ListChecker::addTable(std::size_t number, Position position, TableCommand& command) {
    const Entity& entity = *command.countEntity;
    if (const std::optional<std::string> reason = unfit(number, entity)) {
        context_.report(Error::TableColumn, position, {tables_.table(number).name, *reason});
        return false;
    }
    if (!isOfSameRun(*tables_.table(number).settings, *command.settings))
        context_.report(Warning::ColumnOfOtherRun, position, {tables_.table(number).name});
    TableCommand hidden = tables_.table(number);
    hidden.isHidden = true;
    tables_.useAsColumn(number);
    if (!place(number, command, hidden, position))
        return false;
    TableFacts facts = tables_.facts(number);
    hidden.dimensions.insert(hidden.dimensions.begin(),
                             ExpressionChecker::recordNumber(entity, position));
    if (hidden.kind == TableKind::Count)
        hidden.kind = TableKind::Frequency;
    hidden.isOutput = false;
    hidden.isNeeded = true;
    hidden.sort.reset();
    hidden.outfile.reset();
    hidden.jsonFiles.clear();
    if (!tables_.hasRoomForColumn(position) || !tables_.hasRoomFor(hidden, position))
        return false;
    distinguish(number, hidden.name);
    raise(hidden.sensitive, command.sensitive);
    hidden.sensitive = placer_.protection().of(hidden);
    const std::size_t at = tables_.size();
    tables_.add(std::move(hidden), std::move(facts));
    command.columns.push_back({nullptr, at, position});
    return true;
}

/// Columns of different tables do not go by one name.
void ListChecker::distinguish(std::size_t number, std::string& name) {
    const auto& [tables, taken, told] = ahead_[lowerCase(name)];
    if (tables.size() < 2 || tables.front() == tables.back())
        return;
    tables_.forgive(number);
    if (taken > 1)
        name += "_" + std::to_string(taken);
}

/// The list's weight and tally may change what the table counts, as may its area break, which the
/// column has not.
bool ListChecker::place(std::size_t number, const TableCommand& list, TableCommand& hidden,
                        Position position) {
    const TableCommand& table = tables_.table(number);
    if (list.weight == nullptr && list.tally == nullptr && areaBreakOf(table) == nullptr)
        return true;
    if (!placer_.placeColumn(hidden, tables_.facts(number).ownWeight, list, position))
        return false;
    if (list.countEntity->isAncestorOf(*hidden.unit))
        return true;
    context_.report(Error::TableColumn, position,
                    {table.name, isOfOther(*hidden.unit, *list.countEntity)});
    return false;
}

void ListChecker::tellUseless(const ast::Table& table, const TableCommand& command) {
    const bool hasTables = std::any_of(command.columns.begin(), command.columns.end(),
                                       [](const ListColumn& c) { return c.table.has_value(); });
    if (hasTables)
        return;
    const auto tell = [&](const char* clause, Position position) {
        context_.report(Warning::NoEffect, position,
                        {clause, table.kindWord, "it lists variables, and no table"});
    };
    if (table.weight != nullptr)
        tell("WEIGHT", table.weightPosition);
    if (table.tally != nullptr)
        tell("TALLY", table.tallyPosition);
    if (table.sensitive.value_or(0) > 1)
        tell("SENSITIVE", table.sensitivePosition);
}

} // namespace kelx::language
