// SPDX-License-Identifier: GPL-3.0-or-later
#include "support/SmallDatabase.h"

#include "catalog/reader.h"
#include "storage/column_writer.h"

#include <initializer_list>

namespace {

using namespace kelx;
using catalog::Entity;
using catalog::Variable;
using storage::ValueType;

class Writer {
public:
    explicit Writer(const std::filesystem::path& folder) : folder_(folder) {
        dictionary_.name = "SMALL";
        dictionary_.label = "A small country";
        dictionary_.dataFolder = folder;
        dictionary_.file = folder / "small.kxdb";
    }

    Entity* entity(Entity* parent, const std::string& name, std::initializer_list<int> children) {
        auto entity = std::make_unique<Entity>();
        entity->name = name;
        entity->dictionary = &dictionary_;
        if (parent == nullptr) {
            dictionary_.root = std::move(entity);
            return dictionary_.root.get();
        }
        entity->fileName = name + ".kpt";
        storage::PointerWriter pointers(folder_ / entity->fileName);
        for (const int count : children)
            pointers.addParent(static_cast<std::uint64_t>(count));
        pointers.commit();
        return parent->addChild(std::move(entity));
    }

    Variable* integers(Entity* entity, const std::string& name, int size,
                       std::initializer_list<int> values) {
        auto writer = create(*entity, name, ValueType::Integer);
        for (const int value : values)
            writer->addInteger(value);
        writer->commit();
        return variable(entity, name, ValueType::Integer, size);
    }

    Variable* reals(Entity* entity, const std::string& name, std::initializer_list<double> values) {
        auto writer = create(*entity, name, ValueType::Real);
        for (const double value : values)
            writer->addReal(value);
        writer->commit();
        return variable(entity, name, ValueType::Real, 6);
    }

    Variable* texts(Entity* entity, const std::string& name, int size,
                    std::initializer_list<const char*> values) {
        auto writer = create(*entity, name, ValueType::String);
        for (const char* value : values)
            writer->addText(value);
        writer->commit();
        return variable(entity, name, ValueType::String, size);
    }

    void protect(const std::string& password) {
        dictionary_.key = storage::Secret::derive(password, storage::Secret::newRecipe());
    }

    void save() {
        if (!dictionary_.key)
            catalog::saveDictionary(dictionary_, folder_ / "small.dicx");
        catalog::saveDictionary(dictionary_, folder_ / "small.kxdb");
    }

private:
    static std::string fileName(const Entity& entity, const std::string& name) {
        return entity.name + "_" + name + ".kbf";
    }

    std::unique_ptr<storage::ColumnWriter> create(const Entity& entity, const std::string& name,
                                                  ValueType type) const {
        storage::ColumnPlan plan;
        plan.type = type;
        plan.key = dictionary_.key;
        return storage::ColumnWriter::create(folder_ / fileName(entity, name), plan);
    }

    static Variable* variable(Entity* entity, const std::string& name, ValueType type, int size) {
        auto variable = std::make_unique<Variable>();
        variable->name = name;
        variable->label = name.substr(0, 1) + "-label";
        variable->type = type;
        variable->size = size;
        variable->fileName = fileName(*entity, name);
        return entity->addVariable(std::move(variable));
    }

    std::filesystem::path folder_;
    catalog::Dictionary dictionary_;
};

void addPersons(Writer& writer, Entity* household) {
    Entity* person = writer.entity(household, "PERSON", {3, 2, 2});
    person->label = "Person";
    Variable* sex = writer.integers(person, "SEX", 1, {1, 2, 2, 2, 2, 1, 9});
    sex->label = "Sex of the person";
    sex->group = "Demography";
    sex->alias = "GENDER";
    sex->missing = 9;
    sex->valueLabels = {{"10", "Other"}, {"2", "Female"}, {"1", "Male"}, {"9", "Not stated"}};
    Variable* age = writer.integers(person, "AGE", 3, {34, 31, 5, 60, 62, 19, 20});
    age->label = "Age in years";
    age->group = "Demography";
    age->notapp = 999;
    age->documentation = "Completed years";
    Variable* income = writer.reals(person, "INCOME", {100.5, 200, 0, 50, 25.25, 0, 10});
    income->group = "Work";
    income->decimals = 2;
    income->sensitive = 3;
    income->valueLabels = {{"2.500000", "Two and a half"}, {"10", "Ten"}};
}

} // namespace

void writeSmallDatabase(const QString& folder, const QString& password) {
    Writer writer{std::filesystem::path(folder.toStdString())};
    if (!password.isEmpty())
        writer.protect(password.toStdString());
    Entity* country = writer.entity(nullptr, "COUNTRY", {});
    Entity* district = writer.entity(country, "DISTRICT", {2});
    district->label = "District";
    district->selectable = true;
    district->codeVar = writer.texts(district, "CODE", 2, {"01", "02"});
    district->labelVar = writer.texts(district, "NAME", 10, {"North", "South"});
    writer.integers(district, "ZONE", 1, {1, 1});
    Entity* household = writer.entity(district, "HOUSEHOLD", {2, 1});
    writer.integers(household, "ROOMS", 2, {2, 3, 2});
    household->weightVar = writer.reals(household, "WEIGHT", {1.5, 2, 1});
    addPersons(writer, household);
    writer.save();
}
