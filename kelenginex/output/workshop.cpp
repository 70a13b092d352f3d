// SPDX-License-Identifier: Apache-2.0
#include "output/workshop.h"

#include "output/suppression.h"

#include <algorithm>
#include <stdexcept>

namespace kelx::output {

using language::TableKind;

namespace {

bool isList(const language::TableCommand& command) {
    return command.kind == TableKind::AreaList || command.kind == TableKind::View;
}

bool isMadeOfTables(const language::TableCommand& command) {
    return command.kind == TableKind::Tabop || command.kind == TableKind::Tablist;
}

/// Lines of a cross table would lose their order.
bool canBeSorted(const language::TableCommand& command, const Table& table) {
    const bool asCells = command.kind == TableKind::Frequency || command.kind == TableKind::Tabop;
    return !asCells || table.dimension == 1;
}

std::shared_ptr<RowTable> copied(const RowTable& rows) {
    auto copy = std::make_shared<RowTable>(rows);
    for (auto& figures : copy->figures)
        figures = std::make_shared<Column::Figures>(*figures);
    return copy;
}

} // namespace

Workshop::Workshop(const language::BoundProgram& program, const catalog::Dictionary& dictionary)
    : program_(program), dictionary_(dictionary), sources_(program.tables.size()),
      readers_(program.tables.size()), made_(program.tables.size()), rows_(program.tables.size()),
      lists_(program.tables.size()), listSeconds_(program.tables.size()),
      tables_(program.tables.size()) {
    for (std::size_t i = 0; i < program.tables.size(); ++i) {
        const Command& command = program.tables[i];
        if (!command.isNeeded)
            continue;
        if (isList(command) || isMadeOfTables(command))
            waiting_.push_back(i);
        std::vector<std::size_t>& sources = sources_[i];
        sources = command.operands;
        for (const language::ListColumn& column : command.columns) {
            if (column.table)
                sources.push_back(*column.table);
        }
        for (const std::size_t source : sources)
            ++readers_.at(source);
    }
    findCircumstances();
}

/// What is made of tables is told what they have in common. They come earlier.
void Workshop::findCircumstances() {
    circumstances_.reserve(program_.tables.size());
    for (const Command& command : program_.tables) {
        const std::vector<std::size_t>& operands = command.operands;
        if (operands.empty()) {
            circumstances_.emplace_back(command);
            continue;
        }
        Circumstances common = circumstances_[operands.front()];
        for (const std::size_t operand : operands)
            common.keepCommon(circumstances_[operand]);
        circumstances_.push_back(common);
    }
}

void Workshop::take(std::size_t index, execution::TableResult result,
                    execution::Progress& progress) {
    const Command& command = program_.tables.at(index);
    if (!command.isNeeded)
        return;
    if (isList(command)) {
        lists_[index] = result.list;
        listSeconds_[index] = result.seconds;
    } else {
        RowTable rows = makeRows(std::move(result), progress);
        if (command.sensitive)
            suppress(rows, *command.sensitive, progress);
        keep(index, std::move(rows), progress);
    }
    makeAllThatCanBe(progress);
}

std::vector<Table> Workshop::finish(execution::Progress& progress) {
    makeAllThatCanBe(progress);
    std::vector<Table> outputs;
    for (std::size_t i = 0; i < tables_.size(); ++i) {
        if (!command(i).isNeeded || !command(i).isOutput)
            continue;
        if (!tables_[i])
            throw std::logic_error("the table " + command(i).name + " was never made");
        outputs.push_back(std::move(*tables_[i]));
    }
    return outputs;
}

bool Workshop::canBeMade(std::size_t index) const {
    const bool begun =
        isList(command(index)) ? lists_[index] != nullptr : isMadeOfTables(command(index));
    return begun && std::all_of(sources_[index].begin(), sources_[index].end(),
                                [&](std::size_t source) { return made_[source]; });
}

/// One table may be all that another one has waited for.
void Workshop::makeAllThatCanBe(execution::Progress& progress) {
    const auto next = [&] {
        return std::find_if(waiting_.begin(), waiting_.end(),
                            [&](std::size_t index) { return canBeMade(index); });
    };
    for (auto found = next(); found != waiting_.end(); found = next()) {
        const std::size_t index = *found;
        waiting_.erase(found);
        make(index, progress);
        copies_.clear();
        for (const std::size_t source : sources_[index])
            release(source);
    }
}

void Workshop::make(std::size_t index, execution::Progress& progress) {
    const double start = progress.seconds();
    const Command& own = command(index);
    const FindRows tables = findRows(own, progress);
    if (own.kind == TableKind::Tabop) {
        RowTable rows = operated(own, tables, progress);
        if (own.sensitive)
            suppress(rows, *own.sensitive, progress);
        keep(index, std::move(rows), progress);
        return;
    }
    made_[index] = true;
    Laid laid = isList(own) ? layList(own, std::move(*lists_[index]), tables, dictionary_, progress)
                            : layTablist(own, tables, dictionary_, progress);
    lists_[index].reset();
    show(index, std::move(laid), listSeconds_[index] + progress.seconds() - start, progress);
}

/// The rows of a table, for those that are made of them too.
void Workshop::keep(std::size_t index, RowTable rows, execution::Progress& progress) {
    made_[index] = true;
    rows_[index] = std::make_shared<RowTable>(std::move(rows));
    const double start = progress.seconds();
    if (command(index).isOutput) {
        Laid laid = layRows(*rows_[index], dictionary_, progress);
        show(index, std::move(laid), rows_[index]->seconds + progress.seconds() - start, progress);
    }
    if (readers_[index] == 0)
        rows_[index].reset();
}

void Workshop::show(std::size_t index, Laid laid, double seconds, execution::Progress& progress) {
    const double start = progress.seconds();
    const Command& own = command(index);
    if (!own.isOutput)
        return;
    if (own.sort && canBeSorted(own, laid.table))
        sortRows(laid, *own.sort, progress);
    if (isMadeOfTables(own))
        circumstances_[index].tellIn(laid.table);
    laid.table.command = index;
    laid.table.seconds = seconds + progress.seconds() - start;
    tables_[index] = std::move(laid.table);
}

void Workshop::release(std::size_t index) {
    if (--readers_[index] == 0)
        rows_[index].reset();
}

/// TABLIST may hide more than its tables do, which TABOP sees to with its own figures.
FindRows Workshop::findRows(const Command& reader, execution::Progress& progress) {
    return [this, &reader, &progress](std::size_t table) -> const RowTable& {
        const std::shared_ptr<RowTable>& rows = rows_.at(table);
        if (reader.kind != TableKind::Tablist || !reader.sensitive)
            return *rows;
        copies_.push_back(copied(*rows));
        suppress(*copies_.back(), *reader.sensitive, progress);
        return *copies_.back();
    };
}

} // namespace kelx::output
