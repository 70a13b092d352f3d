// SPDX-License-Identifier: Apache-2.0
// Which records count: filters at every level, selections of areas.
#include "small_country.h"

#include <gtest/gtest.h>

namespace kelx::test {
namespace {

class Filters : public testing::Test {
protected:
    Figures of(const std::string& program) {
        last_ = runAll(country_.dictionary, program);
        return figures(last_.result.tables.at(0));
    }
    double count(const std::string& entity, const std::string& settings) {
        return of("RUNDEF r " + settings + "\nCOUNT " + entity).at("");
    }
    SmallCountry country_;
    Outcome last_;
};

TEST_F(Filters, atAndAboveTheUnit) {
    EXPECT_EQ(of("FREQ PERSON.SEX FILTER PERSON.AGE < 50"), (Figures{{"1", 4}}));
    EXPECT_EQ(of("FREQ PERSON.SEX FILTER HOUSEHOLD.TYPE = 2"), (Figures{{"1", 1}, {"2", 2}}));
    EXPECT_EQ(
        of("RUNDEF r FILTER PROVINCE.NAME = \"South\"\nFREQ PERSON.SEX FILTER PERSON.SEX = 2"),
        (Figures{{"2", 1}}));
    EXPECT_EQ(of("FREQ PERSON.SEX FILTER PROVINCE = \"01\" AND PERSON.AGE > 90"),
              (Figures{{"2", 2}}));
}

TEST_F(Filters, takeTruthValuesForTheirCodes) {
    // Jobs of the persons: 1 0 blank 0 0 1 1 0; sexes: 1 2 2 1 1 2 2 1.
    EXPECT_EQ(count("PERSON", "FILTER PERSON.JOB = 1"), 3);
    EXPECT_EQ(count("PERSON", "FILTER PERSON.JOB <> 1"), 4);
    EXPECT_EQ(count("PERSON", "FILTER 0.5 > PERSON.JOB"), 4);
    EXPECT_EQ(count("PERSON", "FILTER PERSON.JOB IN (1)"), 3);
    EXPECT_EQ(count("PERSON", "FILTER PERSON.JOB IN (0:1)"), 7);
    EXPECT_EQ(count("PERSON", "FILTER PERSON.JOB IN (2, -1)"), 0);
    EXPECT_EQ(count("PERSON", "FILTER PERSON.JOB = PERSON.SEX"), 1);
    EXPECT_EQ(count("PERSON", "FILTER PERSON.JOB < PERSON.SEX"), 6);
    EXPECT_EQ(of("FREQ PERSON.SEX TALLY PERSON.JOB"), (Figures{{"1", 1}, {"2", 2}}));
    EXPECT_EQ(recordCounts(last_.result.tables[0]), (Figures{{"1", 4}, {"2", 3}}));
    EXPECT_EQ(of("FREQ PERSON.SEX WEIGHT PERSON.JOB TALLY HOUSEHOLD.WT"),
              (Figures{{"1", 1.5}, {"2", 1.5}}));
}

TEST_F(Filters, belowTheUnitKeepWhatHasOnePassing) {
    EXPECT_EQ(of("RUNDEF r FILTER PERSON.AGE < 50\nFREQ HOUSEHOLD.TYPE"),
              (Figures{{"1", 2}, {"2", 1}}));
    EXPECT_EQ(of("RUNDEF r FILTER PERSON.SEX = 1 AND HOUSEHOLD.TYPE = 2\nFREQ PROVINCE.NAME"),
              (Figures{{"Sud-Oué", 1}}));
    EXPECT_EQ(count("HOUSEHOLD", "FILTER PERSON.NAME = \"Eva\""), 1);
}

TEST_F(Filters, doNotTakeTablesOfOtherRunsAlong) {
    of("COUNT PERSON\nRUNDEF r FILTER PERSON.SEX = 1\nCOUNT PERSON\nRUNDEF s\nCOUNT PERSON");
    ASSERT_EQ(last_.result.tables.size(), 3U);
    EXPECT_EQ(last_.result.tables[0].cells[0].records, 8U);
    EXPECT_EQ(last_.result.tables[1].cells[0].records, 4U);
    EXPECT_EQ(last_.result.tables[2].cells[0].records, 8U);
}

TEST_F(Filters, selectAreasByCompoundCode) {
    EXPECT_EQ(count("PERSON", "SELECTION INLINE PROVINCE \"02\""), 3);
    EXPECT_EQ(count("HOUSEHOLD", "SELECTION INLINE PROVINCE \"03\" PROVINCE \"01\""), 4);
    EXPECT_EQ(count("PERSON", "SELECTION INLINE HOUSEHOLD \"032\" PROVINCE \"02\""), 5);
    EXPECT_EQ(count("PERSON", "SELECTION INLINE HOUSEHOLD \"021\" PROVINCE \"02\""), 3);
    EXPECT_EQ(count("PERSON", "SELECTION PROVINCE.NAME <> \"South\""), 5);
}

TEST_F(Filters, selectAsTheAssistantWrites) {
    const std::string men =
        "\n\tselection\n\t(province == \"01\" or \nprovince == \"03\") and person.sex == 1\n";
    EXPECT_EQ(count("PERSON", men + "\tdecimals 2\n"), 2);
    EXPECT_EQ(count("HOUSEHOLD", men), 2); // those in which one of them lives
    const std::string areas = "\n\tselection\n\tprovince == \"01\" or \nprovince == \"02\"";
    EXPECT_EQ(count("PERSON", areas + "\tdecimals 2\n"), 6);
    EXPECT_EQ(count("HOUSEHOLD", areas), 3);
    EXPECT_EQ(count("PERSON", areas + " or \n\tdecimals 2\n"), 6); // a row without its code
}

TEST_F(Filters, selectionsOfLowerAreasHoldNothingAbove) {
    EXPECT_EQ(count("PROVINCE", "SELECTION INLINE HOUSEHOLD \"021\""), 0);
}

TEST_F(Filters, warnOfCodesThatNoAreaHas) {
    EXPECT_EQ(count("PERSON", "SELECTION INLINE PROVINCE \"02\" PROVINCE \"7\""), 3);
    ASSERT_EQ(last_.messages.all().size(), 1U);
    EXPECT_EQ(last_.messages.all()[0].severity, language::Severity::Warning);
    EXPECT_NE(last_.messages.all()[0].text.find("\"7\""), std::string::npos);
}

} // namespace
} // namespace kelx::test
