// SPDX-License-Identifier: Apache-2.0
#include "output/layout.h"

#include "small_country.h"

#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

namespace kelx::test {
namespace {

class Output : public testing::Test {
protected:
    output::Table of(const std::string& program) {
        last_ = runAll(country_.dictionary, program);
        execution::Progress silent({});
        const output::RowTable rows = output::makeRows(last_.result.tables.at(0), silent);
        return output::layRows(rows, country_.dictionary, silent).table;
    }
    static std::vector<std::string> rows(const output::Table& table) {
        std::vector<std::string> result;
        for (std::int64_t r = 0; r < table.rows(); ++r) {
            std::string line;
            for (std::size_t c = 0; c < table.fields.size(); ++c)
                line += (c > 0 ? "," : "") + output::toText(table.at(r, c));
            result.push_back(line);
        }
        return result;
    }
    SmallCountry country_;
    Outcome last_;
};

TEST_F(Output, valuesAsTextAreShortestAndWithoutExponent) {
    EXPECT_EQ(output::toText(output::Value(std::int64_t{-7})), "-7");
    EXPECT_EQ(output::toText(output::Value(0.1)), "0.1");
    EXPECT_EQ(output::toText(output::Value(1e21)), "1000000000000000000000");
    EXPECT_EQ(output::toText(output::Value(1e-7)), "0.0000001");
    EXPECT_EQ(output::toText(output::Value(-0.0)), "0");
    EXPECT_EQ(output::toText(output::Value(42.0)), "42");
    EXPECT_EQ(output::toText(output::Value()), "");
}

TEST_F(Output, oneDimensionHasTotalOfValidAndMarkers) {
    const output::Table table = of("FREQ PERSON.AGE");
    EXPECT_EQ(rows(table),
              (std::vector<std::string>{"7,7,,2", "15,15,,1", "34,34,,1", "70,70,,1",
                                        "0,__tot__,tot,5", "0,__mv__,mv,2", "0,__na__,na,1"}));
    EXPECT_EQ(table.unit, "PERSON");
    EXPECT_EQ(table.fields.back().name, "PERSON");
    EXPECT_EQ(table.area, "All Database");
    EXPECT_EQ(table.database, "Test country");
}

TEST_F(Output, twoDimensionsHaveTotalsOfBoth) {
    // Counted by hand: the missing type is of a household without persons, ages of women 99, 98
    // and blank are MV or NA.
    EXPECT_EQ(
        rows(of("CROSSTABS HOUSEHOLD.TYPE BY PERSON.AGE FILTER PERSON.SEX = 2")),
        (std::vector<std::string>{"1,1,,70,70,,1", "1,1,,0,__tot__,tot,1", "1,1,,0,__mv__,mv,1",
                                  "2,2,,0,__mv__,mv,1", "2,2,,0,__na__,na,1",
                                  "0,__tot__,tot,70,70,,1", "0,__tot__,tot,0,__tot__,tot,1",
                                  "0,__tot__,tot,0,__mv__,mv,2", "0,__tot__,tot,0,__na__,na,1"}));
}

TEST_F(Output, theGrandTotalStandsInEmptyTables) {
    EXPECT_EQ(rows(of("FREQ PERSON.SEX BY PERSON.JOB FILTER FALSE")),
              (std::vector<std::string>{"0,__tot__,tot,0,__tot__,tot,0"}));
}

TEST_F(Output, countsHaveOneRow) {
    const output::Table table = of("COUNT PERSON");
    EXPECT_EQ(rows(table), (std::vector<std::string>{"PERSON,8"}));
    EXPECT_EQ(table.entity, country_.dictionary.findEntity("PERSON"));
    EXPECT_EQ(table.kind, "COUNT");
}

TEST_F(Output, jsonHasItsKeysInOrderAndNumbersAsNumbers) {
    const output::Table table =
        of("RUNDEF r FILTER PERSON.AGE < 90 FILTERLABEL young\nTABLE t AS FREQ PERSON.SEX "
           "WEIGHT HOUSEHOLD.WT FILTER PERSON.JOB TITLE \"Say \"\"sex\"\"\"");
    const auto json = nlohmann::ordered_json::parse(output::asJson(table));
    std::vector<std::string> keys;
    for (const auto& [key, value] : json.items())
        keys.push_back(key);
    EXPECT_EQ(keys,
              (std::vector<std::string>{"name", "title", "kind", "method", "unit", "database",
                                        "area", "filter", "weight", "tally", "universalFilter",
                                        "suppressed", "decimals", "variables", "fields", "rows"}));
    EXPECT_EQ(json["title"], "Say \"sex\"");
    EXPECT_EQ(json["universalFilter"], "young");
    EXPECT_EQ(json["weight"], "HOUSEHOLD.WT");
    EXPECT_TRUE(json["tally"].is_null());
    EXPECT_EQ(json["variables"][0]["label"], "Sex");
    EXPECT_EQ(json["rows"][0], nlohmann::ordered_json::parse(R"(["1", "Male", "", 1.5])"));
    EXPECT_EQ(json["rows"][2], nlohmann::ordered_json::parse(R"(["0", "__tot__", "tot", 2.0])"));
}

TEST_F(Output, jsonIsWrittenAsALibraryWould) {
    catalog::Variable& sex = *country_.dictionary.findEntity("PERSON")->findVariable("SEX");
    sex.valueLabels = {{"1", "Men \"\\\x01\xc3\xa9"}, {"2", "Women"}};
    for (const char* program :
         {"FREQ PERSON.SEX BY PERSON.INCOME WEIGHT HOUSEHOLD.WT / 3 DECIMALS 2", "COUNT PERSON",
          "FREQ PERSON.SEX WEIGHT 1e-9", "FREQ PERSON.SEX WEIGHT 1e300 * 1e300 TITLE \"/\""}) {
        const std::string json = output::asJson(of(program));
        EXPECT_EQ(nlohmann::ordered_json::parse(json).dump(), json);
    }
    sex.label = "no \xff text";
    EXPECT_NE(output::asJson(of("FREQ PERSON.SEX")).find("no \xef\xbf\xbd text"),
              std::string::npos);
}

TEST_F(Output, everyMethodHasItsName) {
    output::Table table = of("FREQ PERSON.SEX");
    const auto methodOf = [&](int method) {
        table.method = method;
        return nlohmann::json::parse(output::asJson(table))["method"].get<std::string>();
    };
    EXPECT_EQ(methodOf(0), "NONE");
    EXPECT_EQ(methodOf(1), "FREQUENCY");
    EXPECT_EQ(methodOf(6), "SUM");
    EXPECT_EQ(methodOf(9), "QUANTILE");
    EXPECT_EQ(methodOf(10), "");
}

TEST_F(Output, onlyTheReadableFormRounds) {
    const auto figureOf = [&](const std::string& weight) {
        const std::string text = output::asText(of("COUNT COUNTRY WEIGHT " + weight));
        return text.substr(text.rfind(' ') + 1);
    };
    EXPECT_EQ(figureOf("2.0 / 3"), "0.666667\n");
    EXPECT_EQ(figureOf("1.5"), "1.5\n");
    EXPECT_EQ(figureOf("1200.0"), "1200\n");
    EXPECT_EQ(figureOf("-0.0000001"), "0\n");
    EXPECT_EQ(figureOf("2.0 / 3 DECIMALS 8"), "0.66666667\n");
    const output::Table table = of("COUNT COUNTRY WEIGHT 2.0 / 3");
    EXPECT_EQ(output::asCsv(table), "Entity,Count\r\nCOUNTRY,0.6666666666666666\r\n");
}

TEST_F(Output, csvQuotesWhatNeedsIt) {
    catalog::Variable& sex = *country_.dictionary.findEntity("PERSON")->findVariable("SEX");
    sex.valueLabels = {{"1", "Men, \"boys\""}, {"2", "Women"}};
    EXPECT_EQ(output::asCsv(of("FREQ PERSON.SEX")),
              "PERSON.SEX,PERSON.SEX label,PERSON.SEX kind,PERSON\r\n"
              "1,\"Men, \"\"boys\"\"\",,4\r\n2,Women,,4\r\n0,__tot__,tot,8\r\n");
}

TEST_F(Output, textAlignsCharactersAndSaysTheUnit) {
    EXPECT_EQ(output::asText(of("TABLE t AS FREQ PROVINCE.NAME WEIGHT 2")), R"(t (FREQUENCY)
Database: Test country
Area: All Database
Unit of count: PROVINCE
Weight: 2

NAME     Province
-----------------
North           2
South           2
Sud-Oué         2
Total           6
)");
    EXPECT_EQ(output::asText(of("TABLE t AS CROSSTABS PROVINCE.NAME BY PERSON.AGE "
                                "FILTER PROVINCE.CODE <> \"01\"")),
              R"(t (FREQUENCY)
Database: Test country
Area: All Database
Unit of count: PERSON
Filter: PROVINCE.CODE <> "01"

NAME by AGE  7  15  70  Total  MV
---------------------------------
South        2   -   1      3   -
Sud-Oué      -   1   -      1   1
Total        2   1   1      4   1
)");
}

} // namespace
} // namespace kelx::test
