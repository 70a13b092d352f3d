// SPDX-License-Identifier: Apache-2.0
#include "language/definition_variable.h"

#include "catalog/names.h"
#include "language/definition_values.h"
#include "language/files.h"
#include "language/text.h"

#include <system_error>
#include <unordered_map>
#include <unordered_set>

namespace kelx::language {

namespace {

namespace fs = std::filesystem;

// Kinds of ranges as dictionaries number them.
constexpr int closed = 4;
constexpr int lessOrEqual = 6;
constexpr int greaterOrEqual = 8;
constexpr int everything = 10;

const char* valueFor(ValueType type) {
    switch (type) {
    case ValueType::String:
        return "a text";
    case ValueType::Boolean:
        return "TRUE, FALSE, 1 or 0";
    default:
        return "a number";
    }
}

std::optional<double> numberIn(const Constant& constant) {
    if (const auto* whole = std::get_if<std::int64_t>(&constant))
        return static_cast<double>(*whole);
    if (const auto* real = std::get_if<double>(&constant))
        return *real;
    if (const auto* text = std::get_if<std::string>(&constant))
        return catalog::parseNumber(*text);
    return std::nullopt;
}

/// A code as value labels name it; nothing where the type has no such value.
std::optional<std::string> labelledCode(const ast::Literal& literal, ValueType type) {
    if (type == ValueType::String)
        return literal.text;
    if (const auto* truth = std::get_if<bool>(&literal.constant))
        return std::string(*truth ? "1" : "0");
    const std::optional<double> number = numberIn(literal.constant);
    return number ? std::optional<std::string>(catalog::numberText(*number)) : std::nullopt;
}

/// Nothing where an end is a text.
std::optional<catalog::Range> rangeOf(const Interval& interval) {
    const auto isText = [](const std::optional<Constant>& end) {
        return end && std::holds_alternative<std::string>(*end);
    };
    if (isText(interval.low) || isText(interval.high))
        return std::nullopt;
    if (!interval.low && !interval.high)
        return catalog::Range{everything, 0, 0};
    const double low = *numberIn(interval.low ? *interval.low : *interval.high);
    const double high = *numberIn(interval.high ? *interval.high : *interval.low);
    const int kind = !interval.low ? lessOrEqual : !interval.high ? greaterOrEqual : closed;
    return catalog::Range{kind, low, high};
}

/// Of what LIKE takes over.
std::size_t sizeOf(const Variable& variable) {
    std::size_t bytes = variable.label.size() + variable.ranges.size() * sizeof(catalog::Range);
    for (const auto& [code, label] : variable.valueLabels)
        bytes += 2 * sizeof(std::string) + code.size() + label.size();
    return bytes;
}

bool isDataFile(const fs::path& file) {
    const std::string extension = lowerCase(file.extension().string());
    return extension == ".kbf" || extension == ".bin";
}

/// Inside of the data folder a dictionary names files without it.
std::string nameFor(const fs::path& file, const fs::path& folder) {
    const fs::path relative = file.lexically_relative(resolvedFile("", folder));
    const bool inside = !relative.empty() && *relative.begin() != "..";
    return inside ? relative.generic_string() : file.generic_string();
}

} // namespace

std::shared_ptr<Variable> DefinitionVariable::make(const ast::Definition& ast, const Entity& owner,
                                                   ValueType type) {
    auto variable = std::make_shared<Variable>();
    variable->entity = context_.dictionary().findEntity(owner.name);
    variable->name = ast.name.name;
    variable->type = type;
    variable->define = variable->local = true;
    if (ast.like)
        takeOver(*ast.like, *variable);
    variable->label = ast.label.value_or(variable->label);
    variable->documentation = ast.documentation.value_or("");
    variable->group = ast.group.value_or("");
    if (ast.decimals)
        variable->decimals = ast.decimals;
    if (ast.alias && catalog::isUsableName(*ast.alias))
        variable->alias = *ast.alias;
    else if (ast.alias)
        context_.report(Error::BadAlias, ast.aliasPosition, {inQuotes(*ast.alias)});
    if (ast.missing)
        variable->missing = code(ast.missing, "MISSING", *variable);
    if (ast.notapp)
        variable->notapp = code(ast.notapp, "NOTAPP", *variable);
    addLabels(ast, *variable);
    addRanges(ast, *variable);
    return variable;
}

void DefinitionVariable::takeOver(const ast::Name& like, Variable& variable) {
    const Variable* model = expressions_.find(like);
    if (model == nullptr || !context_.mayKeep(sizeOf(*model), like.position))
        return;
    variable.label = model->label;
    variable.valueLabels = model->valueLabels;
    variable.ranges = model->ranges;
    variable.missing = model->missing;
    variable.notapp = model->notapp;
    variable.decimals = model->decimals;
    variable.sensitive = model->sensitive;
}

void DefinitionVariable::reportValue(const char* clause, const Variable& variable,
                                     const ast::Literal& literal) {
    const bool text = std::holds_alternative<std::string>(literal.constant);
    const bool quoted = text && catalog::parseNumber(literal.text);
    context_.report(Error::ClauseValue, literal.position,
                    {clause, variable.fullName(), valueFor(variable.type),
                     text ? "the text " + inQuotes(literal.text) : literal.text,
                     quoted ? " Leave out the quotes." : ""});
}

std::optional<double> DefinitionVariable::code(const std::optional<ast::Literal>& literal,
                                               const char* clause, const Variable& variable) {
    const std::optional<double> number = numberIn(literal->constant);
    if (!number)
        context_.report(
            Error::ClauseValue, literal->position,
            {clause, variable.fullName(), "a number", inQuotes(literal->text),
             variable.type == ValueType::String
                 ? " A dictionary keeps these codes as numbers, also for texts: 9 stands for \"9\" "
                   "and \"09\"."
                 : ""});
    return number;
}

/// A code that was taken over gets its new label.
void DefinitionVariable::addLabels(const ast::Definition& ast, Variable& variable) {
    if (ast.valueLabels.empty())
        return;
    auto& labels = variable.valueLabels;
    std::unordered_map<std::string, std::size_t> places;
    std::unordered_set<std::string> given; // unlike those of LIKE
    for (std::size_t i = 0; i < labels.size(); ++i)
        places.emplace(labels[i].first, i);
    for (const ast::ValueLabel& entry : ast.valueLabels) {
        const std::optional<std::string> code = labelledCode(entry.value, variable.type);
        if (!code) {
            reportValue("VALUELABELS", variable, entry.value);
            continue;
        }
        if (!given.insert(*code).second)
            context_.report(Warning::GivenTwice, entry.value.position,
                            {"The label of " + entry.value.text, "the last one is taken"});
        const auto [place, isNew] = places.emplace(*code, labels.size());
        if (isNew)
            labels.emplace_back(*code, entry.label);
        else
            labels[place->second].second = entry.label;
    }
}

void DefinitionVariable::addRanges(const ast::Definition& ast, Variable& variable) {
    if (ast.ranges.empty())
        return;
    if (variable.type == ValueType::String) {
        context_.report(Error::MisplacedClause, ast.ranges.front().position,
                        {"RANGE", "texts have no ranges"});
        return;
    }
    variable.ranges.clear();
    for (const ast::Interval& interval : ast.ranges) {
        const std::optional<catalog::Range> range = rangeOf(interval.bounds);
        if (range)
            variable.ranges.push_back(*range);
        else
            context_.report(Error::ClauseValue, interval.position,
                            {"RANGE", variable.fullName(), "numbers", "a text", ""});
    }
}

std::optional<Constant> DefinitionVariable::otherwise(const ast::Definition& ast,
                                                      const Variable& variable) {
    if (!ast.defaultValue)
        return std::nullopt;
    std::optional<Constant> constant = constantFor(*ast.defaultValue, variable.type);
    if (!constant)
        reportValue("DEFAULT", variable, *ast.defaultValue);
    return constant;
}

std::optional<SaveClause> DefinitionVariable::save(const ast::Definition& ast, Variable& variable) {
    if (!ast.save)
        return std::nullopt;
    SaveClause clause;
    clause.file = resolvedFile(ast.save->file, context_.options().baseFolder);
    if (!isDataFile(clause.file))
        clause.file += ".kbf";
    clause.overwrite = ast.save->overwrite;
    clause.position = ast.save->position;
    clause.fileName = nameFor(clause.file, context_.dictionary().dataFolder);
    std::error_code ignored;
    if (!saved_.insert(catalog::realFile(clause.file)).second) {
        context_.report(Error::SaveTwice, clause.position, {clause.file.string()});
        return std::nullopt;
    }
    if (!context_.files().checkSave(clause.file, variable.fullName(), clause.position, context_))
        return std::nullopt;
    if (!clause.overwrite && fs::exists(fs::symlink_status(clause.file, ignored))) {
        context_.report(Error::SaveExists, clause.position, {clause.file.string()});
        return std::nullopt;
    }
    variable.fileName = clause.fileName;
    return clause;
}

int sizeFor(ValueType type, const Expression* value) {
    constexpr int ofInteger = 10, ofReal = 15, ofText = 20;
    if (type == ValueType::Boolean)
        return 1;
    if (type != ValueType::String)
        return type == ValueType::Integer ? ofInteger : ofReal;
    if (value != nullptr && value->operation == Operation::VariableValue &&
        value->variable->size > 0)
        return value->variable->size;
    if (value == nullptr || value->operation != Operation::CompoundCode)
        return ofText;
    int size = 0;
    for (const Entity* entity = value->codeEntity; entity != nullptr; entity = entity->parent)
        size += entity->codeVar == nullptr ? 0 : entity->codeVar->size;
    return size == 0 ? ofText : size;
}

} // namespace kelx::language
