// SPDX-License-Identifier: Apache-2.0
#include "language/table_checker.h"

#include "language/output_clauses.h"
#include "language/text.h"

#include <algorithm>

namespace kelx::language {

namespace {

TableKind kindOf(Keyword kind) {
    switch (kind) {
    case Keyword::Count:
        return TableKind::Count;
    case Keyword::Average:
        return TableKind::Average;
    case Keyword::Sum:
        return TableKind::Sum;
    case Keyword::Minimum:
        return TableKind::Minimum;
    case Keyword::Maximum:
        return TableKind::Maximum;
    case Keyword::Median:
        return TableKind::Median;
    case Keyword::Quantile:
        return TableKind::Quantile;
    case Keyword::Stats:
        return TableKind::Stats;
    case Keyword::Gini:
        return TableKind::Gini;
    case Keyword::Arealist:
        return TableKind::AreaList;
    case Keyword::View:
        return TableKind::View;
    case Keyword::Tabop:
        return TableKind::Tabop;
    case Keyword::Tablist:
        return TableKind::Tablist;
    default:
        return TableKind::Frequency;
    }
}

/// Each one doubles the rows, as the total stands beside the categories.
constexpr std::size_t mostDimensions = 100;

bool isMeasure(TableKind kind) {
    return kind >= TableKind::Average && kind <= TableKind::Gini;
}

/// Sizes of lists multiplied, up to the limit.
std::size_t productOf(const std::vector<std::vector<ExpressionPtr>>& lists) {
    std::size_t product = 1;
    for (const auto& list : lists)
        product = std::min(TableRegister::mostTables + 1, product * list.size());
    return product;
}

/// More tables already than a program can have: what follows need not be read.
bool isFull(const std::vector<std::vector<ExpressionPtr>>& lists) {
    std::size_t product = 1;
    for (const auto& list : lists)
        product = std::min(TableRegister::mostTables + 1,
                           product * std::max<std::size_t>(1, list.size()));
    return product > TableRegister::mostTables;
}

std::vector<const Variable*> variablesOf(const std::vector<ExpressionPtr>& dimensions) {
    std::vector<const Variable*> variables;
    for (const ExpressionPtr& dimension : dimensions)
        variables.push_back(dimension->variable);
    return variables;
}

} // namespace

void TableChecker::check(const ast::Table& table, const CheckedSettings& settings) {
    Model model{{}, {}, table, settings, true};
    TableCommand& command = model.command;
    command.kind = kindOf(table.kind);
    command.position = table.position;
    command.settings = settings.settings;
    command.title = table.title;
    command.decimals = table.decimals;
    command.sensitive = table.sensitive;
    command.quantiles = table.quantiles.value_or(command.quantiles);
    command.text =
        trimmed(context_.program().substr(table.span.begin, table.span.end - table.span.begin));
    command.name = table.kindWord; // for messages, until it has its own
    if (!checkCommand(model))
        tables_.expect(table);
}

void TableChecker::finish() {
    tables_.tellNames();
    placer_.tellFilters(program_.tables);
}

bool TableChecker::checkCommand(Model& model) {
    model.good = takeClauses(model);
    sorted_ = false;
    switch (model.command.kind) {
    case TableKind::AreaList:
    case TableKind::View:
        return checkList(model);
    case TableKind::Tabop:
    case TableKind::Tablist:
        return checkMade(model);
    default:
        return checkProduct(model);
    }
}

bool TableChecker::takeClauses(Model& model) {
    const ast::Table& table = model.table;
    TableCommand& command = model.command;
    bool good = table.complete;
    if (table.weight != nullptr) {
        command.weight = expressions_.number(*table.weight, "WEIGHT");
        good = command.weight != nullptr && good;
    }
    if (table.tally != nullptr) {
        command.tally = expressions_.number(*table.tally, "TALLY");
        good = command.tally != nullptr && good;
    }
    if (table.filter != nullptr) {
        command.filter = expressions_.condition(*table.filter, "FILTER");
        good = command.filter != nullptr && good;
    }
    takeFiles(table, context_, command);
    takeStyles(table, context_, command);
    model.facts.ownWeight = command.weight != nullptr;
    model.facts.isKept = table.outfile || table.save || table.outgraph;
    model.facts.oneFigure = command.kind != TableKind::Stats && command.kind != TableKind::Quantile;
    return good;
}

bool TableChecker::checkList(Model& model) {
    TableCommand& command = model.command;
    if (!lists_.check(model.table, command) || !model.good)
        return false;
    return placer_.place(command, model.settings) && addOne(command, model, 1, 1);
}

bool TableChecker::checkMade(Model& model) {
    TableCommand& command = model.command;
    const bool tabop = command.kind == TableKind::Tabop;
    const bool good = tabop ? operations_.checkTabop(model.table, command, model.facts)
                            : operations_.checkTablist(model.table, command, model.facts);
    if (!good || !model.good)
        return false;
    tellUseless(model);
    return addOne(command, model, 1, 1);
}

/// The figures come from other tables, each with conditions of its own.
void TableChecker::tellUseless(const Model& model) {
    const ast::Table& table = model.table;
    const auto tell = [&](const char* clause, Position position) {
        context_.report(Warning::NoEffect, position,
                        {clause, table.kindWord, "the tables that it is made of have their own"});
    };
    if (table.weight != nullptr)
        tell("WEIGHT", table.weightPosition);
    if (table.tally != nullptr)
        tell("TALLY", table.tallyPosition);
    if (table.filter != nullptr)
        tell("FILTER", table.filterPosition);
}

bool TableChecker::checkProduct(Model& model) {
    const ast::Table& table = model.table;
    if (table.kind == Keyword::Count) {
        if (table.entity)
            model.command.countEntity =
                expressions_.entity(table.entity->name, table.entity->position);
        return model.command.countEntity != nullptr && model.good && addProduct({}, model);
    }
    if (table.dimensions.size() > mostDimensions) {
        context_.report(Error::TooManyDimensions, table.position,
                        {std::to_string(mostDimensions), std::to_string(table.dimensions.size())});
        return false;
    }
    std::vector<List> lists(table.dimensions.size());
    bool good = model.good;
    if (startsWithArea(table)) {
        good = areaMeasures(table, lists) && good;
    } else {
        if (isMeasure(model.command.kind))
            good = measures(table, lists.front()) && good;
        for (std::size_t i = 0; i < lists.size() && !isFull(lists); ++i)
            good = variables(table.dimensions[i], lists[i]) && good;
    }
    if (table.kind == Keyword::Crosstabs && lists.size() < 2 && table.complete) {
        context_.report(Error::CrosstabsWithoutBy, table.position);
        good = false;
    }
    if (isFull(lists))
        return tables_.hasRoom(TableRegister::mostTables + 1, table.position);
    return good && addProduct(lists, model);
}

/// STATS DISTRICT.CODE BY PERSON.AGE, as tools write it that put the areas first, means the figures
/// of the age by district.
bool TableChecker::startsWithArea(const ast::Table& table) const {
    if (table.kind != Keyword::Stats || table.hasOf || table.measures.size() != 1 ||
        table.dimensions.size() != 2)
        return false;
    const ast::NodePtr& node = table.measures.front().expression;
    if (node == nullptr || node->kind != ast::NodeKind::Name)
        return false;
    const Variable* variable = variableOf(node->name);
    return variable != nullptr && tellsAreasApart(*variable, table.dimensions[1]);
}

/// Null where it is not clear which one is meant.
const Variable* TableChecker::variableOf(const ast::Name& name) const {
    if (name.entity.empty()) {
        const auto& all = context_.names().variables(name.name);
        return all.size() == 1 ? all.front() : nullptr;
    }
    const Entity* entity = context_.names().entity(name.entity);
    return entity == nullptr ? nullptr : context_.names().variable(*entity, name.name);
}

/// True for the key of areas, of which nobody wants the mean: as the quick tools know or make it,
/// or the code of areas that the others lie in.
bool TableChecker::tellsAreasApart(const Variable& variable,
                                   const std::vector<ast::Name>& others) const {
    constexpr const char* areaKey = "kelcoden";
    if (lowerCase(variable.name) == areaKey || isCompoundCode(variable))
        return true;
    const Entity& area = *variable.entity;
    const auto liesBelow = [&](const ast::Name& name) {
        const Variable* other = name.all ? nullptr : variableOf(name);
        const Entity* entity = other != nullptr ? other->entity
                               : name.all       ? context_.names().entity(name.entity)
                                                : nullptr;
        return entity != nullptr && entity != &area && area.isAncestorOf(*entity);
    };
    return area.codeVar == &variable && std::all_of(others.begin(), others.end(), liesBelow);
}

bool TableChecker::isCompoundCode(const Variable& variable) const {
    return std::any_of(program_.definitions.begin(), program_.definitions.end(),
                       [&](const Definition& definition) {
                           return definition.variable.get() == &variable &&
                                  definition.value != nullptr &&
                                  definition.value->operation == Operation::CompoundCode;
                       });
}

bool TableChecker::areaMeasures(const ast::Table& table, std::vector<List>& lists) {
    bool good = variables(table.dimensions[1], lists[0]);
    for (const ExpressionPtr& measure : lists[0]) {
        if (measure == nullptr || measure->type != ValueType::String)
            continue;
        context_.report(Error::NotANumber, measure->position, {table.kindWord, "a text"});
        good = false;
    }
    lists[1].push_back(expressions_.variable(table.measures.front().expression->name));
    return lists[1].front() != nullptr && good;
}

bool TableChecker::variables(const std::vector<ast::Name>& names, List& list) {
    bool good = true;
    for (const ast::Name& name : names) {
        if (list.size() > TableRegister::mostTables)
            break;
        if (name.all) {
            good = addAll(list, name) && good;
            continue;
        }
        ExpressionPtr variable = expressions_.variable(name);
        good = variable != nullptr && good;
        list.push_back(std::move(variable));
    }
    return good;
}

bool TableChecker::measures(const ast::Table& table, List& list) {
    bool good = true;
    for (const ast::Measure& measure : table.measures) {
        if (list.size() > TableRegister::mostTables)
            break;
        if (measure.all) {
            good = addAll(list, *measure.all) && good;
            continue;
        }
        ExpressionPtr expression = expressions_.measure(*measure.expression, table.kindWord);
        good = expression != nullptr && good;
        list.push_back(std::move(expression));
    }
    return good;
}

bool TableChecker::addAll(List& list, const ast::Name& name) {
    const Entity* entity = expressions_.entity(name.entity, name.position);
    if (entity == nullptr)
        return false;
    const std::vector<const Variable*>& all = context_.names().variablesOf(*entity);
    if (all.empty()) {
        context_.report(Error::NoVariables, name.position, {entity->name});
        return false;
    }
    bool good = true;
    for (const Variable* variable : all) {
        list.push_back(expressions_.variable(*variable, name.position));
        good = list.back() != nullptr && good;
    }
    return good;
}

/// Counts up like an odometer: the last list turns fastest.
bool TableChecker::addProduct(const std::vector<List>& lists, const Model& model) {
    const std::size_t count = productOf(lists);
    if (count == 0 || !tables_.hasRoom(count, model.table.position))
        return false;
    const bool measure = isMeasure(model.command.kind);
    std::vector<std::size_t> turn(lists.size(), 0);
    for (std::size_t number = 1; number <= count; ++number) {
        TableCommand command = model.command;
        for (std::size_t i = 0; i < lists.size(); ++i) {
            if (measure && i == 0)
                command.measure = lists[i][turn[i]];
            else
                command.dimensions.push_back(lists[i][turn[i]]);
        }
        if (!placer_.place(command, model.settings) ||
            !addOne(std::move(command), model, number, count))
            return false;
        for (std::size_t i = lists.size(); i-- > 0 && ++turn[i] == lists[i].size();)
            turn[i] = 0;
    }
    return true;
}

bool TableChecker::addOne(TableCommand command, const Model& model, std::size_t number,
                          std::size_t count) {
    if (!tables_.hasRoomFor(command, model.table.position))
        return false;
    TableFacts facts = model.facts;
    if (command.operands.empty())
        facts.dimensions = variablesOf(command.dimensions);
    command.name = tables_.nameFor(model.table, number, count);
    if (count > 1)
        numberFiles(command, number);
    noteFiles(model.table, command, context_);
    if (model.table.sort) {
        const bool taken = takeSort(command, facts, model);
        sorted_ = sorted_ || taken;
        if (number == count && !sorted_) {
            sorts_.reportNoColumn(*model.table.sort, command);
            return false;
        }
    }
    tables_.add(std::move(command), std::move(facts));
    return true;
}

bool TableChecker::takeSort(TableCommand& command, const TableFacts& facts, const Model& model) {
    TableFacts placed = facts;
    if (command.operands.empty())
        placed.areaBreak = areaBreakOf(command);
    return sorts_.take(*model.table.sort, placed, command);
}

} // namespace kelx::language
