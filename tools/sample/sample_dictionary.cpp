// SPDX-License-Identifier: Apache-2.0
#include "sample/sample_dictionary.h"

#include "import/values.h"
#include "sample/household.h"

#include <algorithm>

namespace kelx::tools {

namespace {

using catalog::Entity;
using catalog::Variable;
using storage::ValueType;
using Labels = std::vector<std::pair<std::string, std::string>>;

constexpr std::int64_t mostPerHousehold = 200;

Entity* addEntity(Entity& parent, const std::string& name, const std::string& label,
                  bool selectable) {
    auto entity = std::make_unique<Entity>();
    entity->name = name;
    entity->label = label;
    entity->fileName = name + ".kpt";
    entity->selectable = selectable;
    return parent.addChild(std::move(entity));
}

Variable* addVariable(Entity& entity, const std::string& name, const std::string& label,
                      ValueType type, Labels labels = {}) {
    auto variable = std::make_unique<Variable>();
    variable->name = name;
    variable->label = label;
    variable->fileName = entity.name + "_" + name + ".kbf";
    variable->type = type;
    variable->valueLabels = std::move(labels);
    return entity.addVariable(std::move(variable));
}

/// Gives the group to the variables that have none yet.
void closeGroup(Entity& entity, const std::string& group) {
    for (const auto& variable : entity.variables)
        if (variable->group.empty())
            variable->group = group;
}

int digits(std::int64_t number) {
    return static_cast<int>(integerText(number).size());
}

/// A whole number from lowest to highest, its special codes aside.
Variable* addNumber(Entity& entity, const std::string& name, const std::string& label, int lowest,
                    int highest, Labels labels = {}) {
    Variable* variable = addVariable(entity, name, label, ValueType::Integer, std::move(labels));
    variable->ranges.push_back({4, static_cast<double>(lowest), static_cast<double>(highest)});
    variable->size = digits(highest);
    return variable;
}

Variable* addReal(Entity& entity, const std::string& name, const std::string& label, int size,
                  int decimals) {
    Variable* variable = addVariable(entity, name, label, ValueType::Real);
    variable->size = size;
    variable->decimals = decimals;
    return variable;
}

/// The running number of a record under the one above.
void addCode(Entity& entity, const std::string& label, int size) {
    entity.codeVar = addVariable(entity, "NUMBER", label, ValueType::Integer);
    entity.codeVar->size = size;
    closeGroup(entity, "Identification");
}

/// Special codes, labelled.
void setCodes(Variable& variable, std::optional<int> notapp, std::optional<int> missing) {
    variable.size =
        std::max({variable.size, digits(notapp.value_or(0)), digits(missing.value_or(0))});
    if (notapp) {
        variable.notapp = *notapp;
        variable.valueLabels.emplace_back(integerText(*notapp), "Not applicable");
    }
    if (missing) {
        variable.missing = *missing;
        variable.valueLabels.emplace_back(integerText(*missing), "Not stated");
    }
}

void addText(Entity& entity, const std::string& name, const std::string& label, int size) {
    addVariable(entity, name, label, ValueType::String)->size = size;
}

void addArea(Entity& entity) {
    addText(entity, "CODE", entity.label + " code", 2);
    addText(entity, "NAME", entity.label + " name", 40);
    entity.codeVar = entity.variables[0].get();
    entity.labelVar = entity.variables[1].get();
    closeGroup(entity, "Identification");
}

void addHouseholdVariables(Entity& household) {
    addCode(household, "Household number", 6);
    addNumber(household, "TYPE", "Type of household", 1, 6,
              {{"1", "One person"},
               {"2", "Couple"},
               {"3", "Couple with children"},
               {"4", "One parent with children"},
               {"5", "Extended family"},
               {"6", "Persons not related"}});
    setCodes(*addNumber(household, "TENURE", "Tenure of the dwelling", 1, 4,
                        {{"1", "Owned, paid"},
                         {"2", "Owned, being paid"},
                         {"3", "Rented"},
                         {"4", "Lent or other"}}),
             {}, codes::shortMissing);
    setCodes(*addNumber(household, "WATER", "Source of water", 1, 5,
                        {{"1", "Pipe into the dwelling"},
                         {"2", "Pipe outside the dwelling"},
                         {"3", "Well"},
                         {"4", "Tanker"},
                         {"5", "River, spring or rain"}}),
             {}, codes::shortMissing);
    addVariable(household, "ELECTRICITY", "Has electricity", ValueType::Boolean,
                {{"0", "No"}, {"1", "Yes"}})
        ->size = 1;
    setCodes(*addNumber(household, "ROOMS", "Number of rooms", 1, 12), {}, codes::longMissing);
    closeGroup(household, "Housing");
    household.weightVar = addReal(household, "WEIGHT", "Expansion factor", 8, 3);
    closeGroup(household, "Sample");
}

void addActivityVariables(Entity& person) {
    setCodes(*addNumber(person, "ACTIVITY", "Main activity", 1, 6,
                        {{"1", "Working"},
                         {"2", "Looking for work"},
                         {"3", "Student"},
                         {"4", "Housework"},
                         {"5", "Retired"},
                         {"6", "Other"}}),
             codes::shortNotApplicable, codes::shortMissing);
    setCodes(*addNumber(person, "OCCUPATION", "Occupation", 1, 9,
                        {{"1", "Managers"},
                         {"2", "Professionals"},
                         {"3", "Technicians"},
                         {"4", "Clerks"},
                         {"5", "Service and sales workers"},
                         {"6", "Farm, forest and fishery workers"},
                         {"7", "Craft workers"},
                         {"8", "Machine operators and drivers"},
                         {"9", "Elementary occupations"}}),
             codes::longNotApplicable, codes::longMissing);
    addReal(person, "INCOME", "Monthly income from work", 7, 0)->notapp =
        codes::incomeNotApplicable;
    closeGroup(person, "Work");
}

void addPersonVariables(Entity& person, const Country& country) {
    addCode(person, "Person number", 3);
    addNumber(person, "SEX", "Sex", 1, 2, {{"1", "Male"}, {"2", "Female"}});
    setCodes(*addNumber(person, "AGE", "Age in completed years", 0, 98), {}, codes::ageMissing);
    addNumber(person, "RELATION", "Relationship to the head", 1, 7,
              {{"1", "Head"},
               {"2", "Spouse or partner"},
               {"3", "Child"},
               {"4", "Grandchild"},
               {"5", "Parent"},
               {"6", "Other relative"},
               {"7", "Not related"}});
    setCodes(*addNumber(person, "MARITAL", "Marital status (15 and over)", 1, 5,
                        {{"1", "Single"},
                         {"2", "Married"},
                         {"3", "In union"},
                         {"4", "Separated or divorced"},
                         {"5", "Widowed"}}),
             codes::shortNotApplicable, codes::shortMissing);
    closeGroup(person, "Demography");
    setCodes(*addNumber(person, "EDUCATION", "Years of schooling (5 and over)", 0, 17),
             codes::longNotApplicable, codes::longMissing);
    setCodes(*addNumber(person, "LITERATE", "Reads and writes (5 and over)", 1, 2,
                        {{"1", "Yes"}, {"2", "No"}}),
             codes::shortNotApplicable, codes::shortMissing);
    closeGroup(person, "Education");
    addActivityVariables(person);
    Labels provinces = {{"00", "Abroad"}};
    for (const Province& province : country.provinces)
        provinces.emplace_back(province.code, province.name);
    addVariable(person, "BIRTHPLACE", "Province of birth", ValueType::String, std::move(provinces))
        ->size = 2;
    closeGroup(person, "Migration");
}

void addEmigrantVariables(Entity& emigrant) {
    addNumber(emigrant, "SEX", "Sex", 1, 2, {{"1", "Male"}, {"2", "Female"}});
    setCodes(*addNumber(emigrant, "AGE", "Age when leaving", 0, 98), {}, codes::ageMissing);
    addNumber(emigrant, "YEAR", "Year of leaving", 2015, 2025);
    setCodes(*addNumber(emigrant, "DESTINATION", "Destination", 1, 4,
                        {{"1", "Neighbouring country"},
                         {"2", "Other country of the continent"},
                         {"3", "Overseas, north"},
                         {"4", "Overseas, other"}}),
             {}, codes::shortMissing);
    closeGroup(emigrant, "Migration");
}

} // namespace

std::unique_ptr<catalog::Dictionary> makeSampleDictionary(const Country& country) {
    auto dictionary = std::make_unique<catalog::Dictionary>();
    dictionary->name = "SAMPLE";
    dictionary->label = "Sample country";
    dictionary->author = "kelx sample";
    dictionary->created = dictionary->updated = "2025-01-01T00:00:00";
    dictionary->root = std::make_unique<Entity>();
    Entity& root = *dictionary->root;
    root.dictionary = dictionary.get();
    root.name = "COUNTRY";
    root.label = "Sample country";
    Entity* province = addEntity(root, "PROVINCE", "Province", true);
    addArea(*province);
    Entity* district = addEntity(*province, "DISTRICT", "District", true);
    addArea(*district);
    addReal(*district, "AREA_KM2", "Area in square kilometres", 9, 1);
    closeGroup(*district, "Territory");
    Entity* household = addEntity(*district, "HOUSEHOLD", "Household", false);
    addHouseholdVariables(*household);
    addPersonVariables(*addEntity(*household, "PERSON", "Person", false), country);
    addEmigrantVariables(*addEntity(*household, "EMIGRANT", "Emigrant", false));
    return dictionary;
}

storage::ColumnPlan samplePlan(const Variable& variable, const Country& country) {
    storage::ColumnPlan plan;
    plan.type = variable.type;
    plan.decimals = static_cast<std::uint8_t>(variable.decimals.value_or(0));
    if (variable.type != ValueType::Integer)
        return plan;
    // Running numbers within the record above.
    plan.lowest = 1;
    plan.highest = mostPerHousehold;
    if (variable.entity->name == "HOUSEHOLD")
        for (const District& district : country.districts)
            plan.highest = std::max(*plan.highest, static_cast<std::int64_t>(district.persons));
    if (!variable.ranges.empty()) {
        plan.lowest = static_cast<std::int64_t>(variable.ranges.front().minimum);
        plan.highest = static_cast<std::int64_t>(variable.ranges.front().maximum);
    }
    for (const auto& special : {variable.notapp, variable.missing})
        if (special)
            plan.highest = std::max(*plan.highest, static_cast<std::int64_t>(*special));
    return plan;
}

std::vector<std::string> dataFileNames(const catalog::Dictionary& dictionary) {
    std::vector<std::string> names;
    for (const Entity* entity : dictionary.entities()) {
        if (!entity->fileName.empty())
            names.push_back(entity->fileName);
        for (const auto& variable : entity->variables)
            names.push_back(variable->fileName);
    }
    return names;
}

} // namespace kelx::tools
