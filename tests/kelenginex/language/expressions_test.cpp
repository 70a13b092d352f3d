// SPDX-License-Identifier: GPL-3.0-or-later
#include "fixture.h"

#include <gtest/gtest.h>

namespace kelx::language {

namespace {

/// The filter of a table of persons, as the checker understood it, or the messages.
std::string filter(Census& census, const std::string& expression) {
    const BoundProgram program = census.compile("FREQ SEX2 FILTER " + expression);
    if (census.messages.hasErrors() || program.tables.empty())
        return told(census.messages);
    return shape(*program.tables[0].filter);
}

} // namespace

struct Meaning {
    const char* expression;
    const char* shape;
};

class Expressions : public ::testing::TestWithParam<Meaning> {};

TEST_P(Expressions, MeanWhatTheySay) {
    Census census;
    EXPECT_EQ(filter(census, GetParam().expression), GetParam().shape);
}

INSTANTIATE_TEST_SUITE_P(
    Precedence, Expressions,
    ::testing::Values(Meaning{"WORKS or WORKS and not WORKS",
                              "(PERSON.WORKS OR (PERSON.WORKS AND NOT(PERSON.WORKS)))"},
                      Meaning{"(WORKS OR WORKS) AND WORKS",
                              "((PERSON.WORKS OR PERSON.WORKS) AND PERSON.WORKS)"},
                      Meaning{"NOT AGE = 1 AND WORKS", "(NOT((PERSON.AGE = 1)) AND PERSON.WORKS)"},
                      Meaning{"AGE + 2 * 3 - 4 > - AGE / 2",
                              "(((PERSON.AGE + (2 * 3)) - 4) > (-(PERSON.AGE) / 2))"},
                      Meaning{"AGE - 2 - 1 = 0", "(((PERSON.AGE - 2) - 1) = 0)"},
                      Meaning{"AGE / 2 * 3 = 0", "(((PERSON.AGE / 2) * 3) = 0)"},
                      Meaning{"AGE - (2 - 1) = - -5", "((PERSON.AGE - (2 - 1)) = 5)"},
                      Meaning{"AGE -1 = -1", "((PERSON.AGE - 1) = -1)"},
                      Meaning{"AGE + 1 IN (1:5, 9, -3 : -1, LOWEST:-7, 90:HIGHEST)",
                              "((PERSON.AGE + 1) IN 1:5 9:9 -3:-1 lowest:-7 90:highest)"},
                      Meaning{"NOT AGE IN (1) OR GRP IN (\"a\":\"c\")",
                              "(NOT((PERSON.AGE IN 1:1)) OR (PERSON.GRP IN 'a':'c'))"},
                      Meaning{"WORKS = 1 OR WORKS < AGE OR WORKS IN (0:1)",
                              "((PERSON.WORKS = 1) OR ((PERSON.WORKS < PERSON.AGE) OR "
                              "(PERSON.WORKS IN 0:1)))"},
                      Meaning{"WORKS = (AGE > 5)", "(PERSON.WORKS = (PERSON.AGE > 5))"},
                      Meaning{"RENT > 1.5e3 AND RENT < .25", "((HOUSEHOLD.RENT > real 1500) AND "
                                                             "(HOUSEHOLD.RENT < real 0.25))"}));

INSTANTIATE_TEST_SUITE_P(
    Operators, Expressions,
    ::testing::Values(Meaning{"AGE NOT IN (1:5) OR NOT AGE NOT IN (9)",
                              "(NOT((PERSON.AGE IN 1:5)) OR NOT(NOT((PERSON.AGE IN 9:9))))"},
                      Meaning{"RENT > 5. AND RENT < 1.e2 AND RENT > 1e-999",
                              "((HOUSEHOLD.RENT > real 5) AND ((HOUSEHOLD.RENT < real 100) AND "
                              "(HOUSEHOLD.RENT > real 0)))"},
                      Meaning{"AGE > -9223372036854775808 AND AGE IN (-9223372036854775808) AND "
                              "AGE > - -9223372036854775808",
                              "((PERSON.AGE > -9223372036854775808) AND ((PERSON.AGE IN "
                              "-9223372036854775808:-9223372036854775808) AND (PERSON.AGE > "
                              "-(-9223372036854775808))))"},
                      Meaning{"WORKS\xc2\xa0OR\xe3\x80\x80WORKS", "(PERSON.WORKS OR PERSON.WORKS)"},
                      Meaning{"AGE == 1 OR AGE <== 2 OR AGE >== 3",
                              "((PERSON.AGE = 1) OR ((PERSON.AGE <= 2) OR (PERSON.AGE >= 3)))"},
                      Meaning{"AGE<>1 AND AGE<=2", "((PERSON.AGE <> 1) AND (PERSON.AGE <= 2))"},
                      Meaning{"AGE>=1 AND AGE>2 OR AGE<3",
                              "(((PERSON.AGE >= 1) AND (PERSON.AGE > 2)) OR (PERSON.AGE < 3))"},
                      Meaning{"TRUE OR false", "(TRUE OR FALSE)"},
                      Meaning{"GRP = \"a \"\"b\"\" // c\"", "(PERSON.GRP = 'a \"b\" // c')"}));

INSTANTIATE_TEST_SUITE_P(
    CodesAndFunctions, Expressions,
    ::testing::Values(
        Meaning{"PROVINCE == \"03\"", "(code PROVINCE = '03')"},
        Meaning{"\"03\" < province", "('03' < code PROVINCE)"},
        Meaning{"DISTRICT IN (\"0301\":\"0399\")", "(code DISTRICT IN '0301':'0399')"},
        Meaning{"PROVINCE = UPPER(GRP)", "(code PROVINCE = UPPER(PERSON.GRP))"},
        Meaning{"CMPCODE(HOUSEHOLD) = CMPCODE (District)", "(code HOUSEHOLD = code DISTRICT)"},
        Meaning{"LEFT(CMPCODE(DISTRICT), 2) = PROVINCE.CODE",
                "(LEFT(code DISTRICT, 2) = PROVINCE.CODE)"},
        Meaning{"MISSING(AGE) OR notapplicable( person.grp )",
                "(MISSING(PERSON.AGE) OR NOTAPPLICABLE(PERSON.GRP))"},
        Meaning{"ABS(-AGE) + SQRT(4) + LOG(10) + LN(2) > LENGTH(TRIM(GRP))",
                "((((ABS(-(PERSON.AGE)) + SQRT(4)) + LOG(10)) + LN(2)) >"
                " LENGTH(TRIM(PERSON.GRP)))"},
        Meaning{"SUBSTR(RIGHT(GRP, 3), 1, 2) = LOWER(LTRIM(RTRIM(STR(VAL(\"1\")))))",
                "(SUBSTR(RIGHT(PERSON.GRP, 3), 1, 2) ="
                " LOWER(LTRIM(RTRIM(STR(VAL('1'))))))"},
        Meaning{"POS(GRP, \"x\") > 0", "(POS(PERSON.GRP, 'x') > 0)"}));

TEST(ExpressionTypes, FollowTheOperands) {
    Census census;
    const auto tally = [&](const std::string& text) {
        const BoundProgram program = census.compile("FREQ PROVINCE.CODE TALLY " + text);
        EXPECT_EQ(told(census.messages), "") << text;
        return program.tables.at(0).tally;
    };
    EXPECT_EQ(tally("AGE + 1")->type, ValueType::Integer);
    EXPECT_EQ(tally("AGE + 1.0")->type, ValueType::Real);
    EXPECT_EQ(tally("AGE / 2")->type, ValueType::Real);
    EXPECT_EQ(tally("-AGE")->type, ValueType::Integer);
    EXPECT_EQ(tally("ABS(RENT)")->type, ValueType::Real);
    EXPECT_EQ(tally("ABS(AGE)")->type, ValueType::Integer);
    EXPECT_EQ(tally("VAL(GRP)")->type, ValueType::Real);
    EXPECT_EQ(tally("1")->entity, nullptr);
    EXPECT_EQ(tally("RENT * AGE")->entity, &census.entity("PERSON"));
    EXPECT_EQ(tally("AGE * RENT")->entity, &census.entity("PERSON"));
    EXPECT_EQ(tally("LENGTH(CMPCODE(DISTRICT))")->entity, &census.entity("DISTRICT"));
    EXPECT_EQ(tally("  AGE\n /* c */ *\t2 // x\n")->text, "AGE * 2");
    EXPECT_EQ(tally("(AGE) * (2)")->text, "(AGE) * (2)");
    EXPECT_EQ(tally("9223372036854775807")->type, ValueType::Integer);
}

TEST(ExpressionTypes, AskTheDataWhereTheDictionaryIsSilent) {
    Census census;
    census.add("PERSON", "UNTYPED", ValueType::None);
    EXPECT_EQ(filter(census, "UNTYPED = 1").substr(0, 27), "KEL_E_DATA_FILE_DAMAGED 1:1");
}

TEST(Names, AreTakenFromTheEntityOrWhereUnique) {
    Census census;
    EXPECT_EQ(filter(census, "YEARS > 1"), "(PERSON.AGE > 1)");
    EXPECT_EQ(filter(census, "PERSON . AGE > POP./* x */years"), "(PERSON.AGE > PERSON.AGE)");
    EXPECT_EQ(filter(census, "POP-2020 - 2020 > 2"), "((DISTRICT.POP-2020 - 2020) > 2)");
    EXPECT_EQ(filter(census, "AGE-2020 > 2"), "((PERSON.AGE - 2020) > 2)");
    census.add("PERSON", "A\xc3\xb1os", ValueType::Integer);
    EXPECT_EQ(filter(census, "PERSON.A\xc3\xb1OS > 2"), "(PERSON.A\xc3\xb1os > 2)");
    census.add("PERSON", "2", ValueType::Integer);
    census.add("PERSON", "FILTER", ValueType::Boolean);
    census.add("PERSON", "SUM", ValueType::Integer);
    EXPECT_EQ(filter(census, "PERSON.2 > 2 AND PERSON.Filter AND PERSON.SUM = 1"),
              "((PERSON.2 > 2) AND (PERSON.FILTER AND (PERSON.SUM = 1)))");
    // A variable with the name of an entity is a variable, except against a text.
    census.add("DISTRICT", "PROVINCE", ValueType::Integer);
    EXPECT_EQ(filter(census, "PROVINCE = 3 AND PROVINCE = \"3\""),
              "((DISTRICT.PROVINCE = 3) AND (code PROVINCE = '3'))");
}

} // namespace kelx::language
