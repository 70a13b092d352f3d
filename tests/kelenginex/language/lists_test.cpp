// SPDX-License-Identifier: GPL-3.0-or-later
// Area lists and views: variables and tables as columns.
#include "expect_tables.h"
#include "fixture.h"

#include <gtest/gtest.h>

namespace kelx::language {

struct GoodList {
    const char* program;
    const char* tables;
};

class Lists : public ::testing::TestWithParam<GoodList> {};

TEST_P(Lists, BindAsWritten) {
    expectTables(GetParam().program, GetParam().tables);
}

INSTANTIATE_TEST_SUITE_P(
    Tools, Lists,
    ::testing::Values(
        GoodList{"TABLE T_Area_SEX FREQ PERSON.SEX\nAREALIST  PROVINCE, T_Area_SEX, "
                 "PROVINCE.NAME\nTALLY PERSON.AGE\nTITLE \"Arealist of T_Area_SEX, "
                 "PROVINCE.NAME\"\n",
                 "T_Area_SEX PERSON: PERSON.SEX silent idle\n"
                 "T_Area_SEX PERSON: record PROVINCE BY PERSON.SEX tally PERSON.AGE hidden\n"
                 "AREALIST_1 PROVINCE: AREALIST #1 PROVINCE.NAME title Arealist of T_Area_SEX, "
                 "PROVINCE.NAME\n"},
        GoodList{"RUNDEF \nNOWEIGHT \nFILTER PROVINCE.CODE <> \"03\"\n\nview  PERSON, "
                 "PERSON.AGE, PROVINCE.NAME\nTITLE \"v\"\n",
                 "VIEW_1 PERSON: VIEW PERSON.AGE PROVINCE.NAME all (PROVINCE.CODE <> '03') title "
                 "v\n"},
        GoodList{"DEFINE PROVINCE.Count_PERSON as count PERSON\nvarlabel \"PERSON - People\"\n"
                 "DEFINE PROVINCE.Count_DEATH as count DEATH\nvarlabel \"DEATH\"\n"
                 "AREALIST  PROVINCE, PROVINCE.Count_PERSON, PROVINCE.Count_DEATH\n"
                 "SORT DESC PROVINCE.Count_PERSON 0 \nTITLE \"Count\"\n",
                 "AREALIST_1 PROVINCE: AREALIST PROVINCE.Count_PERSON PROVINCE.Count_DEATH title "
                 "Count sort PROVINCE.Count_PERSON desc\n"},
        GoodList{"arealist DISTRICT, DISTRICT.POP-2020",
                 "AREALIST_1 DISTRICT: AREALIST DISTRICT.POP-2020\n"},
        GoodList{"table T as median household.rent\n\n"
                 "table x as arealist of district, province.name, T\n\tsort desc T 1\n\n"
                 "table y as view of person person.age, person.sex,\n\tperson.grp\n\n"
                 "table z as view of death\n\n",
                 "T HOUSEHOLD: MEDIAN HOUSEHOLD.RENT silent idle\n"
                 "T HOUSEHOLD: MEDIAN HOUSEHOLD.RENT BY record DISTRICT hidden\n"
                 "x DISTRICT: AREALIST PROVINCE.NAME #1 sort T/1 desc\n"
                 "y PERSON: VIEW PERSON.AGE PERSON.SEX PERSON.GRP\n"
                 "z DEATH: VIEW DEATH.SEX DEATH.CAUSE\n"}));

INSTANTIATE_TEST_SUITE_P(
    Language, Lists,
    ::testing::Values(
        GoodList{"AREALIST PROVINCE\nVIEW NATION",
                 "AREALIST_1 PROVINCE: AREALIST\nVIEW_1 NATION: VIEW\n"},
        // A name alone is a variable of the rows or above, else a table.
        GoodList{
            "TABLE age FREQ AGE TABLE n COUNT PERSON FILTER AGE > 3 TABLE d FREQ CAUSE\n"
            "AREALIST HOUSEHOLD, age, n, ROOMS, d, PROVINCE.* FILTER ROOMS > 2 SENSITIVE 4 SORT d "
            "2 7",
            "age PERSON: PERSON.AGE silent idle\n"
            "n PERSON: filter (PERSON.AGE > 3) silent idle\nd DEATH: DEATH.CAUSE silent idle\n"
            "age PERSON: record HOUSEHOLD BY PERSON.AGE sensitive 4 hidden\n"
            "n PERSON: record HOUSEHOLD filter (PERSON.AGE > 3) sensitive 4 hidden\n"
            "d DEATH: record HOUSEHOLD BY DEATH.CAUSE sensitive 4 hidden\n"
            "AREALIST_1 HOUSEHOLD: AREALIST #3 #4 HOUSEHOLD.ROOMS #5 PROVINCE.CODE PROVINCE.NAME "
            "filter (HOUSEHOLD.ROOMS > 2) sort d/2 limit 7 sensitive 4\n"}));

TEST(ListColumns, HaveTheSettingsOfTheirTables) {
    Census census;
    const BoundProgram program = census.compile(
        "RUNDEF r FILTER AGE > 5\nTABLE a AVERAGE AGE WEIGHT WEIGHT2 FILTER SEX2 = 1 SAVE \"a\"\n"
        "RUNDEF s NOWEIGHT\nTABLE b FREQ GRP SORT GRP OUTFILE \"b.csv\"\n"
        "AREALIST PROVINCE, a, b WEIGHT ROOMS SORT CODE\n");
    EXPECT_EQ(located(census.messages), "KEL_W_COLUMN_OF_OTHER_RUN 5:20\n");
    EXPECT_EQ(summary(program),
              "a PERSON: AVERAGE PERSON.AGE weight PERSON.WEIGHT2 filter (PERSON.SEX2 = 1) all "
              "(PERSON.AGE > 5)\n"
              "b PERSON: PERSON.GRP sort GRP\n"
              "a PERSON: AVERAGE PERSON.AGE BY record PROVINCE weight PERSON.WEIGHT2 filter "
              "(PERSON.SEX2 = 1) all (PERSON.AGE > 5) hidden\n"
              "b PERSON: record PROVINCE BY PERSON.GRP weight HOUSEHOLD.ROOMS hidden\n"
              "AREALIST_1 PROVINCE: AREALIST #2 #3 sort CODE\n");
    EXPECT_TRUE(program.tables[2].jsonFiles.empty());
    EXPECT_FALSE(program.tables[3].outfile);
    EXPECT_FALSE(program.tables[3].sort);
    EXPECT_EQ(program.tables[4].settings->name, "s");
}

TEST(ListColumns, NeedTheirData) {
    Census census;
    std::filesystem::remove(census.variable("PROVINCE", "CODE").filePath());
    census.compile("AREALIST DISTRICT, POP-2020\nVIEW PERSON, PERSON.LOST");
    EXPECT_EQ(located(census.messages),
              "KEL_E_DATA_FILE_MISSING 1:10\nKEL_E_DATA_FILE_MISSING 2:14\n");
}

} // namespace kelx::language
