// SPDX-License-Identifier: Apache-2.0
// Frequencies of a country small enough to count by hand.
#include "small_country.h"

#include "storage/error.h"

#include <gtest/gtest.h>

namespace kelx::test {
namespace {

class Frequency : public testing::Test {
protected:
    Figures of(const std::string& program, bool autoWeight = false) {
        last_ = runAll(country_.dictionary, program, autoWeight);
        return figures(last_.result.tables.at(0));
    }
    SmallCountry country_;
    Outcome last_;
    std::string lastLabel_;
};

TEST_F(Frequency, countsCategoriesMissingAndNotApplicable) {
    EXPECT_EQ(of("FREQ PERSON.SEX"), (Figures{{"1", 4}, {"2", 4}}));
    EXPECT_TRUE(last_.result.tables[0].exact);
    EXPECT_EQ(last_.result.tables[0].dimensions[0].categories[1].label, "Female");
    // One record is coded missing and one is blank: both are MV.
    EXPECT_EQ(of("FREQ PERSON.AGE"),
              (Figures{{"7", 2}, {"15", 1}, {"34", 1}, {"70", 1}, {"MV", 2}, {"NA", 1}}));
    EXPECT_EQ(of("FREQ HOUSEHOLD.TYPE"), (Figures{{"1", 2}, {"2", 2}, {"MV", 1}}));
    EXPECT_EQ(of("FREQ PERSON.JOB"), (Figures{{"0", 4}, {"1", 3}, {"MV", 1}}));
    EXPECT_EQ(of("FREQ PERSON.INCOME"),
              (Figures{{"-3", 1}, {"0", 2}, {"20", 1}, {"100.5", 2}, {"MV", 2}}));
    EXPECT_EQ(
        of("FREQ PERSON.NAME"),
        (Figures{
            {"Ana", 2}, {"Béa", 1}, {"Cid", 1}, {"Dan", 1}, {"Eva", 1}, {"Zoë", 1}, {"MV", 1}}));
}

TEST_F(Frequency, ordersCategoriesByValue) {
    of("FREQ PERSON.AGE");
    std::vector<std::string> codes;
    for (const auto& category : last_.result.tables[0].dimensions[0].categories)
        codes.push_back(category.code);
    EXPECT_EQ(codes, (std::vector<std::string>{"7", "15", "34", "70", "", ""}));
    of("FREQ PERSON.INCOME");
    EXPECT_EQ(last_.result.tables[0].dimensions[0].categories.front().code, "-3");
}

TEST_F(Frequency, crossesLevels) {
    EXPECT_EQ(of("CROSSTABS HOUSEHOLD.TYPE BY PERSON.SEX"),
              (Figures{{"1|1", 3}, {"1|2", 2}, {"2|1", 1}, {"2|2", 2}}));
    EXPECT_EQ(of("FREQ PROVINCE.NAME BY HOUSEHOLD.TYPE BY PERSON.AGE"),
              (Figures{{"North|1|34", 1},
                       {"North|1|MV", 1},
                       {"North|2|NA", 1},
                       {"South|1|7", 2},
                       {"South|1|70", 1},
                       {"Sud-Oué|2|MV", 1},
                       {"Sud-Oué|2|15", 1}}));
    EXPECT_EQ(of("FREQ PERSON.INCOME BY PROVINCE.CODE"), (Figures{{"-3|03", 1},
                                                                  {"0|01", 1},
                                                                  {"0|02", 1},
                                                                  {"20|02", 1},
                                                                  {"100.5|01", 1},
                                                                  {"100.5|03", 1},
                                                                  {"MV|01", 1},
                                                                  {"MV|02", 1}}));
}

TEST_F(Frequency, weights) {
    EXPECT_EQ(of("FREQ PERSON.SEX WEIGHT HOUSEHOLD.WT"), (Figures{{"1", 3.5}, {"2", 5}}));
    EXPECT_FALSE(last_.result.tables[0].exact);
    EXPECT_EQ(recordCounts(last_.result.tables[0]), (Figures{{"1", 4}, {"2", 4}}));
    EXPECT_EQ(of("FREQ PERSON.SEX", true), (Figures{{"1", 3.5}, {"2", 5}}));
    EXPECT_EQ(of("FREQ HOUSEHOLD.TYPE WEIGHT 2"), (Figures{{"1", 4}, {"2", 4}, {"MV", 2}}));
}

TEST_F(Frequency, talliesAndLeavesInvalidOnesOut) {
    // Ages 34, 7, 7, 15 of men; 70 of a woman: the other three women have none.
    EXPECT_EQ(of("FREQ PERSON.SEX TALLY PERSON.AGE"), (Figures{{"1", 63}, {"2", 70}}));
    EXPECT_EQ(recordCounts(last_.result.tables[0]), (Figures{{"1", 4}, {"2", 1}}));
    EXPECT_EQ(of("FREQ PERSON.SEX WEIGHT HOUSEHOLD.WT TALLY PERSON.AGE"),
              (Figures{{"1", 73}, {"2", 35}}));
}

TEST_F(Frequency, countsRecords) {
    EXPECT_EQ(of("COUNT PERSON"), (Figures{{"", 8}}));
    EXPECT_EQ(of("COUNT PROVINCE"), (Figures{{"", 3}}));
    EXPECT_EQ(of("COUNT COUNTRY"), (Figures{{"", 1}}));
    EXPECT_EQ(of("RUNDEF r FILTER PERSON.AGE > 1000\nCOUNT PERSON"), (Figures{{"", 0}}));
}

TEST_F(Frequency, breaksByArea) {
    const auto broken = [&](const std::string& program, const char* area) {
        language::BoundProgram bound = compiled(country_.dictionary, program);
        auto settings = std::make_shared<language::RunSettings>(*bound.tables[0].settings);
        settings->areaBreak = country_.dictionary.findEntity(area);
        bound.tables[0].settings = settings;
        language::Messages messages;
        const execution::RunResult result = execution::run(bound, {}, messages);
        EXPECT_EQ(result.tables[0].dimensions.size(), 2U);
        EXPECT_EQ(result.tables[0].dimensions[0].variable, settings->areaBreak->codeVar);
        lastLabel_ = result.tables[0].dimensions[0].categories.back().label;
        return figures(result.tables[0]);
    };
    EXPECT_EQ(
        broken("FREQ PERSON.SEX", "PROVINCE"),
        (Figures{{"01|1", 1}, {"01|2", 2}, {"02|1", 2}, {"02|2", 1}, {"03|1", 1}, {"03|2", 1}}));
    EXPECT_EQ(lastLabel_, "Sud-Oué");
    EXPECT_EQ(broken("FREQ HOUSEHOLD.TYPE", "HOUSEHOLD"),
              (Figures{{"011|1", 1}, {"012|2", 1}, {"021|1", 1}, {"031|MV", 1}, {"032|2", 1}}));
    EXPECT_EQ(lastLabel_, "032");
}

TEST_F(Frequency, makesManyTablesInTheirOrder) {
    of("FREQ PERSON.SEX, HOUSEHOLD.TYPE, PERSON.AGE\nFREQ PERSON.SEX FILTER PERSON.AGE < 50");
    ASSERT_EQ(last_.result.tables.size(), 4U);
    EXPECT_EQ(figures(last_.result.tables[1]), (Figures{{"1", 2}, {"2", 2}, {"MV", 1}}));
    EXPECT_EQ(figures(last_.result.tables[2]).at("7"), 2);
    EXPECT_EQ(figures(last_.result.tables[3]), (Figures{{"1", 4}}));
}

TEST_F(Frequency, namesADamagedFile) {
    const language::BoundProgram program = compiled(country_.dictionary, "FREQ PERSON.AGE");
    catalog::Variable& age = *country_.dictionary.findEntity("PERSON")->findVariable("AGE");
    age.closeColumn();
    std::filesystem::resize_file(age.filePath(), std::filesystem::file_size(age.filePath()) / 2);
    language::Messages messages;
    try {
        execution::run(program, {}, messages);
        FAIL() << "half a file was read";
    } catch (const storage::FileError& error) {
        EXPECT_NE(std::string(error.what()).find("PERSON_AGE.kbf"), std::string::npos);
    }
}

} // namespace
} // namespace kelx::test
