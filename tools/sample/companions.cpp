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

const char* const incomeProgram = R"(// What working people earn, and how unequally.
RUNDEF Income
    TITLE "Income from work"
    FILTER PERSON.ACTIVITY = 1

AVERAGE PERSON.INCOME, PERSON.AGE BY PERSON.OCCUPATION
    DECIMALS 1
MEDIAN PERSON.INCOME BY PERSON.SEX
SUM PERSON.INCOME BY PROVINCE.CODE
    SORT DESC PERSON.INCOME
MINIMUM PERSON.INCOME BY PERSON.SEX
MAXIMUM PERSON.INCOME BY PERSON.SEX
TABLE EARNINGS AS STATS OF PERSON.INCOME BY PERSON.EDUCATION
    SENSITIVE 5
QUANTILE 10 OF PERSON.INCOME
GINI PERSON.INCOME BY PROVINCE.CODE
    DECIMALS 3

// The same for each province.
RUNDEF IncomeOfProvinces
    FILTER PERSON.ACTIVITY = 1
    AREABREAK PROVINCE

MEDIAN PERSON.INCOME BY PERSON.SEX
)";

const char* const variablesProgram = R"(// Variables that are made for the run.
RUNDEF Variables
    NOWEIGHT

DEFINE PERSON.AGEGROUP AS RECODE PERSON.AGE (0 : 14 = 1) (15 : 64 = 2) (65 : 98 = 3)
    VARLABEL "Age group"
    VALUELABELS 1 "Children" 2 "Adults" 3 "Older people"
DEFINE PERSON.WORKS AS PERSON.ACTIVITY = 1
    VARLABEL "Works"
DEFINE PERSON.ROLE AS SWITCH
    CASE PERSON.RELATION = 1 ASSIGN 1
    CASE PERSON.RELATION IN (2 : 3) ASSIGN 2
    ELSE 3
    VALUELABELS 1 "Head" 2 "Family" 3 "Others"
DEFINE PERSON.PLACE AS NUMBER HOUSEHOLD
    VARLABEL "Place in the household"
DEFINE PERSON.LOT AS SAMPLE RANDOM 10
DEFINE PERSON.TENTH AS SAMPLE SYSTEMATIC 10
DEFINE HOUSEHOLD.WORKERS AS COUNT PERSON
    FILTER PERSON.WORKS
    VARLABEL "Working members"
DEFINE HOUSEHOLD.EARNED AS SUM PERSON.INCOME
DEFINE HOUSEHOLD.OLDEST AS MAXIMUM PERSON.AGE
DEFINE HOUSEHOLD.YOUNGEST AS MINIMUM PERSON.AGE
DEFINE HOUSEHOLD.MEANAGE AS AVERAGE PERSON.AGE
DEFINE HOUSEHOLD.MIDAGE AS MEDIAN PERSON.AGE

FREQ PERSON.AGEGROUP, PERSON.ROLE BY PERSON.SEX
FREQ PERSON.PLACE, PERSON.LOT, PERSON.TENTH
CROSSTABS HOUSEHOLD.WORKERS BY HOUSEHOLD.TYPE
STATS HOUSEHOLD.EARNED, HOUSEHOLD.OLDEST, HOUSEHOLD.YOUNGEST
AVERAGE HOUSEHOLD.MEANAGE, HOUSEHOLD.MIDAGE BY HOUSEHOLD.TYPE
)";

const char* const districtsProgram = R"(// The districts side by side.
RUNDEF Districts

DEFINE DISTRICT.HOUSEHOLDS AS COUNT HOUSEHOLD
    VARLABEL "Households"
DEFINE DISTRICT.YOUNG AS RATIO PERSON.AGE (0 : 14)
    VARLABEL "Share of children"
DEFINE DISTRICT.LEFT AS FRACTION NUM EMIGRANT.SEX (1 : 2) DENOM PERSON.SEX (1 : 2)
    VARLABEL "Emigrants for each resident"
DEFINE DISTRICT.EARNINGS AS INDICATOR NUM PERSON.INCOME DENOM HOUSEHOLD.ROOMS
    VARLABEL "Income for each room"

TABLE BYSEX AS FREQUENCY PERSON.SEX
TABLE INCOME AS MEDIAN PERSON.INCOME
AREALIST DISTRICT, DISTRICT.HOUSEHOLDS, DISTRICT.YOUNG, DISTRICT.LEFT, DISTRICT.EARNINGS, BYSEX, INCOME
    SORT DESC DISTRICT.HOUSEHOLDS 20

VIEW DISTRICT, DISTRICT.NAME, PROVINCE.NAME

TABLE EVERYBODY AS FREQUENCY PERSON.EDUCATION
TABLE WOMEN AS FREQUENCY PERSON.EDUCATION
    FILTER PERSON.SEX = 2
TABLE SHARE AS TABOP OF WOMEN / EVERYBODY * 100
    TITLE "Women of 100 persons, by years of schooling"
    DECIMALS 1

TABLE SCHOOLING AS FREQUENCY PERSON.EDUCATION BY PERSON.SEX
TABLE AGES AS AVERAGE PERSON.AGE BY PERSON.EDUCATION
TABLE PROFILE AS TABLIST SCHOOLING, AGES
)";

const char* const profileProgram =
    R"(// Called by profiles.spc, with the code of a province and a title.
RUNDEF Profile
    SELECTION INLINE PROVINCE "{province}"
    SELECTIONLABEL {title}

FREQ PERSON.SEX
    TITLE "{title}: population by sex"
AVERAGE PERSON.AGE
    TITLE "{title}: average age"
)";

const char* const profilesProgram = R"(// The same tables for two provinces.
EXECUTE "profile.spc" province = {01}, title = {First province}
EXECUTE "profile.spc" province = {02}, title = {Second province}
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
    return {{"population.spc", populationProgram},   {"housing.spc", housingProgram},
            {"capital.spc", capitalProgram},         {"provinces.spc", provincesProgram},
            {"income.spc", incomeProgram},           {"variables.spc", variablesProgram},
            {"districts.spc", districtsProgram},     {"profile.spc", profileProgram},
            {"profiles.spc", profilesProgram},       {"capital_sel.json", selectionText(country)},
            {"sample.prj.json", projectText(folder)}};
}

void writeText(const fs::path& file, const std::string& text) {
    storage::AtomicFile out(file);
    out.write(text);
    out.commit();
}

} // namespace kelx::tools
