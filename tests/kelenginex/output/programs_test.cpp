// SPDX-License-Identifier: Apache-2.0
// Whole programs on a country small enough to count by hand.
#include "output/run.h"

#include "hand_made.h"
#include "small_country.h"

#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

namespace kelx::test {
namespace {

using Texts = std::vector<std::string>;

class Programs : public testing::Test {
protected:
    /// The outputs, in order; they must not depend on threads and blocks.
    const std::vector<output::Table>& run(const std::string& text) {
        program_ = compiled(country_.dictionary, text);
        tables_ = runWith(1, 65536);
        const std::vector<output::Table> others = runWith(3, 2);
        EXPECT_EQ(tables_.size(), others.size());
        for (std::size_t i = 0; i < tables_.size() && i < others.size(); ++i)
            EXPECT_EQ(output::asCsv(tables_[i]), output::asCsv(others[i]));
        return tables_;
    }
    std::vector<output::Table> runWith(unsigned threads, std::size_t block) {
        execution::RunOptions options;
        options.threads = threads;
        options.blockRecords = block;
        language::Messages messages;
        return output::runTables(program_, country_.dictionary, options, messages).tables;
    }
    Texts rows(const std::string& text) { return rowsOf(run(text).back()); }

    SmallCountry country_;
    language::BoundProgram program_;
    std::vector<output::Table> tables_;
};

TEST_F(Programs, measuresOfAge) {
    // Valid ages: men 34, 7, 7 and 15; a woman of 70.
    EXPECT_EQ(rows("TABLE a AS AVERAGE PERSON.AGE BY PERSON.SEX"),
              (Texts{"1,Male,,15.75", "2,Female,,70", "0,__tot__,tot,26.6"}));
    EXPECT_EQ(rows("MAX PERSON.AGE BY PERSON.SEX"),
              (Texts{"1. Male,34", "2. Female,70", "Total,70"}));
    EXPECT_EQ(rows("MEDIAN PERSON.AGE BY PERSON.SEX"),
              (Texts{"1. Male,11", "2. Female,70", "Total,15"}));
    EXPECT_EQ(rows("AVERAGE PERSON.AGE"), Texts{"PERSON.AGE,26.6"});
    EXPECT_EQ(rows("QUANTILE 4 OF PERSON.AGE"), Texts{"7,15,34"});
    run("STATS OF PERSON.AGE");
    // Squares of the distances from 26.6: 54.76 + 2 * 384.16 + 134.56 + 1883.56 = 2841.2.
    const output::Table& stats = tables_.back();
    const Texts expected{"5", "133", "26.6", "15", "7", "70"};
    for (std::size_t i = 0; i < expected.size(); ++i)
        EXPECT_EQ(output::toText(stats.at(0, i)), expected[i]) << stats.fields[i].label;
    EXPECT_NEAR(std::get<double>(stats.at(0, 7)), 2841.2 / 4, 1e-9);
}

TEST_F(Programs, areaListsWithColumnsOfTables) {
    run("TABLE sexes AS FREQ PERSON.SEX\n"
        "TABLE ages AS AVERAGE PERSON.AGE\n"
        "TABLE l AS AREALIST PROVINCE, sexes, ages\n"
        "FREQ PERSON.SEX");
    ASSERT_EQ(tables_.size(), 2U); // those that are only columns are none
    EXPECT_EQ(tables_[0].name, "l");
    EXPECT_EQ(rowsOf(tables_[0]),
              (Texts{"01,North,1,2,3,34", "02,South,2,1,3,28", "03,Sud-Oué,1,1,2,15"}));
    EXPECT_EQ(namesOf(tables_[0]), (Texts{"PROVINCE.CMPCODE", "PROVINCE.NAME", "1. Male",
                                          "2. Female", "sexes Total", "ages"}));
    EXPECT_EQ(tables_[1].command, 3U + (program_.tables.size() - 4));
    EXPECT_EQ(rows("TABLE sexes AS FREQ PERSON.SEX\n"
                   "AREALIST PROVINCE, sexes SORT DESC sexes 1"),
              (Texts{"02,South,2,1,3", "01,North,1,2,3", "03,Sud-Oué,1,1,2"}));
}

TEST_F(Programs, csvHeadersTellTheTablesOfAListApart) {
    run("TABLE m AS FREQ PERSON.SEX\nTABLE n AS FREQ PERSON.SEX WEIGHT 2\n"
        "TABLE o AS AVERAGE PERSON.AGE\nAREALIST PROVINCE, m, n, o");
    const std::string csv = output::asCsv(tables_[0]);
    EXPECT_EQ(csv.substr(0, csv.find('\r')),
              "PROVINCE.CMPCODE,PROVINCE.NAME,m 1. Male,m 2. Female,m Total,n 1. Male,n 2. Female,"
              "n Total,o");
    EXPECT_EQ(namesOf(tables_[0])[5], "1. Male"); // the workbench has headings for them
}

TEST_F(Programs, areaListsTellWhatTheirTablesCount) {
    const std::string shared = "TABLE m AS FREQ PERSON.SEX FILTER PERSON.AGE < 20\n"
                               "TABLE n AS COUNT PERSON FILTER PERSON.AGE < 20\n";
    run(shared + "AREALIST PROVINCE, m, n");
    EXPECT_EQ(tables_[0].filter, "PERSON.AGE < 20");
    EXPECT_EQ(groupsOf(tables_[0]).back(), "n");
    run(shared + "TABLE f AS FREQ PERSON.SEX WEIGHT 2\nAREALIST PROVINCE, m, f, n");
    EXPECT_EQ(tables_[0].filter, std::nullopt);
    EXPECT_EQ(tables_[0].weight, std::nullopt);
    EXPECT_EQ(groupsOf(tables_[0]).back(), "n, filter PERSON.AGE < 20");
    const std::string text = output::asText(tables_[0]);
    EXPECT_NE(text.find("\n                   m Sex, filter PERSON.AGE < 20  "
                        "f Sex, weight 2"),
              std::string::npos)
        << text;
    run(shared + "AREALIST PROVINCE, m FILTER PROVINCE.CODE <> \"02\"");
    EXPECT_EQ(tables_.back().filter, "PROVINCE.CODE <> \"02\"");
    EXPECT_EQ(groupsOf(tables_.back()).back(), "m Sex, filter PERSON.AGE < 20");
}

// Neighbours of one group would be read as one.
TEST_F(Programs, figuresStandUnderWhatTheyMeasure) {
    EXPECT_EQ(groupsOf(run("QUANTILE 3 OF PERSON.AGE BY PERSON.SEX").back()),
              (Texts{"PERSON.SEX", "PERSON.AGE", "PERSON.AGE"}));
    EXPECT_EQ(groupsOf(run("MAX PERSON.AGE BY PERSON.SEX").back()), (Texts{"PERSON.SEX", ""}));
    EXPECT_EQ(groupsOf(run("COUNT PERSON").back()), (Texts{"Entity", "Count"}));
    const Texts groups = groupsOf(run("RUNDEF r AREABREAK PROVINCE\nSTATS OF PERSON.AGE").back());
    EXPECT_EQ(groups.front(), "PROVINCE.CMPCODE");
    EXPECT_EQ(groups.back(), "PERSON.AGE"); // which has no label
}

TEST_F(Programs, viewsShowStoredCodes) {
    EXPECT_EQ(rows("VIEW HOUSEHOLD, HOUSEHOLD.TYPE, HOUSEHOLD.WT"),
              (Texts{"011,1,1.5", "012,2,2", "021,1,0.5", "031,9,4", "032,2,1"}));
    EXPECT_EQ(rows("VIEW PERSON, PERSON.NAME FILTER PERSON.AGE > 50 SORT PERSON.NAME"),
              (Texts{"2,Béa", "3,Cid", "6,"}));
}

TEST_F(Programs, tablesOfTables) {
    const std::string operands = "TABLE a AS FREQ PERSON.SEX FILTER PERSON.AGE < 20\n"
                                 "TABLE b AS FREQ PERSON.SEX\n";
    // Of men 7, 7 and 15 are below twenty; of women none.
    EXPECT_EQ(rows(operands + "TABLE c AS TABOP OF a / b * 100"),
              (Texts{"1. Male,75", "2. Female,0", "Total,37.5"}));
    ASSERT_EQ(tables_.size(), 1U);
    EXPECT_EQ(rows(operands + "TABLE d AS TABLIST a, b"),
              (Texts{"1. Male,3,4", "2. Female,0,4", "Total,3,8"}));
    run("TABLE b AS FREQ PERSON.SEX SAVE \"b.json\"\nTABLE c AS TABOP OF b * 2");
    EXPECT_EQ(tables_.size(), 2U); // what is written is an output, too
}

TEST_F(Programs, areasBreakEveryTable) {
    EXPECT_EQ(rows("RUNDEF r AREABREAK PROVINCE\nTABLE a AS MAX PERSON.AGE"),
              (Texts{"01. North,34", "02. South,70", "03. Sud-Oué,15", "Total,70"}));
    EXPECT_EQ(tables_[0].dimension, 1);
    EXPECT_EQ(tables_[0].variables.at(1).areas, country_.dictionary.findEntity("PROVINCE"));
    EXPECT_EQ(namesOf(tables_[0]), (Texts{"PROVINCE.CMPCODE", "Maximum"}));
    run("RUNDEF r AREABREAK PROVINCE\nTABLE a AS FREQ PERSON.SEX\nTABLE b AS TABLIST a, a");
    EXPECT_EQ(namesOf(tables_[0]).at(0), "PROVINCE.CMPCODE");
    EXPECT_EQ(groupsOf(tables_[0]).at(0), "PROVINCE.CMPCODE");
    EXPECT_EQ(rows("RUNDEF r AREABREAK PROVINCE\nTABLE a AS FREQ PERSON.SEX\n"
                   "TABLE b AS TABOP OF a + a"),
              (Texts{"01,North,,1,Male,,2", "01,North,,2,Female,,4", "01,North,,0,__tot__,tot,6",
                     "02,South,,1,Male,,4", "02,South,,2,Female,,2", "02,South,,0,__tot__,tot,6",
                     "03,Sud-Oué,,1,Male,,2", "03,Sud-Oué,,2,Female,,2",
                     "03,Sud-Oué,,0,__tot__,tot,4", "0,__tot__,tot,1,Male,,8",
                     "0,__tot__,tot,2,Female,,8", "0,__tot__,tot,0,__tot__,tot,16"}));
}

TEST_F(Programs, variablesOfTheProgramAreCountedAndHidden) {
    const std::string program = "DEFINE HOUSEHOLD.SIZE AS COUNT PERSON\n"
                                "FREQ HOUSEHOLD.SIZE SENSITIVE 2 SORT DESC HOUSEHOLD.SIZE";
    // Households of 2, 1, 3, 0 and 2: all but the size two occur once, as the three that the total
    // leaves beside the size two would tell.
    EXPECT_EQ(rows(program), (Texts{"3,3,,", "2,2,,", "1,1,,", "0,0,,", "0,__tot__,tot,5"}));
    EXPECT_EQ(tables_.back().suppressed, 4);
}

} // namespace
} // namespace kelx::test
