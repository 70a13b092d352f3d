// SPDX-License-Identifier: GPL-3.0-or-later
// Outputs as who shows them reads them: what they are, their variables and their fields.
#include "boundary_fixture.h"

#include <utility>

using namespace kelx;
using testing::ElementsAre;
using testing::HasSubstr;

namespace {

// Persons: sex 1 2 1 2 9 with 9 missing; ages 10 20 30 40 blank; incomes 1.5 to 5.5.
class OutputsTest : public test::BoundaryTest {
protected:
    OutputsTest() { dropSensitivity(); }

    /// The last one.
    TKelOutput& outputOf(const std::string& program) {
        run("RUNDEF r NOWEIGHT\n" + program);
        return *session->outputs().at(session->outputs().size() - 1);
    }

    /// "type method dimension: variables", those without an entity in brackets.
    static std::string shapeOf(TKelOutput& output) {
        std::string text = std::to_string(static_cast<int>(output.type())) + " " +
                           std::to_string(static_cast<int>(output.method())) + " " +
                           std::to_string(output.dimension()) + ":";
        for (const TKelVariable* variable : output.variables()) {
            const TKelEntity* entity = variable->entity(false);
            text += entity != nullptr ? " " + entity->name() + "." + variable->name()
                                      : " [" + variable->name() + "]";
        }
        return text;
    }
    using TextOf = std::string (TKelField::*)() const;
    static std::vector<std::string> fieldsOf(TKelOutput& output, TextOf text) {
        std::vector<std::string> result;
        for (int i = 0; i < output.dataset()->numFields(); ++i) {
            result.push_back(((*output.dataset()->field(i)).*text)());
        }
        return result;
    }
};

// The measured variable stands first and is no dimension.
TEST_F(OutputsTest, EveryMeasureHasItsMethod) {
    const std::vector<std::pair<std::string, std::string>> expected = {
        {"AVERAGE PERSON.AGE", "0 2 0: PERSON.AGE"},
        {"AVERAGE PERSON.AGE BY PERSON.SEX", "0 2 1: PERSON.AGE PERSON.SEX"},
        {"MAX PERSON.AGE BY PERSON.SEX BY PERSON.URBAN",
         "0 3 2: PERSON.AGE PERSON.SEX PERSON.URBAN"},
        {"MEDIAN PERSON.AGE", "0 4 0: PERSON.AGE"},
        {"MIN PERSON.AGE BY PERSON.SEX", "0 5 1: PERSON.AGE PERSON.SEX"},
        {"SUM PERSON.AGE BY PERSON.SEX", "0 6 1: PERSON.AGE PERSON.SEX"},
        {"STATS OF PERSON.AGE", "0 7 0: PERSON.AGE"},
        {"GINI PERSON.INCOME", "0 8 0: PERSON.INCOME"},
        {"QUANTILE PERSON.AGE", "0 9 0: PERSON.AGE"},
        {"COUNT PERSON", "0 0 0:"},
        {"VIEW PERSON, PERSON.SEX", "1 0 1: PERSON.SEX"}};
    for (const auto& [program, shape] : expected) {
        EXPECT_EQ(shapeOf(outputOf(program)), shape) << program;
    }
}

TEST_F(OutputsTest, MeasuresNameTheirDimensionsInOneText) {
    TKelOutput& output = outputOf("MIN PERSON.AGE BY PERSON.SEX BY PERSON.URBAN");
    EXPECT_THAT(fieldsOf(output, &TKelField::label),
                ElementsAre("Sex <&> \"gender\"", "URBAN", "Minimum"));
    EXPECT_THAT(test::rowsOf(*output.dataset()), testing::Contains("1. Male|1|10"));
    EXPECT_THAT(test::rowsOf(*output.dataset()), testing::Contains("Total|Total|10"));
}

// Who heads a column by them must not name an entity that has nothing to do with it.
TEST_F(OutputsTest, ExpressionsAndTablesBelongToNoEntity) {
    TKelOutput& average = outputOf("AVERAGE PERSON.AGE * 2 BY PERSON.SEX");
    EXPECT_EQ(shapeOf(average), "0 2 1: [PERSON.AGE * 2] PERSON.SEX");
    EXPECT_EQ(average.variables()[0]->label(), ""); // its name says it all
    TKelOutput& list =
        outputOf("TABLE N AS COUNT PERSON\nTABLE M AS SUM PERSON.AGE\nAREALIST PROVINCE, N, M");
    EXPECT_EQ(shapeOf(list), "1 0 3: PROVINCE.PROVNAME [N] PERSON.AGE");
    EXPECT_EQ(list.variables()[1]->info(), "N, NONE");
}

TEST_F(OutputsTest, ListsTellWhichColumnsBelongTogether) {
    TKelOutput& output = outputOf("TABLE T1 AS FREQ PERSON.SEX\n"
                                  "AREALIST PROVINCE, T1, PROVINCE.PROV");
    EXPECT_EQ(shapeOf(output), "1 0 3: PROVINCE.PROVNAME PERSON.SEX PROVINCE.PROV");
    EXPECT_EQ(output.entity()->name(), "PROVINCE");
    EXPECT_THAT(fieldsOf(output, &TKelField::name),
                ElementsAre("PROVINCE.CMPCODE", "PROVINCE.PROVNAME", "1. Male", "2. Female é",
                            "T1 Total", "T1 MV", "PROVINCE.PROV"));
    EXPECT_THAT(fieldsOf(output, &TKelField::label),
                ElementsAre("Province", "PROVNAME", "Male", "Female é", "$tot$", "$mv$", "PROV"));
    const std::string table = "T1 Sex <&> \"gender\"";
    EXPECT_THAT(
        fieldsOf(output, &TKelField::format),
        ElementsAre("Province", "PROVINCE.PROVNAME", table, table, table, table, "PROVINCE.PROV"));
    EXPECT_THAT(test::rowsOf(*output.dataset()),
                ElementsAre("01|North|2|1|3|0|01", "02|South|0|1|1|1|02"));
}

// Ten columns that are all called the same would tell nothing.
TEST_F(OutputsTest, TotalsOfSeveralFiguresSayWhichTheyAre) {
    TKelOutput& output =
        outputOf("TABLE S AS STATS OF PERSON.AGE BY PERSON.SEX\nAREALIST PROVINCE, S");
    const auto labels = fieldsOf(output, &TKelField::label);
    EXPECT_THAT(labels, testing::Contains("Male Mean"));
    EXPECT_THAT(labels, testing::Contains("$tot$ Mean"));
    EXPECT_THAT(labels, testing::Contains("$tot$ Median"));
}

TEST_F(OutputsTest, TablesOfTablesAreNoFrequencies) {
    const std::string tables = "TABLE A AS FREQ PERSON.SEX\nTABLE B AS FREQ PERSON.SEX BY "
                               "PERSON.URBAN\n";
    TKelOutput& one = outputOf(tables + "TABLE C AS TABOP OF A / (A - A)");
    EXPECT_EQ(shapeOf(one), "3 0 1: PERSON.SEX");
    EXPECT_THAT(test::rowsOf(*one.dataset()),
                ElementsAre("1. Male|", "2. Female é|", "Total|", "MV|"));
    TKelOutput& two = outputOf(tables + "TABLE C AS TABOP OF B * 2");
    EXPECT_EQ(shapeOf(two), "3 0 2: PERSON.SEX PERSON.URBAN");
    EXPECT_EQ(two.dataset()->numFields(), 7);
    TKelOutput& list = outputOf(tables + "TABLE C AS TABLIST A, B");
    EXPECT_EQ(shapeOf(list), "2 0 1: PERSON.SEX");
    EXPECT_THAT(fieldsOf(list, &TKelField::name),
                ElementsAre("PERSON.SEX", "A", "B 0", "B 1", "B Total"));
    EXPECT_THAT(fieldsOf(list, &TKelField::label), testing::Contains("B Total"));
}

TEST_F(OutputsTest, WhatIsNotFiniteIsBlankInEveryForm) {
    TKelDataset& data = *outputOf("FREQ PERSON.SEX WEIGHT 1e300 * 1e300").dataset();
    EXPECT_EQ(data.stringValue(0, 3), "");
    EXPECT_EQ(data.doubleValue(0, 3), 0);
    std::pair<double, double> range(5, 5);
    data.range(range, 3);
    EXPECT_EQ(range, std::pair(0.0, 0.0));
}

TEST_F(OutputsTest, FilesWithoutFolderAreLeftToWhoWritesThem) {
    TKelOutput& output = outputOf("FREQ PERSON.SEX OUTFILE XLSX \"gone/a.xlsx\"");
    EXPECT_EQ(output.options().outputFile, (folder / "gone" / "a.xlsx").string());
    ASSERT_EQ(listener.warnings.size(), 1U);
    EXPECT_EQ(listener.warnings[0].name, "KEL_W_OUTFILE_FOLDER");
    EXPECT_THAT(listener.warnings[0].text, HasSubstr((folder / "gone").string()));
}

} // namespace
