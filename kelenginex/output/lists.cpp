// SPDX-License-Identifier: Apache-2.0
// Area lists and views: a row for each record.
#include "output/layout.h"

#include <algorithm>
#include <optional>
#include <utility>

namespace kelx::output {
namespace {

using execution::Category;
using execution::CategoryKind;
using language::TableCommand;
using language::TableKind;

/// What a column that is a variable is named and headed by.
struct Group {
    TableVariable variable;
    std::string table; ///< name of a column that is a table, else empty
    std::string heading;
    std::string conditions;                ///< that the heading tells
    const TableCommand* command = nullptr; ///< of a column that is a table
};

std::string textOf(const language::ExpressionPtr& expression) {
    return expression != nullptr ? expression->text : std::string();
}

/// What a table's figures are counted by.
struct Conditions {
    std::string filter, weight, tally;

    explicit Conditions(const TableCommand& command)
        : filter(textOf(command.filter)), weight(textOf(command.weight)),
          tally(textOf(command.tally)) {}
    bool operator==(const Conditions& other) const = default;

    /// Behind a heading, where neighbours have others.
    std::string inWords() const {
        std::string words;
        for (const auto& [what, text] :
             {std::pair(", filter ", &filter), std::pair(", weight ", &weight),
              std::pair(", tally ", &tally)})
            words += text->empty() ? "" : what + *text;
        return words;
    }
};

std::string rawHeading(const Group& group) {
    const catalog::Variable* variable = group.variable.variable;
    std::string label = variable != nullptr ? variable->label : group.variable.label;
    if (group.table.empty())
        return label;
    return (group.variable.label.empty() ? group.table : group.table + " " + group.variable.label) +
           group.conditions;
}

/// Neighbours have different headings, or they would be read as one group.
void setHeadings(std::vector<Group>& groups) {
    std::vector<std::string> raw;
    for (const Group& group : groups)
        raw.push_back(rawHeading(group));
    for (std::size_t i = 0; i < groups.size(); ++i) {
        const bool same = raw[i].empty() || (i > 0 && raw[i - 1] == raw[i]) ||
                          (i + 1 < groups.size() && raw[i + 1] == raw[i]);
        const std::string& name = groups[i].variable.name;
        groups[i].heading = same && groups[i].table.empty() ? name : raw[i];
        if (i > 0 && groups[i].heading == groups[i - 1].heading)
            groups[i].heading += " (" + std::to_string(i + 1) + ")";
    }
}

/// The columns under way, with their fields.
class ListMaker {
public:
    ListMaker(const TableCommand& command, execution::ListResult list,
              const catalog::Dictionary& dictionary, execution::Progress& progress)
        : command_(command), list_(std::move(list)), progress_(progress) {
        laid_.table = described(command, dictionary);
    }

    Laid make(const FindRows& tables) {
        addCodes();
        const catalog::Entity& entity = *command_.countEntity;
        if (command_.kind == TableKind::AreaList && entity.labelVar != nullptr)
            addLabels(*entity.labelVar);
        for (std::size_t i = 0; i < command_.columns.size(); ++i) {
            const language::ListColumn& column = command_.columns[i];
            if (column.table)
                addTable(tables(*column.table));
            else
                addVariable(*column.variable, std::move(list_.columns.at(i)));
        }
        // A code that has a column of its own is meant by that.
        if (entity.codeVar != nullptr)
            addNames(plain(*entity.codeVar), 0, laid_.guide);
        finish();
        return std::move(laid_);
    }

private:
    Column columnOf(execution::ListValues values) const {
        if (values.numbers.empty())
            return Column::of(std::move(values.values));
        return Column::of(std::move(values.values),
                          std::make_shared<const Column::Numbers>(std::move(values.numbers)));
    }

    void add(Field field, Column column) {
        laid_.table.fields.push_back(std::move(field));
        laid_.table.columns.push_back(std::move(column));
        groupOfField_.push_back(groups_.size() - 1);
    }
    std::size_t nextColumn() const { return laid_.table.fields.size(); }

    void addCodes() {
        const catalog::Entity& entity = *command_.countEntity;
        const bool coded = entity.codeVar != nullptr;
        groups_.push_back(
            {{nullptr, &entity, coded ? entity.name + ".CMPCODE" : entity.name, headingOf(entity)},
             "",
             "",
             "",
             nullptr});
        add({groups_.back().variable.name, headingOf(entity), ""},
            columnOf(std::move(list_.codes)));
        laid_.guide.names.emplace_back(entity.name, 0);
    }

    void addLabels(const catalog::Variable& label) {
        const TableVariable variable = plain(label);
        groups_.push_back({variable, "", "", "", nullptr});
        addNames(variable, nextColumn(), laid_.guide);
        add({variable.name, variable.label, ""}, columnOf(std::move(list_.labels)));
    }

    static TableVariable plain(const catalog::Variable& variable) {
        return {&variable, nullptr, variable.fullName(),
                variable.label.empty() ? variable.name : variable.label};
    }

    void addVariable(const language::Expression& expression, execution::ListValues values) {
        const TableVariable variable = variableOf(expression);
        const int least =
            variable.variable != nullptr ? variable.variable->sensitive.value_or(0) : 0;
        groups_.push_back({variable, "", "", "", nullptr});
        addNames(variable, nextColumn(), laid_.guide);
        Column column = columnOf(std::move(values));
        // Each value is of one record.
        add({variable.name, variable.label, ""}, least >= 2 ? blanked(column) : std::move(column));
    }

    Column blanked(const Column& column) {
        for (std::size_t row = 0; row < column.rows(); ++row) {
            progress_.check();
            laid_.table.suppressed +=
                std::holds_alternative<std::monostate>(column.at(row)) ? 0 : 1;
        }
        return Column::of(std::make_shared<const Column::Figures>(column.rows()));
    }

    /// The group of a table: its dimension under the list's records, else what it measures or is
    /// called.
    static TableVariable variableOfTable(const RowTable& rows) {
        if (rows.variables.size() > 1)
            return rows.variables[1];
        if (rows.command->measure)
            return variableOf(*rows.command->measure);
        return {nullptr, nullptr, rows.command->name, ""};
    }

    /// Numbers of the list's rows by the places of the table's records.
    std::vector<std::size_t> rowsOfPlaces(const RowTable& rows) {
        const std::vector<Category>& categories = rows.dimensions[0].categories;
        std::vector<std::size_t> result(rows.valid[0], list_.records.size());
        for (std::size_t row = 0; row < list_.records.size(); ++row) {
            progress_.check();
            const auto record = static_cast<std::int64_t>(list_.records[row]);
            const auto end = categories.begin() + rows.valid[0];
            const auto found = std::lower_bound(
                categories.begin(), end, record, [](const Category& category, std::int64_t wanted) {
                    return std::get<std::int64_t>(category.value) < wanted;
                });
            if (found != end && std::get<std::int64_t>(found->value) == record)
                result[static_cast<std::size_t>(found - categories.begin())] = row;
        }
        return result;
    }

    void addTable(const RowTable& rows) {
        groups_.push_back({variableOfTable(rows), rows.command->name, "", "", rows.command});
        const bool crossed = rows.dimensions.size() > 1;
        const TableFigures figures = figuresOf(rows, crossed);
        SortGuide::Part part{rows.command->name, nextColumn(), 0, 0};
        for (std::uint32_t place = 0; place < figures.size(); ++place) {
            if (figures[place].empty())
                continue;
            if (!crossed || place == rows.valid[1])
                part.total = nextColumn();
            for (std::size_t f = 0; f < figures[place].size(); ++f)
                add(fieldOf(rows, place, crossed, f), Column::of(figures[place][f]));
        }
        part.columns = nextColumn() - part.first;
        laid_.guide.parts.push_back(std::move(part));
    }

    /// Columns by place and figure; none for a place that does not occur.
    using TableFigures = std::vector<std::vector<std::shared_ptr<Column::Figures>>>;

    TableFigures figuresOf(const RowTable& rows, bool crossed) {
        TableFigures result(crossed ? placesOf(rows, 1) : 1);
        const auto columnsAt = [&](std::uint32_t place) -> auto& {
            auto& columns = result[place];
            while (columns.size() < rows.figures.size()) {
                progress_.checkNow(); // many columns of many areas take their time
                columns.push_back(
                    std::make_shared<Column::Figures>(list_.records.size(), rows.none));
            }
            return columns;
        };
        columnsAt(crossed ? rows.valid[1] : 0); // even where there is no record at all
        const std::vector<std::size_t> into = rowsOfPlaces(rows);
        for (std::size_t row = 0; row < rows.rows(); ++row) {
            progress_.check();
            if (rows.place(0, row) >= rows.valid[0])
                continue; // of all records together
            auto& columns = columnsAt(crossed ? rows.place(1, row) : 0);
            const std::size_t to = into[rows.place(0, row)];
            if (to == list_.records.size())
                continue;
            laid_.table.suppressed +=
                rows.isHidden(row) ? static_cast<std::int64_t>(columns.size()) : 0;
            for (std::size_t f = 0; f < columns.size(); ++f)
                (*columns[f])[to] = (*rows.figures[f])[row];
        }
        return result;
    }

    static Field fieldOf(const RowTable& rows, std::uint32_t place, bool crossed, std::size_t f) {
        const std::string figure =
            rows.figures.size() > 1 ? " " + rows.figureNames[f] : std::string();
        const std::string& table = rows.command->name;
        if (!crossed)
            return {table + figure, table + figure, "", table};
        const Category* category = categoryAt(rows, 1, place);
        if (category != nullptr && category->kind == CategoryKind::Valid)
            return {placeName(category) + figure, category->label + figure, "", table};
        const char* label = category == nullptr                       ? "$tot$"
                            : category->kind == CategoryKind::Missing ? "$mv$"
                                                                      : "$na$";
        // Several figures have several totals.
        return {table + " " + placeName(category) + figure, label + figure, "", table};
    }

    void finish() {
        Table& table = laid_.table;
        tellConditions();
        setHeadings(groups_);
        for (std::size_t i = 0; i < table.fields.size(); ++i)
            table.fields[i].group = groups_[groupOfField_[i]].heading;
        for (std::size_t i = 1; i < groups_.size(); ++i) {
            table.variables.push_back(groups_[i].variable);
            if (table.variables.back().label.empty())
                table.variables.back().label = groups_[i].heading;
        }
        table.dimension = static_cast<int>(table.variables.size());
        const bool labelled =
            command_.kind == TableKind::AreaList && command_.countEntity->labelVar != nullptr;
        const std::size_t wanted = labelled ? 2 : 1;
        laid_.guide.column = std::min(wanted, table.fields.size() - 1);
    }

    /// Of the tables all together, where they agree; the list's own filter tells of its rows.
    void tellConditions() {
        const auto isTable = [](const Group& group) { return group.command != nullptr; };
        const auto first = std::find_if(groups_.begin(), groups_.end(), isTable);
        if (first == groups_.end())
            return;
        const Conditions common(*first->command);
        const bool agree = std::all_of(groups_.begin(), groups_.end(), [&](const Group& group) {
            return !isTable(group) || Conditions(*group.command) == common;
        });
        Table& table = laid_.table;
        if (!agree || (table.filter && *table.filter != common.filter)) {
            for (Group& group : groups_)
                group.conditions = isTable(group) ? Conditions(*group.command).inWords() : "";
            return;
        }
        table.filter = optional(common.filter);
        table.weight = optional(common.weight);
        table.tally = optional(common.tally);
    }
    static std::optional<std::string> optional(const std::string& text) {
        return text.empty() ? std::nullopt : std::optional(text);
    }

    const TableCommand& command_;
    execution::ListResult list_;
    execution::Progress& progress_;
    Laid laid_;
    std::vector<Group> groups_;
    std::vector<std::size_t> groupOfField_;
};

} // namespace

Laid layList(const TableCommand& command, execution::ListResult list, const FindRows& tables,
             const catalog::Dictionary& dictionary, execution::Progress& progress) {
    return ListMaker(command, std::move(list), dictionary, progress).make(tables);
}

} // namespace kelx::output
