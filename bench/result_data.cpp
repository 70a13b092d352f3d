// SPDX-License-Identifier: Apache-2.0
#include "result_data.h"

#include "catalog/reader.h"
#include "storage/column_writer.h"

#include <functional>
#include <memory>
#include <utility>

namespace kelx::bench {
namespace {

using catalog::Entity;
using catalog::Variable;
using storage::ColumnWriter;
using storage::ValueType;

constexpr int plainVariables = 20;
constexpr int kinds = 7;
constexpr int cases = resultCategories * resultCategories;

class DatabaseWriter {
public:
    explicit DatabaseWriter(const std::filesystem::path& folder) : folder_(folder) {
        dictionary_.name = "RESULTS";
        dictionary_.label = "Large results";
        dictionary_.dataFolder = folder;
        dictionary_.file = folder / "results.kxdb";
        dictionary_.root = std::make_unique<Entity>();
        dictionary_.root->name = "COUNTRY";
        dictionary_.root->dictionary = &dictionary_;
    }

    Entity& root() { return *dictionary_.root; }

    Entity& entity(Entity& parent, const std::string& name, int parents, int children) {
        auto entity = std::make_unique<Entity>();
        entity->name = name;
        entity->label = name;
        entity->fileName = name + ".kpt";
        storage::PointerWriter pointers(folder_ / entity->fileName);
        for (int i = 0; i < parents; ++i)
            pointers.addParent(static_cast<std::uint64_t>(children));
        pointers.commit();
        return *parent.addChild(std::move(entity));
    }

    /// Adds the value of each record.
    using AddValue = std::function<void(ColumnWriter& writer, int record)>;

    Variable& variable(Entity& entity, const std::string& name, ValueType type, int records,
                       const AddValue& addValue) {
        auto variable = std::make_unique<Variable>();
        variable->name = name;
        variable->label = "Label of " + name;
        variable->type = type;
        variable->size = 12;
        variable->fileName = entity.name + "_" + name + ".kbf";
        storage::ColumnPlan plan;
        plan.type = type;
        const auto writer = ColumnWriter::create(folder_ / variable->fileName, plan);
        for (int record = 0; record < records; ++record)
            addValue(*writer, record);
        writer->commit();
        return *entity.addVariable(std::move(variable));
    }

    Variable& codes(Entity& entity, const std::string& name, int codes,
                    const std::function<int(int record)>& code) {
        Variable& made =
            variable(entity, name, ValueType::Integer, cases,
                     [&](ColumnWriter& writer, int record) { writer.addInteger(code(record)); });
        for (int i = 1; i <= codes; ++i)
            made.valueLabels.emplace_back(std::to_string(i), name + " number " + std::to_string(i));
        return made;
    }

    std::filesystem::path save() {
        catalog::saveDictionary(dictionary_, dictionary_.file);
        return dictionary_.file;
    }

private:
    std::filesystem::path folder_;
    catalog::Dictionary dictionary_;
};

std::string areaCode(int area) {
    const std::string digits = std::to_string(area);
    return std::string(6 - digits.size(), '0') + digits;
}

std::string plainName(int number) {
    return "V" + std::to_string(number);
}

void addAreas(DatabaseWriter& writer, Entity& area) {
    area.codeVar = &writer.variable(
        area, "CODE", ValueType::String, resultAreas,
        [](ColumnWriter& column, int record) { column.addText(areaCode(record)); });
    area.labelVar = &writer.variable(area, "NAME", ValueType::String, resultAreas,
                                     [](ColumnWriter& column, int record) {
                                         column.addText("District " + std::to_string(record));
                                     });
    for (int i = 1; i <= plainVariables; ++i) {
        const bool real = i % 2 == 0;
        writer.variable(area, plainName(i), real ? ValueType::Real : ValueType::Integer,
                        resultAreas, [&](ColumnWriter& column, int record) {
                            const int value = record * 7919 % 1000003 * i % 1000003;
                            if (real)
                                column.addReal(value / 16.0);
                            else
                                column.addInteger(value);
                        });
    }
}

} // namespace

std::filesystem::path writeResultsDatabase(const std::filesystem::path& folder) {
    DatabaseWriter writer(folder);
    Entity& area = writer.entity(writer.root(), "AREA", 1, resultAreas);
    addAreas(writer, area);
    Entity& single = writer.entity(area, "CASE", resultAreas, cases / resultAreas);
    writer.codes(single, "ROW", resultCategories,
                 [](int record) { return record / resultCategories + 1; });
    writer.codes(single, "COL", resultCategories,
                 [](int record) { return record % resultCategories + 1; });
    writer.codes(single, "KIND", kinds, [](int record) { return record % kinds + 1; });
    return writer.save();
}

std::string areaListProgram(int areas) {
    std::string program = "RUNDEF r NOWEIGHT\nTABLE K AS FREQ CASE.KIND\nAREALIST AREA";
    for (int i = 1; i <= plainVariables; ++i)
        program += ", AREA." + plainName(i);
    return program + ", K FILTER AREA.CODE < \"" + areaCode(areas) + "\"\n";
}

std::string crosstabProgram() {
    return "RUNDEF r NOWEIGHT\nCROSSTABS CASE.ROW BY CASE.COL\n";
}

} // namespace kelx::bench
