// SPDX-License-Identifier: GPL-3.0-or-later
#include "case_database.h"

#include "catalog/reader.h"
#include "import/codebook.h"
#include "import/csv_importer.h"
#include "import/csv_reader.h"
#include "support/temporary_folder.h"

#include <stdexcept>

namespace kelx::test {

namespace {

/// The level that a level's records lie under: its parent keys name the levels above.
std::string parentOf(const tools::LevelPlan& level) {
    std::string parent;
    for (const tools::FieldPlan& field : level.fields)
        if (field.role == tools::FieldRole::ParentKey)
            parent = field.name;
    return parent;
}

void applyExtra(catalog::Dictionary& dictionary, const tools::CsvReader& row) {
    const auto field = [&](std::size_t i) { return std::string(row.field(i)); };
    catalog::Entity* entity = dictionary.findEntity(field(0));
    if (entity == nullptr)
        row.fail(0, "no such level");
    catalog::Variable* variable = entity->findVariable(field(1));
    if (variable == nullptr)
        row.fail(1, "no such variable");
    const std::string what = field(2);
    if (what == "range")
        variable->ranges.push_back({4, std::stod(field(3)), std::stod(field(4))});
    else if (what == "sensitive")
        variable->sensitive = std::stoi(field(3));
    else if (what == "alias")
        variable->alias = field(3);
    else if (what == "missing")
        variable->missing = std::stod(field(3));
    else if (what == "notapp")
        variable->notapp = std::stod(field(3));
    else
        row.fail(2, "unknown word");
}

void applyExtras(const std::filesystem::path& extras, const std::filesystem::path& database) {
    const auto dictionary = catalog::readDictionary(database, {});
    tools::CsvReader reader(extras);
    reader.next(); // the names
    while (reader.next())
        applyExtra(*dictionary, reader);
    catalog::saveDictionary(*dictionary, database);
}

} // namespace

void makeCaseDatabase(const std::filesystem::path& source, const std::filesystem::path& folder) {
    tools::ImportRequest request;
    request.database = folder / (source.filename().string() + ".kxdb");
    request.codebook = source / "codebook.csv";
    for (const tools::LevelPlan& level : tools::readCodebook(request.codebook).levels) {
        if (!std::filesystem::exists(source / (level.name + ".csv")))
            continue; // the root
        const std::string parent = parentOf(level);
        if (!parent.empty() && request.levels.back().first != parent)
            request.under.emplace_back(level.name, parent);
        request.levels.emplace_back(level.name, source / (level.name + ".csv"));
    }
    tools::importCsv(request);
    if (std::filesystem::exists(source / "extras.csv"))
        applyExtras(source / "extras.csv", request.database);
}

} // namespace kelx::test
