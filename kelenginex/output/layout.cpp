// SPDX-License-Identifier: Apache-2.0
// What a table says of itself, and its columns.
#include "output/rows.h"

#include <algorithm>

namespace kelx::output {
namespace {

using execution::Category;
using execution::CategoryKind;
using execution::Dimension;
using execution::TableResult;

/// The values of a dimension's three columns, by place: valid categories, the total, MV, NA.
struct Triple {
    std::vector<Value> codes, labels, kinds;

    explicit Triple(const Dimension& dimension) {
        const auto mark = dimension.categories.end();
        const auto firstMarker =
            std::find_if(dimension.categories.begin(), mark,
                         [](const Category& c) { return c.kind != CategoryKind::Valid; });
        for (auto category = dimension.categories.begin(); category != firstMarker; ++category)
            add(category->code, category->label, "");
        add("0", "__tot__", "tot");
        for (auto marker = firstMarker; marker != mark; ++marker) {
            const bool missing = marker->kind == CategoryKind::Missing;
            add("0", missing ? "__mv__" : "__na__", missing ? "mv" : "na");
        }
    }

private:
    void add(const std::string& code, const std::string& label, const char* kind) {
        codes.emplace_back(code);
        labels.emplace_back(label);
        kinds.emplace_back(std::string(kind));
    }
};

std::string headingOf(const catalog::Entity& entity) {
    return entity.label.empty() ? entity.name : entity.label;
}

void describe(const language::TableCommand& command, const catalog::Dictionary& dictionary,
              Table& table) {
    const language::RunSettings& settings = *command.settings;
    const catalog::Entity* unit = command.unit != nullptr ? command.unit : command.countEntity;
    table.name = command.name;
    table.unit = unit->name;
    table.database =
        dictionary.label.empty() ? dictionary.file.filename().string() : dictionary.label;
    const bool selected = settings.selection && !settings.selection->label.empty();
    table.area = selected ? settings.selection->label : "All Database";
    table.title = command.title ? command.title : settings.title;
    table.decimals = command.decimals ? command.decimals : settings.decimals;
    if (command.filter)
        table.filter = command.filter->text;
    if (command.weight)
        table.weight = command.weight->text;
    if (command.tally)
        table.tally = command.tally->text;
    if (settings.filter)
        table.universalFilter =
            settings.filterLabel ? *settings.filterLabel : settings.filter->text;
}

void layCount(const TableResult& result, RowMaker& rows, Table& table) {
    table.kind = "COUNT";
    table.entity = result.command->countEntity;
    table.fields = {{"Entity", "Entity", ""}, {"Count", "Count", ""}};
    Column name;
    name.values.emplace_back(table.entity != nullptr ? table.entity->name : table.unit);
    table.columns.push_back(std::move(name));
    table.columns.push_back({std::move(rows.figures()), nullptr});
}

void addColumns(const Dimension& dimension, Column::Numbers& places, Table& table) {
    Triple triple(dimension);
    const auto shared = std::make_shared<const Column::Numbers>(std::move(places));
    table.columns.push_back({std::move(triple.codes), shared});
    table.columns.push_back({std::move(triple.labels), shared});
    table.columns.push_back({std::move(triple.kinds), shared});
}

void layFrequency(const TableResult& result, RowMaker& rows, Table& table) {
    table.kind = "FREQUENCY";
    table.method = 1;
    table.dimension = static_cast<int>(result.dimensions.size());
    for (std::size_t i = 0; i < result.dimensions.size(); ++i) {
        const Dimension& dimension = result.dimensions[i];
        const std::string& name = dimension.name;
        table.variables.push_back(dimension.variable);
        table.fields.push_back({name, dimension.label, name});
        table.fields.push_back({name + " label", dimension.label + " (label)", name});
        table.fields.push_back({name + " kind", dimension.label + " (kind)", name});
        addColumns(dimension, rows.places()[i], table);
    }
    const catalog::Entity& unit = *result.command->unit;
    table.fields.push_back({unit.name, headingOf(unit), ""});
    table.columns.push_back({std::move(rows.figures()), nullptr});
}

} // namespace

Table makeTable(const execution::TableResult& result, const catalog::Dictionary& dictionary,
                execution::Progress& progress) {
    const double start = progress.seconds();
    Table table;
    describe(*result.command, dictionary, table);
    RowMaker rows(result, progress);
    if (result.command->kind == language::TableKind::Count)
        layCount(result, rows, table);
    else
        layFrequency(result, rows, table);
    table.seconds = result.seconds + progress.seconds() - start;
    return table;
}

} // namespace kelx::output
