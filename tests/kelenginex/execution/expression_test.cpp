// SPDX-License-Identifier: Apache-2.0
// What expressions mean, seen through the persons that a filter keeps. Expected numbers by hand.
#include "small_country.h"

#include <gtest/gtest.h>

namespace kelx::test {
namespace {

struct Case {
    const char* condition;
    unsigned kept; ///< bit i: person i, of 8
};

class Expressions : public testing::Test {
protected:
    Expressions() { country_.integers("PERSON", "ID", {0, 1, 2, 3, 4, 5, 6, 7}); }

    unsigned kept(const std::string& condition) {
        unsigned bits = 0;
        const Outcome outcome = runAll(country_.dictionary, "FREQ PERSON.ID FILTER " + condition);
        for (const auto& [code, records] : figures(outcome.result.tables.at(0)))
            bits |= 1U << std::stoi(code);
        return bits;
    }
    void check(const std::vector<Case>& cases) {
        for (const Case& one : cases) {
            SCOPED_TRACE(one.condition);
            EXPECT_EQ(kept(one.condition), one.kept);
        }
    }
    SmallCountry country_;
};

TEST_F(Expressions, comparisonsSeeTheStoredCode) {
    // Ages 34, 99 (MV), 98 (NA), 7, 7, 70, blank, 15.
    check({{"PERSON.AGE = 99", 0b00000010},
           {"PERSON.AGE >= 98", 0b00000110},
           {"PERSON.AGE <> 7", 0b10100111},
           {"7 < PERSON.AGE", 0b10100111},
           {"PERSON.AGE <= 14.5", 0b00011000},
           {"PERSON.AGE = 7.5", 0},
           {"PERSON.AGE <> 7.5", 0b10111111},
           {"PERSON.AGE < -1", 0},
           {"PERSON.AGE > -5", 0b10111111},
           {"PERSON.AGE IN (7, 30:98)", 0b00111101},
           {"PERSON.AGE + 0 IN (7, 30:98)", 0b00111001},
           {"NOT PERSON.AGE = 7", 0b11100111}});
}

TEST_F(Expressions, arithmeticCarriesMissingAndNotApplicable) {
    check({{"PERSON.AGE + 1 > 0", 0b10111001},
           {"PERSON.AGE * 2 = 14", 0b00011000},
           {"-PERSON.AGE = -34", 0b00000001},
           {"PERSON.AGE - PERSON.SEX = 33", 0b00000001},
           {"PERSON.AGE / 2 = 3.5", 0b00011000},
           {"PERSON.AGE / (PERSON.SEX - 1) > 0", 0b00100000},
           {"PERSON.INCOME / 0 = 0", 0},
           {"1 / 0 = 0", 0},
           {"PERSON.AGE * 9223372036854775807 > 0", 0},
           {"PERSON.INCOME > HOUSEHOLD.WT", 0b01100001}});
}

TEST_F(Expressions, logicTakesInvalidAsFalse) {
    // JOB: true, false, blank, false, false, true, true, false.
    check({{"PERSON.JOB", 0b01100001},
           {"NOT PERSON.JOB", 0b10011110},
           {"PERSON.JOB AND PERSON.SEX = 2", 0b01100000},
           {"PERSON.JOB OR PERSON.SEX = 2", 0b01100111},
           {"PERSON.JOB = FALSE", 0b10011010},
           {"TRUE", 0b11111111},
           {"FALSE OR PERSON.AGE = 15", 0b10000000}});
}

TEST_F(Expressions, stateFunctions) {
    check({{"MISSING(PERSON.AGE)", 0b01000010},
           {"NOTAPPLICABLE(PERSON.AGE)", 0b00000100},
           {"MISSING(HOUSEHOLD.TYPE)", 0},
           {"MISSING(PERSON.NAME) OR MISSING(PERSON.INCOME)", 0b00110100}});
}

TEST_F(Expressions, numberFunctions) {
    check({{"ABS(PERSON.INCOME) = 3", 0b10000000},
           {"ABS(-PERSON.AGE) = 7", 0b00011000},
           {"SQRT(PERSON.INCOME) < 1", 0b00001010},
           {"LOG(PERSON.AGE + 30) = 2", 0b00100000},
           {"LN(PERSON.SEX) = 0", 0b10011001},
           {"VAL(PROVINCE.CODE) = 2", 0b00111000},
           {"VAL(PERSON.NAME) < 0 OR VAL(PERSON.NAME) >= 0", 0},
           {"STR(PERSON.AGE) = \"15\"", 0b10000000},
           {"STR(PERSON.INCOME) = \"100.5\"", 0b01000001}});
}

TEST_F(Expressions, textFunctionsCountCharacters) {
    check({{"PERSON.NAME = \"Ana\"", 0b01000001},
           {"PERSON.NAME > \"Dan\"", 0b10010000},
           {"PERSON.NAME <= \"Bob\"", 0b01000001},
           {"PERSON.NAME IN (\"B\" : \"D\", \"Zoë\")", 0b10000110},
           {"LENGTH(PERSON.NAME) = 3", 0b11011111},
           {"UPPER(PERSON.NAME) = \"BÉA\"", 0b00000010},
           {"LOWER(PERSON.NAME) = \"zoë\"", 0b10000000},
           {"LEFT(PERSON.NAME, 2) = \"Bé\"", 0b00000010},
           {"RIGHT(PERSON.NAME, 2) = \"oë\"", 0b10000000},
           {"RIGHT(PERSON.NAME, 9) = \"Cid\"", 0b00000100},
           {"SUBSTR(PERSON.NAME, 2, 1) = \"é\"", 0b00000010},
           {"SUBSTR(PERSON.NAME, 0, 2) = \"A\"", 0b01000001},
           {"SUBSTR(PERSON.NAME, 9, 2) = \"\"", 0b11011111},
           {"POS(PERSON.NAME, \"a\") = 3", 0b01010011},
           {"POS(PERSON.NAME, \"x\") = 0", 0b11011111},
           {"TRIM(\"  x \") = \"x\"", 0b11111111},
           {"LTRIM(\"  x \") = \"x \"", 0b11111111},
           {"RTRIM(\"  x \") = \"  x\"", 0b11111111}});
}

TEST_F(Expressions, compoundCodes) {
    check({{"PROVINCE = \"03\"", 0b11000000},
           {"HOUSEHOLD = \"032\"", 0b11000000},
           {"CMPCODE(HOUSEHOLD) = \"012\"", 0b00000100},
           {"LEFT(CMPCODE(HOUSEHOLD), 2) <> \"02\"", 0b11000111}});
}

TEST_F(Expressions, textsThatHoldNumbersHaveStates) {
    catalog::Variable& grade =
        country_.texts("PERSON", "GRADE", {"1", "09", "8", " 8", "x8", "9", std::nullopt, "10"});
    grade.missing = 9;
    grade.notapp = 8;
    check({{"MISSING(PERSON.GRADE)", 0b01100010},
           {"NOTAPPLICABLE(PERSON.GRADE)", 0b00001100},
           {"PERSON.GRADE = \"09\"", 0b00000010}});
    const Outcome outcome = runAll(country_.dictionary, "FREQ PERSON.GRADE");
    EXPECT_EQ(figures(outcome.result.tables[0]),
              (Figures{{"1", 1}, {"10", 1}, {"x8", 1}, {"MV", 3}, {"NA", 2}}));
}

} // namespace
} // namespace kelx::test
