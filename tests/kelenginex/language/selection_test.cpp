// SPDX-License-Identifier: GPL-3.0-or-later
#include "fixture.h"

#include <gtest/gtest.h>

namespace kelx::language {

namespace {

std::string areas(const BoundProgram& program) {
    if (!program.lastSettings->selection)
        return "none";
    const AreaSelection& selection = *program.lastSettings->selection;
    std::string result = "[" + selection.label + "]";
    for (const AreaSelection::Area& area : selection.areas)
        result += " " + area.entity->name + "=" + area.code;
    return result + (selection.expression != nullptr ? " " + shape(*selection.expression) : "");
}

const char* const file = "{\"typeFile\": \"selection\", \"label\": \"North\", \"selections\": ["
                         "{\"entity\": \"district\", \"codes\": [\"0101\", \"0102\"]},"
                         "{\"entity\": \"PROVINCE\", \"codes\": [\"03\"]}]}";

} // namespace

TEST(Selection, ReadsAFile) {
    Census census;
    census.write("n_sel.json", file);
    std::filesystem::create_directory(census.options.baseFolder / "sub");
    census.write("sub/n_sel.json", file);
    const std::string expected = "[North] DISTRICT=0101 DISTRICT=0102 PROVINCE=03";
    for (const char* name : {"n_sel.json", "sub/n_sel.json", "sub\\n_sel.json"}) {
        const BoundProgram program =
            census.compile("RUNDEF \nSELECTION  \"" + std::string(name) + "\"\n\nFREQ SEX2\n");
        EXPECT_EQ(told(census.messages), "") << name;
        EXPECT_EQ(areas(program), expected) << name;
    }
    const std::string absolute = (census.options.baseFolder / "n_sel.json").string();
    EXPECT_EQ(areas(census.compile("RUNDEF SELECTION \"" + absolute + "\" SELECTIONLABEL South")),
              "[South] DISTRICT=0101 DISTRICT=0102 PROVINCE=03");
    census.write("all_sel.json", "{\"selections\": []}");
    EXPECT_EQ(areas(census.compile("RUNDEF SELECTION \"all_sel.json\"")), "[]");
    EXPECT_EQ(told(census.messages), "");
}

TEST(Selection, GoesByItsCodesWhereItHasNoLabel) {
    Census census;
    const auto labelOf = [&](const std::string& codes) {
        census.write("s_sel.json", "{\"label\": \"\", \"selections\": [{\"entity\": \"DISTRICT\", "
                                   "\"codes\": [" +
                                       codes + "]}]}");
        return census.compile("RUNDEF SELECTION \"s_sel.json\" SELECTIONLABEL \"\"")
            .lastSettings->selection->label;
    };
    EXPECT_EQ(labelOf("\"0101\", \"0102\""), "0101, 0102");
    EXPECT_EQ(labelOf("\"1\",\"2\",\"3\",\"4\",\"5\",\"6\",\"7\",\"8\",\"9\",\"10\",\"11\",\"12\""),
              "1, 2, 3, 4, 5, 6, 7, 8, 9, 10 and 2 more");
    EXPECT_EQ(labelOf(""), ""); // all areas
}

TEST(Selection, TellsWhatIsWrongWithAFile) {
    struct Bad {
        const char* content;
        const char* problem;
    };
    const Bad cases[] = {
        {"", "is no JSON: the fault is at byte 1."},
        {"{\"selections\": [}", "is no JSON: the fault is at byte 17."},
        {"[1, 2]", "has no list \"selections\"."},
        {"{\"selections\": {}}", "has no list \"selections\"."},
        {"{\"selections\": [], \"label\": 7}", "has a label that is not a text in quotes."},
        {"{\"selections\": [3]}", "has a selection without \"entity\" and \"codes\"."},
        {"{\"selections\": [{\"entity\": \"PROVINCE\", \"codes\": \"03\"}]}",
         "has \"codes\" of PROVINCE that are not a list."},
        {"{\"selections\": [{\"entity\": \"PROVINCE\", \"codes\": [3]}]}",
         "has a code of PROVINCE that is not a text in quotes."},
        {"{\"selections\": [{\"entity\": \"STATE\", \"codes\": [\"3\"]}]}",
         "names the entity \"STATE\", which the dictionary does not have."},
        {"[[[[[[[[[[[[", "is nested too deeply to be a selection."},
        {"{\"label\": \"\xe9\", \"selections\": []}", "is no JSON: the fault is at byte 13."},
    };
    Census census;
    for (const Bad& bad : cases) {
        census.write("x_sel.json", bad.content);
        census.compile("RUNDEF\n  SELECTION \"x_sel.json\"\nFREQ SEX2");
        EXPECT_EQ(told(census.messages),
                  "KEL_E_SELECTION_FILE 2:13 The selection file \"x_sel.json\" " +
                      std::string(bad.problem) + "\n");
    }
    census.compile("RUNDEF SELECTION \"nowhere.json\"");
    EXPECT_EQ(told(census.messages),
              "KEL_E_SELECTION_FILE 1:18 The selection file \"nowhere.json\" does not exist.\n");
    census.compile("RUNDEF SELECTION \".\"");
    EXPECT_EQ(told(census.messages),
              "KEL_E_SELECTION_FILE 1:18 The selection file \".\" is not a file.\n");
    census.write("n_sel.json", "{\"selections\": [{\"entity\": \"NATION\", \"codes\": [\"3\"]}]}");
    census.compile("RUNDEF SELECTION \"n_sel.json\"");
    EXPECT_EQ(located(census.messages), "KEL_E_NO_CODE 1:18\n");
}

TEST(Selection, TakesAreasFromTheProgram) {
    Census census;
    EXPECT_EQ(areas(census.compile("RUNDEF SELECTION INLINE province \"01\" \"One\" DISTRICT "
                                   "\"0201\"\n TITLE \"x\" FREQ SEX2")),
              "[One, 0201] PROVINCE=01 DISTRICT=0201");
    EXPECT_EQ(told(census.messages), "");
    EXPECT_EQ(areas(census.compile("RUNDEF SELECTION INLINE PROVINCE 3")), "[]");
    EXPECT_EQ(told(census.messages),
              "KEL_E_UNEXPECTED 1:34 Found the number 3, but expected the compound code of an area "
              "of PROVINCE in quotes.\n");
    census.compile("RUNDEF SELECTION INLINE PROVINCES \"1\"");
    EXPECT_EQ(told(census.messages), "KEL_E_UNKNOWN_ENTITY 1:25 There is no entity \"PROVINCES\"."
                                     " Did you mean PROVINCE?\n");
    census.compile("RUNDEF SELECTION INLINE NATION \"1\"");
    EXPECT_EQ(located(census.messages), "KEL_E_NO_CODE 1:25\n");
    census.compile("RUNDEF SELECTION INLINE\nTITLE \"x\"");
    EXPECT_EQ(located(census.messages), "KEL_E_UNEXPECTED 2:1\n");
}

TEST(Selection, TakesAnExpression) {
    Census census;
    EXPECT_EQ(areas(census.compile("RUNDEF\n\tselection\n\t(province == \"03\" or \n"
                                   "district == \"0402\") and person.age >= 5\nFREQ SEX2")),
              "[(province == \"03\" or district == \"0402\") and person.age >= 5]"
              " (((code PROVINCE = '03') OR (code DISTRICT = '0402')) AND (PERSON.AGE >= 5))");
    EXPECT_EQ(told(census.messages), "");
}

TEST(Selection, WarnsWhereNothingCanBeSelected) {
    Census census;
    census.compile("RUNDEF\nSELECTION INLINE DISTRICT \"0101\"\n"
                   "FREQ PROVINCE.NAME, PROVINCE.CODE FREQ SEX2");
    EXPECT_EQ(told(census.messages),
              "KEL_W_SELECTION_BELOW 2:11 The selection lists DISTRICT only: no PROVINCE can be "
              "selected by it.\n");
}

} // namespace kelx::language
