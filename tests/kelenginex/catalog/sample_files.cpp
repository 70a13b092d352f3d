// SPDX-License-Identifier: GPL-3.0-or-later
#include "sample_files.h"

#include "catalog/type_names.h"
#include "storage/column_writer.h"

#include <sstream>
#include <stdexcept>

namespace kelx::test {

namespace {

namespace fs = std::filesystem;
using catalog::Entity;
using catalog::ValueType;
using catalog::Variable;

template <typename Fill>
void writeColumn(const fs::path& file, ValueType type, const Fill& fill) {
    storage::ColumnPlan plan;
    plan.type = type;
    plan.decimals = type == ValueType::Real ? 1 : 0;
    const auto writer = storage::ColumnWriter::create(file, plan);
    fill(*writer);
    writer->commit();
}

void writeIntegers(const fs::path& file, std::initializer_list<std::int64_t> values,
                   ValueType type = ValueType::Integer) {
    writeColumn(file, type, [&](storage::ColumnWriter& writer) {
        for (const std::int64_t value : values) {
            if (value < 0) {
                writer.addBlank();
            } else {
                writer.addInteger(value);
            }
        }
    });
}

void writeTexts(const fs::path& file, std::initializer_list<const char*> values) {
    writeColumn(file, ValueType::String, [&](storage::ColumnWriter& writer) {
        for (const char* value : values) {
            writer.addText(value);
        }
    });
}

void writePointers(const fs::path& file, std::initializer_list<std::uint64_t> counts) {
    storage::PointerWriter writer(file);
    for (const std::uint64_t count : counts) {
        writer.addParent(count);
    }
    writer.commit();
}

Variable& add(Entity& entity, const std::string& name, ValueType type, int size) {
    auto variable = std::make_unique<Variable>();
    variable->name = name;
    variable->type = type;
    variable->size = size;
    return *entity.addVariable(std::move(variable));
}

void addPersonVariables(Entity& person) {
    Variable& sex = add(person, "SEX", ValueType::Integer, 1);
    sex.label = "Sex <&> \"gender\"";
    sex.group = "Demography";
    sex.fileName = "sex.kbf";
    sex.missing = 9;
    sex.notapp = 8;
    sex.valueLabels = {{"1", "Male"}, {"2", "Female é"}};
    sex.ranges = {{4, 1, 2}, {5, 9, 9}};
    sex.documentation = "Asked of all.\nSecond line.";
    sex.tag = 3;
    sex.sensitive = 5;
    Variable& age = add(person, "AGE", ValueType::Integer, 4);
    age.fileName = "age.kbf";
    age.alias = "YEARS";
    age.ranges = {{4, 0, 9999}};
    Variable& income = add(person, "INCOME", ValueType::Real, 8);
    income.fileName = "income.kbf";
    income.decimals = 1;
    income.missing = -0.5;
    add(person, "URBAN", ValueType::Boolean, 1).fileName = "urban.kbf";
    Variable& weight = add(person, "WEIGHT", ValueType::Integer, 2);
    weight.fileName = "weight.kbf";
    weight.local = true;
    weight.state = 7;
    weight.metadata = "{\"made\": \"by hand\"}";
    person.weightVar = &weight;
}

std::string text(const Variable* variable) {
    return variable != nullptr ? variable->fullName() : "-";
}

template <typename T>
std::string text(const std::optional<T>& value) {
    std::ostringstream out;
    if (value) {
        out << *value;
    } else {
        out << "-";
    }
    return out.str();
}

void describe(const Variable& v, std::ostream& out) {
    out << "  " << v.fullName() << '|' << v.label << '|' << v.alias << '|' << v.group << '|'
        << v.documentation << '|' << v.fileName << '|' << catalog::typeName(v.type) << '|' << v.size
        << '|' << text(v.decimals) << '|' << text(v.notapp) << '|' << text(v.missing) << '|'
        << v.tag << '|' << text(v.sensitive) << '|' << v.hidden << '|';
    for (const auto& range : v.ranges) {
        out << range.kind << ':' << range.minimum << ':' << range.maximum << ' ';
    }
    for (const auto& [value, label] : v.valueLabels) {
        out << value << '=' << label << ' ';
    }
    out << '\n';
}

} // namespace

void writeSampleData(const fs::path& folder) {
    fs::create_directories(folder);
    writePointers(folder / "province.kpt", {2});
    writePointers(folder / "person.kpt", {3, 2});
    writeTexts(folder / "prov.kbf", {"01", "02"});
    writeTexts(folder / "provname.kbf", {"North", "South"});
    writeIntegers(folder / "sex.kbf", {1, 2, 1, 2, 9});
    writeIntegers(folder / "age.kbf", {10, 20, 30, 40, -1});
    writeIntegers(folder / "weight.kbf", {1, 1, 2, 2, 4});
    writeIntegers(folder / "urban.kbf", {1, 0, 1, 0, 1}, ValueType::Boolean);
    writeColumn(folder / "income.kbf", ValueType::Real, [](storage::ColumnWriter& writer) {
        for (const double value : {1.5, 2.5, 3.5, 4.5, 5.5}) {
            writer.addReal(value);
        }
    });
}

std::unique_ptr<catalog::Dictionary> sampleDictionary(const fs::path& file) {
    auto dictionary = std::make_unique<catalog::Dictionary>();
    dictionary->name = "SAMPLE";
    dictionary->label = "Sample census";
    dictionary->author = "Office";
    dictionary->created = "2024-01-31T10:00:00Z";
    dictionary->updated = "2024-02-01T10:00:00Z";
    dictionary->file = file;
    dictionary->dataFolder = file.parent_path();
    dictionary->root = std::make_unique<Entity>();
    Entity& country = *dictionary->root;
    country.dictionary = dictionary.get();
    country.name = "COUNTRY";
    auto provinceEntity = std::make_unique<Entity>();
    provinceEntity->name = "PROVINCE";
    Entity& province = *country.addChild(std::move(provinceEntity));
    province.label = "Province";
    province.alias = "PRV";
    province.fileName = "province.kpt";
    province.selectable = true;
    province.tag = 2;
    province.documentation = "The first level.";
    province.codeVar = &add(province, "PROV", ValueType::String, 2);
    province.codeVar->fileName = "prov.kbf";
    province.labelVar = &add(province, "PROVNAME", ValueType::String, 20);
    province.labelVar->fileName = "provname.kbf";
    auto personEntity = std::make_unique<Entity>();
    personEntity->name = "PERSON";
    Entity& person = *province.addChild(std::move(personEntity));
    person.fileName = "person.kpt";
    person.sensitive = 3;
    addPersonVariables(person);
    return dictionary;
}

std::string described(const catalog::Dictionary& dictionary) {
    std::ostringstream out;
    out << dictionary.name << '|' << dictionary.label << '|' << dictionary.author << '|'
        << dictionary.created << '|' << dictionary.updated << '|' << dictionary.typeType << '\n';
    for (const Entity* e : dictionary.entities()) {
        out << e->level() << ' ' << e->name << '|' << e->label << '|' << e->alias << '|'
            << e->documentation << '|' << e->fileName << '|' << e->selectable << e->isVirtual
            << e->hidden << '|' << e->tag << '|' << text(e->sensitive) << '|' << text(e->codeVar)
            << '|' << text(e->labelVar) << '|' << text(e->weightVar) << '\n';
        for (const auto& variable : e->variables) {
            describe(*variable, out);
        }
    }
    return out.str();
}

std::string thrownBy(const std::function<void()>& function) {
    try {
        function();
    } catch (const std::exception& error) {
        return error.what();
    }
    return {};
}

} // namespace kelx::test
