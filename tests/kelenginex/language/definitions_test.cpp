// SPDX-License-Identifier: GPL-3.0-or-later
// What DEFINE becomes.
#include "fixture.h"

#include <gtest/gtest.h>

namespace kelx::language {

struct Made {
    const char* program;
    const char* definitions;
};

class Definitions : public ::testing::TestWithParam<Made> {};

TEST_P(Definitions, BindAsWritten) {
    Census census;
    const BoundProgram program = census.compile(GetParam().program);
    EXPECT_EQ(told(census.messages), "");
    EXPECT_EQ(definitions(program), GetParam().definitions);
}

INSTANTIATE_TEST_SUITE_P(
    OwnValues, Definitions,
    ::testing::Values(
        Made{"DEFINE PERSON.X AS AGE * 2 + ROOMS",
             "PERSON.X INTEGER: ((PERSON.AGE * 2) + HOUSEHOLD.ROOMS)\n"},
        Made{"define pop.X age / 2", "PERSON.X REAL: (PERSON.AGE / 2)\n"},
        Made{"DEFINE PERSON.OLD AS AGE > 64 AND NOT MISSING(AGE)",
             "PERSON.OLD BOOLEAN: ((PERSON.AGE > 64) AND NOT(MISSING(PERSON.AGE)))\n"},
        Made{"DEFINE DISTRICT.KEY AS CMPCODE(DISTRICT)", "DISTRICT.KEY STRING: code DISTRICT\n"},
        Made{"DEFINE PERSON.ONE AS 1", "PERSON.ONE INTEGER: 1\n"},
        Made{"DEFINE PERSON.T AS ROOMS TYPE STRING", "PERSON.T STRING: STR(HOUSEHOLD.ROOMS)\n"},
        Made{"DEFINE PERSON.B AS AGE > 3 TYPE INTEGER", "PERSON.B INTEGER: (PERSON.AGE > 3)\n"},
        Made{"DEFINE PERSON.G RECODE AGE (LOWEST : 14 = 1) (15:64 = 2)\n(65 : HIGHEST = 3) ELSE 9",
             "PERSON.G INTEGER: RECODE PERSON.AGE (lowest:14 = 1) (15:64 = 2) (65:highest = 3)"
             " else 9\n"},
        Made{"DEFINE PERSON.G AS RECODE GRP (\"a\" : \"f\" = \"low\") (\"x\" = \"high\")",
             "PERSON.G STRING: RECODE PERSON.GRP ('a':'f' = 'low') ('x':'x' = 'high')\n"},
        Made{"DEFINE PERSON.G AS RECODE AGE (0:14 = AGE) (15:30 = AGE / 2) TYPE REAL DEFAULT 7",
             "PERSON.G REAL: RECODE PERSON.AGE (0:14 = PERSON.AGE) (15:30 = (PERSON.AGE / 2))"
             " default real 7\n"},
        Made{"DEFINE PERSON.G AS RECODE AGE (-5:14 = 1) ELSE 0 TYPE BOOL",
             "PERSON.G BOOLEAN: RECODE PERSON.AGE (-5:14 = TRUE) else FALSE\n"},
        Made{"DEFINE PERSON.G AS RECODE WORKS (1 = TRUE) ELSE FALSE",
             "PERSON.G BOOLEAN: RECODE PERSON.WORKS (1:1 = TRUE) else FALSE\n"},
        Made{"DEFINE PERSON.G AS RECODE AGE (1:2 = 5) TYPE STRING",
             "PERSON.G STRING: RECODE PERSON.AGE (1:2 = STR(5))\n"},
        Made{"DEFINE PERSON.S AS SWITCH CASE AGE > 60 ASSIGN 2 CASE WORKS ASSIGN 1 ELSE ROOMS",
             "PERSON.S INTEGER: SWITCH((PERSON.AGE > 60), 2, PERSON.WORKS, 1, HOUSEHOLD.ROOMS)\n"},
        Made{"DEFINE PERSON.S AS SWITCH CASE AGE > 60 ASSIGN \"old\" DEFAULT \"none\"",
             "PERSON.S STRING: SWITCH((PERSON.AGE > 60), 'old') default 'none'\n"},
        Made{"DEFINE PERSON.N AS NUMBER HOUSEHOLD", "PERSON.N INTEGER: NUMBER HOUSEHOLD\n"},
        Made{"DEFINE PERSON.N AS SAMPLE RANDOM 100", "PERSON.N INTEGER: RANDOM(100)\n"},
        Made{"DEFINE PERSON.N AS SAMPLE SYSTEMATIC 10", "PERSON.N BOOLEAN: SYSTEMATIC(10)\n"},
        Made{"DEFINE PERSON.N AS AGE FILTER AGE > 3 AND ROOMS > 1 DEFAULT -1",
             "PERSON.N INTEGER: PERSON.AGE where ((PERSON.AGE > 3) AND (HOUSEHOLD.ROOMS > 1))"
             " default -1\n"}));

INSTANTIATE_TEST_SUITE_P(
    Gathered, Definitions,
    ::testing::Values(
        Made{"DEFINE DISTRICT.N AS COUNT PERSON", "DISTRICT.N INTEGER: COUNT PERSON\n"},
        Made{"DEFINE DISTRICT.N AS COUNT PERSON WEIGHT HOUSEHOLD.WEIGHT FILTER AGE > 14",
             "DISTRICT.N REAL: COUNT PERSON weight HOUSEHOLD.WEIGHT filter (PERSON.AGE > 14)\n"},
        Made{"DEFINE NATION.N AS COUNT PERSON FILTER PROVINCE = \"01\"",
             "NATION.N INTEGER: COUNT PERSON filter (code PROVINCE = '01')\n"},
        Made{"DEFINE DISTRICT.N AS SUM AGE", "DISTRICT.N INTEGER: SUM PERSON of PERSON.AGE\n"},
        Made{"DEFINE DISTRICT.N AS SUM OF RENT / ROOMS",
             "DISTRICT.N REAL: SUM HOUSEHOLD of (HOUSEHOLD.RENT / HOUSEHOLD.ROOMS)\n"},
        Made{"DEFINE DISTRICT.N AS SUM AGE WEIGHT WEIGHT2",
             "DISTRICT.N REAL: SUM PERSON of PERSON.AGE weight PERSON.WEIGHT2\n"},
        Made{"DEFINE HOUSEHOLD.N AS AVERAGE AGE TYPE INTEGER",
             "HOUSEHOLD.N INTEGER: AVERAGE PERSON of PERSON.AGE\n"},
        Made{"DEFINE HOUSEHOLD.N AS MEDIAN AGE DEFINE HOUSEHOLD.M AS MIN AGE\n"
             "DEFINE HOUSEHOLD.O AS MAX WEIGHT2 DEFINE HOUSEHOLD.P AS MINIMUM AGE\n"
             "DEFINE HOUSEHOLD.Q AS MAXIMUM AGE",
             "HOUSEHOLD.N REAL: MEDIAN PERSON of PERSON.AGE\n"
             "HOUSEHOLD.M INTEGER: MINIMUM PERSON of PERSON.AGE\n"
             "HOUSEHOLD.O REAL: MAXIMUM PERSON of PERSON.WEIGHT2\n"
             "HOUSEHOLD.P INTEGER: MINIMUM PERSON of PERSON.AGE\n"
             "HOUSEHOLD.Q INTEGER: MAXIMUM PERSON of PERSON.AGE\n"},
        Made{"DEFINE DISTRICT.R AS RATIO AGE (0 : 14) (65 : HIGHEST)",
             "DISTRICT.R REAL: COUNT PERSON filter (PERSON.AGE IN 0:14 65:highest)"
             " filter NOT(MISSING(PERSON.AGE)) filter NOT(NOTAPPLICABLE(PERSON.AGE))"
             " / COUNT PERSON filter NOT(MISSING(PERSON.AGE))"
             " filter NOT(NOTAPPLICABLE(PERSON.AGE))\n"},
        Made{"DEFINE DISTRICT.F AS FRACTION NUM CAUSE (1) DENOM AGE (0 : 4)(5)\n"
             "WEIGHT HOUSEHOLD.WEIGHT FILTER ROOMS > 1",
             "DISTRICT.F REAL: COUNT DEATH weight HOUSEHOLD.WEIGHT filter (DEATH.CAUSE IN 1:1)"
             " filter (HOUSEHOLD.ROOMS > 1)"
             " / COUNT PERSON weight HOUSEHOLD.WEIGHT filter (PERSON.AGE IN 0:4 5:5)"
             " filter (HOUSEHOLD.ROOMS > 1)\n"},
        // A filter that is about one of two branches narrows that one.
        Made{"DEFINE DISTRICT.F AS FRACTION NUM CAUSE (1) DENOM AGE (0:4) FILTER PERSON.WORKS",
             "DISTRICT.F REAL: COUNT DEATH filter (DEATH.CAUSE IN 1:1)"
             " / COUNT PERSON filter (PERSON.AGE IN 0:4) filter PERSON.WORKS\n"},
        Made{"DEFINE DISTRICT.I AS INDICATOR NUM AGE * 2 DENOM ROOMS",
             "DISTRICT.I REAL: SUM PERSON of (PERSON.AGE * 2)"
             " / SUM HOUSEHOLD of HOUSEHOLD.ROOMS\n"},
        // The settings of the run narrow what is gathered, on its own branch.
        Made{"RUNDEF SELECTION PROVINCE = \"01\" FILTER PERSON.WORKS\n"
             "DEFINE DISTRICT.N AS COUNT PERSON DEFINE DISTRICT.M AS COUNT DEATH\n"
             "DEFINE PERSON.X AS AGE",
             "DISTRICT.N INTEGER: COUNT PERSON filter PERSON.WORKS filter (code PROVINCE = '01')\n"
             "DISTRICT.M INTEGER: COUNT DEATH filter (code PROVINCE = '01')\n"
             "PERSON.X INTEGER: PERSON.AGE\n"}));

TEST(DefinedNames, HoldFromThereOn) {
    Census census;
    census.options.autoWeight = false;
    const BoundProgram program =
        census.compile("DEFINE PERSON.AGE AS AGE + 1 ALIAS OLDER\n"
                       "DEFINE PERSON.AGE AS AGE + 1\n"
                       "DEFINE PERSON.NEW-ONE AS AGE + OLDER\n"
                       "DEFINE HOUSEHOLD.ROOMS AS COUNT PERSON\n"
                       "FREQ YEARS, OLDER, AGE, NEW-ONE, PERSON.NEW-ONE, HOUSEHOLD.*");
    ASSERT_EQ(told(census.messages), "");
    ASSERT_EQ(program.definitions.size(), 4U);
    const Variable* dictionarys = &census.variable("PERSON", "AGE");
    const Variable* first = program.definitions[0].variable.get();
    const Variable* second = program.definitions[1].variable.get();
    const Variable* third = program.definitions[2].variable.get();
    EXPECT_EQ(program.definitions[0].value->arguments[0]->variable, dictionarys);
    EXPECT_EQ(program.definitions[1].value->arguments[0]->variable, first);
    EXPECT_EQ(program.definitions[2].value->arguments[0]->variable, second);
    EXPECT_EQ(program.definitions[2].value->arguments[1]->variable, first);
    const Variable* rooms = program.definitions[3].variable.get();
    const std::vector<const Variable*> expected = {
        dictionarys, first,
        second,      third,
        third,       &census.variable("HOUSEHOLD", "WEIGHT"),
        rooms,       &census.variable("HOUSEHOLD", "RENT")};
    std::vector<const Variable*> read;
    for (const TableCommand& table : program.tables)
        read.push_back(table.dimensions[0]->variable);
    EXPECT_EQ(read, expected);
}

TEST(DefinedNames, HoldAfterACalledProgram) {
    Census census;
    census.write("sub/ages.spc", "DEFINE PERSON.OLD AS PERSON.AGE > {limit} SAVE \"old.kbf\"");
    const BoundProgram program =
        census.compile("EXECUTE \"sub/ages.spc\" limit = {64}\nRUNDEF NOWEIGHT FREQ OLD");
    EXPECT_EQ(told(census.messages), "");
    EXPECT_EQ(definitions(program), "PERSON.OLD BOOLEAN: (PERSON.AGE > 64)\n");
    EXPECT_EQ(summary(program), "FREQ_1 PERSON: PERSON.OLD\n");
    EXPECT_EQ(program.definitions[0].save->fileName, "sub/old.kbf");
}

TEST(DefinedNames, HoldInAnyCase) {
    Census census;
    census.add("PERSON", "AÑO", ValueType::Integer);
    const BoundProgram program =
        census.compile("DEFINE PERSON.ÉCOLE AS person.año\nFREQ école, ПОЛ\n"
                       "DEFINE PERSON.Пол AS SEX2\nFREQ ПОЛ, Año");
    EXPECT_EQ(located(census.messages), "KEL_E_UNKNOWN_VARIABLE 2:13\n");
    EXPECT_EQ(summary(program), "FREQ_1 PERSON: PERSON.Пол weight HOUSEHOLD.WEIGHT\n"
                                "FREQ_2 PERSON: PERSON.AÑO weight HOUSEHOLD.WEIGHT\n");
}

TEST(DefinedNames, AreFoundAndSuggested) {
    Census census;
    census.compile("DEFINE PERSON.SEX3 AS SEX2 ALIAS GENDER\nDEFINE DEATH.SEX2 AS CAUSE\n"
                   "FREQ GENDR, PERSON.SEX33, SEX2");
    EXPECT_EQ(told(census.messages),
              "KEL_E_UNKNOWN_VARIABLE 3:6 There is no variable \"GENDR\". Did you mean GENDER?\n"
              "KEL_E_UNKNOWN_VARIABLE 3:20 There is no variable \"SEX33\" in PERSON. Did you mean "
              "PERSON.SEX3?\n"
              "KEL_E_AMBIGUOUS_NAME 3:27 More than one variable is called \"SEX2\". Write one of "
              "PERSON.SEX2, DEATH.SEX2.\n");
}

TEST(DefinedNames, MayBeWordsOfTheLanguage) {
    Census census;
    census.options.autoWeight = false;
    const BoundProgram program = census.compile(
        "DEFINE PERSON.CASE AS 1 DEFINE PERSON.NUM AS PERSON.CASE DEFINE PERSON.MISSING AS 2\n"
        "DEFINE PERSON.RANDOM AS PERSON.NUM + PERSON.MISSING ALIAS BOOLEAN\n"
        "DEFINE PERSON.COUNT AS SWITCH CASE PERSON.CASE = 1 ASSIGN PERSON.NUM ELSE PERSON.COUNT2\n"
        "DEFINE PERSON.ASC AS BOOLEAN TYPE BOOLEAN FREQ PERSON.CASE BY PERSON.RANDOM, ASC");
    EXPECT_EQ(located(census.messages), "KEL_E_UNKNOWN_VARIABLE 3:82\n");
    EXPECT_EQ(summary(program), "FREQ_1 PERSON: PERSON.CASE BY PERSON.RANDOM\n"
                                "FREQ_2 PERSON: PERSON.CASE BY PERSON.ASC\n");
}

TEST(DefinedNames, OfFaultyDefinitionsAreNoMoreFaults) {
    Census census;
    census.compile("DEFINE PERSON.A AS AGE + NOTHING ALIAS AA\nDEFINE NOWHERE.B AS 1\n"
                   "DEFINE PERSON.C AS RECODE AGE (1 : = 2) ELSE 3\n"
                   "DEFINE PERSON.D AS A + 1\n"
                   "FREQ PERSON.A BY AA, NOWHERE.B, POP.C, C, D\nFREQ A FILTER C > 3\n");
    EXPECT_EQ(located(census.messages), "KEL_E_UNKNOWN_VARIABLE 1:26\nKEL_E_UNKNOWN_ENTITY 2:8\n"
                                        "KEL_E_UNEXPECTED 3:36\n");
}

TEST(DefinedVariables, AreProtectedAsWhatTheyAreMadeOf) {
    Census census;
    census.variable("PERSON", "SEX2").sensitive = 5;
    census.variable("PERSON", "AGE").sensitive = 3;
    census.variable("HOUSEHOLD", "ROOMS").sensitive = 2;
    const BoundProgram program = census.compile(
        "DEFINE PERSON.A AS AGE + 0\nDEFINE PERSON.B AS RECODE SEX2 (1 : 1 = 1)\n"
        "DEFINE PERSON.C AS SWITCH CASE B = 1 ASSIGN ROOMS ELSE 0\n"
        "DEFINE HOUSEHOLD.D AS COUNT PERSON FILTER A > 2\n"
        "DEFINE HOUSEHOLD.E AS SUM PERSON.AGE WEIGHT PERSON.SEX2 SENSITIVE 4\n"
        "DEFINE PERSON.F AS A * 2 SENSITIVE 0\nDEFINE PERSON.G AS F = 1\n"
        "DEFINE PERSON.H AS 1 FILTER AGE = 4 LIKE ROOMS\n"
        "DEFINE HOUSEHOLD.I AS FRACTION NUM PERSON.AGE (1 : 1) DENOM PERSON.SEX2 (1 : 2)\n");
    std::string result;
    for (const Definition& definition : program.definitions)
        result += definition.variable->name +
                  std::to_string(definition.variable->sensitive.value_or(0)) + " ";
    EXPECT_EQ(result, "A3 B5 C5 D3 E4 F0 G0 H3 I5 ") << told(census.messages);
}

TEST(DefinedVariables, HaveWhatTheClausesTell) {
    Census census;
    catalog::Variable& model = census.variable("PERSON", "SEX2");
    model.label = "Sex";
    model.valueLabels = {{"1", "Man"}, {"2", "Woman"}};
    model.ranges = {{4, 1, 2}};
    model.missing = 9;
    model.sensitive = 3;
    const BoundProgram program = census.compile(
        "DEFINE PERSON.A AS AGE\n  TYPE real DECIMALS 1 RANGE (1 : 5) (9) (LOWEST : "
        "-3)(20:HIGHEST)\n"
        "  VARLABEL \"A \"\"label\"\"\" VALUELABELS 1 \"One\" -2 \"Minus\" 01 \"Uno\" TRUE "
        "\"Yes\"\n"
        "  DOC \"Two\nlines\" MISSING 98 NOTAPP \"99\" SENSITIVE 5 ALIAS \"AA\" GROUP Own things\n"
        "DEFINE PERSON.B LIKE SEX2 AS\n");
    EXPECT_TRUE(census.messages.hasErrors());
    ASSERT_EQ(program.definitions.size(), 1U);
    const Variable& a = *program.definitions[0].variable;
    EXPECT_EQ(a.entity, &census.entity("PERSON"));
    EXPECT_EQ(a.fullName(), "PERSON.A");
    EXPECT_TRUE(a.define && a.local);
    EXPECT_EQ(a.type, ValueType::Real);
    EXPECT_EQ(a.decimals, 1);
    EXPECT_EQ(a.label, "A \"label\"");
    const std::vector<std::pair<std::string, std::string>> labels = {{"1", "Yes"}, {"-2", "Minus"}};
    EXPECT_EQ(a.valueLabels, labels);
    EXPECT_EQ(a.documentation, "Two\nlines");
    EXPECT_EQ(a.missing, 98);
    EXPECT_EQ(a.notapp, 99);
    EXPECT_EQ(a.sensitive, 5);
    EXPECT_EQ(a.alias, "AA");
    EXPECT_EQ(a.group, "Own things");
    ASSERT_EQ(a.ranges.size(), 4U);
    const int kinds[] = {4, 4, 6, 8};
    const double ends[] = {5, 9, -3, 20};
    for (std::size_t i = 0; i < 4; ++i) {
        EXPECT_EQ(a.ranges[i].kind, kinds[i]);
        EXPECT_EQ(a.ranges[i].maximum, ends[i]);
    }

    const BoundProgram like = census.compile(
        "DEFINE PERSON.B AS SEX2 VALUELABELS 2 \"Lady\" 3 \"Other\" LIKE SEX2 RANGE 1 : 3 TYPE "
        "INTEGER");
    ASSERT_EQ(told(census.messages), "");
    const Variable& b = *like.definitions[0].variable;
    EXPECT_EQ(b.label, "Sex");
    const std::vector<std::pair<std::string, std::string>> merged = {
        {"1", "Man"}, {"2", "Lady"}, {"3", "Other"}};
    EXPECT_EQ(b.valueLabels, merged);
    EXPECT_EQ(b.missing, 9);
    EXPECT_EQ(b.sensitive, 3);
    ASSERT_EQ(b.ranges.size(), 1U);
    EXPECT_EQ(b.ranges[0].maximum, 3);
}

TEST(DefinedVariables, GoIntoTheFilesThatSaveNames) {
    Census census;
    census.write("sub/there", "");
    const BoundProgram program =
        census.compile("DEFINE PERSON.A AS AGE SAVE \"sub\\a.bin\"\n"
                       "DEFINE PERSON.B AS AGE SAVE \"b\" OVERWRITE TYPE REAL\n"
                       "DEFINE PERSON.C AS AGE SAVE \"../c.kbf\"\n"
                       "DEFINE PERSON.AGE AS AGE + 1 SAVE \"PERSON_AGE.kbf\" OVERWRITE\n"
                       "DEFINE PERSON.E AS AGE");
    ASSERT_EQ(told(census.messages), "");
    const std::filesystem::path folder = census.options.baseFolder;
    const std::string outside = (folder.parent_path() / "c.kbf").string();
    const std::string names[] = {"sub/a.bin", "b.kbf", outside, "PERSON_AGE.kbf"};
    for (std::size_t i = 0; i < 4; ++i) {
        ASSERT_TRUE(program.definitions[i].save);
        const SaveClause& save = *program.definitions[i].save;
        EXPECT_EQ(save.fileName, names[i]);
        EXPECT_EQ(save.file, folder / names[i]);
        EXPECT_EQ(save.overwrite, i % 2 == 1);
        EXPECT_EQ(program.definitions[i].variable->fileName, names[i]);
        EXPECT_TRUE(program.definitions[i].used);
    }
    EXPECT_FALSE(program.definitions[4].used);
    EXPECT_EQ(program.definitions[1].text, "DEFINE PERSON.B AS AGE SAVE \"b\" OVERWRITE TYPE REAL");
    EXPECT_EQ(program.definitions[1].position.line, 2);
}

TEST(DefinedVariables, TakeNoFilesOfOthers) {
    Census census;
    census.write("there.kbf", "x");
    census.compile("DEFINE PERSON.AGE AS AGE SAVE \"PERSON_AGE.kbf\"\n"
                   "DEFINE PERSON.B AS AGE SAVE \"there\"\n"
                   "DEFINE PERSON.C AS AGE SAVE \"c.kbf\"\n"
                   "DEFINE PERSON.D AS AGE SAVE \"x/../c.kbf\" OVERWRITE\n"
                   "DEFINE PERSON.E AS AGE SAVE \"\"");
    const std::string folder = census.options.baseFolder.string();
    const std::string replace = ". Write OVERWRITE behind it to replace it.\n";
    EXPECT_EQ(told(census.messages),
              "KEL_E_SAVE_EXISTS 1:31 There is already a file " + folder + "/PERSON_AGE.kbf" +
                  replace + "KEL_E_SAVE_EXISTS 2:29 There is already a file " + folder +
                  "/there.kbf" + replace +
                  "KEL_E_SAVE_TWICE 4:29 The program saves two variables as " + folder +
                  "/c.kbf.\n"
                  "KEL_E_UNEXPECTED 5:29 Found an empty text, but expected the name of a file in "
                  "quotes.\n");
}

TEST(DefinedVariables, ReplaceNoDataOfOthers) {
    Census census;
    namespace fs = std::filesystem;
    const fs::path folder = census.options.baseFolder;
    census.write("orphan.kbf", "x");
    fs::create_symlink(folder / "PERSON_AGE.kbf", folder / "link.kbf");
    census.variable("PERSON", "LOST").fileName = "lost.bin";
    census.compile("DEFINE PERSON.A AS AGE SAVE \"PERSON_SEX2.kbf\" OVERWRITE\n"
                   "DEFINE PERSON.B AS AGE SAVE \"link\" OVERWRITE\n"
                   "DEFINE PERSON.C AS AGE SAVE \"lost.bin\"\n"
                   "DEFINE PERSON.D AS AGE SAVE \"orphan\" OVERWRITE\n"
                   "DEFINE PERSON.E AS AGE SAVE \"no/such\"");
    const std::string there = folder.string() + "/";
    const std::string cannot = " cannot be written to: ";
    EXPECT_EQ(told(census.messages),
              "KEL_E_TARGET_FILE 1:29 " + there + "PERSON_SEX2.kbf" + cannot +
                  "it holds the data of PERSON.SEX2.\nKEL_E_TARGET_FILE 2:29 " + there +
                  "link.kbf" + cannot + "it holds the data of PERSON.AGE.\n" +
                  "KEL_E_TARGET_FILE 3:29 " + there + "lost.bin" + cannot +
                  "it holds the data of PERSON.LOST.\nKEL_E_TARGET_FILE 5:29 " + there +
                  "no/such.kbf" + cannot + "there is no folder " + there + "no.\n");
}

TEST(DefinedVariables, AreUsedWhereATableReachesThem) {
    Census census;
    const auto used = [&](const std::string& commands) {
        const BoundProgram program = census.compile(
            "DEFINE PERSON.A AS AGE DEFINE PERSON.B AS PERSON.A DEFINE HOUSEHOLD.C AS SUM B\n"
            "DEFINE PERSON.D AS SEX2 DEFINE DISTRICT.E AS COUNT PERSON WEIGHT D FILTER "
            "MISSING(D)\n" +
            commands);
        EXPECT_EQ(told(census.messages), "") << commands;
        std::string names;
        for (const Definition& definition : program.definitions)
            names += definition.used ? definition.variable->name : "";
        return names;
    };
    EXPECT_EQ(used(""), "");
    EXPECT_EQ(used("FREQ SEX2"), "");
    EXPECT_EQ(used("FREQ B"), "AB");
    EXPECT_EQ(used("FREQ HOUSEHOLD.C"), "ABC");
    EXPECT_EQ(used("FREQ SEX2 WEIGHT DISTRICT.E"), "DE");
    EXPECT_EQ(used("FREQ SEX2 FILTER HOUSEHOLD.C > 3 AND A = 1"), "ABC");
    EXPECT_EQ(used("FREQ SEX2 TALLY ABS(-D)"), "D");
    EXPECT_EQ(used("RUNDEF FILTER A > 3 FREQ SEX2"), "A");
    EXPECT_EQ(used("RUNDEF SELECTION A > 3 FREQ SEX2"), "A");
    EXPECT_EQ(used("RUNDEF WEIGHT A FREQ SEX2"), "A");
    EXPECT_EQ(used("RUNDEF FILTER A > 3"), "");
    EXPECT_EQ(used("AVERAGE A BY SEX2"), "A");
    EXPECT_EQ(used("VIEW PERSON, D"), "D");
    EXPECT_EQ(used("AREALIST DISTRICT, DISTRICT.E"), "DE");
    EXPECT_EQ(used("TABLE T FREQ PERSON.B\nAREALIST DISTRICT, T SORT T"), "AB");
    EXPECT_EQ(used("TABLE T FREQ PERSON.B TABLE U FREQ PERSON.B FILTER D = 1 TABOP T / U"), "ABD");
    EXPECT_EQ(used("QUANTILE HOUSEHOLD.C"), "ABC");
    EXPECT_EQ(used("RUNDEF FILTER D > 3\nDEFINE DISTRICT.X AS COUNT PERSON RUNDEF FREQ X"), "DX");
}

} // namespace kelx::language
