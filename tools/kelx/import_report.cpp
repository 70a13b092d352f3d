// SPDX-License-Identifier: Apache-2.0
#include "import_report.h"

#include "catalog/type_names.h"
#include "commands.h"
#include "json_print.h"

#include <nlohmann/json.hpp>

#include <iostream>

namespace kelx::tool {

namespace {

using nlohmann::ordered_json;
using tools::ImportReport;

void tell(std::uint64_t count, const char* what) {
    if (count > 0)
        std::cout << ", " << count << ' ' << what;
}

void print(const ImportReport::Level& level) {
    std::cout << level.name << ": " << counted(level.records, "record");
    if (level.sorted)
        std::cout << ", put into the order of the level above";
    tell(level.orphans, level.orphans == 1 ? "orphan left out" : "orphans left out");
    tell(level.duplicates, "with a blank or double key");
    tell(level.faultyRows, level.faultyRows == 1 ? "row that cannot be read left out"
                                                 : "rows that cannot be read left out");
    std::cout << '\n';
    for (const auto& variable : level.variables) {
        std::cout << "    " << variable.name << ": " << catalog::typeName(variable.type);
        tell(variable.blanks, "blank");
        tell(variable.outside, "outside labels and ranges");
        tell(variable.faulty, variable.faulty == 1 ? "of them because it does not fit the type"
                                                   : "of them because they do not fit the type");
        tell(variable.conflicts, variable.conflicts == 1
                                     ? "row that contradicts its record's first one"
                                     : "rows that contradict their record's first one");
        std::cout << '\n';
    }
}

void print(const ImportReport& report) {
    for (const auto& level : report.levels)
        print(level);
    for (const std::string& note : report.notes)
        std::cout << note << '\n';
    for (const std::string& fault : report.firstFaults)
        std::cerr << fault << '\n';
    if (report.faults > report.firstFaults.size())
        std::cerr << "and " << report.faults - report.firstFaults.size() << " more\n";
}

ordered_json describe(const ImportReport::Level& level) {
    ordered_json told{{"name", level.name},
                      {"records", level.records},
                      {"sorted", level.sorted},
                      {"orphans", level.orphans},
                      {"duplicates", level.duplicates},
                      {"faultyRows", level.faultyRows},
                      {"variables", ordered_json::array()}};
    for (const auto& variable : level.variables)
        told["variables"].push_back({{"name", variable.name},
                                     {"type", valueTypeName(variable.type)},
                                     {"blanks", variable.blanks},
                                     {"coded", variable.coded},
                                     {"outside", variable.outside},
                                     {"faulty", variable.faulty},
                                     {"conflicts", variable.conflicts}});
    return told;
}

} // namespace

void printReport(const ImportReport& report, const std::filesystem::path& database, bool asJson) {
    if (!asJson)
        return print(report);
    ordered_json told{{"database", database.string()}, {"levels", ordered_json::array()}};
    for (const auto& level : report.levels)
        told["levels"].push_back(describe(level));
    told["notes"] = report.notes;
    told["faults"] = report.faults;
    told["firstFaults"] = report.firstFaults;
    printJson(told);
}

} // namespace kelx::tool
