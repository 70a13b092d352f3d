// SPDX-License-Identifier: GPL-3.0-or-later
#include "flat_fixture.h"

using testing::ElementsAre;
using testing::HasSubstr;

namespace {

std::string variable(const std::string& name, const std::string& type, int size,
                     const std::string& place, const std::string& more = "") {
    return "<variable><name>" + name + "</name>" +
           (type.empty() ? "" : "<varType>" + type + "</varType>") + "<fieldSize>" +
           std::to_string(size) + "</fieldSize>" + more + "<varWipChoice>" + place +
           "</varWipChoice></variable>";
}

std::string dictionary(const std::string& entities) {
    return "<kelDictionary_XML><general><name>D</name></general><root><name>COUNTRY</name>"
           "<label>A country</label>" +
           entities + "</root></kelDictionary_XML>";
}

class FlatTextTest : public kelx::test::FlatTest {
protected:
    void layout(const std::string& entities) {
        request.layout = folder.write("layout.dicx", dictionary(entities));
    }
    std::unique_ptr<kelx::catalog::Dictionary> importText(const std::string& text) {
        request.data = folder.write("data.txt", text);
        return import();
    }
    std::string faultOfText(const std::string& text) {
        request.data = folder.write("data.txt", text);
        return fault();
    }
    /// HOUSEHOLD in lines of type H with its district, PERSON in P, EMIGRANT in E.
    void typedLayout() {
        const std::string person =
            variable("AGE", "INTEGER", 2, "<recType>P</recType><field>1</field><start>2</start>",
                     "<range><rangeItemType>4</rangeItemType><rangeMin>0</rangeMin>"
                     "<rangeMax>90</rangeMax></range><missing>99</missing>") +
            variable("INCOME", "REAL", 5, "<recType>P</recType><field>2</field><start>4</start>",
                     "<decimals>2</decimals>");
        layout("<entity><name>DISTRICT</name><refCode>CODE</refCode>" +
               variable("CODE", "STRING", 2, "<recType>H</recType><start>2</start>") +
               "<entity><name>HOUSEHOLD</name><refCode>NUMBER</refCode>" +
               variable("NUMBER", "INTEGER", 3, "<recType>H</recType><start>4</start>") +
               variable("NAME", "STRING", 6, "<recType>H</recType><start>7</start>") +
               "<entity><name>PERSON</name>" + person + "</entity><entity><name>EMIGRANT</name>" +
               variable("YEAR", "INTEGER", 4, "<recType>E</recType><start>2</start>") +
               "</entity></entity></entity>");
    }
};

TEST_F(FlatTextTest, ReadsLinesOfSeveralTypes) {
    typedLayout();
    const auto db = importText("H01001Año 1\n"
                               "P3000150\n"
                               "P99 12.5\r\n"
                               "E2001\n"
                               "H01002\n"
                               "\n"
                               "H02001 x\n"
                               "E1999\n"
                               "P 5    7");
    EXPECT_EQ(db->root->name, "COUNTRY");
    EXPECT_EQ(db->root->label, "A country");
    EXPECT_THAT(values(*db, "DISTRICT", "CODE"), ElementsAre("01", "02"));
    EXPECT_THAT(values(*db, "HOUSEHOLD", "NUMBER"), ElementsAre("1", "2", "1"));
    EXPECT_THAT(values(*db, "HOUSEHOLD", "NAME"), ElementsAre("Año 1", "-", " x"));
    EXPECT_THAT(values(*db, "PERSON", "AGE"), ElementsAre("30", "99", "5"));
    EXPECT_THAT(values(*db, "PERSON", "INCOME"), ElementsAre("1.5", "12.5", "0.07"));
    EXPECT_THAT(values(*db, "EMIGRANT", "YEAR"), ElementsAre("2001", "1999"));
    EXPECT_THAT(children(*db, "HOUSEHOLD"), ElementsAre(2, 1));
    EXPECT_THAT(children(*db, "PERSON"), ElementsAre(2, 0, 1));
    EXPECT_THAT(children(*db, "EMIGRANT"), ElementsAre(1, 0, 1));
    EXPECT_EQ(db->findEntity("PERSON")->findVariable("AGE")->missing, 99);
    EXPECT_EQ(report.levels[2].variables[0].outside, 0u); // 99 is the missing code
}

TEST_F(FlatTextTest, RefusesWithThePlace) {
    typedLayout();
    EXPECT_EQ(faultOfText("P30\nH01001\n"),
              "data.txt:1:2: error: a record of PERSON before any of HOUSEHOLD, under which it "
              "would lie");
    EXPECT_EQ(faultOfText("H01001\nX\n"), "data.txt:2:1: error: unknown record type \"X\"");
    EXPECT_EQ(faultOfText("H01001\nP3x\n"), "data.txt:2:2: error: AGE: \"3x\" is not a number");
    EXPECT_EQ(faultOfText("H01001\nH01001\n"),
              "data.txt:2:4: error: a second row for the same record of HOUSEHOLD");
    EXPECT_EQ(faultOfText("H01001\nH02001\nH01002\n"),
              "data.txt:3:2: error: the key \"01\" of DISTRICT was there before; rows of one "
              "record must stand together");
    EXPECT_EQ(faultOfText("H01001\xff\n"), "data.txt:1:7: error: bytes that are no UTF-8");
    EXPECT_THAT(faultOfText(std::string("H01001\0", 7)), HasSubstr("1:7: error: a zero byte"));
    EXPECT_THAT(faultOfText(std::string(3 << 20, 'H')), HasSubstr("longer than 1 MiB"));

    request.tolerant = true;
    const auto db = importText("P30\nH01001\nX\nP3x\nP20\n");
    EXPECT_THAT(values(*db, "PERSON", "AGE"), ElementsAre("-", "20"));
    EXPECT_EQ(report.levels[2].orphans, 1u);
    EXPECT_EQ(report.levels[2].variables[0].faulty, 1u);
    EXPECT_EQ(report.levels.back().faultyRows, 1u);
    EXPECT_EQ(report.faults, 3u);
}

// What follows a line that is left out must not go under the record before it.
TEST_F(FlatTextTest, LinesUnderALostRecordAreOrphans) {
    typedLayout();
    request.tolerant = true;
    const auto db = importText("H01001\n"
                               "P30\n"
                               "H01\n" // no number
                               "P31\n"
                               "E2001\n"
                               "H01002\n"
                               "P32\n"
                               "H01001 again\n" // a double number stays, with its persons
                               "P33\n"
                               "H  003\n" // no district
                               "P34\n");
    EXPECT_THAT(values(*db, "HOUSEHOLD", "NUMBER"), ElementsAre("1", "2", "1"));
    EXPECT_THAT(values(*db, "PERSON", "AGE"), ElementsAre("30", "32", "33"));
    EXPECT_THAT(children(*db, "PERSON"), ElementsAre(1, 1, 1));
    EXPECT_EQ(db->findEntity("EMIGRANT")->records(), 0u);
    EXPECT_EQ(report.levels[0].duplicates, 2u);
    EXPECT_EQ(report.levels[1].duplicates, 1u);
    EXPECT_EQ(report.levels[2].orphans, 2u);
    EXPECT_EQ(report.levels[3].orphans, 1u);
}

// Without record types every line is a record of the lowest level; fields without a start follow
// each other by their numbers, and types that are not given are found.
TEST_F(FlatTextTest, ReadsLinesThatAreAllAlike) {
    layout("<entity><name>HOUSE</name><refCode>H</refCode>" +
           variable("H", "", 3, "<field>1</field>") + variable("ROOMS", "", 2, "<field>3</field>") +
           variable("ZONE", "STRING", 1, "<field>2</field>") + "<entity><name>PERSON</name>" +
           variable("AGE", "", 3, "<field>4</field><start>8</start>") + "</entity></entity>");
    const auto db = importText("001N02 030\n"
                               "001N02 7.5\n"
                               "002S11\n");
    EXPECT_THAT(values(*db, "HOUSE", "H"), ElementsAre("1", "2"));
    EXPECT_THAT(values(*db, "HOUSE", "ZONE"), ElementsAre("N", "S"));
    EXPECT_THAT(values(*db, "HOUSE", "ROOMS"), ElementsAre("2", "11"));
    EXPECT_THAT(values(*db, "PERSON", "AGE"), ElementsAre("30", "7.5", "-"));
    std::filesystem::remove_all(folder / "out");
    EXPECT_EQ(faultOfText("001N02 030\n001S02 7\n"),
              "data.txt:2:4: error: ZONE is \"S\" here, but \"N\" in line 1 for the same record of "
              "HOUSE");
    EXPECT_EQ(faultOfText("001Nzz\n"), "data.txt:1:5: error: ROOMS: \"zz\" is not a number");
}

TEST_F(FlatTextTest, RefusesLayoutsThatCannotBe) {
    const std::string house = "<entity><name>HOUSE</name>";
    for (const auto& [entities, problem] : std::vector<std::pair<std::string, std::string>>{
             {"", "no variable says where it stands"},
             {house + variable("H", "INTEGER", 0, "<start>1</start>") + "</entity>",
              "HOUSE.H: fieldSize must tell its width"},
             {house + variable("H", "INTEGER", 1, "<start>0</start>") + "</entity>",
              "is no valid start"},
             {house + variable("H", "INTEGER", 1, "<start>99999999</start>") + "</entity>",
              "no line is so long"},
             {house + variable("H", "INTEGER", 1, "<start>1</start>") + "<entity><name>P</name>" +
                  variable("A", "INTEGER", 1, "<start>2</start>") + "</entity></entity>",
              "HOUSE needs a code variable"},
             {house + variable("H", "INTEGER", 1, "<recType>A</recType>") +
                  variable("I", "INTEGER", 1, "<recType>B</recType>") + "</entity>",
              "lines of different types"},
             {house + "<entity><name>P</name>" + variable("A", "INTEGER", 1, "<start>2</start>") +
                  "</entity></entity>",
              "HOUSE has no field in the text"},
             {house + variable("H", "INTEGER", 1, "") + "</entity><entity><name>B</name>" +
                  variable("I", "INTEGER", 1, "") + "</entity>",
              "one must lie under the other"}}) {
        layout(entities);
        EXPECT_THAT(faultOfText("1\n"), HasSubstr("layout.dicx: ")) << problem;
        EXPECT_THAT(faultOfText("1\n"), HasSubstr(problem));
    }
}

} // namespace
