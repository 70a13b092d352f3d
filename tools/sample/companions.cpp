// SPDX-License-Identifier: Apache-2.0
#include "sample/companions.h"

#include "storage/atomic_file.h"

#include <nlohmann/json.hpp>

namespace kelx::tools {

namespace {

using nlohmann::json;
namespace fs = std::filesystem;

const char* const populationProgram =
    R"(// Who lives in the country: weighted by the household's expansion factor.
RUNDEF Population
    TITLE "Population of the sample country"

FREQ PERSON.SEX
TABLE AGES AS FREQUENCY PERSON.AGE
    TITLE "Single years of age"
CROSSTABS PERSON.MARITAL BY PERSON.SEX
    TITLE "Marital status by sex"
    FILTER PERSON.AGE >= 15 AND PERSON.AGE < 99
)";

const char* const housingProgram = R"(// Dwellings as they were counted, without weights.
RUNDEF Housing
    NOWEIGHT

COUNT HOUSEHOLD
FREQ HOUSEHOLD.TYPE, HOUSEHOLD.WATER BY HOUSEHOLD.TENURE
TABLE ROOMS AS FREQUENCY HOUSEHOLD.ROOMS
    FILTER HOUSEHOLD.ELECTRICITY
)";

const char* const capitalProgram = R"(// The capital's working people.
RUNDEF Capital
    SELECTION "capital_sel.json"
    FILTER PERSON.AGE >= 15 AND PERSON.AGE <> 99

COUNT PERSON
CROSSTABS PERSON.OCCUPATION BY PERSON.SEX
TABLE SCHOOLING AS FREQUENCY PERSON.EDUCATION BY PERSON.ACTIVITY
)";

const char* const provincesProgram = R"(// The provinces side by side, and who left them.
RUNDEF Provinces

TABLE PEOPLE AS FREQUENCY PROVINCE.CODE BY PERSON.SEX
CROSSTABS PROVINCE.CODE BY PERSON.BIRTHPLACE
FREQ EMIGRANT.DESTINATION BY EMIGRANT.SEX
)";

std::string selectionText(const Country& country) {
    const std::string capital = country.provinces.front().code + country.districts.front().code;
    return json{{"label", "The capital, " + country.districts.front().name},
                {"selections",
                 json::array({{{"entity", "DISTRICT"}, {"codes", json::array({capital})}}})},
                {"typeFile", "selection"}}
               .dump(4) +
           "\n";
}

json elementDir(const std::string& label, const std::string& location) {
    return {{"elementDir", json::array({{{"label", label}, {"location", location}}})}};
}

json lastFiles(const char* key, const std::string& location) {
    return {{key, json::array({{{"location", location}}})}};
}

/// A project's paths are absolute.
std::string projectText(const fs::path& folder) {
    const std::string here = folder.generic_string();
    const auto file = [&folder](const char* name) { return (folder / name).generic_string(); };
    const json style = json::array({{{"useStyle", false}, {"defaultStylePointer", -1}}});
    json project;
    project["typeFile"] = "project";
    project["namePrj"] = "sample";
    project["label"] = "Sample country";
    project["author"] = "kelx sample";
    project["created"] = project["updated"] = "20250101";
    project["workDir"] = project["resultDir"] = here;
    project["dictionaries"] =
        json::array({{{"label", "Sample country"}, {"location", file("sample.kxdb")}}});
    project["program"] = json::array({json{{"loadLastProgram", true}}, elementDir("Programs", here),
                                      lastFiles("lastPrograms", file("population.spc"))});
    project["executer"] = json::array();
    project["selection"] = json::array({json{{"useSelection", false}, {"defaultSelection", ""}},
                                        elementDir("Selections", here),
                                        lastFiles("lastSelections", file("capital_sel.json"))});
    project["map"] = json::array();
    project["universe"] = json::array({{{"useUniverse", false}, {"defaultUniverse", -1}}});
    project["tableStyle"] = project["graphStyle"] = style;
    return project.dump(4) + "\n";
}

} // namespace

std::vector<std::pair<std::string, std::string>> sampleCompanions(const Country& country,
                                                                  const fs::path& folder) {
    return {{"population.spc", populationProgram},
            {"housing.spc", housingProgram},
            {"capital.spc", capitalProgram},
            {"provinces.spc", provincesProgram},
            {"capital_sel.json", selectionText(country)},
            {"sample.prj.json", projectText(folder)}};
}

void writeText(const fs::path& file, const std::string& text) {
    storage::AtomicFile out(file);
    out.write(text);
    out.commit();
}

} // namespace kelx::tools
