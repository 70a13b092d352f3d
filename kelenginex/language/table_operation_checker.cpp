// SPDX-License-Identifier: Apache-2.0
#include "language/table_operation_checker.h"

#include "language/protection.h"
#include "language/text.h"

#include <algorithm>

namespace kelx::language {

namespace {

bool isArithmetic(Operation operation) {
    switch (operation) {
    case Operation::Add:
    case Operation::Subtract:
    case Operation::Multiply:
    case Operation::Divide:
    case Operation::Negate:
        return true;
    default:
        return false;
    }
}

bool isNumber(const Constant& constant) {
    return std::holds_alternative<std::int64_t>(constant) ||
           std::holds_alternative<double>(constant);
}

/// What the rows of a table are of.
const void* firstOf(const TableFacts& facts) {
    if (facts.areaBreak != nullptr)
        return facts.areaBreak;
    return facts.dimensions.empty() ? nullptr : facts.dimensions.front();
}

} // namespace

/// Why the table cannot be a part of another is told here; it becomes an operand otherwise.
std::optional<std::size_t> TableOperationChecker::operand(const ast::Name& name,
                                                          TableCommand& command) {
    const std::optional<std::size_t> number = tables_.findOrReport(name);
    if (!number)
        return std::nullopt;
    const bool list = tables_.table(*number).countEntity != nullptr &&
                      tables_.table(*number).kind != TableKind::Count;
    if (list || !tables_.facts(*number).oneFigure) {
        context_.report(Error::TableOperand, name.position,
                        {tables_.table(*number).name,
                         list ? "it is a list" : "it has several figures in each cell"});
        return std::nullopt;
    }
    auto& operands = command.operands;
    if (command.kind == TableKind::Tablist ||
        std::find(operands.begin(), operands.end(), *number) == operands.end())
        operands.push_back(*number);
    return number;
}

TableOperationChecker::Built TableOperationChecker::refuse(const ast::Node& node,
                                                           const char* reason) {
    const std::string source(
        context_.program().substr(node.span.begin, node.span.end - node.span.begin));
    context_.report(Error::TableOperator, node.position, {inQuotes(simplified(source)) + reason});
    return nullptr;
}

TableOperationChecker::Built TableOperationChecker::buildFigure(const ast::Node& node,
                                                                TableCommand& command) {
    const std::optional<std::size_t> number = operand(node.name, command);
    if (!number)
        return nullptr;
    auto built = std::make_unique<Expression>();
    built->operation = Operation::TableFigure;
    built->type = ValueType::Real;
    built->table = *number;
    built->position = node.position;
    built->text = tables_.table(*number).name;
    return built;
}

TableOperationChecker::Built TableOperationChecker::build(const ast::Node& node,
                                                          TableCommand& command) {
    if (node.kind == ast::NodeKind::Name)
        return buildFigure(node, command);
    const bool constant = node.kind == ast::NodeKind::Constant && isNumber(node.constant);
    if (!constant && (node.kind != ast::NodeKind::Operation || !isArithmetic(node.operation)))
        return refuse(node);
    auto built = std::make_unique<Expression>();
    built->operation = node.operation;
    built->type = ValueType::Real;
    built->position = node.position;
    if (constant) {
        built->operation = Operation::Constant;
        built->constant = node.constant;
        if (std::holds_alternative<std::int64_t>(node.constant))
            built->type = ValueType::Integer;
    }
    bool good = true;
    for (const ast::NodePtr& part : node.arguments) {
        built->arguments.push_back(build(*part, command));
        good = built->arguments.back() != nullptr && good;
    }
    if (!good)
        return nullptr;
    return built;
}

bool TableOperationChecker::haveSameShape(const TableCommand& command, Position position) {
    const std::size_t first = command.operands.front();
    for (const std::size_t other : command.operands) {
        const TableFacts& a = tables_.facts(first);
        const TableFacts& b = tables_.facts(other);
        if (a.areaBreak == b.areaBreak && a.dimensions == b.dimensions)
            continue;
        context_.report(Error::TableShapes, position,
                        {tables_.table(first).name, tables_.table(other).name});
        return false;
    }
    return true;
}

/// The parts protect their own cells; what is made of them must not give them away.
void TableOperationChecker::take(TableCommand& command, TableFacts& facts) {
    const TableFacts& first = tables_.facts(command.operands.front());
    facts.dimensions = first.dimensions;
    facts.areaBreak = first.areaBreak;
    for (const std::size_t number : command.operands) {
        tables_.useAsOperand(number);
        raise(command.sensitive, tables_.table(number).sensitive);
    }
}

bool TableOperationChecker::checkTabop(const ast::Table& table, TableCommand& command,
                                       TableFacts& facts) {
    if (table.operation == nullptr)
        return false;
    Built built = build(*table.operation, command);
    if (built == nullptr)
        return false;
    if (command.operands.empty()) {
        refuse(*table.operation, ", which names no table");
        return false;
    }
    if (!haveSameShape(command, table.operation->position))
        return false;
    const ast::Span span = table.operation->span;
    built->text = simplified(context_.program().substr(span.begin, span.end - span.begin));
    command.operation = std::move(built);
    take(command, facts);
    return true;
}

bool TableOperationChecker::standBeside(const ast::Name& name, std::size_t number,
                                        const TableCommand& command) {
    const TableFacts& facts = tables_.facts(number);
    const TableFacts& first = tables_.facts(command.operands.front());
    std::string reason;
    if (facts.dimension() == 0)
        reason = "it has no variable, and so no rows";
    else if (facts.dimension() > 2)
        reason = "it has more than two variables";
    else if (firstOf(facts) != firstOf(first))
        reason = "its rows are of another variable";
    if (reason.empty())
        return true;
    context_.report(Error::TablistTable, name.position,
                    {tables_.table(number).name,
                     number == command.operands.front()
                         ? "others"
                         : tables_.table(command.operands.front()).name,
                     reason});
    return false;
}

bool TableOperationChecker::checkTablist(const ast::Table& table, TableCommand& command,
                                         TableFacts& facts) {
    bool good = !table.names.empty();
    for (const ast::Name& name : table.names) {
        const std::optional<std::size_t> number = operand(name, command);
        if (number && std::count(command.operands.begin(), command.operands.end(), *number) > 1)
            context_.report(Warning::GivenTwice, name.position,
                            {inQuotes(name.name), "its columns have the same names"});
        good = number && standBeside(name, *number, command) && good;
    }
    if (!good)
        return false;
    take(command, facts);
    facts.oneFigure = false;
    return true;
}

} // namespace kelx::language
