// SPDX-License-Identifier: Apache-2.0
#include "output/rows.h"

#include "language/figure_names.h"
#include "output/row_maker.h"

#include <algorithm>

namespace kelx::output {

using execution::Category;
using execution::CategoryKind;
namespace {

std::vector<TableVariable> variablesOf(const language::TableCommand& command,
                                       const std::vector<execution::Dimension>& dimensions) {
    std::vector<TableVariable> variables;
    for (const execution::Dimension& dimension : dimensions)
        variables.push_back({dimension.variable, nullptr, dimension.name, dimension.label});
    // The areas that break the run stand before what the command itself names.
    if (command.settings && command.settings->areaBreak != nullptr &&
        dimensions.size() == command.dimensions.size() + 1)
        variables.front().areas = command.settings->areaBreak;
    return variables;
}

/// A count of nothing is 0, and so is a sum of weights; a measure of nothing has no value.
Figure noneOf(const execution::TableResult& result) {
    if (result.measured)
        return {};
    return result.exact ? Figure(std::int64_t{0}) : Figure(0.0);
}

} // namespace

bool RowTable::isMarker(std::size_t row) const {
    for (std::size_t d = 0; d < places.size(); ++d) {
        if (place(d, row) >= valid[d])
            return true;
    }
    return false;
}

std::int64_t RowTable::suppressed() const {
    return std::count_if(hidden.begin(), hidden.end(), [](std::uint8_t h) { return h != 0; });
}

RowTable makeRows(execution::TableResult result, execution::Progress& progress) {
    const double start = progress.seconds();
    RowTable table;
    table.command = result.command;
    table.none = noneOf(result);
    RowMaker(result, progress).fill(table);
    table.figureNames = language::figureNames(*result.command);
    table.variables = variablesOf(*result.command, result.dimensions);
    table.dimensions = std::move(result.dimensions);
    table.seconds = result.seconds + progress.seconds() - start;
    return table;
}

const Category* categoryAt(const RowTable& table, std::size_t dimension, std::uint32_t place) {
    const std::uint32_t valid = table.valid[dimension];
    if (place == valid)
        return nullptr;
    return &table.dimensions[dimension].categories[place < valid ? place : place - 1];
}

std::string placeName(const Category* category) {
    if (category == nullptr)
        return "Total";
    if (category->kind != CategoryKind::Valid)
        return category->kind == CategoryKind::Missing ? "MV" : "NA";
    return category->code == category->label ? category->code
                                             : category->code + ". " + category->label;
}

std::uint32_t placesOf(const RowTable& table, std::size_t dimension) {
    return static_cast<std::uint32_t>(table.dimensions[dimension].categories.size()) + 1;
}

} // namespace kelx::output
