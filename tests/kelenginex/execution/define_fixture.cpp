// SPDX-License-Identifier: GPL-3.0-or-later
#include "define_fixture.h"

#include "storage/coding.h"
#include "storage/number_text.h"

#include <bit>
#include <cmath>
#include <cstring>
#include <sstream>
#include <stdexcept>

namespace kelx::test {

Part constant(Constant value) {
    constexpr ValueType types[] = {ValueType::Integer, ValueType::Real, ValueType::String,
                                   ValueType::Boolean};
    auto result = std::make_unique<Expression>();
    result->type = types[value.index()];
    result->constant = std::move(value);
    return result;
}

Part variable(const catalog::Variable& variable) {
    auto result = std::make_unique<Expression>();
    result->operation = Operation::VariableValue;
    result->type = variable.type;
    result->entity = variable.entity;
    result->variable = &variable;
    result->text = variable.fullName();
    return result;
}

Part node(Operation operation, ValueType type, std::vector<Part> parts,
          const catalog::Entity* entity) {
    auto result = std::make_unique<Expression>();
    result->operation = operation;
    result->type = type;
    result->entity = entity;
    for (const Part& part : parts) {
        if (part->entity != nullptr &&
            (result->entity == nullptr || result->entity->isAncestorOf(*part->entity)))
            result->entity = part->entity;
    }
    result->arguments = std::move(parts);
    return result;
}

Part copyOf(const Expression& expression) {
    auto result = std::make_unique<Expression>();
    result->operation = expression.operation;
    result->type = expression.type;
    result->entity = expression.entity;
    result->constant = expression.constant;
    result->variable = expression.variable;
    result->codeEntity = expression.codeEntity;
    result->function = expression.function;
    result->intervals = expression.intervals;
    result->text = expression.text;
    for (const auto& argument : expression.arguments)
        result->arguments.push_back(copyOf(*argument));
    return result;
}

const language::TableCommand& DefineProgram::compiledTable(const std::string& text) {
    compiled_.push_back(std::make_unique<language::BoundProgram>(compiled(dictionary_, text)));
    return compiled_.back()->tables.at(0);
}

ExpressionPtr DefineProgram::condition(const std::string& text) {
    return compiledTable("FREQ PERSON.SEX FILTER " + text).filter;
}

ExpressionPtr DefineProgram::number(const std::string& text) {
    return compiledTable("FREQ PERSON.SEX WEIGHT " + text).weight;
}

language::Definition& DefineProgram::add(const std::string& entity, const std::string& name,
                                         ValueType type) {
    language::Definition definition;
    definition.variable = std::make_shared<catalog::Variable>();
    definition.variable->entity = dictionary_.findEntity(entity);
    definition.variable->name = name;
    definition.variable->type = type;
    definition.used = true;
    bound.definitions.push_back(std::move(definition));
    return bound.definitions.back();
}

language::Definition& DefineProgram::add(const std::string& entity, const std::string& name,
                                         ValueType type, ExpressionPtr value) {
    language::Definition& definition = add(entity, name, type);
    definition.value = std::move(value);
    return definition;
}

language::Definition& DefineProgram::add(const std::string& entity, const std::string& name,
                                         ValueType type, Aggregate aggregate) {
    language::Definition& definition = add(entity, name, type);
    definition.numerator = std::move(aggregate);
    return definition;
}

Aggregate DefineProgram::aggregate(Aggregate::Kind kind, const std::string& over,
                                   const std::string& value, const std::string& filter,
                                   const std::string& weight) {
    Aggregate result;
    result.kind = kind;
    result.over = dictionary_.findEntity(over);
    if (!value.empty())
        result.value = number(value);
    if (!filter.empty())
        result.filters.push_back(condition(filter));
    if (!weight.empty())
        result.weight = number(weight);
    return result;
}

namespace {

std::string bytesOf(const catalog::Variable& variable) {
    const auto column = variable.column();
    const storage::ColumnInfo& info = column->info();
    storage::ColumnScratch scratch;
    const std::size_t count = static_cast<std::size_t>(info.records);
    const auto* data = static_cast<const char*>(column->read(0, count, scratch));
    std::string bytes(data, data + count * storage::physicalSize(info.physical));
    bytes += std::to_string(info.base) + "|" + std::to_string(info.minCode) + "|" +
             std::to_string(info.maxCode) + "|" + std::to_string(info.blanks) + "|" +
             std::to_string(info.naCode.value_or(0));
    for (std::uint64_t i = 0; i < column->textCount(); ++i)
        bytes += "|" + std::string(column->text(i));
    return bytes;
}

/// What a column says of its blocks must be what they hold.
void requireZones(const catalog::Variable& variable) {
    const auto column = variable.column();
    if (column->info().physical == storage::Physical::Real64)
        return;
    storage::ColumnScratch scratch;
    for (std::size_t block = 0; block < column->blockCount(); ++block) {
        const storage::Zone zone = column->zone(block);
        const void* data =
            column->read(block * std::uint64_t{storage::recordsPerBlock}, zone.records, scratch);
        std::uint64_t blanks = 0;
        std::uint64_t least = ~std::uint64_t{0};
        std::uint64_t most = 0;
        storage::withCode(column->info().physical, [&]<class Code>(Code) {
            for (std::size_t i = 0; i < zone.records; ++i) {
                const Code code = static_cast<const Code*>(data)[i];
                if (code == std::numeric_limits<Code>::max()) {
                    ++blanks;
                    continue;
                }
                least = std::min<std::uint64_t>(least, code);
                most = std::max<std::uint64_t>(most, code);
            }
        });
        const bool any = blanks < zone.records;
        if (zone.blanks != blanks || zone.minCode != (any ? least : 0) || zone.maxCode != most)
            throw std::runtime_error(variable.fullName() + " has a wrong zone");
    }
}

} // namespace

void DefineProgram::makeOnce(const execution::RunOptions& options) {
    execution::Progress progress(options.progress, options.progressInterval);
    language::Messages messages;
    plan::Selections selections(messages);
    execution::makeVariables(bound, options, 0.5, selections, progress);
}

void DefineProgram::make() {
    std::vector<std::string> first;
    for (const unsigned threads : {1U, 2U}) {
        for (const std::size_t block : {std::size_t{65536}, std::size_t{64}, std::size_t{1}}) {
            if (block == 1 && dictionary_.entities().back()->records() > 100000)
                continue;
            execution::RunOptions options;
            options.threads = threads;
            options.blockRecords = block;
            makeOnce(options);
            std::vector<std::string> bytes;
            for (const language::Definition& definition : bound.definitions) {
                bytes.push_back(definition.used ? bytesOf(*definition.variable) : "");
                if (definition.used)
                    requireZones(*definition.variable);
            }
            if (!first.empty() && bytes != first)
                throw std::runtime_error("threads or blocks change the values");
            first = std::move(bytes);
        }
    }
}

std::vector<std::string> DefineProgram::valuesOf(const catalog::Variable& variable) {
    const auto column = variable.column();
    const storage::ColumnInfo& info = column->info();
    storage::ColumnScratch scratch;
    const std::size_t count = static_cast<std::size_t>(info.records);
    const void* data = column->read(0, count, scratch);
    std::vector<std::string> result;
    if (info.physical == storage::Physical::Real64) {
        for (std::size_t i = 0; i < count; ++i) {
            const double value = static_cast<const double*>(data)[i];
            const bool na = info.naCode == std::bit_cast<std::uint64_t>(value);
            result.push_back(na ? "NA" : std::isnan(value) ? "." : storage::numberText(value));
        }
        return result;
    }
    storage::withCode(info.physical, [&]<class Code>(Code) {
        for (std::size_t i = 0; i < count; ++i) {
            const Code code = static_cast<const Code*>(data)[i];
            if (code == std::numeric_limits<Code>::max())
                result.emplace_back(".");
            else if (info.naCode == std::uint64_t{code})
                result.emplace_back("NA");
            else if (info.type == ValueType::String)
                result.emplace_back(column->text(code));
            else
                result.push_back(std::to_string(storage::decodeValue(info.base, code)));
        }
    });
    return result;
}

std::vector<std::string> DefineProgram::made(ValueType type, const std::string& entity,
                                             ExpressionPtr value) {
    bound.definitions.clear();
    add(entity, "NEW", type, std::move(value));
    make();
    return valuesOf(*bound.definitions[0].variable);
}

std::vector<std::string> DefineProgram::made(ValueType type, const std::string& entity,
                                             Aggregate aggregate) {
    bound.definitions.clear();
    add(entity, "NEW", type, std::move(aggregate));
    make();
    return valuesOf(*bound.definitions[0].variable);
}

language::BoundProgram& DefineProgram::withFrequencyOf(const catalog::Variable& counted,
                                                       ExpressionPtr filter) {
    language::TableCommand table;
    table.name = "FREQ_1";
    table.settings = std::make_shared<language::RunSettings>();
    table.dimensions = {ExpressionPtr(variable(counted))};
    table.unit = counted.entity;
    table.filter = std::move(filter);
    bound.tables.clear();
    bound.tables.push_back(std::move(table));
    return bound;
}

std::vector<std::string> listed(const std::string& text) {
    std::istringstream in(text);
    std::vector<std::string> result;
    for (std::string word; in >> word;)
        result.push_back(word);
    return result;
}

} // namespace kelx::test
