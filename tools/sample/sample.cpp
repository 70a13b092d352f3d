// SPDX-License-Identifier: Apache-2.0
#include "sample/sample.h"

#include "catalog/reader.h"
#include "import/staging.h"
#include "sample/companions.h"
#include "sample/household.h"
#include "sample/sample_dictionary.h"
#include "storage/column_writer.h"
#include "storage/folder_lock.h"
#include "storage/pointer_file.h"

#include <stdexcept>

namespace kelx::tools {

namespace {

namespace fs = std::filesystem;
enum Stream : std::uint64_t { Households = 10, Persons = 11 };

/// The columns of an entity in the dictionary's order, and its pointers.
class EntityWriter {
public:
    EntityWriter(const catalog::Entity& entity, const Country& country, const fs::path& folder)
        : pointers_(folder / entity.fileName) {
        for (const auto& variable : entity.variables)
            columns_.push_back(storage::ColumnWriter::create(folder / variable->fileName,
                                                             samplePlan(*variable, country)));
    }

    storage::PointerWriter& pointers() { return pointers_; }
    EntityWriter& begin() {
        next_ = 0;
        return *this;
    }
    EntityWriter& add(std::int64_t value) {
        columns_[next_++]->addInteger(value);
        return *this;
    }
    EntityWriter& addReal(double value) {
        columns_[next_++]->addReal(value);
        return *this;
    }
    EntityWriter& addText(const std::string& text) {
        columns_[next_++]->addText(text);
        return *this;
    }
    EntityWriter& addBlank() {
        columns_[next_++]->addBlank();
        return *this;
    }
    void commit() {
        for (const auto& column : columns_)
            column->commit();
        pointers_.commit();
    }

private:
    storage::PointerWriter pointers_;
    std::vector<std::unique_ptr<storage::ColumnWriter>> columns_;
    std::size_t next_ = 0;
};

class SampleWriter {
public:
    SampleWriter(const SampleRequest& request, const Country& country,
                 const catalog::Dictionary& dictionary, const fs::path& folder)
        : request_(request), country_(country),
          provinces_(*dictionary.findEntity("PROVINCE"), country, folder),
          districts_(*dictionary.findEntity("DISTRICT"), country, folder),
          households_(*dictionary.findEntity("HOUSEHOLD"), country, folder),
          persons_(*dictionary.findEntity("PERSON"), country, folder),
          emigrants_(*dictionary.findEntity("EMIGRANT"), country, folder) {
        for (const Province& province : country.provinces)
            birthplaces_.push_back(province.code);
        report_.provinces = country.provinces.size();
        report_.districts = country.districts.size();
    }

    SampleReport run() {
        provinces_.pointers().addParent(country_.provinces.size());
        for (const Province& province : country_.provinces) {
            provinces_.begin().addText(province.code).addText(province.name);
            districts_.pointers().addParent(province.districts);
        }
        for (const District& district : country_.districts)
            writeDistrict(district);
        if (request_.progress)
            request_.progress(report_.persons, request_.persons);
        for (EntityWriter* writer :
             {&provinces_, &districts_, &households_, &persons_, &emigrants_})
            writer->commit();
        return report_;
    }

private:
    void writeDistrict(const District& district) {
        districts_.begin().addText(district.code).addText(district.name).addReal(district.areaKm2);
        std::uint64_t left = district.persons;
        std::int64_t number = 0;
        Household household;
        while (left > 0) {
            makeHousehold(household, district, left,
                          Random(request_.seed, Households, report_.households));
            writeHousehold(household, ++number, district);
            left -= household.persons.size();
        }
        households_.pointers().addParent(static_cast<std::uint64_t>(number));
    }

    void writeHousehold(const Household& household, std::int64_t number, const District& district) {
        households_.begin().add(number).add(household.type).add(household.tenure);
        households_.add(household.water);
        household.electricity < 0 ? households_.addBlank() : households_.add(household.electricity);
        households_.add(household.rooms).addReal(household.weight);
        persons_.pointers().addParent(household.persons.size());
        emigrants_.pointers().addParent(household.emigrants.size());
        std::int64_t position = 0;
        for (const Person& person : household.persons)
            writePerson(person, ++position, district);
        for (const Emigrant& emigrant : household.emigrants)
            writeEmigrant(emigrant);
        ++report_.households;
    }

    void writePerson(const Person& person, std::int64_t number, const District& district) {
        const Answers answers = answersOf(person, district, static_cast<int>(birthplaces_.size()),
                                          Random(request_.seed, Persons, report_.persons));
        persons_.begin().add(number).add(person.sex).add(answers.age).add(person.relation);
        persons_.add(answers.marital).add(answers.education).add(answers.literate);
        persons_.add(answers.activity).add(answers.occupation).addReal(answers.income);
        if (answers.birthProvince == -2)
            persons_.addBlank();
        else if (answers.birthProvince == -1)
            persons_.addText("00");
        else
            persons_.addText(birthplaces_[static_cast<std::size_t>(answers.birthProvince)]);
        ++report_.persons;
        if (request_.progress && report_.persons % 65536 == 0)
            request_.progress(report_.persons, request_.persons);
    }

    void writeEmigrant(const Emigrant& emigrant) {
        emigrants_.begin().add(emigrant.sex).add(emigrant.age);
        emigrant.year == 0 ? emigrants_.addBlank() : emigrants_.add(emigrant.year);
        emigrants_.add(emigrant.destination);
        ++report_.emigrants;
    }

    const SampleRequest& request_;
    const Country& country_;
    EntityWriter provinces_, districts_, households_, persons_, emigrants_;
    std::vector<std::string> birthplaces_;
    SampleReport report_;
};

} // namespace

SampleReport writeSample(const SampleRequest& request) {
    if (request.persons < fewestSamplePersons || request.persons > mostSamplePersons)
        throw std::runtime_error("A sample has from 1000 to 100000000 persons.");
    const Country country = makeCountry(request.persons, request.seed);
    const auto dictionary = makeSampleDictionary(country);
    const fs::path folder = fs::absolute(request.folder).lexically_normal();

    std::vector<std::string> names = dataFileNames(*dictionary);
    const auto companions = sampleCompanions(country, folder);
    for (const auto& [name, text] : companions)
        names.push_back(name);
    names.emplace_back("sample.dicx");
    names.emplace_back("sample.kxdb");
    Staging staging(folder / "sample.kxdb", names, request.overwrite);

    const SampleReport report = SampleWriter(request, country, *dictionary, staging.folder()).run();
    for (const auto& [name, text] : companions)
        writeText(staging.folder() / name, text);
    dictionary->dataFolder = staging.folder();
    for (const char* name : {"sample.dicx", "sample.kxdb"}) {
        dictionary->file = staging.folder() / name;
        catalog::saveDictionary(*dictionary, dictionary->file);
    }
    const storage::FolderLock lock(folder / "sample.kxdb", {}); // programs that run may be saving
    staging.publish();
    return report;
}

} // namespace kelx::tools
