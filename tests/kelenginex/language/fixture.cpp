// SPDX-License-Identifier: GPL-3.0-or-later
#include "fixture.h"

#include "catalog/names.h"
#include "catalog/type_names.h"
#include "language/message_table.h"

namespace kelx::language {

namespace {

catalog::Entity* addEntity(catalog::Entity& parent, const std::string& name) {
    auto entity = std::make_unique<catalog::Entity>();
    entity->name = name;
    return parent.addChild(std::move(entity));
}

const char* symbolOf(Operation operation) {
    switch (operation) {
    case Operation::And:
        return "AND";
    case Operation::Or:
        return "OR";
    case Operation::Equal:
        return "=";
    case Operation::NotEqual:
        return "<>";
    case Operation::Less:
        return "<";
    case Operation::LessEqual:
        return "<=";
    case Operation::Greater:
        return ">";
    case Operation::GreaterEqual:
        return ">=";
    case Operation::Add:
        return "+";
    case Operation::Subtract:
        return "-";
    case Operation::Multiply:
        return "*";
    case Operation::Divide:
        return "/";
    default:
        return "?";
    }
}

std::string show(const Constant& constant) {
    if (const auto* integer = std::get_if<std::int64_t>(&constant))
        return std::to_string(*integer);
    if (const auto* real = std::get_if<double>(&constant))
        return "real " + catalog::numberText(*real);
    if (const auto* text = std::get_if<std::string>(&constant))
        return "'" + *text + "'";
    return std::get<bool>(constant) ? "TRUE" : "FALSE";
}

std::string show(const Interval& interval) {
    const std::string low = interval.low ? show(*interval.low) : "lowest";
    const std::string high = interval.high ? show(*interval.high) : "highest";
    return low + ":" + high;
}

std::string arguments(const Expression& expression) {
    std::string list;
    for (const auto& argument : expression.arguments)
        list += (list.empty() ? "" : ", ") + shape(*argument);
    return "(" + list + ")";
}

std::string list(const Messages& messages, bool withTexts) {
    std::string result;
    for (const Message& message : messages.forDisplay()) {
        result += codeName(message.severity, message.code) +
                  (" " + std::to_string(message.position.line)) + ":" +
                  std::to_string(message.position.column) + (withTexts ? " " + message.text : "") +
                  "\n";
    }
    return result;
}

} // namespace

Census::Census() {
    dictionary.dataFolder = options.baseFolder = folder_.path();
    dictionary.file = dictionary.dataFolder / "x.kxdb";
    dictionary.root = std::make_unique<catalog::Entity>();
    dictionary.root->name = "NATION";
    dictionary.root->dictionary = &dictionary;
    catalog::Entity* province = addEntity(*dictionary.root, "PROVINCE");
    catalog::Entity* district = addEntity(*province, "DISTRICT");
    catalog::Entity* household = addEntity(*district, "HOUSEHOLD");
    addEntity(*household, "PERSON")->alias = "POP";
    addEntity(*household, "DEATH");
    province->codeVar = &add("PROVINCE", "CODE", ValueType::String);
    add("PROVINCE", "NAME", ValueType::String);
    district->codeVar = &add("DISTRICT", "CODE", ValueType::String);
    add("DISTRICT", "POP-2020", ValueType::Integer);
    household->weightVar = &add("HOUSEHOLD", "WEIGHT", ValueType::Real);
    add("HOUSEHOLD", "ROOMS", ValueType::Integer);
    add("HOUSEHOLD", "RENT", ValueType::Real);
    add("PERSON", "SEX", ValueType::Integer);
    add("PERSON", "AGE", ValueType::Integer).alias = "YEARS";
    add("PERSON", "GRP", ValueType::String);
    add("PERSON", "WORKS", ValueType::Boolean);
    add("PERSON", "2NDJOB", ValueType::Integer);
    add("PERSON", "LINE", ValueType::Integer);
    add("PERSON", "SEX2", ValueType::Integer);
    add("PERSON", "WEIGHT2", ValueType::Real);
    add("DEATH", "SEX", ValueType::Integer);
    add("DEATH", "CAUSE", ValueType::Integer);
    add("PERSON", "LOST", ValueType::Integer);
    std::filesystem::remove(variable("PERSON", "LOST").filePath());
}

catalog::Variable& Census::add(const std::string& entityName, const std::string& name,
                               ValueType type) {
    auto variable = std::make_unique<catalog::Variable>();
    variable->name = name;
    variable->type = type;
    variable->fileName = entityName + "_" + name + ".kbf";
    write(variable->fileName, "x");
    return *entity(entityName).addVariable(std::move(variable));
}

BoundProgram Census::compile(const std::string& program) {
    messages = {};
    return language::compile(program, dictionary, options, messages);
}

std::string located(const Messages& messages) {
    return list(messages, false);
}

std::string told(const Messages& messages) {
    return list(messages, true);
}

std::string shape(const Expression& expression) {
    switch (expression.operation) {
    case Operation::Constant:
        return show(expression.constant);
    case Operation::VariableValue:
        return expression.variable->fullName();
    case Operation::RecordNumber:
        return "record " + expression.codeEntity->name;
    case Operation::TableFigure:
        return "#" + std::to_string(expression.table);
    case Operation::CompoundCode:
        return "code " + expression.codeEntity->name;
    case Operation::Not:
        return "NOT" + arguments(expression);
    case Operation::Negate:
        return "-" + arguments(expression);
    case Operation::Function:
        return expression.function + arguments(expression);
    case Operation::In: {
        std::string result = "(" + shape(*expression.arguments[0]) + " IN";
        for (const Interval& interval : expression.intervals)
            result += " " + show(interval);
        return result + ")";
    }
    case Operation::Recode: {
        std::string result = "RECODE " + shape(*expression.arguments[0]);
        for (std::size_t i = 1; i < expression.arguments.size(); ++i) {
            const bool otherwise = i > expression.intervals.size();
            result += otherwise ? " else " : " (" + show(expression.intervals[i - 1]) + " = ";
            result += shape(*expression.arguments[i]) + (otherwise ? "" : ")");
        }
        return result;
    }
    case Operation::Switch:
        return "SWITCH" + arguments(expression);
    case Operation::Number:
        return "NUMBER " + expression.codeEntity->name;
    case Operation::SampleRandom:
        return "RANDOM" + arguments(expression);
    case Operation::SampleSystematic:
        return "SYSTEMATIC" + arguments(expression);
    default:
        return "(" + shape(*expression.arguments.at(0)) + " " + symbolOf(expression.operation) +
               " " + shape(*expression.arguments.at(1)) + ")";
    }
}

std::string shape(const Aggregate& aggregate) {
    const char* const kinds[] = {"COUNT", "SUM", "AVERAGE", "MEDIAN", "MINIMUM", "MAXIMUM"};
    std::string result =
        kinds[static_cast<std::size_t>(aggregate.kind)] + (" " + aggregate.over->name);
    if (aggregate.value != nullptr)
        result += " of " + shape(*aggregate.value);
    if (aggregate.weight != nullptr)
        result += " weight " + shape(*aggregate.weight);
    for (const ExpressionPtr& filter : aggregate.filters)
        result += " filter " + shape(*filter);
    return result;
}

std::string shape(const Definition& definition) {
    std::string result =
        definition.variable->fullName() + " " + catalog::typeName(definition.variable->type) + ": ";
    if (definition.value != nullptr)
        result += shape(*definition.value);
    if (definition.numerator)
        result += shape(*definition.numerator);
    if (definition.denominator)
        result += " / " + shape(*definition.denominator);
    for (const ExpressionPtr& filter : definition.filters)
        result += " where " + shape(*filter);
    if (definition.otherwise)
        result += " default " + show(*definition.otherwise);
    return result;
}

std::string definitions(const BoundProgram& program) {
    std::string result;
    for (const Definition& definition : program.definitions)
        result += shape(definition) + "\n";
    return result;
}

namespace {

const char* wordOf(TableKind kind) {
    constexpr const char* words[] = {"",         "COUNT",  "AVERAGE",  "SUM",    "MIN",
                                     "MAX",      "MEDIAN", "QUANTILE", "STATS",  "GINI",
                                     "AREALIST", "VIEW",   "TABOP",    "TABLIST"};
    return words[static_cast<std::size_t>(kind)];
}

/// What the table is about, as the language writes it.
std::string subject(const TableCommand& table) {
    std::string result;
    if (table.measure != nullptr)
        result += std::string(" ") + wordOf(table.kind) +
                  (table.kind == TableKind::Quantile ? " " + std::to_string(table.quantiles) : "") +
                  " " + shape(*table.measure);
    for (std::size_t i = 0; i < table.dimensions.size(); ++i)
        result += (i == 0 && table.measure == nullptr ? " " : " BY ") + shape(*table.dimensions[i]);
    if (table.kind == TableKind::AreaList || table.kind == TableKind::View)
        result += std::string(" ") + wordOf(table.kind);
    for (const ListColumn& column : table.columns)
        result += " " + (column.table ? "#" + std::to_string(*column.table)
                                      : column.variable->variable->fullName());
    if (table.kind == TableKind::Tablist)
        result += " TABLIST";
    if (table.operation != nullptr)
        result += " TABOP " + shape(*table.operation) + " of";
    for (const std::size_t operand : table.operands)
        result += " #" + std::to_string(operand);
    return result;
}

/// What the command does not say itself.
std::string status(const TableCommand& table) {
    return std::string(table.isHidden ? " hidden" : "") +
           (table.isOutput || table.isHidden ? "" : " silent") + (table.isNeeded ? "" : " idle");
}

std::string order(const SortClause& sort) {
    return " sort " + sort.column + (sort.element ? "/" + std::to_string(*sort.element) : "") +
           (sort.descending ? " desc" : "") +
           (sort.limit ? " limit " + std::to_string(*sort.limit) : "");
}

} // namespace

std::string summary(const BoundProgram& program) {
    std::string result;
    for (const TableCommand& table : program.tables) {
        result += table.name + " " + (table.unit == nullptr ? "-" : table.unit->name) + ":";
        result += subject(table);
        if (table.weight != nullptr)
            result += " weight " + shape(*table.weight);
        if (table.tally != nullptr)
            result += " tally " + shape(*table.tally);
        if (table.filter != nullptr)
            result += " filter " + shape(*table.filter);
        if (table.settings->filter != nullptr)
            result += " all " + shape(*table.settings->filter);
        if (table.title)
            result += " title " + *table.title;
        if (table.decimals)
            result += " decimals " + std::to_string(*table.decimals);
        if (table.sort)
            result += order(*table.sort);
        if (table.sensitive)
            result += " sensitive " + std::to_string(*table.sensitive);
        result += status(table);
        result += "\n";
    }
    return result;
}

} // namespace kelx::language
