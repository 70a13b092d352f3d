// SPDX-License-Identifier: Apache-2.0
#include "boundary/output_data.h"

#include "boundary/memory.h"
#include "output/names.h"

#include <filesystem>

TKelOutput::TKelOutput() : d(std::make_unique<Data>()) {}

TKelOutput::~TKelOutput() = default;

std::string TKelOutput::name() const {
    return d->table.name;
}

eOutputType TKelOutput::type() const {
    return static_cast<eOutputType>(d->table.type);
}

int TKelOutput::dimension() const {
    return d->table.dimension;
}

eTableMethod TKelOutput::method() const {
    return static_cast<eTableMethod>(d->table.method);
}

std::string TKelOutput::typeName() const {
    return kelx::output::typeName(d->table.type);
}

std::string TKelOutput::methodName() const {
    return kelx::output::methodName(d->table.method);
}

TKelOutputConfig& TKelOutput::options() {
    return d->options;
}

const std::vector<TKelVariable*> TKelOutput::variables() {
    return d->variables;
}

TKelDataset* TKelOutput::dataset() {
    return d->dataset.get();
}

TKelEntity* TKelOutput::entity() {
    return d->entity;
}

std::string TKelOutput::asJson() const {
    return kelx::boundary::withinMemory([&] { return kelx::output::asJson(d->table); });
}

std::int64_t TKelOutput::suppressed() const {
    return d->table.suppressed;
}

namespace kelx::boundary {

namespace {

/// The dictionary's own wrapper, or a detached copy of a variable that only the program knows.
template <typename OutputData>
void addVariable(OutputData& data, const catalog::Variable& variable,
                 const DictionaryState& state) {
    TKelVariable* shown = state.wrapperOf(&variable);
    if (shown == nullptr) {
        auto own = std::make_unique<TKelVariable>(state.wrapperOf(variable.entity));
        KelBoundaryAccess::data(*own).variable->copyDescription(variable);
        shown = own.get();
        data.ownVariables.push_back(std::move(own));
    }
    data.variables.push_back(shown);
}

void setWeight(TKelOutputConfig& options, const output::Table& table) {
    constexpr int weightOnly = 1;
    constexpr int withTally = 2;
    if (table.tally) {
        options.weightKind = withTally;
        options.weightVariable =
            table.weight ? *table.tally + ", weight " + *table.weight : *table.tally;
    } else if (table.weight) {
        options.weightKind = weightOnly;
        options.weightVariable = table.weight;
    }
}

std::string absolutePath(const std::string& name, const DictionaryState& state) {
    return (state.dictionary->file.parent_path() / name).lexically_normal().string();
}

} // namespace

std::unique_ptr<TKelOutput> makeOutput(output::Table table, const language::TableCommand& command,
                                       const DictionaryState& state) {
    auto result = std::make_unique<TKelOutput>();
    auto& data = KelBoundaryAccess::data(*result);
    data.table = std::move(table);
    data.options.title = data.table.title;
    data.options.filter = data.table.filter;
    data.options.decimals = data.table.decimals;
    setWeight(data.options, data.table);
    if (command.settings != nullptr && command.settings->tableStyle) {
        data.options.style = absolutePath(*command.settings->tableStyle, state);
    }
    for (const catalog::Variable* variable : data.table.variables) {
        if (variable != nullptr) {
            addVariable(data, *variable, state);
        }
    }
    data.entity = state.wrapperOf(data.table.entity);
    data.dataset = std::make_unique<TableDataset>(data.table);
    return result;
}

} // namespace kelx::boundary
