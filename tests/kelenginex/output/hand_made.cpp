// SPDX-License-Identifier: Apache-2.0
#include "hand_made.h"

#include <numeric>

namespace kelx::test {

using execution::Category;
using execution::CategoryKind;
using language::ExpressionPtr;
using language::TableCommand;

namespace {

catalog::Entity& addEntity(catalog::Entity& parent, const std::string& name,
                           const std::string& label) {
    auto entity = std::make_unique<catalog::Entity>();
    entity->name = name;
    entity->label = label;
    return *parent.addChild(std::move(entity));
}

catalog::Variable& addVariable(catalog::Entity& entity, const std::string& name,
                               const std::string& label) {
    auto variable = std::make_unique<catalog::Variable>();
    variable->name = name;
    variable->label = label;
    return *entity.addVariable(std::move(variable));
}

class HandMeasured : public execution::Measured {
public:
    HandMeasured(std::vector<HandCell> cells, std::size_t figures, Rule rule)
        : cells_(std::move(cells)), figures_(figures), rule_(std::move(rule)) {}

    std::size_t figures() const override { return figures_; }
    std::vector<execution::Figure> work(const execution::RowCells& rows,
                                        execution::Progress& /*progress*/) override {
        std::vector<execution::Figure> result;
        for (std::size_t row = 0; row < rows.rows(); ++row) {
            std::vector<double> values;
            for (const std::uint32_t cell : rows.of(row))
                values.insert(values.end(), cells_[cell].values.begin(), cells_[cell].values.end());
            const auto figures = rule_(values);
            result.insert(result.end(), figures.begin(), figures.end());
        }
        return result;
    }

private:
    std::vector<HandCell> cells_;
    std::size_t figures_;
    Rule rule_;
};

std::vector<std::string> texts(const output::Form& form, std::string output::Field::*text) {
    std::vector<std::string> result;
    for (const output::Field& field : form.fields)
        result.push_back(field.*text);
    return result;
}

} // namespace

HandMade::HandMade() {
    dictionary.label = "Test country";
    dictionary.root = std::make_unique<catalog::Entity>();
    dictionary.root->dictionary = &dictionary;
    dictionary.root->name = "COUNTRY";
    catalog::Entity& province = addEntity(*dictionary.root, "PROVINCE", "Province");
    province.codeVar = &addVariable(province, "CODE", "Code");
    province.labelVar = &addVariable(province, "NAME", "Name of the province");
    addVariable(province, "RATE", "");
    catalog::Entity& person = addEntity(province, "PERSON", "Persons");
    addVariable(person, "SEX", "Sex");
    addVariable(person, "AGE", "Age");
    program.lastSettings = std::make_shared<const language::RunSettings>();
    program.tables.reserve(20);
}

catalog::Variable& HandMade::variable(const std::string& entity, const std::string& name) {
    return *dictionary.findEntity(entity)->findVariable(name);
}

ExpressionPtr HandMade::expression(const std::string& entity, const std::string& name) {
    auto result = std::make_shared<language::Expression>();
    result->operation = language::Operation::VariableValue;
    result->variable = &variable(entity, name);
    result->entity = result->variable->entity;
    result->text = result->variable->fullName();
    return result;
}

TableCommand& HandMade::add(const std::string& name, language::TableKind kind,
                            std::vector<ExpressionPtr> dimensions) {
    TableCommand command;
    command.name = name;
    command.kind = kind;
    command.settings = program.lastSettings;
    command.dimensions = std::move(dimensions);
    command.unit = dictionary.findEntity("PERSON");
    program.tables.push_back(std::move(command));
    return program.tables.back();
}

void HandMade::take(std::size_t index, execution::TableResult result) {
    result.command = &program.tables.at(index);
    results_.emplace_back(index, std::move(result));
}

std::map<std::string, output::Table> HandMade::finish() {
    execution::Progress silent({});
    output::Workshop workshop(program, dictionary);
    for (auto& [index, result] : results_)
        workshop.take(index, std::move(result), silent);
    results_.clear();
    std::map<std::string, output::Table> tables;
    for (output::Table& table : workshop.finish(silent)) {
        const std::string name = table.name;
        tables.emplace(name, std::move(table));
    }
    return tables;
}

execution::Dimension dimension(const catalog::Variable& variable,
                               const std::vector<std::string>& categories) {
    execution::Dimension result;
    result.variable = &variable;
    result.name = variable.fullName();
    result.label = variable.label;
    for (const std::string& text : categories) {
        Category category;
        const std::size_t point = text.find(". ");
        if (text == "MV" || text == "NA") {
            category.kind = text == "MV" ? CategoryKind::Missing : CategoryKind::NotApplicable;
        } else {
            category.code = text.substr(0, point);
            category.label = point == std::string::npos ? text : text.substr(point + 2);
            category.value = std::int64_t{std::stoll(category.code)};
        }
        result.categories.push_back(category);
    }
    return result;
}

execution::Dimension recordNumbers(const std::vector<std::int64_t>& numbers) {
    execution::Dimension result;
    for (const std::int64_t number : numbers)
        result.categories.push_back({CategoryKind::Valid, number, std::to_string(number), ""});
    return result;
}

execution::TableResult counted(std::vector<execution::Dimension> dimensions,
                               const std::vector<HandCell>& cells) {
    execution::TableResult result;
    result.cells = execution::Cells(dimensions.size());
    result.dimensions = std::move(dimensions);
    for (const HandCell& cell : cells)
        result.cells.add(
            {cell.categories, cell.values.empty() ? cell.records : cell.values.size(), {}});
    return result;
}

execution::TableResult measured(std::vector<execution::Dimension> dimensions,
                                const std::vector<HandCell>& cells, std::size_t figures,
                                const Rule& rule) {
    execution::TableResult result = counted(std::move(dimensions), cells);
    result.measured = std::make_shared<HandMeasured>(cells, figures, rule);
    return result;
}

execution::Figure mean(const std::vector<double>& values) {
    if (values.empty())
        return {};
    return std::accumulate(values.begin(), values.end(), 0.0) / static_cast<double>(values.size());
}

std::vector<std::string> rowsOf(const output::Form& form) {
    std::vector<std::string> result;
    for (std::int64_t row = 0; row < form.rows(); ++row) {
        std::string line;
        for (std::size_t column = 0; column < form.fields.size(); ++column)
            line += (column > 0 ? "," : "") + output::toText(form.at(row, column));
        result.push_back(line);
    }
    return result;
}

std::vector<std::string> namesOf(const output::Form& form) {
    return texts(form, &output::Field::name);
}

std::vector<std::string> labelsOf(const output::Form& form) {
    return texts(form, &output::Field::label);
}

std::vector<std::string> groupsOf(const output::Form& form) {
    return texts(form, &output::Field::group);
}

} // namespace kelx::test
