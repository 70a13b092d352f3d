// SPDX-License-Identifier: Apache-2.0
#include "language/sort_checker.h"

#include "language/figure_names.h"
#include "language/text.h"

#include <algorithm>

namespace kelx::language {

namespace {

bool isSame(std::string_view a, std::string_view b) {
    return !a.empty() && lowerCase(a) == lowerCase(b);
}

bool isList(const TableCommand& command) {
    return command.kind == TableKind::AreaList || command.kind == TableKind::View;
}

/// Cross tables have no rows to sort; the figures of a measure have.
bool isCrosstab(const TableCommand& command, const TableFacts& facts) {
    const bool counts = command.kind == TableKind::Frequency || command.kind == TableKind::Tabop;
    return counts && facts.dimension() > 1;
}

/// The variables that SORT can name.
std::vector<const Variable*> variablesOf(const TableCommand& command, const TableRegister& tables) {
    std::vector<const Variable*> result;
    const auto add = [&](const ExpressionPtr& expression) {
        if (expression != nullptr && expression->variable != nullptr)
            result.push_back(expression->variable);
    };
    for (const ExpressionPtr& dimension : command.dimensions)
        add(dimension);
    add(command.measure);
    for (const ListColumn& column : command.columns)
        add(column.variable);
    for (const std::size_t operand : command.operands) {
        for (const Variable* variable : tables.facts(operand).dimensions)
            result.push_back(variable);
    }
    if (isList(command)) {
        for (const Variable* variable :
             {command.countEntity->codeVar, command.countEntity->labelVar}) {
            if (variable != nullptr)
                result.push_back(variable);
        }
    }
    return result;
}

/// Names and labels of the columns of a table that is no list.
std::vector<std::string> fieldsOf(const TableCommand& command,
                                  const std::vector<const Variable*>& variables) {
    std::vector<std::string> result = figureNames(command);
    result.push_back(command.name);
    if (command.unit != nullptr) {
        result.push_back(command.unit->name);
        result.push_back(command.unit->label);
    }
    if (command.measure != nullptr)
        result.push_back(command.measure->text);
    for (const Variable* variable : variables) {
        const Entity& entity = *variable->entity;
        for (const std::string& name : {variable->name, variable->alias}) {
            for (const std::string& owner : {entity.name, entity.alias})
                result.push_back(owner + "." + name);
            result.push_back(name);
        }
        const std::string& label = variable->label.empty() ? variable->name : variable->label;
        result.insert(result.end(),
                      {variable->fullName() + " label", variable->fullName() + " kind", label,
                       label + " (label)", label + " (kind)"});
    }
    return result;
}

} // namespace

bool SortChecker::isVariableOf(const ast::Name& name, const TableCommand& command) const {
    const std::vector<const Variable*> all = variablesOf(command, tables_);
    return std::any_of(all.begin(), all.end(), [&](const Variable* variable) {
        const Entity& entity = *variable->entity;
        return (isSame(name.name, variable->name) || isSame(name.name, variable->alias)) &&
               (name.entity.empty() || isSame(name.entity, entity.name) ||
                isSame(name.entity, entity.alias));
    });
}

/// The table's own name, or that of one that it is made of.
bool SortChecker::isTableOf(const std::string& name, const TableCommand& command) const {
    const auto isNamed = [&](std::size_t number) {
        return isSame(name, tables_.table(number).name);
    };
    const bool column =
        std::any_of(command.columns.begin(), command.columns.end(),
                    [&](const ListColumn& c) { return c.table && isNamed(*c.table); });
    return column || std::any_of(command.operands.begin(), command.operands.end(), isNamed);
}

/// By the name or label of a field, as a text or a bare word gives it.
bool SortChecker::mayBeField(const std::string& name, const TableCommand& command) const {
    if (name.empty() || isList(command) || command.kind == TableKind::Tablist ||
        command.settings->areaBreak != nullptr)
        return true;
    const std::vector<std::string> fields = fieldsOf(command, variablesOf(command, tables_));
    return std::any_of(fields.begin(), fields.end(),
                       [&](const std::string& field) { return isSame(name, field); });
}

SortChecker::Found SortChecker::find(const ast::Sort& sort, const TableCommand& command) const {
    if (!sort.name)
        return mayBeField(sort.column, command) ? Found::Field : Found::None;
    if (isVariableOf(*sort.name, command))
        return Found::Variable;
    if (sort.name->entity.empty() && isTableOf(sort.name->name, command))
        return Found::Table;
    if (!sort.name->entity.empty())
        return Found::None;
    const bool isField = isList(command) ? isSame(sort.name->name, command.name) ||
                                               isSame(sort.name->name, command.countEntity->name)
                                         : mayBeField(sort.name->name, command);
    return isField ? Found::Field : Found::None;
}

bool SortChecker::take(const ast::Sort& sort, const TableFacts& facts, TableCommand& command) {
    if (isCrosstab(command, facts)) {
        const bool byBreak = facts.dimensions.size() == 1;
        context_.report(
            Warning::SortCrosstab, sort.position,
            {byBreak ? ", and AREABREAK adds " + facts.areaBreak->name + " to this one" : ""});
        return true;
    }
    if (command.kind == TableKind::Count)
        return true; // one row
    const Found found = find(sort, command);
    if (found == Found::None)
        return false;
    SortClause clause{sort.column, std::nullopt, sort.descending, std::nullopt,
                      sort.columnPosition};
    const std::size_t limitAt = found == Found::Table ? 1 : 0;
    for (std::size_t i = 0; i < sort.numbers.size() && i <= limitAt; ++i) {
        if (sort.numbers[i] > 0)
            (i < limitAt ? clause.element : clause.limit) = sort.numbers[i];
    }
    command.sort = std::move(clause);
    return true;
}

std::vector<std::string> SortChecker::columnsOf(const TableCommand& command) const {
    std::vector<std::string> names;
    for (const Variable* variable : variablesOf(command, tables_)) {
        names.push_back(variable->name);
        names.push_back(variable->fullName());
    }
    for (const ListColumn& column : command.columns) {
        if (column.table)
            names.push_back(tables_.table(*column.table).name);
    }
    for (const std::size_t operand : command.operands)
        names.push_back(tables_.table(operand).name);
    return names;
}

void SortChecker::reportNoColumn(const ast::Sort& sort, const TableCommand& command) {
    const std::string hint =
        context_.wantsHints() ? nearest(sort.column, columnsOf(command)) : std::string();
    context_.report(Error::SortColumn, sort.columnPosition,
                    {command.name, inQuotes(sort.column), didYouMean(hint)});
}

} // namespace kelx::language
