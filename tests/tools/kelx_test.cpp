// SPDX-License-Identifier: GPL-3.0-or-later
// Drives the command line as a process, as a script would.
#include "sample/sample.h"
#include "temporary_folder.h"

#include <gmock/gmock.h>
#include <nlohmann/json.hpp>

#include <regex>
#include <sys/wait.h>

using nlohmann::json;
using testing::HasSubstr;
using testing::StartsWith;

namespace {

struct Outcome {
    int status = -1;
    std::string out, err;
};

/// JSON without the seconds, which differ from run to run.
std::string timeless(const std::string& text) {
    return std::regex_replace(text, std::regex("\"seconds\":[^,}]*"), "");
}

class KelxTest : public testing::Test {
protected:
    static void SetUpTestSuite() {
        folder = new TemporaryFolder;
        kelx::tools::SampleRequest request;
        request.folder = folder->path() / "sample";
        request.persons = 3000;
        kelx::tools::writeSample(request);
    }
    static void TearDownTestSuite() { delete folder; }

    /// Arguments as a shell reads them; @ stands for the test's folder.
    static Outcome kelx(std::string arguments) {
        for (std::size_t at; (at = arguments.find('@')) != std::string::npos;)
            arguments.replace(at, 1, folder->path().string());
        const std::string out = (folder->path() / "out").string();
        const std::string err = (folder->path() / "err").string();
        const std::string command =
            std::string(KELX_PROGRAM) + " " + arguments + " </dev/null >" + out + " 2>" + err;
        const int status = std::system(command.c_str());
        return {WIFEXITED(status) ? WEXITSTATUS(status) : -1, folder->read("out"),
                folder->read("err")};
    }
    static std::string path(const std::string& name) { return (folder->path() / name).string(); }

    static inline TemporaryFolder* folder = nullptr;
};

} // namespace

TEST_F(KelxTest, HelpAndVersionAreEverywhere) {
    EXPECT_THAT(kelx("--version").out, StartsWith("kelx 0."));
    for (const char* command : {"sample", "info", "run", "import", "convert"}) {
        const Outcome help = kelx(std::string(command) + " --help");
        EXPECT_EQ(help.status, 0) << command;
        EXPECT_THAT(help.out, HasSubstr(command));
        EXPECT_EQ(kelx(std::string(command) + " --version").status, 0) << command;
    }
}

TEST_F(KelxTest, MisuseIsToldApartFromFaults) {
    for (const char* arguments :
         {"", "nonsense", "run", "run @/sample/sample.kxdb", "sample @/x --persons 5",
          "sample @/x --persons many", "run @/sample/sample.kxdb -e 'COUNT PERSON' --format html",
          "convert @/sample/sample.kxdb @/x.txt",
          "import @/x.kxdb --codebook @/b.csv --level town"}) {
        const Outcome misuse = kelx(arguments);
        EXPECT_EQ(misuse.status, 2) << arguments;
        EXPECT_EQ(misuse.out, "") << arguments;
        EXPECT_NE(misuse.err, "") << arguments;
    }
    const Outcome missing = kelx("info @/none.kxdb");
    EXPECT_EQ(missing.status, 1);
    EXPECT_THAT(missing.err, HasSubstr("none.kxdb"));
    EXPECT_EQ(kelx("sample @/sample").status, 1);
}

TEST_F(KelxTest, InfoTellsRecordsAndTypes) {
    const Outcome text = kelx("info @/sample/sample.dicx");
    EXPECT_EQ(text.status, 0);
    EXPECT_THAT(text.out, HasSubstr("PERSON: 3000 records"));
    const json info = json::parse(kelx("info @/sample/sample.kxdb --json").out);
    ASSERT_EQ(info["entities"].size(), 6u);
    EXPECT_EQ(info["entities"][4]["name"], "PERSON");
    EXPECT_EQ(info["entities"][4]["records"], 3000);
    EXPECT_EQ(info["entities"][3]["weight"], "WEIGHT");
    EXPECT_EQ(info["entities"][4]["variables"][2]["missing"], 99);
}

TEST_F(KelxTest, RunsProgramsInEveryFormat) {
    const Outcome counted = kelx("run @/sample/sample.kxdb -e 'COUNT PERSON' --format json");
    ASSERT_EQ(counted.status, 0) << counted.err;
    const json outputs = json::parse(counted.out);
    ASSERT_EQ(outputs.size(), 1u);
    EXPECT_EQ(outputs[0]["unit"], "PERSON");
    EXPECT_TRUE(outputs[0]["seconds"].is_number());
    EXPECT_THAT(counted.out, HasSubstr("3000"));
    EXPECT_EQ(json::parse(kelx("run @/sample/sample.kxdb --format json -e ''").out), json::array());

    EXPECT_THAT(kelx("run @/sample/sample.dicx -e 'COUNT PERSON' --format csv").out,
                HasSubstr("PERSON,3000"));
    EXPECT_THAT(kelx("run @/sample/sample.dicx -e 'COUNT PERSON' --time").out, HasSubstr("Time: "));

    const Outcome files =
        kelx("run @/sample/sample.kxdb @/sample/population.spc --format json --out @/tables");
    ASSERT_EQ(files.status, 0) << files.err;
    const auto written = TemporaryFolder::contents(folder->path() / "tables");
    EXPECT_EQ(written.size(), 3u);
    ASSERT_TRUE(written.contains("AGES.json"));
    EXPECT_EQ(json::parse(written.at("AGES.json"))["name"], "AGES");
}

TEST_F(KelxTest, TheSamplesProgramsRunWithoutAWord) {
    for (const char* program : {"population", "housing", "capital", "provinces"}) {
        const std::string call =
            std::string("run @/sample/sample.kxdb @/sample/") + program + ".spc --format json";
        const Outcome one = kelx(call + " --threads 1");
        EXPECT_EQ(one.status, 0) << program;
        EXPECT_EQ(one.err, "") << program;
        EXPECT_GT(one.out.size(), 500u) << program;
        EXPECT_EQ(timeless(kelx(call + " --threads 3").out), timeless(one.out)) << program;
    }
}

TEST_F(KelxTest, ProgramFaultsHaveTheirPlace) {
    folder->write("bad.spc", "COUNT PERSON\nFREQ PERSON.AEG\n");
    const Outcome bad = kelx("run @/sample/sample.kxdb @/bad.spc");
    EXPECT_EQ(bad.status, 1);
    EXPECT_EQ(bad.out, "");
    EXPECT_THAT(bad.err, StartsWith(path("bad.spc") + ":2:13: error: "));
    EXPECT_THAT(kelx("run @/sample/sample.kxdb -e 'FREQ NOBODY.AGE'").err,
                StartsWith("-e:1:6: error: "));
}

TEST_F(KelxTest, ImportsAndConverts) {
    EXPECT_EQ(kelx("convert @/sample/sample.kxdb @/csv --csv").status, 0);
    const std::string levels =
        " --codebook @/csv/codebook.csv --level PROVINCE=@/csv/PROVINCE.csv --level "
        "DISTRICT=@/csv/DISTRICT.csv --level household=@/csv/HOUSEHOLD.csv "
        "--level PERSON=@/csv/PERSON.csv --level EMIGRANT=@/csv/EMIGRANT.csv "
        "--under EMIGRANT=HOUSEHOLD";
    const Outcome import = kelx("import @/again/again.kxdb" + levels);
    ASSERT_EQ(import.status, 0) << import.err;
    EXPECT_THAT(import.out, HasSubstr("PERSON: 3000 records\n"));
    EXPECT_EQ(kelx("convert @/again/again.kxdb @/csv2 --csv").status, 0);
    EXPECT_EQ(TemporaryFolder::contents(folder->path() / "csv"),
              TemporaryFolder::contents(folder->path() / "csv2"));
    const std::string program = " -e 'FREQ PERSON.ACTIVITY BY PERSON.SEX' --format csv";
    EXPECT_EQ(kelx("run @/again/again.kxdb" + program).out,
              kelx("run @/sample/sample.kxdb" + program).out);

    folder->write("csv/EMIGRANT.csv",
                  "PROVINCE_CODE,DISTRICT_CODE,HOUSEHOLD_NUMBER,SEX,AGE,YEAR,DESTINATION\n"
                  "01,01,1,1,x,2020,1\n");
    const Outcome fault = kelx("import @/bad/bad.kxdb" + levels);
    EXPECT_EQ(fault.status, 1);
    EXPECT_EQ(fault.err,
              path("csv/EMIGRANT.csv") + ":2:11: error: AGE: \"x\" is not a number\n");
    EXPECT_TRUE(TemporaryFolder::contents(folder->path() / "bad").empty());
}

TEST_F(KelxTest, ConvertsTheDictionary) {
    EXPECT_EQ(kelx("convert @/sample/sample.kxdb @/sample/copy.dicx").status, 0);
    EXPECT_THAT(kelx("info @/sample/copy.dicx").out, HasSubstr("PERSON: 3000 records"));
    const std::string before = folder->read("sample/copy.dicx");
    EXPECT_EQ(kelx("convert @/sample/sample.kxdb @/sample/copy.dicx").status, 1);
    EXPECT_EQ(folder->read("sample/copy.dicx"), before);
}

TEST_F(KelxTest, ProtectedDatabasesWantTheirPassword) {
    folder->write("password", "open sesame\n");
    folder->write("wrong", "open\n");
    folder->write("b.csv", "level,field,type,code,label,is_missing\nA,K,key integer,,,\n");
    folder->write("a.csv", "K\n1\n2\n");
    const Outcome import = kelx("import @/safe/safe.kxdb --codebook @/b.csv --level A=@/a.csv "
                                "--password-file @/password");
    ASSERT_EQ(import.status, 0) << import.err;
    EXPECT_THAT(kelx("info @/safe/safe.kxdb --password-file @/password").out,
                HasSubstr("A: 2 records"));
    const Outcome wrong = kelx("info @/safe/safe.kxdb --password-file @/wrong");
    EXPECT_EQ(wrong.status, 1);
    EXPECT_THAT(wrong.err, HasSubstr("Wrong password."));
}
