// SPDX-License-Identifier: Apache-2.0
#include "language/table_register.h"

#include "language/text.h"

#include <algorithm>
#include <iterator>
#include <utility>

namespace kelx::language {

std::string TableRegister::nameFor(const ast::Table& table, std::size_t number, std::size_t count) {
    if (table.name.empty())
        return shortName(table.kindWord);
    if (count > 1)
        made_[lowerCase(table.name)] = count;
    std::string name = count == 1 ? table.name : table.name + "_" + std::to_string(number);
    if (!names_.insert(lowerCase(name)).second)
        again_[program_.tables.size()] = {name, table.position};
    return name;
}

std::string TableRegister::shortName(const std::string& kind) {
    std::string name;
    do {
        name = kind + "_" + std::to_string(++numbered_[kind]);
    } while (!names_.insert(lowerCase(name)).second);
    return name;
}

bool TableRegister::hasRoom(std::size_t count, Position position) {
    if (program_.tables.size() + count <= mostTables)
        return true;
    if (!std::exchange(isFull_, true))
        context_.report(Error::TooManyTables, position, {std::to_string(mostTables)});
    return false;
}

bool TableRegister::hasRoomFor(const TableCommand& command, Position position) {
    std::size_t bytes = command.name.size() + command.text.size();
    for (const auto* text :
         {&command.title, &command.tableStyle, &command.graphStyle, &command.mapStyle})
        bytes += *text ? (*text)->size() : 0;
    bytes += command.outfile ? command.outfile->path.size() : 0;
    for (const std::string& file : command.jsonFiles)
        bytes += file.size();
    return hasRoom(1, position) && context_.mayKeep(bytes, position);
}

bool TableRegister::hasRoomForColumn(Position position) {
    if (++columns_ == mostColumns + 1)
        context_.report(Error::TooManyColumns, position, {std::to_string(mostColumns)});
    return columns_ <= mostColumns;
}

void TableRegister::add(TableCommand command, TableFacts facts) {
    if (!command.isHidden) {
        names_.insert(lowerCase(command.name));
        context_.noteTable(command.name);
        byName_[lowerCase(command.name)].push_back(program_.tables.size());
    }
    if (command.operands.empty())
        facts.areaBreak = areaBreakOf(command);
    program_.tables.push_back(std::move(command));
    facts_.push_back(std::move(facts));
}

void TableRegister::expect(const ast::Table& table) {
    expected_.insert(lowerCase(table.name.empty() ? table.kindWord : table.name));
}

std::optional<std::size_t> TableRegister::find(const std::string& name) const {
    const auto found = byName_.find(lowerCase(name));
    return found == byName_.end() ? std::nullopt : std::optional(found->second.back());
}

std::vector<std::size_t> TableRegister::findAll(const std::string& name, std::size_t times) const {
    const auto found = byName_.find(lowerCase(name));
    if (found == byName_.end())
        return {};
    const std::vector<std::size_t>& all = found->second;
    if (times == 1 || all.size() == 1)
        return std::vector<std::size_t>(times, all.back());
    std::vector<std::size_t> fresh;
    std::copy_if(all.begin(), all.end(), std::back_inserter(fresh),
                 [&](std::size_t number) { return !facts_[number].isColumn; });
    if (fresh.size() == times)
        return fresh;
    return all.size() == times ? all : std::vector<std::size_t>();
}

void TableRegister::tellNames() {
    for (const auto& [number, again] : again_)
        context_.report(Warning::TableNameAgain, again.position, {again.name});
}

/// The tables of a list have a number behind the name.
bool TableRegister::isExpected(const std::string& name) const {
    const std::string key = lowerCase(name);
    return expected_.contains(key) || expected_.contains(key.substr(0, key.rfind('_')));
}

std::vector<std::string> TableRegister::names() const {
    std::vector<std::string> names;
    for (const auto& [key, numbers] : byName_)
        names.push_back(program_.tables[numbers.back()].name);
    return names;
}

std::optional<std::size_t> TableRegister::findOrReport(const ast::Name& name) {
    std::optional<std::size_t> found;
    if (name.entity.empty())
        found = find(name.name);
    if (found || (name.entity.empty() && isExpected(name.name)))
        return found;
    const std::string written = name.entity.empty() ? name.name : name.entity + "." + name.name;
    context_.report(Error::UnknownTable, name.position, {inQuotes(written), hintFor(name.name)});
    return std::nullopt;
}

void TableRegister::useAsColumn(std::size_t number) {
    facts_[number].isColumn = true;
    settle(number);
}

std::string TableRegister::hintFor(const std::string& name) const {
    const auto made = made_.find(lowerCase(name));
    if (made != made_.end()) {
        const std::string first = name + "_1", last = name + "_" + std::to_string(made->second);
        return " " + name + " makes " + std::to_string(made->second) + " tables, " + first +
               " to " + last + ": name one of them.";
    }
    return context_.wantsHints() ? didYouMean(nearest(name, names())) : "";
}

void TableRegister::useAsOperand(std::size_t number) {
    facts_[number].isOperand = true;
    settle(number);
}

/// A table that another one uses is made for its sake only, unless a file or the configuration
/// wants it.
void TableRegister::settle(std::size_t number) {
    TableCommand& table = program_.tables[number];
    const TableFacts& facts = facts_[number];
    table.isOutput = facts.isKept || context_.options().showIntermediate;
    table.isNeeded = table.isOutput || facts.isOperand;
}

} // namespace kelx::language
