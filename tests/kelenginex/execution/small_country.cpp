// SPDX-License-Identifier: Apache-2.0
#include "small_country.h"

#include "storage/pointer_file.h"

#include <algorithm>
#include <stdexcept>

namespace kelx::test {

using storage::ValueType;

TestDatabase::TestDatabase(const std::string& rootName) {
    dictionary.name = "TEST";
    dictionary.label = "Test country";
    dictionary.file = folder_ / "test.kxdb";
    dictionary.dataFolder = folder_.path();
    dictionary.root = std::make_unique<catalog::Entity>();
    dictionary.root->dictionary = &dictionary;
    dictionary.root->name = rootName;
}

catalog::Entity& TestDatabase::entity(const std::string& parent, const std::string& name,
                                      const std::vector<std::uint64_t>& children) {
    auto entity = std::make_unique<catalog::Entity>();
    entity->name = name;
    entity->fileName = name + ".kpt";
    storage::PointerWriter writer(folder_ / entity->fileName);
    for (const std::uint64_t count : children)
        writer.addParent(count);
    writer.commit();
    return *dictionary.findEntity(parent)->addChild(std::move(entity));
}

catalog::Variable& TestDatabase::add(const std::string& entity, const std::string& name,
                                     ValueType type) {
    auto variable = std::make_unique<catalog::Variable>();
    variable->name = name;
    variable->fileName = entity + "_" + name + ".kbf";
    variable->type = type;
    return *dictionary.findEntity(entity)->addVariable(std::move(variable));
}

namespace {

std::unique_ptr<storage::ColumnWriter> writerFor(const catalog::Variable& variable) {
    storage::ColumnPlan plan;
    plan.type = variable.type;
    return storage::ColumnWriter::create(variable.filePath(), plan);
}

void writeIntegers(const catalog::Variable& variable, const TestDatabase::Integers& values) {
    const auto writer = writerFor(variable);
    for (const auto& value : values) {
        if (value)
            writer->addInteger(*value);
        else
            writer->addBlank();
    }
    writer->commit();
}

} // namespace

catalog::Variable& TestDatabase::integers(const std::string& entity, const std::string& name,
                                          const Integers& values) {
    catalog::Variable& variable = add(entity, name, ValueType::Integer);
    writeIntegers(variable, values);
    return variable;
}

catalog::Variable& TestDatabase::booleans(const std::string& entity, const std::string& name,
                                          const Integers& values) {
    catalog::Variable& variable = add(entity, name, ValueType::Boolean);
    writeIntegers(variable, values);
    return variable;
}

catalog::Variable& TestDatabase::reals(const std::string& entity, const std::string& name,
                                       const std::vector<double>& values) {
    catalog::Variable& variable = add(entity, name, ValueType::Real);
    const auto writer = writerFor(variable);
    for (const double value : values)
        writer->addReal(value);
    writer->commit();
    return variable;
}

catalog::Variable& TestDatabase::texts(const std::string& entity, const std::string& name,
                                       const std::vector<std::optional<std::string>>& values) {
    catalog::Variable& variable = add(entity, name, ValueType::String);
    const auto writer = writerFor(variable);
    for (const auto& value : values) {
        if (value)
            writer->addText(*value);
        else
            writer->addBlank();
    }
    writer->commit();
    return variable;
}

SmallCountry::SmallCountry() {
    const std::nullopt_t blank = std::nullopt;
    catalog::Entity& province = entity("COUNTRY", "PROVINCE", {3});
    province.label = "Province";
    province.selectable = true;
    province.codeVar = &texts("PROVINCE", "CODE", {"01", "02", "03"});
    province.labelVar = &texts("PROVINCE", "NAME", {"North", "South", "Sud-Oué"});
    catalog::Entity& household = entity("PROVINCE", "HOUSEHOLD", {2, 1, 2});
    household.selectable = true;
    household.codeVar = &integers("HOUSEHOLD", "NUMBER", {1, 2, 1, 1, 2});
    catalog::Variable& type = integers("HOUSEHOLD", "TYPE", {1, 2, 1, 9, 2});
    type.missing = 9;
    household.weightVar = &reals("HOUSEHOLD", "WT", {1.5, 2, 0.5, 4, 1});
    catalog::Entity& person = entity("HOUSEHOLD", "PERSON", {2, 1, 3, 0, 2});
    person.label = "Persons";
    catalog::Variable& sex = integers("PERSON", "SEX", {1, 2, 2, 1, 1, 2, 2, 1});
    sex.label = "Sex";
    sex.valueLabels = {{"1", "Male"}, {"2", "Female"}};
    catalog::Variable& age = integers("PERSON", "AGE", {34, 99, 98, 7, 7, 70, blank, 15});
    age.missing = 99;
    age.notapp = 98;
    booleans("PERSON", "JOB", {1, 0, blank, 0, 0, 1, 1, 0});
    reals("PERSON", "INCOME", {100.5, 0, blankReal, 0, blankReal, 20, 100.5, -3});
    texts("PERSON", "NAME", {"Ana", "Béa", "Cid", "Dan", "Eva", blank, "Ana", "Zoë"});
}

language::BoundProgram compiled(catalog::Dictionary& dictionary, const std::string& program,
                                bool autoWeight) {
    language::Messages messages;
    language::CompileOptions options;
    options.autoWeight = autoWeight;
    language::BoundProgram bound = language::compile(program, dictionary, options, messages);
    for (const language::Message& message : messages.all()) {
        if (message.severity == language::Severity::Error)
            throw std::runtime_error(program + ": " + message.text);
    }
    return bound;
}

Outcome runWith(catalog::Dictionary& dictionary, const std::string& program,
                const execution::RunOptions& options, bool autoWeight) {
    Outcome outcome;
    outcome.program =
        std::make_unique<language::BoundProgram>(compiled(dictionary, program, autoWeight));
    outcome.result = execution::run(*outcome.program, options, outcome.messages);
    return outcome;
}

namespace {

void requireSame(const execution::RunResult& a, const execution::RunResult& b) {
    const auto require = [](bool same, const char* what) {
        if (!same)
            throw std::runtime_error(std::string("threads or blocks change the ") + what);
    };
    require(a.tables.size() == b.tables.size(), "number of tables");
    for (std::size_t t = 0; t < a.tables.size(); ++t) {
        const auto& x = a.tables[t];
        const auto& y = b.tables[t];
        require(x.cells.size() == y.cells.size(), "number of cells");
        for (std::size_t i = 0; i < x.cells.size(); ++i) {
            const execution::Cells::Cell p = x.cells[i];
            const execution::Cells::Cell q = y.cells[i];
            require(std::equal(p.categories.begin(), p.categories.end(), q.categories.begin()),
                    "order of cells");
            require(p.records == q.records, "counts");
            require(p.sum.value() == q.sum.value(), "sums");
        }
    }
}

std::string nameOf(const execution::Category& category) {
    if (category.kind == execution::CategoryKind::Missing)
        return "MV";
    return category.kind == execution::CategoryKind::NotApplicable ? "NA" : category.code;
}

template <class Get>
Figures collect(const execution::TableResult& table, Get get) {
    Figures result;
    for (std::size_t i = 0; i < table.cells.size(); ++i) {
        const execution::Cells::Cell cell = table.cells[i];
        std::string key;
        for (std::size_t d = 0; d < cell.categories.size(); ++d)
            key +=
                (d > 0 ? "|" : "") + nameOf(table.dimensions[d].categories.at(cell.categories[d]));
        result[key] = get(cell);
    }
    return result;
}

} // namespace

Outcome runAll(catalog::Dictionary& dictionary, const std::string& program, bool autoWeight) {
    execution::RunOptions options;
    options.threads = 1;
    Outcome first = runWith(dictionary, program, options, autoWeight);
    const bool large = dictionary.entities().back()->records() > 100000;
    const std::vector<std::size_t> blocks =
        large ? std::vector<std::size_t>{1000} : std::vector<std::size_t>{3, 64, 65536};
    for (const unsigned threads : {1U, 2U, 3U}) {
        for (const std::size_t block : blocks) {
            options.threads = threads;
            options.blockRecords = large && threads == 2 ? 65536 : block;
            requireSame(first.result, runWith(dictionary, program, options, autoWeight).result);
        }
    }
    return first;
}

Figures figures(const execution::TableResult& table) {
    return collect(table, [](const auto& cell) { return cell.sum.value(); });
}

Figures recordCounts(const execution::TableResult& table) {
    return collect(table, [](const auto& cell) { return static_cast<double>(cell.records); });
}

} // namespace kelx::test
