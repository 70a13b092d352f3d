// SPDX-License-Identifier: GPL-3.0-or-later
#include "fixture.h"

#include <gtest/gtest.h>

namespace kelx::language {

struct Good {
    const char* program;
    const char* tables;
};

class GoodPrograms : public ::testing::TestWithParam<Good> {};

TEST_P(GoodPrograms, BindAsWritten) {
    Census census;
    census.options.autoWeight = false;
    const BoundProgram program = census.compile(GetParam().program);
    EXPECT_EQ(told(census.messages), "");
    EXPECT_EQ(summary(program), GetParam().tables);
}

INSTANTIATE_TEST_SUITE_P(
    QuickTools, GoodPrograms,
    ::testing::Values(
        Good{"FREQ PERSON.SEX\nTITLE \"Frequency of PERSON.SEX\"\n",
             "FREQ_1 PERSON: PERSON.SEX title Frequency of PERSON.SEX\n"},
        Good{"RUNDEF \nNOWEIGHT \n\nFREQ PERSON.SEX, HOUSEHOLD.ROOMS\nTITLE \"T\"\n",
             "FREQ_1 PERSON: PERSON.SEX title T\nFREQ_2 HOUSEHOLD: HOUSEHOLD.ROOMS title T\n"},
        Good{"RUNDEF \nWEIGHT HOUSEHOLD.WEIGHT\nFILTER PERSON.AGE >== 15\n"
             "SELECTION PROVINCE == \"03\"\n\nFREQ PERSON.SEX\nTALLY PERSON.AGE\nTITLE \"T\"\n",
             "FREQ_1 PERSON: PERSON.SEX weight HOUSEHOLD.WEIGHT tally PERSON.AGE"
             " all (PERSON.AGE >= 15) title T\n"},
        Good{"RUNDEF \nNOWEIGHT \n\nFREQ PERSON.SEX BY PERSON.GRP\nTITLE \"A\"\n"
             "RUNDEF \nFILTER PERSON.AGE <== 5\n\nFREQ PERSON.SEX BY PERSON.WORKS\nTITLE \"B\"\n",
             "FREQ_1 PERSON: PERSON.SEX BY PERSON.GRP title A\n"
             "FREQ_2 PERSON: PERSON.SEX BY PERSON.WORKS all (PERSON.AGE <= 5) title B\n"},
        Good{"RUNDEF \n\nFREQ PROVINCE.CODE BY PERSON.SEX\nFREQ PROVINCE.CODE BY PERSON.GRP\n"
             "TITLE \"PROVINCE.CODE BY PERSON.SEX, PROVINCE.CODE BY PERSON.GRP\"\n",
             "FREQ_1 PERSON: PROVINCE.CODE BY PERSON.SEX\n"
             "FREQ_2 PERSON: PROVINCE.CODE BY PERSON.GRP title PROVINCE.CODE BY PERSON.SEX,"
             " PROVINCE.CODE BY PERSON.GRP\n"}));

INSTANTIATE_TEST_SUITE_P(
    Assistants, GoodPrograms,
    ::testing::Values(
        Good{"rundef my_program\n\ttitle \"a title\"\n\tfilter person.age > 5\n"
             "\tdictionary \"C:\\x.kxdb\"\n\tdecimals 2\n\tselectionlabel the \"south\" (2)\n"
             "\tfilterlabel older \xc3\xb1 it's\ntable tN1 frequency person.sex\n\n"
             "\tdecimals 1\n\ttitle \"t\"\n\tfilter person.works = true\n\n",
             "tN1 PERSON: PERSON.SEX filter (PERSON.WORKS = TRUE) all (PERSON.AGE > 5) title t"
             " decimals 1\n"},
        Good{"table tN1 freq person.sex\n\tby person.grp\n\tby person.works\n"
             "\tweight household.weight\n\ttally person.age\n",
             "tN1 PERSON: PERSON.SEX BY PERSON.GRP BY PERSON.WORKS weight HOUSEHOLD.WEIGHT"
             " tally PERSON.AGE\n"},
        Good{"rundef x\n\tselection\n\tprovince == \"03\" or \ndistrict == \"0402\""
             "\tdecimals 1\nTABLE T AS FREQ SEX2, ROOMS",
             "T_1 PERSON: PERSON.SEX2\nT_2 HOUSEHOLD: HOUSEHOLD.ROOMS\n"}));

INSTANTIATE_TEST_SUITE_P(
    Language, GoodPrograms,
    ::testing::Values(
        Good{"", ""}, Good{"// nothing\n/* at\nall */", ""}, Good{"RUNDEF", ""},
        Good{"RUNDEF\n\tprogram_name\t//optional\n\tAUTOWEIGHT //x\nCOUNT PERSON",
             "COUNT_1 PERSON:\n"},
        Good{"WEIGHT HOUSEHOLD.WEIGHT\nRUNDEF r TITLE \"x\"\nFREQ PERSON.SEX",
             "FREQ_1 PERSON: PERSON.SEX weight HOUSEHOLD.WEIGHT\n"},
        Good{"WEIGHT HOUSEHOLD.WEIGHT RUNDEF NOWEIGHT FREQ PERSON.SEX",
             "FREQ_1 PERSON: PERSON.SEX\n"},
        Good{"FREQ PERSON.SEX, PERSON.WORKS BY PROVINCE.CODE, ROOMS",
             "FREQ_1 PERSON: PERSON.SEX BY PROVINCE.CODE\n"
             "FREQ_2 PERSON: PERSON.SEX BY HOUSEHOLD.ROOMS\n"
             "FREQ_3 PERSON: PERSON.WORKS BY PROVINCE.CODE\n"
             "FREQ_4 PERSON: PERSON.WORKS BY HOUSEHOLD.ROOMS\n"},
        Good{"frequency death.*", "FREQ_1 DEATH: DEATH.SEX\nFREQ_2 DEATH: DEATH.CAUSE\n"},
        Good{"CROSSTABS death.sex BY death.cause", "CROSSTABS_1 DEATH: DEATH.SEX BY DEATH.CAUSE\n"},
        Good{"TABLE t CROSSTABS rooms BY province.code BY province.name",
             "t HOUSEHOLD: HOUSEHOLD.ROOMS BY PROVINCE.CODE BY PROVINCE.NAME\n"},
        Good{"FREQ pop.years TITLE \"say \"\"hi\"\"\" BY Province.Code DECIMALS 3 FILTER GRP = "
             "\"a\"",
             "FREQ_1 PERSON: PERSON.AGE BY PROVINCE.CODE filter (PERSON.GRP = 'a')"
             " title say \"hi\" decimals 3\n"},
        Good{"FREQ PERSON.2NDJOB, PERSON.LINE, DISTRICT.POP-2020, POP-2020, 2ndjob",
             "FREQ_1 PERSON: PERSON.2NDJOB\nFREQ_2 PERSON: PERSON.LINE\n"
             "FREQ_3 DISTRICT: DISTRICT.POP-2020\nFREQ_4 DISTRICT: DISTRICT.POP-2020\n"
             "FREQ_5 PERSON: PERSON.2NDJOB\n"},
        Good{"COUNT HOUSEHOLD FILTER HOUSEHOLD.ROOMS > 2 TITLE \"c\"",
             "COUNT_1 HOUSEHOLD: filter (HOUSEHOLD.ROOMS > 2) title c\n"},
        Good{"TABLE freq freq ROOMS FREQ CAUSE\r\nFREQ AGE\rCOUNT DEATH",
             "freq HOUSEHOLD: HOUSEHOLD.ROOMS\nFREQ_1 DEATH: DEATH.CAUSE\n"
             "FREQ_2 PERSON: PERSON.AGE\nCOUNT_1 DEATH:\n"},
        Good{"TABLE FREQ_1 AS FREQ ROOMS FREQ CAUSE",
             "FREQ_1 HOUSEHOLD: HOUSEHOLD.ROOMS\nFREQ_2 DEATH: DEATH.CAUSE\n"},
        Good{"\xef\xbb\xbf"
             "FREQ HOUSEHOLD.ROOMS TALLY PERSON.AGE",
             "FREQ_1 PERSON: HOUSEHOLD.ROOMS tally PERSON.AGE\n"}));

TEST(Weights, FollowTheNearestWeightVariable) {
    Census census;
    const auto weights = [&](const std::string& program) {
        const BoundProgram bound = census.compile(program);
        EXPECT_EQ(told(census.messages), "") << program;
        return summary(bound);
    };
    EXPECT_EQ(weights("FREQ PERSON.SEX"), "FREQ_1 PERSON: PERSON.SEX weight HOUSEHOLD.WEIGHT\n");
    EXPECT_EQ(weights("FREQ HOUSEHOLD.ROOMS"),
              "FREQ_1 HOUSEHOLD: HOUSEHOLD.ROOMS weight HOUSEHOLD.WEIGHT\n");
    EXPECT_EQ(weights("FREQ PROVINCE.CODE"), "FREQ_1 PROVINCE: PROVINCE.CODE\n");
    EXPECT_EQ(weights("COUNT PERSON"), "COUNT_1 PERSON:\n");
    EXPECT_EQ(weights("COUNT PERSON WEIGHT WEIGHT2"), "COUNT_1 PERSON: weight PERSON.WEIGHT2\n");
    EXPECT_EQ(weights("FREQ PERSON.SEX WEIGHT WEIGHT2 * 2"),
              "FREQ_1 PERSON: PERSON.SEX weight (PERSON.WEIGHT2 * 2)\n");
    EXPECT_EQ(weights("RUNDEF NOWEIGHT FREQ PERSON.SEX"), "FREQ_1 PERSON: PERSON.SEX\n");
    EXPECT_EQ(weights("RUNDEF WEIGHT 3 FREQ PERSON.SEX RUNDEF FREQ PERSON.SEX"),
              "FREQ_1 PERSON: PERSON.SEX weight 3\n"
              "FREQ_2 PERSON: PERSON.SEX weight HOUSEHOLD.WEIGHT\n");
    EXPECT_EQ(weights("FREQ HOUSEHOLD.ROOMS WEIGHT PERSON.WEIGHT2"),
              "FREQ_1 PERSON: HOUSEHOLD.ROOMS weight PERSON.WEIGHT2\n");
    census.entity("PERSON").weightVar = &census.variable("PERSON", "WEIGHT2");
    EXPECT_EQ(weights("FREQ PERSON.SEX"), "FREQ_1 PERSON: PERSON.SEX weight PERSON.WEIGHT2\n");
    census.entity("PERSON").weightVar = &census.variable("PERSON", "GRP");
    EXPECT_EQ(weights("FREQ PERSON.SEX WEIGHT PERSON.WEIGHT2"),
              "FREQ_1 PERSON: PERSON.SEX weight PERSON.WEIGHT2\n");
    census.compile("COUNT PERSON\n FREQ PERSON.SEX");
    EXPECT_EQ(
        told(census.messages),
        "KEL_E_WEIGHT_IS_TEXT 2:2 PERSON.GRP, the automatic weight, holds texts: name another "
        "WEIGHT, or write NOWEIGHT.\n");
    census.entity("PERSON").weightVar = &census.variable("PERSON", "WEIGHT2");
    census.options.autoWeight = false;
    EXPECT_EQ(weights("FREQ PERSON.SEX RUNDEF AUTOWEIGHT FREQ PERSON.SEX"),
              "FREQ_1 PERSON: PERSON.SEX\n"
              "FREQ_2 PERSON: PERSON.SEX weight PERSON.WEIGHT2\n");
}

TEST(Rundef, SetsWhatFollows) {
    Census census;
    const BoundProgram program = census.compile(
        "FREQ ROOMS\n"
        "RUNDEF first TITLE \"one\" DECIMALS 2 FILTER ROOMS > 1\nFILTERLABEL More than one // x\n"
        "SELECTIONLABEL \"All\" FREQ ROOMS\nRUNDEF \"second\"\nFREQ  ROOMS  // tail\n");
    ASSERT_EQ(told(census.messages), "");
    ASSERT_EQ(program.tables.size(), 3u);
    const RunSettings& none = *program.tables[0].settings;
    const RunSettings& first = *program.tables[1].settings;
    EXPECT_EQ(none.name, "");
    EXPECT_FALSE(none.selection);
    EXPECT_EQ(none.weightMode, WeightMode::Automatic);
    EXPECT_EQ(first.name, "first");
    EXPECT_EQ(first.title, "one");
    EXPECT_EQ(first.decimals, 2);
    EXPECT_EQ(first.filter->text, "ROOMS > 1");
    EXPECT_EQ(first.filterLabel, "More than one");
    ASSERT_TRUE(first.selection);
    EXPECT_EQ(first.selection->label, "All");
    EXPECT_TRUE(first.selection->areas.empty());
    EXPECT_EQ(program.lastSettings, program.tables[2].settings);
    EXPECT_EQ(program.lastSettings->name, "second");
    EXPECT_EQ(program.lastSettings->filter, nullptr);
    EXPECT_EQ(program.tables[2].text, "FREQ  ROOMS");
    EXPECT_EQ(program.tables[2].position.line, 6);
    EXPECT_NE(census.compile("").lastSettings, nullptr);
}

} // namespace kelx::language
