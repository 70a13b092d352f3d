// SPDX-License-Identifier: GPL-3.0-or-later
// What the workbench writes must compile, as it is written and with its blanks simplified.
#include "fixture.h"
#include "language/text.h"

#include <gtest/gtest.h>

namespace kelx::language {

struct Generated {
    const char* text;
    const char* definitions;
};

class GeneratedDefinitions : public ::testing::TestWithParam<Generated> {};

TEST_P(GeneratedDefinitions, Compile) {
    Census census;
    for (const std::string& text : {std::string(GetParam().text), simplified(GetParam().text)}) {
        census.options.autoWeight = false;
        const BoundProgram program = census.compile(text);
        EXPECT_EQ(told(census.messages), "") << text;
        EXPECT_EQ(definitions(program), GetParam().definitions) << text;
    }
}

INSTANTIATE_TEST_SUITE_P(
    Assistant, GeneratedDefinitions,
    ::testing::Values(
        Generated{"define PERSON.C\n\tas person.age > 5 and person.works\n\ttype BOOL\n",
                  "PERSON.C BOOLEAN: ((PERSON.AGE > 5) AND PERSON.WORKS)\n"},
        Generated{"define PERSON.C\n\tas cmpcode (DISTRICT)\n\ttype STRING\n",
                  "PERSON.C STRING: code DISTRICT\n"},
        Generated{"define PROVINCE.C\n\tas count PERSON\n\ttype INTEGER\n\tweight "
                  "HOUSEHOLD.WEIGHT\n\tfilter PERSON.AGE > 4\n\trange (1 : 5) (9 : 9)\n"
                  "\tvarlabel \"x\"\n\tvaluelabels\n\t\t1 \"a\"\n\t\t2 \"b\"\n\tdoc \"text\"\n"
                  "\tdefault 0\n\tmissing 98\n\tnotapp 99\n\tsensitive 3\n\tlike PERSON.SEX\n"
                  "\tsave \"f.kbf\"\n\toverwrite\n\talias A\n\tgroup g\n",
                  "PROVINCE.C INTEGER: COUNT PERSON weight HOUSEHOLD.WEIGHT filter (PERSON.AGE > 4)"
                  " default 0\n"},
        Generated{"define PROVINCE.C\n\tas sum PERSON.AGE * 2\n\tweight 3\n\ttype INTEGER\n",
                  "PROVINCE.C INTEGER: SUM PERSON of (PERSON.AGE * 2) weight 3\n"},
        Generated{"define PROVINCE.A\n\tas minimum PERSON.AGE\n\tweight 1\n\ttype INTEGER\n"
                  "define PROVINCE.B\n\tas maximum PERSON.AGE\n\ttype INTEGER\n"
                  "define PROVINCE.C\n\tas average PERSON.AGE\n\tweight HOUSEHOLD.WEIGHT\n\ttype "
                  "REAL\ndefine PROVINCE.D\n\tas median PERSON.AGE\n\ttype REAL\n",
                  "PROVINCE.A INTEGER: MINIMUM PERSON of PERSON.AGE weight 1\n"
                  "PROVINCE.B INTEGER: MAXIMUM PERSON of PERSON.AGE\n"
                  "PROVINCE.C REAL: AVERAGE PERSON of PERSON.AGE weight HOUSEHOLD.WEIGHT\n"
                  "PROVINCE.D REAL: MEDIAN PERSON of PERSON.AGE\n"},
        Generated{"define PERSON.C\n\tas recode PERSON.AGE\n\t(LOWEST : 14 = 1)\n\t(15 : 64 = 2)\n"
                  "\t(65 : HIGHEST = 3)\n\telse 9\n\ttype INTEGER\n",
                  "PERSON.C INTEGER: RECODE PERSON.AGE (lowest:14 = 1) (15:64 = 2)"
                  " (65:highest = 3) else 9\n"},
        Generated{"define PERSON.C\n\tas switch \n\tcase PERSON.AGE > 1\n\tassign 2\n\tcase "
                  "PERSON.AGE = 1\n\tassign PERSON.SEX\n\telse 0\n\ttype INTEGER\n",
                  "PERSON.C INTEGER: SWITCH((PERSON.AGE > 1), 2, (PERSON.AGE = 1), PERSON.SEX, 0)"
                  "\n"},
        Generated{"define PERSON.C\n\tas number HOUSEHOLD\n\ttype INTEGER\n",
                  "PERSON.C INTEGER: NUMBER HOUSEHOLD\n"},
        Generated{"define PERSON.C\n\tas sample Random 100\n\ttype INTEGER\n"
                  "define PERSON.D\n\tas sample Systematic 10\n\ttype BOOL\n",
                  "PERSON.C INTEGER: RANDOM(100)\nPERSON.D BOOLEAN: SYSTEMATIC(10)\n"},
        Generated{"define DISTRICT.C\n\tas ratio PERSON.AGE\n\t(0 : 14)\n\t(65 : 98)\n\tdecimals "
                  "2\n",
                  "DISTRICT.C REAL: COUNT PERSON filter (PERSON.AGE IN 0:14 65:98)"
                  " filter NOT(MISSING(PERSON.AGE)) filter NOT(NOTAPPLICABLE(PERSON.AGE))"
                  " / COUNT PERSON filter NOT(MISSING(PERSON.AGE))"
                  " filter NOT(NOTAPPLICABLE(PERSON.AGE))\n"},
        Generated{"define DISTRICT.C\n\tas fraction\n\tnum PERSON.AGE (1 : 3)(5 : 5)\n\tdenom "
                  "PERSON.SEX (1 : 2)\n\tdecimals 2\n",
                  "DISTRICT.C REAL: COUNT PERSON filter (PERSON.AGE IN 1:3 5:5)"
                  " / COUNT PERSON filter (PERSON.SEX IN 1:2)\n"},
        Generated{"define DISTRICT.C\n\tas indicator\n\tnum PERSON.AGE\n\tdenom 2 * "
                  "PERSON.SEX\n\tdecimals 2\n",
                  "DISTRICT.C REAL: SUM PERSON of PERSON.AGE"
                  " / SUM PERSON of (2 * PERSON.SEX)\n"}));

INSTANTIATE_TEST_SUITE_P(
    QuickTools, GeneratedDefinitions,
    ::testing::Values(
        Generated{"define PROVINCE.CODE as cmpcode (PROVINCE)\nFREQ PROVINCE.CODE BY PERSON.SEX, "
                  "PERSON.AGE\nTITLE \"t\"\n",
                  "PROVINCE.CODE STRING: code PROVINCE\n"},
        Generated{
            "RUNDEF \nNOWEIGHT \nFILTER DISTRICT.POP-2020 > 3\nSELECTION PROVINCE == \"01\"\n\n"
            "DEFINE DISTRICT.Count_PERSON as count PERSON\nvarlabel \"PERSON - People\"\n"
            "DEFINE DISTRICT.Count_HOUSEHOLD as count HOUSEHOLD\nvarlabel \"HOUSEHOLD\"\n"
            "AREALIST  DISTRICT, DISTRICT.Count_PERSON, DISTRICT.Count_HOUSEHOLD\nSORT DESC "
            "DISTRICT.Count_PERSON 0 \n\nTITLE \"Count of\"\n",
            "DISTRICT.Count_PERSON INTEGER: COUNT PERSON filter (DISTRICT.POP-2020 > 3)"
            " filter (code PROVINCE = '01')\n"
            "DISTRICT.Count_HOUSEHOLD INTEGER: COUNT HOUSEHOLD"
            " filter (DISTRICT.POP-2020 > 3) filter (code PROVINCE = '01')\n"}));

// Written by hand, as the colour scheme's preview shows.
INSTANTIATE_TEST_SUITE_P(
    Preview, GeneratedDefinitions,
    ::testing::Values(Generated{
        "define PERSON.NewVar\n  as recode PERSON.AGE\n  (1 : 9 = 2)\n  (10 : 99 = 3)\n  else 4\n"
        "  varlabel \"Variable Label\"\n  valuelabels\n    2 \"Value Label 1\"\n    3 \"Value "
        "Label "
        "2\"\n  type integer\n  range 2 : 3\n  default 8\n",
        "PERSON.NewVar INTEGER: RECODE PERSON.AGE (1:9 = 2) (10:99 = 3) else 4 default 8\n"}));

TEST(GeneratedDefinitions, OfEntitiesWithOddNames) {
    Census census;
    census.entity("DEATH").name = "DEATH-2020";
    const BoundProgram program = census.compile(
        "DEFINE DISTRICT.Count_DEATH-2020 as count DEATH-2020\nvarlabel \"DEATH-2020\"\n"
        "RUNDEF NOWEIGHT FREQ DISTRICT.Count_DEATH-2020");
    EXPECT_EQ(told(census.messages), "");
    EXPECT_EQ(definitions(program), "DISTRICT.Count_DEATH-2020 INTEGER: COUNT DEATH-2020\n");
}

// A table style puts its line where a line DEFINE stands alone, or writes both at the top.
TEST(GeneratedStyles, SetTheRun) {
    Census census;
    const std::string style = (census.options.baseFolder / "s.json").string();
    const std::string other = (census.options.baseFolder / "sub/o.json").string();
    const std::string line = "    TABLESTYLE \"" + style + "\"\n";
    for (const std::string& head :
         {"DEFINE\n" + line + "\n", "DEFINE\n" + line + "PERSON.X AS AGE\n TYPE INTEGER\n",
          "DEFINE\n" + line + "PERSON.X\nAS recode AGE (1 : 5 = 2)\n", line + "DEFINE PERSON.X 1\n",
          "DEFINE PERSON.X AS AGE\n" + line + "VARLABEL \"x\"\n"}) {
        for (const char* run : {"", "RUNDEF r\n", "RUNDEF TABLESTYLE \"sub\\o.json\"\n"}) {
            const BoundProgram program = census.compile(head + run + "COUNT PERSON\n");
            EXPECT_EQ(told(census.messages), "") << head << run;
            ASSERT_EQ(program.tables.size(), 1U) << head << run;
            const bool own = std::string(run).find("TABLE") != std::string::npos;
            EXPECT_EQ(program.tables[0].settings->tableStyle, own ? other : style) << head << run;
            EXPECT_EQ(program.definitions.size(), head.find("PERSON") != std::string::npos);
        }
    }
    const BoundProgram late =
        census.compile("RUNDEF DECIMALS 2 COUNT PERSON DEFINE TABLESTYLE \"s.json\" COUNT PERSON");
    EXPECT_EQ(told(census.messages), "");
    EXPECT_FALSE(late.tables[0].settings->tableStyle);
    EXPECT_EQ(late.tables[1].settings->tableStyle, style);
    EXPECT_EQ(late.tables[1].settings->decimals, 2);
}

TEST(GeneratedRuns, TakeTheirClauses) {
    Census census;
    const BoundProgram program = census.compile(
        "rundef my_program\n\ttitle \"t\"\n\tdictionary \"x.kxdb\"\n\tdecimals 2\n"
        "\tgraphstyle \"g.json\"\n\tmapstyle \"/maps/m.json\"\n\ttablestyle \"a\\..\\t.json\"\n"
        "\tselectionlabel The South\n\tfilterlabel Adults\n");
    EXPECT_EQ(told(census.messages), "");
    const RunSettings& run = *program.lastSettings;
    EXPECT_EQ(run.graphStyle, (census.options.baseFolder / "g.json").string());
    EXPECT_EQ(run.mapStyle, "/maps/m.json");
    EXPECT_EQ(run.tableStyle, (census.options.baseFolder / "t.json").string());
    EXPECT_EQ(run.areaBreak, nullptr);
    const BoundProgram areas = census.compile("RUNDEF\nAREABREAK district\nRUNDEF");
    EXPECT_EQ(told(census.messages), "");
    EXPECT_EQ(areas.lastSettings->areaBreak, nullptr);
    EXPECT_EQ(census.compile("RUNDEF AREABREAK district").lastSettings->areaBreak,
              &census.entity("DISTRICT"));
}

struct Inline {
    const char* text;
    const char* selection;
    const char* messages;
};

class GeneratedSelections : public ::testing::TestWithParam<Inline> {};

TEST_P(GeneratedSelections, AreExpressions) {
    Census census;
    for (const std::string& text : {std::string(GetParam().text), simplified(GetParam().text)}) {
        const BoundProgram program = census.compile(text);
        EXPECT_EQ(located(census.messages).substr(0, 20),
                  std::string(GetParam().messages).substr(0, 20))
            << text;
        ASSERT_TRUE(program.lastSettings->selection);
        ASSERT_NE(program.lastSettings->selection->expression, nullptr);
        EXPECT_EQ(shape(*program.lastSettings->selection->expression), GetParam().selection);
        EXPECT_EQ(program.lastSettings->decimals, 2);
    }
}

INSTANTIATE_TEST_SUITE_P(
    Assistant, GeneratedSelections,
    ::testing::Values(
        Inline{
            "rundef p\n\tselection\n\t(province == \"01\" or \nprovince == \"02\") and person.age "
            "== 3\n\tdecimals 2\n",
            "(((code PROVINCE = '01') OR (code PROVINCE = '02')) AND (PERSON.AGE = 3))", ""},
        Inline{"rundef p\n\tselection\n\tprovince == \"01\" or \nprovince == \"02\"\tdecimals 2\n",
               "((code PROVINCE = '01') OR (code PROVINCE = '02'))", ""},
        Inline{"rundef p\n\tselection\n\tdistrict == \"0101\"\tdecimals 2\n",
               "(code DISTRICT = '0101')", ""},
        Inline{"RUNDEF \nSELECTION PROVINCE == \"03\"\nDECIMALS 2\n", "(code PROVINCE = '03')", ""},
        // The last row had no code.
        Inline{
            "rundef p\n\tselection\n\t(province == \"01\" or \n) and person.age == 3\n\tdecimals "
            "2\n",
            "((code PROVINCE = '01') AND (PERSON.AGE = 3))", "KEL_W_OPEN_SELECTION"},
        Inline{"rundef p\n\tselection\n\tprovince == \"01\" or \n\tdecimals 2\n",
               "(code PROVINCE = '01')", "KEL_W_OPEN_SELECTION"}));

} // namespace kelx::language
