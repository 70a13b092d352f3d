// SPDX-License-Identifier: GPL-3.0-or-later
#include "flat_fixture.h"
#include "import/csv_importer.h"

using kelx::storage::ValueType;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

namespace {

namespace tools = kelx::tools;

const char* const census = "Prov,prov name,hh,size,age,sex,income,note\n"
                           "01,North,1,2,30,1,1.25,a\n"
                           "01,North,1,2,28,2,,\n"
                           "01,North,2,1,7,1,0.5,\"x, y\"\n"
                           "02,South,1,1,,2,10,\n";

class FlatCsvTest : public kelx::test::FlatTest {
protected:
    FlatCsvTest() { request.levels = "PROVINCE:prov:PROV_NAME, HOUSEHOLD:hh, PERSON"; }
};

TEST_F(FlatCsvTest, FindsLevelsAndTypes) {
    const auto db = importOf(census);
    EXPECT_THAT(values(*db, "PROVINCE", "PROV"), ElementsAre("01", "02"));
    EXPECT_THAT(values(*db, "PROVINCE", "PROV_NAME"), ElementsAre("North", "South"));
    EXPECT_THAT(values(*db, "HOUSEHOLD", "HH"), ElementsAre("1", "2", "1"));
    EXPECT_THAT(values(*db, "HOUSEHOLD", "SIZE"), ElementsAre("2", "1", "1"));
    EXPECT_THAT(values(*db, "PERSON", "AGE"), ElementsAre("30", "28", "7", "-"));
    EXPECT_THAT(values(*db, "PERSON", "INCOME"), ElementsAre("1.25", "-", "0.5", "10"));
    EXPECT_THAT(values(*db, "PERSON", "NOTE"), ElementsAre("a", "-", "x, y", "-"));
    EXPECT_THAT(children(*db, "PROVINCE"), ElementsAre(2));
    EXPECT_THAT(children(*db, "HOUSEHOLD"), ElementsAre(2, 1));
    EXPECT_THAT(children(*db, "PERSON"), ElementsAre(2, 1, 1));

    const kelx::catalog::Entity* province = db->findEntity("PROVINCE");
    ASSERT_NE(province->codeVar, nullptr);
    EXPECT_EQ(province->codeVar->name, "PROV");
    EXPECT_EQ(province->codeVar->type, ValueType::String);
    EXPECT_EQ(province->labelVar->name, "PROV_NAME");
    EXPECT_EQ(db->findEntity("PERSON")->findVariable("INCOME")->type, ValueType::Real);
    EXPECT_EQ(db->findEntity("PERSON")->findVariable("INCOME")->decimals, 2);
    EXPECT_EQ(db->root->name, "DATABASE");

    EXPECT_THAT(report.notes, ElementsAre("\"prov name\" is named PROV_NAME"));
    EXPECT_EQ(report.faults, 0u);
    ASSERT_EQ(report.levels.size(), 3u);
    EXPECT_EQ(report.levels[2].records, 4u);
    EXPECT_EQ(report.levels[2].variables[0].name, "AGE");
    EXPECT_EQ(report.levels[2].variables[0].blanks, 1u);
}

TEST_F(FlatCsvTest, KeepsEveryValueThatATypeMustHold) {
    request.levels = "R";
    const auto db = importOf("a,b,c,d,e,f\n"
                             "9223372036854775807,1,007,,1,5\n"
                             "0,0.5,8,,x,+5\n");
    EXPECT_THAT(values(*db, "R", "A"), ElementsAre("9223372036854775807", "0"));
    EXPECT_THAT(values(*db, "R", "B"), ElementsAre("1", "0.5"));
    EXPECT_THAT(values(*db, "R", "C"), ElementsAre("007", "8"));
    EXPECT_THAT(values(*db, "R", "D"), ElementsAre("-", "-"));
    EXPECT_THAT(values(*db, "R", "E"), ElementsAre("1", "x"));
    EXPECT_THAT(values(*db, "R", "F"), ElementsAre("5", "+5"));
}

// Values that a narrower type would merge stay apart, and the report says why.
TEST_F(FlatCsvTest, NumbersThatCannotBeHeldAreTexts) {
    request.levels = "H:h,R";
    auto db = importOf("h,a,b,c,d,e\n"
                       "12345678901234567890,9007199254740993,0.5,-9223372036854775808,1,1e3\n"
                       "12345678901234567890,9007199254740992,1,9223372036854775807,2,2\n"
                       "12345678901234567891,0.5,1,3,1e400,5\n");
    EXPECT_THAT(values(*db, "H", "H"), ElementsAre("12345678901234567890", "12345678901234567891"));
    EXPECT_THAT(values(*db, "R", "A"), ElementsAre("9007199254740993", "9007199254740992", "0.5"));
    EXPECT_THAT(values(*db, "R", "B"), ElementsAre("0.5", "1", "1"));
    EXPECT_THAT(values(*db, "R", "C"),
                ElementsAre("-9223372036854775808", "9223372036854775807", "3"));
    EXPECT_THAT(values(*db, "R", "D"), ElementsAre("1", "2", "1e400"));
    EXPECT_EQ(db->findEntity("R")->findVariable("E")->type, ValueType::Real);
    EXPECT_THAT(
        report.notes,
        ElementsAre(
            "H is STRING: \"12345678901234567890\" in line 2, column 1 is a whole number "
            "beyond 64 bits",
            "A is STRING: \"9007199254740993\" in line 2, column 22 cannot be told from its "
            "neighbours beside numbers that are not whole",
            "C is STRING: \"9223372036854775807\" in line 3, column 41 lies too far from "
            "the other values",
            "D is STRING: \"1e400\" in line 4, column 30 is beyond the numbers that can be "
            "held"));

    db = importOf("h,a,b,c\n0.5,1,7,x\n0.50,nan,8,1\n0.5000,\"3,5\",09,y\n1,4,10,z\n");
    EXPECT_THAT(values(*db, "H", "H"), ElementsAre("0.5", "0.50", "0.5000", "1"));
    EXPECT_THAT(report.notes,
                ElementsAre("H is STRING: \"0.5\" in line 2, column 1 is a key that is no whole "
                            "number",
                            "B is STRING: \"09\" in line 4, column 14 has zeros in front"));
    db = importOf("h,a\n1,1\n2,2\n3,3\n4,\"3,5\"\n5,nan\n");
    EXPECT_THAT(report.notes, ElementsAre("A is STRING: \"3,5\" in line 5, column 3 is no number"));
    request.levels = "R";
    request.codebook = folder.write("book.csv", "level,field,type,code,label,is_missing\n"
                                                "R,a,integer,,,\n");
    std::filesystem::remove_all(folder / "out");
    request.tolerant = true;
    EXPECT_EQ(faultOf("a\n-9223372036854775808\n9223372036854775807\n"),
              "flat.csv:3:1: error: A: \"9223372036854775807\" lies too far from the other values "
              "to be held");
}

TEST_F(FlatCsvTest, AWeightIsANumber) {
    request.weight = "note";
    EXPECT_EQ(faultOf(census),
              "flat.csv:2:24: error: NOTE cannot be the weight: \"a\" is no number");
    request.weight = "size";
    request.codebook = folder.write("book.csv", "level,field,type,code,label,is_missing\n"
                                                "person,size,text,,,\n");
    EXPECT_EQ(faultOf(census), "SIZE cannot be the weight, since it holds texts.");
}

TEST_F(FlatCsvTest, LevelsMayBeGiven) {
    request.places = {{"sex", "HOUSEHOLD"}};
    EXPECT_EQ(faultOf(census), "flat.csv:3:17: error: SEX is \"2\" here, but \"1\" in line 2 for "
                               "the same record of HOUSEHOLD");
    request.places = {{"sex", "NOWHERE"}};
    EXPECT_EQ(faultOf(census), "NOWHERE is none of the levels.");
    request.places = {{"prov", "PERSON"}};
    EXPECT_EQ(faultOf(census), "The field PROV belongs to PROVINCE, not to PERSON.");
    request.places = {{"size", "PERSON"}};
    request.weight = "income";
    const auto db = importOf(census);
    EXPECT_THAT(values(*db, "PERSON", "SIZE"), ElementsAre("2", "2", "1", "1"));
    EXPECT_EQ(db->findEntity("PERSON")->weightVar->name, "INCOME");
}

TEST_F(FlatCsvTest, ACodebookGivesTypesAndLabels) {
    request.codebook = folder.write("book.csv", "level,field,type,code,label,is_missing\n"
                                                "country,,root,,The country,\n"
                                                "province,,,,A province,\n"
                                                "province,prov,key text(2),,Code,\n"
                                                "household,hh,key integer,,,\n"
                                                "household,size,integer,,Members,\n"
                                                "person,sex,code,1,Male,\n"
                                                "person,age,integer,99,Unknown,missing\n");
    request.levels.clear();
    request.data = folder / "none.csv";
    EXPECT_EQ(fault(), "none.csv: cannot be opened");
    const auto db = importOf(census);
    EXPECT_EQ(db->root->name, "COUNTRY");
    EXPECT_EQ(db->root->label, "The country");
    EXPECT_EQ(db->findEntity("PROVINCE")->label, "A province");
    const auto* sex = db->findEntity("PERSON")->findVariable("SEX");
    EXPECT_THAT(sex->valueLabels, ElementsAre(std::pair("1", "Male")));
    EXPECT_EQ(db->findEntity("PERSON")->findVariable("AGE")->missing, 99);
    const auto& person = report.levels[2].variables;
    const auto told = std::find_if(person.begin(), person.end(),
                                   [](const auto& variable) { return variable.name == "SEX"; });
    EXPECT_EQ(told->outside, 2u);
    std::filesystem::remove_all(folder / "out");
    EXPECT_EQ(faultOf("prov,hh,size,sex,age\n01,1,2,1,x\n"),
              "flat.csv:2:10: error: AGE: \"x\" is not a number");
    EXPECT_EQ(faultOf("prov,hh,size,sex,age\n1,1,2,1,2\n"),
              "flat.csv:2:1: error: PROV: \"1\" has 1 character, not 2");
    EXPECT_EQ(faultOf("prov,hh,size,sex\n01,1,2,1\n"),
              "There is no field \"AGE\" in the file, which has PROV, HH, SIZE, SEX.");
}

TEST_F(FlatCsvTest, RowsWithoutALowerKeySpeakOfTheLevelsAbove) {
    request.levels = "HOUSE:h,PERSON:p";
    const auto db = importOf("h,rooms,p,age\n1,3,1,30\n1,3,2,31\n2,5,,\n3,1,1,7\n");
    EXPECT_THAT(values(*db, "HOUSE", "ROOMS"), ElementsAre("3", "5", "1"));
    EXPECT_THAT(values(*db, "PERSON", "AGE"), ElementsAre("30", "31", "7"));
    EXPECT_THAT(children(*db, "PERSON"), ElementsAre(2, 0, 1));
    std::filesystem::remove_all(folder / "out");
    EXPECT_EQ(faultOf("h,rooms,p,age\n1,3,1,30\n1,3,2,31\n2,5,,40\n"),
              "flat.csv:4:5: error: the key of PERSON is blank");
    EXPECT_EQ(faultOf("h,rooms,p,age\n,3,1,30\n"),
              "flat.csv:2:1: error: the key of HOUSE is blank");
    EXPECT_EQ(faultOf("h,rooms,p,age\n1,3,,\n1,3,,\n"),
              "flat.csv:3:1: error: a second row for the same record of HOUSE");
}

TEST_F(FlatCsvTest, RefusesRowsOutOfPlace) {
    request.levels = "HOUSE:h,PERSON:p";
    EXPECT_EQ(faultOf("h,p\n1,1\n2,1\n1,2\n"),
              "flat.csv:4:1: error: the key \"1\" of HOUSE was there before; rows of one record "
              "must stand together");
    EXPECT_EQ(faultOf("h,p\n1,1\n1,2\n1,1\n"),
              "flat.csv:4:3: error: the key \"1\" of PERSON was there before under the same record "
              "above");
    EXPECT_EQ(faultOf("h,p\n1,1\n1\n"), "flat.csv:3:2: error: expected 2 fields, found 1");
    EXPECT_EQ(faultOf("h,p\n1,\"1\n"), "flat.csv:2:3: error: this quote is never closed");
    EXPECT_EQ(faultOf(""), "flat.csv:1:1: error: the file has no header");
}

TEST_F(FlatCsvTest, CountsWhatItTolerates) {
    request.levels = "HOUSE:h,PERSON:p";
    request.places = {{"rooms", "HOUSE"}};
    request.tolerant = true;
    const auto db = importOf("h,rooms,p,age\n"
                             "1,3,1,30\n"
                             "1,4,2,31\n" // other rooms
                             "1,3,2,99\n" // the same person again
                             "2,5,1\n"    // too short
                             "2,5,,40\n"  // an age of nobody
                             "2,5,3,41\n"
                             "3,1,1,7\n"
                             "1,6,9,8\n"); // the first house again
    EXPECT_THAT(values(*db, "HOUSE", "H"), ElementsAre("1", "2", "3", "1"));
    EXPECT_THAT(values(*db, "HOUSE", "ROOMS"), ElementsAre("3", "5", "1", "6"));
    EXPECT_THAT(values(*db, "PERSON", "AGE"), ElementsAre("30", "31", "41", "7", "8"));
    EXPECT_THAT(children(*db, "PERSON"), ElementsAre(2, 1, 1, 1));
    EXPECT_EQ(report.levels[0].duplicates, 1u);
    EXPECT_EQ(report.levels[0].variables[1].conflicts, 1u);
    EXPECT_EQ(report.levels[1].duplicates, 2u);
    EXPECT_EQ(report.levels[1].faultyRows, 1u);
    EXPECT_EQ(report.faults, 5u);
    std::vector<std::string> first;
    for (const std::string& text : report.firstFaults)
        first.push_back(cut(text));
    EXPECT_THAT(first, testing::UnorderedElementsAre(
                           testing::StartsWith("flat.csv:3:3: error: ROOMS is \"4\" here"),
                           "flat.csv:4:5: error: a second row for the same record of PERSON",
                           testing::StartsWith("flat.csv:5:6: error: expected 4 fields"),
                           "flat.csv:6:5: error: the key of PERSON is blank",
                           testing::StartsWith("flat.csv:9:1: error: the key \"1\" of HOUSE")));
}

TEST_F(FlatCsvTest, RefusesWishesThatCannotBe) {
    for (const auto& [levels, problem] : std::vector<std::pair<std::string, std::string>>{
             {"A:h,B,C", "The level B needs a key"},
             {"A:h,A", "given twice"},
             {"A:h,B:h", "cannot serve two levels"},
             {"A:x,B", "There is no field \"x\""},
             {"A:b:c:d", "is no level"},
             {"A:h,,B", "is no level"},
             {"DATABASE", "The root DATABASE must not be a level too"}}) {
        request.levels = levels;
        EXPECT_THAT(faultOf("h,p\n1,2\n"), HasSubstr(problem)) << levels;
    }
}

TEST_F(FlatCsvTest, AnEmptyFileHasNoRecords) {
    request.levels = "HOUSE:h,PERSON";
    const auto db = importOf("h,p\n");
    EXPECT_THAT(children(*db, "HOUSE"), ElementsAre(0));
    EXPECT_THAT(children(*db, "PERSON"), IsEmpty());
}

// More than a block of records, under a progress that ends the second attempt half-way.
TEST_F(FlatCsvTest, StreamsAndLeavesNothingWhenItIsEnded) {
    std::string text = "h,size,p,x\n";
    for (int h = 0; h < 50000; ++h)
        for (int p = 0; p < 3; ++p)
            text += std::to_string(h) + "," + std::to_string(h % 7) + "," + std::to_string(p) +
                    "," + std::to_string(h + p) + "\n";
    request.levels = "HOUSE:h,PERSON:p";
    std::uint64_t done = 0;
    std::uint64_t all = 0;
    request.progress = [&](std::uint64_t now, std::uint64_t total) {
        EXPECT_GE(now, done);
        done = now;
        all = total;
    };
    const auto db = importOf(text);
    EXPECT_EQ(done, 2 * text.size());
    EXPECT_EQ(all, 2 * text.size());
    EXPECT_EQ(db->findEntity("PERSON")->records(), 150000u);
    EXPECT_EQ(values(*db, "PERSON", "X").at(149999), "50001");
    EXPECT_EQ(values(*db, "HOUSE", "SIZE").at(49999), std::to_string(49999 % 7));
    std::filesystem::remove_all(folder / "out");
    request.progress = [&](std::uint64_t now, std::uint64_t total) {
        if (now > total * 3 / 4)
            throw std::runtime_error("enough");
    };
    EXPECT_EQ(fault(), "enough");
}

// The same tolerance for one file for each level.
TEST_F(FlatCsvTest, LevelFilesAreToleratedToo) {
    tools::ImportRequest levels;
    levels.database = folder / "out/db.kxdb";
    levels.codebook = folder.write("book.csv", "level,field,type,code,label,is_missing\n"
                                               "town,code,key integer,,,\n"
                                               "home,town,parent key,,,\n"
                                               "home,id,key integer,,,\n"
                                               "home,rooms,integer,,,\n");
    levels.levels = {{"town", folder.write("town.csv", "code\n1\n2\n1\n\n")},
                     {"home", folder.write("home.csv", "town,id,rooms\n"
                                                       "2,1,3\n"
                                                       "9,1,4\n" // no such town
                                                       "1,1,x\n" // no number
                                                       "1,1,5\n" // that home again
                                                       "2,2\n"   // too short
                                                       ",3,1\n"  // no town
                                                       "2,3,6\n")}};
    EXPECT_THROW(tools::importCsv(levels), tools::LocatedError);
    levels.tolerant = true;
    report = tools::importCsv(levels);
    const auto db = kelx::catalog::readDictionary(levels.database, {});
    EXPECT_THAT(values(*db, "TOWN", "CODE"), ElementsAre("1", "2"));
    EXPECT_THAT(values(*db, "HOME", "ROOMS"), ElementsAre("-", "3", "6"));
    EXPECT_THAT(children(*db, "HOME"), ElementsAre(1, 2));
    EXPECT_EQ(report.levels[0].duplicates, 1u);
    EXPECT_EQ(report.levels[1].orphans, 2u);
    EXPECT_EQ(report.levels[1].duplicates, 1u);
    EXPECT_EQ(report.levels[1].faultyRows, 1u);
    EXPECT_EQ(report.levels[1].variables[1].faulty, 1u);
    EXPECT_EQ(report.faults, 6u);
}

} // namespace
