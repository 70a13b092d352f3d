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

class GeneratedTables : public ::testing::TestWithParam<Generated> {};

TEST_P(GeneratedTables, Compile) {
    Census census;
    for (const std::string& text : {std::string(GetParam().text), simplified(GetParam().text)}) {
        census.options.autoWeight = false;
        const BoundProgram program = census.compile(text);
        EXPECT_EQ(told(census.messages), "") << text;
        EXPECT_EQ(summary(program), GetParam().definitions) << text;
    }
}

INSTANTIATE_TEST_SUITE_P(
    Assistant, GeneratedTables,
    ::testing::Values(
        // The page's product: each variable of the list with one of each filled dimension.
        Generated{
            "table my-tableN1 frequency PERSON.SEX\n\tby PERSON.AGE\n\n"
            "table my-tableN2 frequency PERSON.GRP\n\tby PERSON.AGE\n\n"
            "table 2020-shareN1 average PERSON.AGE\n\tby DISTRICT.POP-2020\n\tby "
            "PERSON.SEX\n\tweight PERSON.WEIGHT2\n\ttally PERSON.2NDJOB\n\n",
            "my-tableN1 PERSON: PERSON.SEX BY PERSON.AGE\n"
            "my-tableN2 PERSON: PERSON.GRP BY PERSON.AGE\n"
            "2020-shareN1 PERSON: AVERAGE PERSON.AGE BY DISTRICT.POP-2020 BY PERSON.SEX weight "
            "PERSON.WEIGHT2 tally PERSON.2NDJOB\n"},
        Generated{"table a-b frequency PERSON.SEX, PERSON.AGE\n\n"
                  "table my-sum as tabop \n\tof A-B_1 / 2-a-b_1\n\n",
                  "a-b_1 PERSON: PERSON.SEX silent\n"
                  "a-b_2 PERSON: PERSON.AGE\n"
                  "my-sum -: TABOP ((#0 / 2) - #0) of #0\n"},
        Generated{"table tN1 gini HOUSEHOLD.RENT\n\tweight HOUSEHOLD.WEIGHT\n\ttally 2\n\n"
                  "table tN2 minimum PERSON.AGE\n\n\ttally 2\n\n",
                  "tN1 HOUSEHOLD: GINI HOUSEHOLD.RENT weight HOUSEHOLD.WEIGHT tally 2\n"
                  "tN2 PERSON: MIN PERSON.AGE tally 2\n"},
        Generated{"table  as stats\n\tof PERSON.AGE\n\tby PERSON.SEX\n\n\n"
                  "table  as quantile\n\tof HOUSEHOLD.RENT\n\n\n"
                  "table  as view of DISTRICT\n\n",
                  "STATS_1 PERSON: STATS PERSON.AGE BY PERSON.SEX\n"
                  "QUANTILE_1 HOUSEHOLD: QUANTILE 4 HOUSEHOLD.RENT\n"
                  "VIEW_1 DISTRICT: VIEW DISTRICT.CODE DISTRICT.POP-2020\n"},
        Generated{"table t as freq PERSON.SEX\n\tdecimals 2\n\ttitle \"t\"\n\toutgraph bmp "
                  "\"g.bmp\" horizontal bar overwrite\n\tgraphstyle \"g.json\"\n\n"
                  "table u as freq PERSON.SEX\n\toutgraph \"g\" age pyramid\n\n"
                  "table v as freq PERSON.SEX\n\toutgraph emf \"g\" multi bar\n\n"
                  "table w as freq PERSON.SEX\n\toutgraph wmf \"g\" pie overwrite\n\n"
                  "table x as freq PERSON.SEX\n\toutgraph \"g\" line\n\n",
                  "t PERSON: PERSON.SEX title t decimals 2\nu PERSON: PERSON.SEX\n"
                  "v PERSON: PERSON.SEX\nw PERSON: PERSON.SEX\nx PERSON: PERSON.SEX\n"}));

INSTANTIATE_TEST_SUITE_P(
    QuickTools, GeneratedTables,
    ::testing::Values(
        Generated{"TABLE T_Area_POP-2020 FREQ DISTRICT.POP-2020\nTABLE T_Area_2NDJOB FREQ "
                  "PERSON.2NDJOB\nAREALIST  PROVINCE, T_Area_POP-2020, T_Area_2NDJOB\n"
                  "TITLE \"t\"\n",
                  "T_Area_POP-2020 DISTRICT: DISTRICT.POP-2020 silent idle\n"
                  "T_Area_2NDJOB PERSON: PERSON.2NDJOB silent idle\n"
                  "T_Area_POP-2020 DISTRICT: record PROVINCE BY DISTRICT.POP-2020 hidden\n"
                  "T_Area_2NDJOB PERSON: record PROVINCE BY PERSON.2NDJOB hidden\n"
                  "AREALIST_1 PROVINCE: AREALIST #2 #3 title t\n"},
        Generated{"TABLE T_Area_SEX FREQ PERSON.SEX\nTABLE T_Area_SEX FREQ DEATH.SEX\n"
                  "AREALIST  PROVINCE, T_Area_SEX, T_Area_SEX\n",
                  "T_Area_SEX PERSON: PERSON.SEX silent idle\n"
                  "T_Area_SEX DEATH: DEATH.SEX silent idle\n"
                  "T_Area_SEX PERSON: record PROVINCE BY PERSON.SEX hidden\n"
                  "T_Area_SEX_2 DEATH: record PROVINCE BY DEATH.SEX hidden\n"
                  "AREALIST_1 PROVINCE: AREALIST #2 #3\n"}));

INSTANTIATE_TEST_SUITE_P(Maps, GeneratedTables,
                         ::testing::Values(Generated{
                             "arealist DISTRICT, DISTRICT.POP-2020",
                             "AREALIST_1 DISTRICT: AREALIST DISTRICT.POP-2020\n"}));

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

struct Label {
    const char* written;
    const char* label;
};

// As typed into a form, to the end of the line.
TEST(GeneratedRuns, TakeLabelsAsTyped) {
    Census census;
    for (const Label& label :
         {Label{"see http://x.org/a", "see http://x.org/a"}, Label{"a/*b", "a/*b"},
          Label{"\"Big\" cities", "\"Big\" cities"}, Label{".5 or more", ".5 or more"},
          Label{"\"Big \"\"new\"\" cities\"", "Big \"new\" cities"},
          Label{"Title of the count // a note", "Title of the count"},
          Label{"\"One\" // a note", "One"}, Label{"\"One\"/* a note */", "One"}}) {
        for (const char* end : {"", "\n\tdecimals 2\n", "  \r\n"}) {
            const BoundProgram program =
                census.compile(std::string("rundef\n\tfilterlabel ") + label.written + end);
            EXPECT_EQ(told(census.messages), "") << label.written << end;
            EXPECT_EQ(program.lastSettings->filterLabel, label.label) << label.written << end;
        }
    }
    EXPECT_EQ(*census.compile("RUNDEF FILTERLABEL \"One\" DECIMALS 3").lastSettings->decimals, 3);
}

TEST(GeneratedRuns, TakeNamesAsTyped) {
    Census census;
    for (const Label& name :
         {Label{"my-program\n", "my-program"}, Label{"my program\n", "my program"},
          Label{"2020-census\n", "2020-census"}, Label{"census 2020 of all", "census 2020 of all"},
          Label{"my program decimals 2", "my program"}, Label{"\nDECIMALS 2", ""}}) {
        const BoundProgram program = census.compile(std::string("rundef ") + name.written);
        EXPECT_EQ(told(census.messages), "") << name.written;
        EXPECT_EQ(program.lastSettings->name, name.label);
    }
}

TEST(GeneratedDefinitions, TakeNamesAsTyped) {
    Census census;
    const BoundProgram program = census.compile(
        "define PERSON.X-1\n\tas person.age\n\ttype INTEGER\n\talias a-b\n\tgroup My group of "
        "R&D // things\n"
        "define PERSON.Y\n\tas person.grp\n\ttype STRING\n\tvaluelabels\n\t\tMIN \"a\"\n\t\tOR "
        "\"b\"\n\t\tTRUE \"c\"\n\talias total\n\tgroup \"Big\"\n"
        "DEFINE PERSON.Z AS AGE GROUP Sums of things TYPE REAL\nFREQ a-b BY PERSON.TOTAL\n");
    EXPECT_EQ(told(census.messages), "");
    EXPECT_EQ(summary(program), "FREQ_1 PERSON: PERSON.X-1 BY PERSON.Y weight HOUSEHOLD.WEIGHT\n");
    ASSERT_EQ(program.definitions.size(), 3U);
    const Variable& y = *program.definitions[1].variable;
    const std::vector<std::pair<std::string, std::string>> labels = {
        {"MIN", "a"}, {"OR", "b"}, {"TRUE", "c"}};
    EXPECT_EQ(y.valueLabels, labels);
    EXPECT_EQ(y.alias, "total");
    EXPECT_EQ(program.definitions[0].variable->group, "My group of R&D");
    EXPECT_EQ(y.group, "Big");
    EXPECT_EQ(program.definitions[2].variable->group, "Sums of things");
    EXPECT_EQ(program.definitions[2].variable->type, ValueType::Real);
}

TEST(GeneratedCalls, TakeNamesAsTyped) {
    Census census;
    census.write("p.spc", "FREQ {my-name} TITLE \"{my-name} {b-2}\"");
    const BoundProgram program =
        census.compile("execute \"p.spc\" my-name = {SEX2}, b-2={x y} , c-3 = {}\n");
    EXPECT_EQ(located(census.messages), "KEL_W_UNUSED_VALUE 1:47\n");
    EXPECT_EQ(summary(program),
              "FREQ_1 PERSON: PERSON.SEX2 weight HOUSEHOLD.WEIGHT title SEX2 x y\n");
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
        Inline{"rundef p\n\tselection\n\t(province == \"01\") and person.age ==== 3 and person.age "
               "<== 4\n\tdecimals 2\n",
               "((code PROVINCE = '01') AND ((PERSON.AGE = 3) AND (PERSON.AGE <= 4)))", ""},
        Inline{"RUNDEF \nSELECTION PROVINCE == \"03\"\nDECIMALS 2\n", "(code PROVINCE = '03')", ""},
        // The last row had no code.
        Inline{
            "rundef p\n\tselection\n\t(province == \"01\" or \n) and person.age == 3\n\tdecimals "
            "2\n",
            "((code PROVINCE = '01') AND (PERSON.AGE = 3))", "KEL_W_OPEN_SELECTION"},
        Inline{"rundef p\n\tselection\n\tprovince == \"01\" or \n\tdecimals 2\n",
               "(code PROVINCE = '01')", "KEL_W_OPEN_SELECTION"}));

} // namespace kelx::language
