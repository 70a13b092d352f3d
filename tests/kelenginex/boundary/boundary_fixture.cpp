// SPDX-License-Identifier: GPL-3.0-or-later
#include "boundary_fixture.h"

#include "catalog/reader.h"

#include <stdexcept>

namespace kelx::test {

std::string Provider::promptPassword(const std::string& dbName) {
    asked.push_back("password " + dbName);
    if (answer.empty()) {
        throw std::runtime_error("Missing password.");
    }
    return answer;
}

std::string Provider::pickDataDir(const std::string& dbName) {
    asked.push_back("folder " + dbName);
    if (answer.empty()) {
        throw std::runtime_error("Missing data location.");
    }
    return answer;
}

BoundaryTest::BoundaryTest() {
    writeSampleData(folder.path());
    const auto file = folder / "sample.kxdb";
    catalog::saveDictionary(*sampleDictionary(file), file);
    kel::init(config);
    kel::setupLocale("en");
}

BoundaryTest::~BoundaryTest() {
    kel::destroy();
}

std::shared_ptr<TKelDictionary> BoundaryTest::open(const std::string& name) {
    auto dictionary = kel::readDictionary((folder / name).string(), nullptr, true);
    dictionary->setDirty(false);
    return dictionary;
}

void BoundaryTest::dropSensitivity() {
    const auto file = folder / "sample.kxdb";
    const auto dictionary = sampleDictionary(file);
    catalog::Entity& person = *dictionary->findEntity("PERSON");
    person.sensitive.reset();
    for (const auto& variable : person.variables) {
        variable->sensitive.reset();
    }
    catalog::saveDictionary(*dictionary, file);
}

std::vector<std::string> BoundaryTest::run(const std::string& program) {
    session = kel::makeDefaultSession(open());
    session->setErrorsListener(&listener);
    session->executeText(program, nullptr);
    const auto outputs = session->outputs();
    return outputs.empty() ? std::vector<std::string>() : rowsOf(*outputs[0]->dataset());
}

std::vector<std::string> rowsOf(TKelDataset& dataset) {
    std::vector<std::string> rows;
    for (std::int64_t row = 0; row < dataset.recCount(); ++row) {
        std::string text;
        for (int column = 0; column < dataset.numFields(); ++column) {
            text += (column > 0 ? "|" : "") + dataset.stringValue(row, column);
        }
        rows.push_back(text);
    }
    return rows;
}

} // namespace kelx::test
