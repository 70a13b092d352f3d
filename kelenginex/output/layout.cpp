// SPDX-License-Identifier: Apache-2.0
#include "output/layout.h"

#include "output/names.h"

#include <algorithm>

namespace kelx::output {

using execution::Category;
using execution::CategoryKind;
using language::TableCommand;
using language::TableKind;

namespace {

/// The codes, labels and kinds of a dimension's places.
struct Triple {
    Column::Values codes, labels, kinds;

    Triple(const RowTable& table, std::size_t dimension, execution::Progress& progress) {
        for (Column::Values* values : {&codes, &labels, &kinds})
            values->reserve(placesOf(table, dimension));
        for (std::uint32_t place = 0; place < placesOf(table, dimension); ++place) {
            progress.check();
            const Category* category = categoryAt(table, dimension, place);
            if (category == nullptr)
                add("0", "__tot__", "tot");
            else if (category->kind == CategoryKind::Valid)
                add(category->code, category->label, "");
            else if (category->kind == CategoryKind::Missing)
                add("0", "__mv__", "mv");
            else
                add("0", "__na__", "na");
        }
    }

private:
    void add(const std::string& code, const std::string& label, const char* kind) {
        codes.emplace_back(code);
        labels.emplace_back(label);
        kinds.emplace_back(std::string(kind));
    }
};

void addTriples(const RowTable& rows, Form& form, execution::Progress& progress) {
    for (std::size_t d = 0; d < rows.dimensions.size(); ++d) {
        const std::string& name = rows.dimensions[d].name;
        const std::string& label = rows.dimensions[d].label;
        form.fields.push_back({name, label, name});
        form.fields.push_back({name + " label", label + " (label)", name});
        form.fields.push_back({name + " kind", label + " (kind)", name});
        Triple triple(rows, d, progress);
        form.columns.push_back(Column::of(std::move(triple.codes), rows.places[d]));
        form.columns.push_back(Column::of(std::move(triple.labels), rows.places[d]));
        form.columns.push_back(Column::of(std::move(triple.kinds), rows.places[d]));
    }
    form.triples = rows.dimensions.size();
}

/// "code. label" for each dimension.
void addTexts(const RowTable& rows, Form& form, execution::Progress& progress) {
    for (std::size_t d = 0; d < rows.dimensions.size(); ++d) {
        const execution::Dimension& dimension = rows.dimensions[d];
        form.fields.push_back({dimension.name, dimension.label, dimension.name});
        Column::Values names;
        names.reserve(placesOf(rows, d));
        for (std::uint32_t place = 0; place < placesOf(rows, d); ++place) {
            progress.check();
            names.emplace_back(placeName(categoryAt(rows, d, place)));
        }
        form.columns.push_back(Column::of(std::move(names), rows.places[d]));
    }
}

/// What several figures of a measure stand under: its label, else its full name. It differs from
/// the last dimension's, or they would be read as one group.
std::string figureGroup(const RowTable& rows) {
    const TableCommand& command = *rows.command;
    if (!command.measure)
        return {};
    const TableVariable measure = variableOf(*command.measure);
    const bool unlabelled = measure.variable != nullptr && measure.variable->label.empty();
    const std::string heading = unlabelled ? measure.name : measure.label;
    const bool same = !rows.dimensions.empty() && rows.dimensions.back().name == heading;
    return same ? kindName(command.kind) + (" " + heading) : heading;
}

/// Name, label and group of each figure's field.
std::vector<Field> figureFields(const RowTable& rows) {
    const TableCommand& command = *rows.command;
    switch (command.kind) {
    case TableKind::Frequency:
        return {{command.unit->name, headingOf(*command.unit), ""}};
    case TableKind::Count:
        return {{"Count", "Count", "Count"}};
    case TableKind::Average: {
        const TableVariable measure = variableOf(*command.measure);
        return {{measure.name, measure.label, ""}};
    }
    case TableKind::Tabop:
        if (rows.figures.size() == 1)
            return {{command.name, command.name, ""}};
        break;
    default:
        break;
    }
    const std::string group = rows.figureNames.size() > 1 ? figureGroup(rows) : std::string();
    std::vector<Field> fields;
    for (const std::string& name : rows.figureNames)
        fields.push_back({name, name, group});
    return fields;
}

void addFigures(const RowTable& rows, Form& form) {
    for (Field& field : figureFields(rows))
        form.fields.push_back(std::move(field));
    for (const auto& figures : rows.figures)
        form.columns.push_back(Column::of(figures));
}

/// Says in the first column what the only row is about.
void addSubject(const std::string& field, const std::string& subject, Form& form) {
    form.fields.push_back({field, field, field});
    form.columns.push_back(Column::of({Value(subject)}));
}

bool inTexts(const RowTable& rows) {
    switch (rows.command->kind) {
    case TableKind::Frequency:
    case TableKind::Count:
    case TableKind::Average:
        return false;
    case TableKind::Tabop:
        return rows.dimensions.size() == 1;
    default:
        return true;
    }
}

void addSubjectOf(const RowTable& rows, Table& table) {
    const TableCommand& command = *rows.command;
    if (command.kind == TableKind::Count)
        addSubject("Entity", command.countEntity->name, table);
    else if (command.kind == TableKind::Average)
        addSubject("Variable", variableOf(*command.measure).name, table);
    else if (command.kind == TableKind::Tabop)
        addSubject("Table", command.name, table);
}

void addForms(const RowTable& rows, Table& table, execution::Progress& progress) {
    if (rows.dimensions.empty())
        addSubjectOf(rows, table);
    else if (!inTexts(rows))
        addTriples(rows, table, progress);
    else {
        addTexts(rows, table, progress);
        table.inTriples.emplace();
        addTriples(rows, *table.inTriples, progress);
        addFigures(rows, *table.inTriples);
    }
    addFigures(rows, table);
}

SortGuide guideOf(const RowTable& rows, const Table& table) {
    SortGuide guide;
    const std::size_t step = table.triples > 0 ? 3 : 1;
    for (std::size_t d = 0; d < rows.dimensions.size(); ++d) {
        addNames(rows.variables[d], d * step, guide);
        guide.ordered.push_back(d * step);
    }
    guide.column = table.fields.size() - rows.figures.size();
    guide.parts.push_back({rows.command->name, guide.column, rows.figures.size(), guide.column});
    if (rows.command->measure)
        addNames(variableOf(*rows.command->measure), guide.column, guide);
    guide.isMarker = [&rows](std::size_t row) { return rows.isMarker(row); };
    return guide;
}

std::optional<std::string> textOf(const language::Expression* expression) {
    return expression != nullptr ? std::optional(expression->text) : std::nullopt;
}

std::optional<std::string> universalFilterOf(const language::RunSettings* run) {
    if (run == nullptr || run->filter == nullptr)
        return std::nullopt;
    return run->filterLabel ? run->filterLabel : textOf(run->filter.get());
}

std::string_view areaOf(const language::RunSettings& run) {
    if (run.selection && !run.selection->label.empty())
        return run.selection->label;
    return wholeDatabase;
}

} // namespace

std::string headingOf(const catalog::Entity& entity) {
    return entity.label.empty() ? entity.name : entity.label;
}

TableVariable variableOf(const language::Expression& expression) {
    using language::Operation;
    if (expression.operation == Operation::VariableValue && expression.variable != nullptr) {
        const catalog::Variable& variable = *expression.variable;
        return {&variable, nullptr, variable.fullName(),
                variable.label.empty() ? variable.name : variable.label};
    }
    if (expression.operation == Operation::CompoundCode && expression.codeEntity != nullptr)
        return {nullptr, expression.codeEntity, expression.codeEntity->name + ".CMPCODE",
                headingOf(*expression.codeEntity)};
    return {nullptr, nullptr, expression.text, expression.text};
}

void addNames(const TableVariable& variable, std::size_t column, SortGuide& guide) {
    guide.names.emplace_back(variable.name, column);
    if (variable.variable == nullptr || variable.variable->entity == nullptr)
        return;
    const catalog::Entity& entity = *variable.variable->entity;
    for (const std::string& name : {variable.variable->name, variable.variable->alias}) {
        if (name.empty())
            continue;
        guide.names.emplace_back(name, column);
        for (const std::string& owner : {entity.name, entity.alias})
            guide.names.emplace_back(owner + "." + name, column);
    }
}

Circumstances::Circumstances(const TableCommand& command)
    : unit(command.unit != nullptr ? command.unit : command.countEntity),
      area(areaOf(*command.settings)), run(command.settings.get()), filter(command.filter.get()),
      weight(command.weight.get()), tally(command.tally.get()) {}

void Circumstances::keepCommon(const Circumstances& others) {
    const auto keep = [](const language::Expression*& own, const language::Expression* other) {
        if (own == nullptr || other == nullptr || own->text != other->text)
            own = nullptr;
    };
    if (unit != others.unit)
        unit = nullptr;
    if (area != others.area)
        area = "Several areas";
    if (universalFilterOf(run) != universalFilterOf(others.run))
        run = nullptr;
    keep(filter, others.filter);
    keep(weight, others.weight);
    keep(tally, others.tally);
}

void Circumstances::tellIn(Table& table) const {
    table.unit = unit != nullptr ? unit->name : "";
    table.area = area;
    table.filter = textOf(filter);
    table.weight = textOf(weight);
    table.tally = textOf(tally);
    table.universalFilter = universalFilterOf(run);
}

Table described(const TableCommand& command, const catalog::Dictionary& dictionary) {
    const language::RunSettings& settings = *command.settings;
    Table table;
    table.name = command.name;
    table.kind = kindName(command.kind);
    table.type = typeOf(command.kind);
    table.method = methodOf(command.kind);
    table.entity = command.countEntity;
    table.database =
        dictionary.label.empty() ? dictionary.file.filename().string() : dictionary.label;
    table.title = command.title ? command.title : settings.title;
    table.decimals = command.decimals ? command.decimals : settings.decimals;
    Circumstances(command).tellIn(table);
    return table;
}

Laid layRows(const RowTable& rows, const catalog::Dictionary& dictionary,
             execution::Progress& progress) {
    Laid laid;
    Table& table = laid.table;
    table = described(*rows.command, dictionary);
    table.dimension = static_cast<int>(rows.dimensions.size());
    if (rows.command->measure)
        table.variables.push_back(variableOf(*rows.command->measure));
    table.variables.insert(table.variables.end(), rows.variables.begin(), rows.variables.end());
    addForms(rows, table, progress);
    table.suppressed = rows.suppressed();
    table.seconds = rows.seconds;
    laid.guide = guideOf(rows, table);
    return laid;
}

} // namespace kelx::output
