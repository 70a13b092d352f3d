// SPDX-License-Identifier: Apache-2.0
#include "census.h"

#include <limits>
#include <stdexcept>

namespace kelx::bench {
namespace {

const catalog::Entity& entityOf(const catalog::Dictionary& dictionary, const char* name) {
    const catalog::Entity* found = dictionary.findEntity(name);
    if (found == nullptr)
        throw std::runtime_error(std::string("the sample has no ") + name);
    return *found;
}

const catalog::Variable& variableOf(const catalog::Dictionary& dictionary, const char* entity,
                                    const char* name) {
    const catalog::Variable* found = entityOf(dictionary, entity).findVariable(name);
    if (found == nullptr)
        throw std::runtime_error(std::string("the sample has no ") + entity + "." + name);
    return *found;
}

[[noreturn]] void unexpected(const char* entity, const char* name) {
    throw std::runtime_error(std::string(entity) + "." + name +
                             " is not stored as the kernels read it");
}

} // namespace

Census::Census(const catalog::Dictionary& dictionary)
    : sex(nullptr), age(nullptr), marital(nullptr), education(nullptr), income(nullptr),
      type(nullptr), weight(nullptr), firstPerson(nullptr), firstHousehold(nullptr),
      firstDistrict(nullptr), dictionary_(dictionary) {
    sex = bytes("PERSON", "SEX");
    age = bytes("PERSON", "AGE");
    marital = bytes("PERSON", "MARITAL");
    education = bytes("PERSON", "EDUCATION");
    income = reals("PERSON", "INCOME");
    type = bytes("HOUSEHOLD", "TYPE");
    weight = reals("HOUSEHOLD", "WEIGHT");
    firstPerson = offsets("PERSON", households);
    firstHousehold = offsets("HOUSEHOLD", districts);
    firstDistrict = offsets("DISTRICT", provinces);
    persons = firstPerson[households];
    for (std::size_t district = 0; district <= districts; ++district)
        districtPersons.push_back(firstPerson[firstHousehold[district]]);
    for (std::size_t province = 0; province < provinces; ++province)
        provinceOf.resize(firstDistrict[province + 1], province);
    provinceCodes = texts("PROVINCE", "CODE");
    districtCodes = texts("DISTRICT", "CODE");
    incomeNotApplicable = variableOf(dictionary, "PERSON", "INCOME").notapp.value_or(-1);
}

const void* Census::read(const char* entity, const char* name) {
    columns_.push_back(variableOf(dictionary_, entity, name).column());
    storage::ColumnScratch scratch;
    if (columns_.back()->info().isProtected)
        unexpected(entity, name);
    return columns_.back()->read(0, static_cast<std::size_t>(columns_.back()->info().records),
                                 scratch);
}

const Byte* Census::bytes(const char* entity, const char* name) {
    const void* data = read(entity, name);
    const storage::ColumnInfo& info = columns_.back()->info();
    if (info.physical != storage::Physical::Code8 || info.base != 0 || info.blanks != 0)
        unexpected(entity, name);
    return static_cast<const Byte*>(data);
}

const double* Census::reals(const char* entity, const char* name) {
    const void* data = read(entity, name);
    if (columns_.back()->info().physical != storage::Physical::Real64)
        unexpected(entity, name);
    return static_cast<const double*>(data);
}

std::vector<std::string> Census::texts(const char* entity, const char* name) {
    const Byte* codes = bytes(entity, name);
    const storage::Column& column = *columns_.back();
    std::vector<std::string> result;
    for (std::size_t i = 0; i < column.info().records; ++i)
        result.emplace_back(column.text(codes[i]));
    return result;
}

const std::uint32_t* Census::offsets(const char* entity, std::size_t& parents) {
    pointers_.push_back(entityOf(dictionary_, entity).pointers());
    if (pointers_.back()->isWide())
        unexpected(entity, "offsets");
    parents = static_cast<std::size_t>(pointers_.back()->parents());
    return pointers_.back()->narrow();
}

} // namespace kelx::bench
