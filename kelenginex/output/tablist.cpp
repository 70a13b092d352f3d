// SPDX-License-Identifier: Apache-2.0
// Tables side by side, joined on the categories of their rows.
#include "output/joining.h"
#include "output/layout.h"

#include <map>
#include <stdexcept>

namespace kelx::output {
namespace {

/// One table's columns: one for each combination of places in the dimensions behind the first.
class TableColumns {
public:
    TableColumns(const RowTable& rows, std::size_t lines) : rows_(rows), lines_(lines) {}

    /// Figures go to the lines of their row categories.
    void fill(const std::vector<std::uint32_t>& lineOfPlace, execution::Progress& progress) {
        for (std::size_t row = 0; row < rows_.rows(); ++row) {
            progress.check();
            Combination combination;
            for (std::size_t d = 1; d < rows_.dimensions.size(); ++d)
                combination.push_back(rows_.place(d, row));
            Columns& columns = columnsOf(combination);
            const std::uint32_t line = lineOfPlace[rows_.place(0, row)];
            for (std::size_t f = 0; f < columns.size(); ++f)
                (*columns[f])[line] = (*rows_.figures[f])[row];
        }
    }

    void addTo(Laid& laid) const {
        const std::string& name = rows_.command->name;
        SortGuide::Part part{name, laid.table.fields.size(), 0, 0};
        for (const auto& [combination, columns] : columns_) {
            std::string field = name;
            bool isTotal = true;
            for (std::size_t d = 1; d < rows_.dimensions.size(); ++d) {
                field += " " + placeName(categoryAt(rows_, d, combination[d - 1]));
                isTotal = isTotal && combination[d - 1] == rows_.valid[d];
            }
            if (isTotal)
                part.total = laid.table.fields.size();
            for (std::size_t f = 0; f < columns.size(); ++f) {
                const std::string full =
                    columns.size() > 1 ? field + " " + rows_.figureNames[f] : field;
                laid.table.fields.push_back({full, full, name});
                laid.table.columns.push_back(Column::of(columns[f]));
            }
        }
        part.columns = laid.table.fields.size() - part.first;
        laid.guide.parts.push_back(std::move(part));
        const auto figures = static_cast<std::int64_t>(rows_.figures.size());
        laid.table.suppressed += rows_.suppressed() * figures;
    }

private:
    using Combination = std::vector<std::uint32_t>;
    using Columns = std::vector<std::shared_ptr<Column::Figures>>;

    Columns& columnsOf(const Combination& combination) {
        Columns& columns = columns_[combination];
        while (columns.size() < rows_.figures.size())
            columns.push_back(std::make_shared<Column::Figures>(lines_, rows_.none));
        return columns;
    }

    const RowTable& rows_;
    std::size_t lines_;
    std::map<Combination, Columns> columns_;
};

std::vector<const RowTable*> operandsOf(const language::TableCommand& command,
                                        const FindRows& tables) {
    std::vector<const RowTable*> operands;
    for (const std::size_t number : command.operands) {
        operands.push_back(&tables(number));
        if (operands.back()->dimensions.empty())
            throw std::runtime_error("The table " + operands.back()->command->name +
                                     " has no rows that " + command.name + " could join.");
    }
    if (operands.empty())
        throw std::runtime_error("The table " + command.name + " has no tables to join.");
    return operands;
}

} // namespace

Laid layTablist(const language::TableCommand& command, const FindRows& tables,
                const catalog::Dictionary& dictionary, execution::Progress& progress) {
    const std::vector<const RowTable*> operands = operandsOf(command, tables);
    const JoinedDimension rows = joinDimension(operands, 0);
    const std::size_t lines = rows.dimension.categories.size() + 1;
    Laid laid;
    laid.table = described(command, dictionary);
    laid.table.variables = {operands.front()->variables.front()};
    laid.table.dimension = 1;
    Column::Values names;
    for (std::size_t line = 0; line < lines; ++line) {
        const bool isTotal = line == rows.valid;
        const std::size_t category = line < rows.valid ? line : line - 1;
        names.emplace_back(placeName(isTotal ? nullptr : &rows.dimension.categories[category]));
    }
    laid.table.fields.push_back({rows.dimension.name, rows.dimension.label, rows.dimension.name});
    laid.table.columns.push_back(Column::of(std::move(names)));
    addNames(laid.table.variables.front(), 0, laid.guide);
    for (std::size_t i = 0; i < operands.size(); ++i) {
        TableColumns columns(*operands[i], lines);
        columns.fill(rows.places[i], progress);
        columns.addTo(laid);
    }
    laid.guide.column = 1;
    laid.guide.ordered = {0};
    laid.guide.isMarker = [valid = rows.valid](std::size_t row) { return row >= valid; };
    return laid;
}

} // namespace kelx::output
