// SPDX-License-Identifier: Apache-2.0
#include "boundary/output_data.h"

#include "boundary/memory.h"
#include "output/names.h"

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

std::shared_ptr<TKelRunDefinition> TKelOutput::runDefinition() const {
    return d->definition;
}

namespace kelx::boundary {

namespace {

/// The dictionary's own wrapper, or a detached copy of what only the program knows. What is no
/// variable at all belongs to no entity, and its text is its name alone.
template <typename OutputData> // the output's own, which has no public name
TKelVariable* shownVariable(OutputData& data, const output::TableVariable& shown,
                            const DictionaryState& state) {
    if (shown.areas != nullptr) {
        TKelEntity* areas = state.wrapperOf(shown.areas);
        TKelVariable* codes = areas != nullptr ? areas->cmpCodeVar() : nullptr;
        if (codes != nullptr) {
            return codes;
        }
    }
    if (TKelVariable* own = state.wrapperOf(shown.variable)) {
        return own;
    }
    const catalog::Entity* entity = shown.variable != nullptr ? shown.variable->entity : nullptr;
    auto copy = std::make_unique<TKelVariable>(state.wrapperOf(entity));
    catalog::Variable& model = *KelBoundaryAccess::data(*copy).variable;
    if (shown.variable != nullptr) {
        model.copyDescription(*shown.variable);
    } else {
        model.name = shown.name;
        model.label = shown.label == shown.name ? std::string() : shown.label;
    }
    data.ownVariables.push_back(std::move(copy));
    return data.ownVariables.back().get();
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

void setFile(TKelOutputConfig& options, const language::OutputFile& file) {
    constexpr int csv = 0;
    constexpr int xlsx = 3;
    constexpr int pdf = 10;
    constexpr int appended = 2;
    using Format = language::OutputFile::Format;
    options.outputFile = file.path;
    options.format = file.format == Format::Xlsx ? xlsx : file.format == Format::Pdf ? pdf : csv;
    options.formatFlavour = file.overwrite ? 0 : appended;
    options.direct = true;
}

void setSort(TKelOutputConfig& options, const language::SortClause& clause) {
    TKelOutputSortConfig sort;
    sort.variable = clause.column;
    if (clause.limit && *clause.limit > 0) {
        sort.limit = clause.limit;
    }
    sort.order = clause.descending ? TKelOutputSortConfig::Order::DESCENDING
                                   : TKelOutputSortConfig::Order::ASCENDING;
    options.sort = sort;
}

/// Taken from the table, since one made of others has theirs where they agree.
std::shared_ptr<TKelRunDefinition> definitionOf(const output::Table& table) {
    const std::string label = table.area == output::wholeDatabase ? std::string() : table.area;
    return std::make_shared<TKelRunDefinition>(std::make_shared<TKelRunSelection>(label),
                                               table.universalFilter);
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
    data.options.style = command.tableStyle;
    if (command.outfile) {
        setFile(data.options, *command.outfile);
    }
    if (data.table.sort) {
        setSort(data.options, *data.table.sort);
    }
    for (const output::TableVariable& variable : data.table.variables) {
        data.variables.push_back(shownVariable(data, variable, state));
    }
    data.entity = state.wrapperOf(data.table.entity);
    data.definition = definitionOf(data.table);
    data.dataset = std::make_unique<TableDataset>(data.table);
    return result;
}

} // namespace kelx::boundary
