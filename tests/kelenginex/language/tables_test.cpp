// SPDX-License-Identifier: GPL-3.0-or-later
// Measures, TABOP and TABLIST, as written and with their blanks simplified, as assistants read
// them.
#include "expect_tables.h"
#include "fixture.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sys/stat.h>

namespace kelx::language {

struct Good {
    const char* program;
    const char* tables;
};

class GoodTables : public ::testing::TestWithParam<Good> {};

TEST_P(GoodTables, BindAsWritten) {
    expectTables(GetParam().program, GetParam().tables);
}

INSTANTIATE_TEST_SUITE_P(
    QuickTools, GoodTables,
    ::testing::Values(
        Good{"AVERAGE PERSON.AGE\nTITLE \"Average of PERSON.AGE\"\n",
             "AVERAGE_1 PERSON: AVERAGE PERSON.AGE title Average of PERSON.AGE\n"},
        Good{"RUNDEF \nNOWEIGHT \n\nMAX PERSON.AGE BY PROVINCE.CODE BY PERSON.SEX\nTITLE \"a\"\n"
             "RUNDEF \nNOWEIGHT \n\nMIN HOUSEHOLD.RENT BY PERSON.SEX\nTALLY PERSON.AGE\nTITLE "
             "\"b\"\n",
             "MAX_1 PERSON: MAX PERSON.AGE BY PROVINCE.CODE BY PERSON.SEX title a\n"
             "MIN_1 PERSON: MIN HOUSEHOLD.RENT BY PERSON.SEX tally PERSON.AGE title b\n"},
        Good{"STATS PERSON.AGE, HOUSEHOLD.ROOMS\nTITLE \"s\"\n",
             "STATS_1 PERSON: STATS PERSON.AGE title s\n"
             "STATS_2 HOUSEHOLD: STATS HOUSEHOLD.ROOMS title s\n"},
        // The area comes first in all tools' texts, also where it is not what is measured.
        Good{"STATS PROVINCE.CODE BY PERSON.AGE, HOUSEHOLD.RENT\nTITLE \"s\"\n",
             "STATS_1 PERSON: STATS PERSON.AGE BY PROVINCE.CODE title s\n"
             "STATS_2 HOUSEHOLD: STATS HOUSEHOLD.RENT BY PROVINCE.CODE title s\n"}));

INSTANTIATE_TEST_SUITE_P(
    Assistants, GoodTables,
    ::testing::Values(
        Good{"table xN1 average person.age\n\tby person.sex\n\tweight household.weight\n\ttally "
             "person.sex2\n\tdecimals 2\n\ttitle \"t\"\n\tfilter person.age > 5\n\toutgraph bmp "
             "\"a.bmp\" horizontal bar overwrite\n\tgraphstyle \"g\"\n\tmapstyle "
             "\"m\"\n\ttablestyle \"t\"\n\n",
             "xN1 PERSON: AVERAGE PERSON.AGE BY PERSON.SEX weight HOUSEHOLD.WEIGHT tally "
             "PERSON.SEX2 filter (PERSON.AGE > 5) title t decimals 2\n"},
        Good{"table xN1 gini household.rent\n\tweight household.weight\n",
             "xN1 HOUSEHOLD: GINI HOUSEHOLD.RENT weight HOUSEHOLD.WEIGHT\n"},
        Good{"table x as stats\n\tof household.rent\n\tby household.rooms\n\n\ntable y as "
             "quantile\n\tof person.age\n\tby person.sex\n\tby person.grp\n",
             "x HOUSEHOLD: STATS HOUSEHOLD.RENT BY HOUSEHOLD.ROOMS\n"
             "y PERSON: QUANTILE 4 PERSON.AGE BY PERSON.SEX BY PERSON.GRP\n"},
        Good{"table A as freq person.sex\n\ntable B as sum person.age\n\tby person.sex\n\n"
             "table x as tabop \n\tof B / A * 100\n\tdecimals 1\n\n",
             "A PERSON: PERSON.SEX silent\nB PERSON: SUM PERSON.AGE BY PERSON.SEX silent\n"
             "x -: TABOP ((#1 / #0) * 100) of #1 #0 decimals 1\n"},
        Good{"table A as freq person.sex\n\ntable B as freq person.sex\n\tby person.grp\n\n"
             "table x as tablist\nA,\nB\n\ttitle \"t\"\n\n",
             "A PERSON: PERSON.SEX silent\nB PERSON: PERSON.SEX BY PERSON.GRP silent\n"
             "x -: TABLIST #0 #1 title t\n"},
        Good{"table x as freq person.sex\n\tsort desc person.sex\n",
             "x PERSON: PERSON.SEX sort person.sex desc\n"}));

INSTANTIATE_TEST_SUITE_P(
    Language, GoodTables,
    ::testing::Values(
        Good{"MEDIAN OF AGE, ROOMS BY GRP, WORKS",
             "MEDIAN_1 PERSON: MEDIAN PERSON.AGE BY PERSON.GRP\n"
             "MEDIAN_2 PERSON: MEDIAN PERSON.AGE BY PERSON.WORKS\n"
             "MEDIAN_3 PERSON: MEDIAN HOUSEHOLD.ROOMS BY PERSON.GRP\n"
             "MEDIAN_4 PERSON: MEDIAN HOUSEHOLD.ROOMS BY PERSON.WORKS\n"},
        Good{"SUM RENT / ROOMS + 1 AVERAGE (AGE > 64) BY SEX2 MAXIMUM DEATH.* BY CAUSE",
             "SUM_1 HOUSEHOLD: SUM ((HOUSEHOLD.RENT / HOUSEHOLD.ROOMS) + 1)\n"
             "AVERAGE_1 PERSON: AVERAGE (PERSON.AGE > 64) BY PERSON.SEX2\n"
             "MAX_1 DEATH: MAX DEATH.SEX BY DEATH.CAUSE\n"
             "MAX_2 DEATH: MAX DEATH.CAUSE BY DEATH.CAUSE\n"},
        Good{"QUANTILE 10 RENT QUANTILE 5 OF AGE BY SEX2 QUANTILE 2 * AGE QUANTILE 3 (AGE)",
             "QUANTILE_1 HOUSEHOLD: QUANTILE 10 HOUSEHOLD.RENT\n"
             "QUANTILE_2 PERSON: QUANTILE 5 PERSON.AGE BY PERSON.SEX2\n"
             "QUANTILE_3 PERSON: QUANTILE 4 (2 * PERSON.AGE)\n"
             "QUANTILE_4 PERSON: QUANTILE 3 PERSON.AGE\n"},
        Good{"TABLE t STATS TITLE \"x\" BY SEX2 OF AGE DECIMALS 1\nSUM 1 BY ROOMS",
             "t PERSON: STATS PERSON.AGE BY PERSON.SEX2 title x decimals 1\n"
             "SUM_1 HOUSEHOLD: SUM 1 BY HOUSEHOLD.ROOMS\n"},
        // Words of the language as names, where what follows tells.
        Good{"TABLE sum AS SUM AGE BY SEX2 TABLE freq AVERAGE AGE BY SEX2 TABLE view VIEW NATION\n"
             "TABLE max AS MAX AGE BY SEX2 TABLE title TABLIST sum, freq,\nmax SORT DESC freq 2 10",
             "sum PERSON: SUM PERSON.AGE BY PERSON.SEX2 silent\n"
             "freq PERSON: AVERAGE PERSON.AGE BY PERSON.SEX2 silent\n"
             "view NATION: VIEW\nmax PERSON: MAX PERSON.AGE BY PERSON.SEX2 silent\n"
             "title -: TABLIST #0 #1 #3 sort freq/2 desc limit 10\n"},
        Good{"TABLE a FREQ AGE TABLE b FREQ AGE TABLE c TABOP -(a + 1.5) * 2 / b TABLE d TABOP c - "
             "a\n"
             "TABLE e TABLIST d, a SORT AGE",
             "a PERSON: PERSON.AGE silent\nb PERSON: PERSON.AGE silent\n"
             "c -: TABOP ((-((#0 + real 1.5)) * 2) / #1) of #0 #1 silent\n"
             "d -: TABOP (#2 - #0) of #2 #0 silent\ne -: TABLIST #3 #0 sort AGE\n"}));

TEST(Tables, AreSortedByWordsOfTheLanguageToo) {
    Census census;
    census.options.autoWeight = false;
    EXPECT_EQ(summary(census.compile("FREQ SEX2 SORT DESC\nAVERAGE AGE SORT 5\n"
                                     "STATS AGE BY SEX2 BY GRP SORT ASC \"Mean\" 0\n"
                                     "MEDIAN AGE BY SEX2 SORT median 3 TITLE \"t\"\n"
                                     "COUNT PERSON SORT sum")),
              "FREQ_1 PERSON: PERSON.SEX2 sort  desc\n"
              "AVERAGE_1 PERSON: AVERAGE PERSON.AGE sort  limit 5\n"
              "STATS_1 PERSON: STATS PERSON.AGE BY PERSON.SEX2 BY PERSON.GRP sort Mean\n"
              "MEDIAN_1 PERSON: MEDIAN PERSON.AGE BY PERSON.SEX2 title t sort median limit 3\n"
              "COUNT_1 PERSON:\n");
    EXPECT_EQ(told(census.messages), "");
}

TEST(Tables, AreKeptWhereAFileOrTheConfigurationWantsThem) {
    Census census;
    census.options.autoWeight = false;
    const std::string program =
        "TABLE a FREQ AGE SAVE \"a\"\nTABLE b FREQ AGE OUTGRAPH \"b.bmp\" pie\n"
        "TABLE c FREQ AGE OUTFILE \"c.pdf\"\nTABLE d FREQ AGE\n"
        "TABLE e TABOP a + b + c + d";
    EXPECT_EQ(summary(census.compile(program)),
              "a PERSON: PERSON.AGE\nb PERSON: PERSON.AGE\nc PERSON: PERSON.AGE\n"
              "d PERSON: PERSON.AGE silent\ne -: TABOP (((#0 + #1) + #2) + #3) of #0 #1 #2 #3\n");
    census.options.showIntermediate = true;
    const BoundProgram shown = census.compile(program);
    EXPECT_TRUE(shown.tables[3].isOutput);
}

TEST(Tables, TakeTheAutomaticWeightForMeasures) {
    Census census;
    EXPECT_EQ(summary(census.compile("QUANTILE AGE BY SEX2\nMEDIAN ROOMS\nVIEW PERSON, AGE\n"
                                     "AVERAGE AGE WEIGHT WEIGHT2 TALLY ROOMS")),
              "QUANTILE_1 PERSON: QUANTILE 4 PERSON.AGE BY PERSON.SEX2 weight HOUSEHOLD.WEIGHT\n"
              "MEDIAN_1 HOUSEHOLD: MEDIAN HOUSEHOLD.ROOMS weight HOUSEHOLD.WEIGHT\n"
              "VIEW_1 PERSON: VIEW PERSON.AGE\n"
              "AVERAGE_1 PERSON: AVERAGE PERSON.AGE weight PERSON.WEIGHT2 tally HOUSEHOLD.ROOMS\n");
    EXPECT_EQ(told(census.messages), "");
}

TEST(Tables, ProtectTheFewAsTheMostCarefulOfTheirParts) {
    Census census;
    census.options.autoWeight = false;
    census.variable("PERSON", "SEX2").sensitive = 5;
    census.variable("PERSON", "AGE").sensitive = 3;
    census.entity("HOUSEHOLD").sensitive = 4;
    EXPECT_EQ(
        summary(census.compile(
            "FREQ SEX2 BY AGE\nSUM AGE * 2 BY GRP\nFREQ SEX2 SENSITIVE 9\nFREQ AGE SENSITIVE 2\n"
            "COUNT HOUSEHOLD\nTABLE a FREQ GRP\nTABLE b SUM AGE BY GRP\nTABOP a / b\n"
            "VIEW PERSON, AGE")),
        "FREQ_1 PERSON: PERSON.SEX2 BY PERSON.AGE sensitive 5\n"
        "SUM_1 PERSON: SUM (PERSON.AGE * 2) BY PERSON.GRP sensitive 3\n"
        "FREQ_2 PERSON: PERSON.SEX2 sensitive 9\nFREQ_3 PERSON: PERSON.AGE sensitive 3\n"
        "COUNT_1 HOUSEHOLD: sensitive 4\na PERSON: PERSON.GRP silent\n"
        "b PERSON: SUM PERSON.AGE BY PERSON.GRP sensitive 3 silent\n"
        "TABOP_1 -: TABOP (#5 / #6) of #5 #6 sensitive 3\n"
        "VIEW_1 PERSON: VIEW PERSON.AGE\n");
}

TEST(Tables, ProtectWhatTheirConditionsAndWeightsTell) {
    Census census;
    census.options.autoWeight = false;
    census.variable("PERSON", "SEX2").sensitive = 5;
    census.variable("PERSON", "AGE").sensitive = 3;
    EXPECT_EQ(summary(census.compile("FREQ GRP FILTER SEX2 = 1\nFREQ GRP WEIGHT AGE\n"
                                     "TABLE t FREQ GRP TALLY SEX2 WEIGHT AGE\n"
                                     "AREALIST HOUSEHOLD, t\n"
                                     "RUNDEF FILTER NOT AGE > 3\nFREQ GRP SENSITIVE 2\n"
                                     "RUNDEF SELECTION SEX2 = 1\nFREQ GRP SENSITIVE 7\n")),
              "FREQ_1 PERSON: PERSON.GRP filter (PERSON.SEX2 = 1) sensitive 5\n"
              "FREQ_2 PERSON: PERSON.GRP weight PERSON.AGE sensitive 3\n"
              "t PERSON: PERSON.GRP weight PERSON.AGE tally PERSON.SEX2 sensitive 5 silent idle\n"
              "t PERSON: record HOUSEHOLD BY PERSON.GRP weight PERSON.AGE tally PERSON.SEX2 "
              "sensitive 5 hidden\n"
              "AREALIST_1 HOUSEHOLD: AREALIST #3\n"
              "FREQ_3 PERSON: PERSON.GRP all NOT((PERSON.AGE > 3)) sensitive 3\n"
              "FREQ_4 PERSON: PERSON.GRP sensitive 7\n");
    EXPECT_EQ(told(census.messages), "");
}

TEST(Files, GoWhereTheProgramIs) {
    Census census;
    const std::filesystem::path folder = census.dictionary.dataFolder;
    census.write("a/there", "");
    census.write("sub/called.spc", "FREQ SEX2 OUTFILE \"..\\x.csv\" TABLESTYLE \"t.json\"");
    const BoundProgram program = census.compile(
        "FREQ SEX2 OUTFILE xls \"a\\b.xlsx\" utf8 overwrite\nFREQ SEX2 OUTFILE \"c.PDF\" unicode\n"
        "FREQ SEX2 OUTFILE \"/d.json\" SAVE \"e\" MAPSTYLE \"m.json\"\nFREQ SEX2 OUTFILE json "
        "\"f.csv\"\n"
        "FREQ SEX2, GRP SAVE \"g.json\" OUTFILE \"h\"\nEXECUTE \"sub/called.spc\"");
    ASSERT_EQ(told(census.messages), "");
    const auto out = [&](std::size_t i) {
        return program.tables[i].outfile.value_or(OutputFile{});
    };
    EXPECT_EQ(out(0).path, (folder / "a/b.xlsx").string());
    EXPECT_EQ(out(0).format, OutputFile::Format::Xlsx);
    EXPECT_TRUE(out(0).overwrite);
    EXPECT_EQ(out(1).format, OutputFile::Format::Pdf);
    EXPECT_FALSE(out(1).overwrite);
    using Files = std::vector<std::string>;
    EXPECT_FALSE(program.tables[2].outfile);
    EXPECT_EQ(program.tables[2].jsonFiles, (Files{"/d.json", folder / "e.json"}));
    EXPECT_EQ(program.tables[2].mapStyle, (folder / "m.json").string());
    EXPECT_EQ(program.tables[3].jsonFiles, Files{folder / "f.csv"});
    EXPECT_EQ(program.tables[4].jsonFiles, Files{folder / "g_1.json"});
    EXPECT_EQ(program.tables[5].jsonFiles, Files{folder / "g_2.json"});
    EXPECT_EQ(out(5).path, (folder / "h").string());
    EXPECT_EQ(out(5).format, OutputFile::Format::Csv);
    EXPECT_EQ(out(6).path, (folder / "x.csv").string());
    EXPECT_EQ(program.tables[6].tableStyle, (folder / "sub/t.json").string());
}

/// The places of targets that are refused.
std::string refused(Census& census, const std::string& program) {
    census.compile(program);
    return located(census.messages);
}

TEST(Files, LeaveTheDatabaseAndTheRunAlone) {
    Census census;
    namespace fs = std::filesystem;
    const fs::path folder = census.options.baseFolder;
    for (const char* name : {"x.kxdb", "PERSON_SEX2.kbf", "NEW.KBF", "p.spc", "a.dicx", "b.Bin",
                             "b.bin.desc", "c.kpt", "no/such.csv", "."}) {
        EXPECT_EQ(refused(census, std::string("FREQ SEX2 OUTFILE csv \"") + name + '"'),
                  "KEL_E_TARGET_FILE 1:23\n")
            << name;
        EXPECT_EQ(refused(census, std::string("FREQ SEX2 SAVE \"") + name + '"').substr(0, 17),
                  std::string(name) == "." ? "" : "KEL_E_TARGET_FILE")
            << name;
    }
    fs::create_symlink(folder / "PERSON_SEX2.kbf", folder / "link.csv");
    EXPECT_EQ(refused(census, "FREQ SEX2 OUTFILE \"link.csv\""), "KEL_E_TARGET_FILE 1:19\n");
    census.variable("PERSON", "GRP").fileName = "group.dat";
    EXPECT_EQ(refused(census, "FREQ SEX2\nOUTFILE \"group.dat\""), "KEL_E_TARGET_FILE 2:9\n");
    EXPECT_EQ(refused(census, "FREQ SEX2, AGE OUTFILE \"x.kxdb\""), "KEL_E_TARGET_FILE 1:24\n");
}

TEST(Files, ThatTheRunReadsAreNotWritten) {
    Census census;
    census.write("s_sel.json", R"({"label": "l", "areas": []})");
    census.write("sub/called.txt", "FREQ SEX2 OUTFILE \"../s_sel.json\"");
    census.compile("FREQ SEX2 SAVE \"s_sel.json\"\nFREQ SEX2 OUTFILE csv \"sub/called.txt\"\n"
                   "FREQ SEX2 SAVE \"other.json\"\n"
                   "RUNDEF r SELECTION \"s_sel.json\"\nEXECUTE \"sub/called.txt\"");
    const std::string all = told(census.messages);
    EXPECT_THAT(all, testing::HasSubstr("KEL_E_TARGET_FILE 1:16 "));
    EXPECT_THAT(all, testing::HasSubstr("KEL_E_TARGET_FILE 2:23 "));
    EXPECT_THAT(all, testing::HasSubstr("KEL_E_TARGET_FILE 5:"));
    EXPECT_THAT(all, testing::HasSubstr("cannot be written to: the run reads it."));
    EXPECT_THAT(all, testing::Not(testing::HasSubstr("other.json")));
    census.options.programFile = census.write("main.txt", "");
    EXPECT_EQ(refused(census, "FREQ SEX2 OUTFILE csv \"main.txt\""), "KEL_E_TARGET_FILE 1:23\n");
}

TEST(Files, ReplaceNoPipes) {
    Census census;
    const std::filesystem::path folder = census.options.baseFolder;
    ASSERT_EQ(::mkfifo((folder / "p.csv").c_str(), 0600), 0);
    std::filesystem::create_symlink("p.csv", folder / "to_p.json");
    EXPECT_EQ(refused(census, "FREQ SEX2 OUTFILE \"p.csv\""), "KEL_E_TARGET_FILE 1:19\n");
    EXPECT_EQ(refused(census, "FREQ SEX2 OUTFILE \"to_p.json\" OVERWRITE"),
              "KEL_E_TARGET_FILE 1:19\n");
    ASSERT_EQ(::mkfifo((folder / "p.kbf").c_str(), 0600), 0);
    EXPECT_EQ(refused(census, "DEFINE PERSON.P AS 1 SAVE \"p.kbf\" OVERWRITE\nFREQ SEX2"),
              "KEL_E_TARGET_FILE 1:27\n");
}

TEST(Files, HoldTablesOfOneForm) {
    Census census;
    const std::filesystem::path folder = census.options.baseFolder;
    std::filesystem::create_symlink("later.csv", folder / "link.csv"); // to nothing yet
    std::filesystem::create_symlink(".", folder / "sub");
    EXPECT_EQ(refused(census, "FREQ SEX2 OUTFILE csv \"h.json\" SAVE \"h.json\""),
              "KEL_E_TARGET_FILE 1:37\n");
    EXPECT_EQ(refused(census, "FREQ SEX2 OUTFILE xls \"link.csv\"\nFREQ GRP OUTFILE \"later.csv\""),
              "KEL_E_TARGET_FILE 2:18\n");
    EXPECT_EQ(refused(census, "FREQ SEX2 OUTFILE pdf \"k.csv\"\nFREQ GRP OUTFILE \"sub/k.csv\""),
              "KEL_E_TARGET_FILE 2:18\n");
    EXPECT_EQ(refused(census, "FREQ SEX2 OUTFILE \"link.csv\"\nFREQ GRP OUTFILE \"later.csv\""),
              "");
}

TEST(Files, InJsonReplaceTablesAlone) {
    Census census;
    census.write("s_sel.json", R"({"label": "l", "areas": []})");
    census.write("name.json", R"({"name":"X","areas":[]})");
    census.write("one.json", R"({"name":"a \" b","title":"t \\","kind":"FREQ","method":"count")");
    census.write("two.json",
                 "[\n{\"name\":\"\",\"title\":null,\"kind\":\"FREQ\",\"method\":\"count\"");
    census.write("cut.json", R"({"name":"a \)");
    for (const char* name : {"s_sel.json", "name.json", "cut.json"}) {
        const std::string file = std::string("\"") + name + '"';
        EXPECT_EQ(refused(census, "FREQ SEX2 SAVE " + file), "KEL_E_TARGET_FILE 1:16\n") << name;
        EXPECT_EQ(refused(census, "FREQ SEX2 OUTFILE " + file), "KEL_E_TARGET_FILE 1:19\n");
        EXPECT_EQ(refused(census, "FREQ SEX2 OUTFILE " + file + " OVERWRITE"), "");
    }
    EXPECT_EQ(refused(census, "FREQ SEX2 SAVE \"one.json\" OUTFILE \"two.json\""), "");
}

TEST(Files, OfProtectedDatabasesAreNotBare) {
    Census census;
    census.dictionary.key = storage::Secret::derive("x", storage::Secret::newRecipe());
    EXPECT_EQ(refused(census, "DEFINE PERSON.P AS 1 SAVE \"p.bin\"\nFREQ SEX2"),
              "KEL_E_TARGET_FILE 1:27\n");
    EXPECT_EQ(refused(census, "DEFINE PERSON.P AS 1 SAVE \"p.kbf\"\nFREQ SEX2"), "");
}

// A program may have come from another machine.
TEST(Files, GoElsewhereWhereTheirFolderIsGone) {
    Census census;
    census.options.hasResultsFolder = true;
    const std::string folder = (census.options.baseFolder / "gone").string();
    census.compile("FREQ SEX2, AGE OUTFILE csv \"gone/a.csv\"\nFREQ SEX2 OUTFILE pdf \"b.pdf\"");
    EXPECT_EQ(told(census.messages), "KEL_W_OUTFILE_FOLDER 1:28 There is no folder " + folder +
                                         "; the file goes to the folder of results.\n");
    EXPECT_EQ(refused(census, "FREQ SEX2 OUTFILE json \"gone/a.json\""),
              "KEL_E_TARGET_FILE 1:24\n"); // the engine writes it itself
    EXPECT_EQ(refused(census, "FREQ SEX2 OUTFILE csv \"gone/a.kbf\""), "KEL_E_TARGET_FILE 1:23\n");
    census.options.hasResultsFolder = false;
    EXPECT_EQ(refused(census, "FREQ SEX2 OUTFILE csv \"gone/a.csv\""), "KEL_E_TARGET_FILE 1:23\n");
}

TEST(Files, OfOtherKindsAreToldToBeCsv) {
    Census census;
    const BoundProgram program = census.compile(
        "FREQ SEX2 OUTFILE html \"a.html\"\nFREQ SEX2 OUTFILE \"b.TXT\" ascii\n"
        "FREQ SEX2 OUTFILE xls \"c.txt\" ascii\nFREQ SEX2 OUTFILE xml \"d\" OVERWRITE");
    EXPECT_EQ(told(census.messages),
              "KEL_W_OUTFILE_TYPE 1:19 HTML is not written; the file will be CSV.\n"
              "KEL_W_OUTFILE_TYPE 2:19 TXT is not written; the file will be CSV.\n"
              "KEL_W_OUTFILE_FORMAT 2:27 Files are written in UTF-8, not in ASCII.\n"
              "KEL_W_OUTFILE_TYPE 4:19 XML is not written; the file will be CSV.\n");
    EXPECT_EQ(program.tables[0].outfile->format, OutputFile::Format::Csv);
    EXPECT_EQ(program.tables[2].outfile->format, OutputFile::Format::Xlsx);
}

TEST(AreaBreak, CountsAsADimension) {
    Census census;
    census.options.autoWeight = false;
    census.compile("TABLE a FREQ SEX2\nRUNDEF AREABREAK PROVINCE\nTABLE b FREQ SEX2 SORT DESC b\n"
                   "TABLE c TABOP a / b\nTABLE d TABLIST b\nTABLE e FREQ GRP BY SEX2\n"
                   "TABLE f TABLIST b, e");
    EXPECT_EQ(
        told(census.messages),
        "KEL_W_SORT_CROSSTAB 3:19 A table of several variables is not sorted, and AREABREAK "
        "adds PROVINCE to this one.\n"
        "KEL_E_TABLE_SHAPES 4:15 a and b have different variables: TABOP takes tables of equal "
        "shape.\n"
        "KEL_E_TABLIST_TABLE 7:20 e cannot stand beside b in a TABLIST: it has more than two "
        "variables.\n");
}

} // namespace kelx::language
