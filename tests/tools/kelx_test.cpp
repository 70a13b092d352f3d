// SPDX-License-Identifier: GPL-3.0-or-later
// Drives the command line as a process, as a script would.
#include "kelx_fixture.h"

#include "storage/folder_lock.h"

#include <gmock/gmock.h>
#include <nlohmann/json.hpp>

#include <chrono>
#include <fcntl.h>
#include <functional>
#include <signal.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <thread>
#include <unistd.h>

using nlohmann::json;
using testing::HasSubstr;
using testing::StartsWith;

namespace {

bool hasStaging(const std::filesystem::path& folder) {
    std::error_code none;
    for (const auto& entry : std::filesystem::directory_iterator(folder, none))
        if (entry.path().filename().string().starts_with(".kelx-"))
            return true;
    return false;
}

pid_t start(const std::vector<std::string>& arguments, const std::string& err) {
    std::vector<char*> words = {const_cast<char*>(KELX_PROGRAM)};
    for (const std::string& argument : arguments)
        words.push_back(const_cast<char*>(argument.c_str()));
    words.push_back(nullptr);
    const pid_t child = ::fork();
    if (child == 0) {
        ::dup2(::open(err.c_str(), O_WRONLY | O_CREAT | O_TRUNC, 0600), STDERR_FILENO);
        ::execv(KELX_PROGRAM, words.data());
        ::_exit(127);
    }
    return child;
}

/// The exit status of a command that got a signal once the condition held; -1 where the signal
/// itself ended it.
int statusAfter(int signal, const std::vector<std::string>& arguments, const std::string& err,
                const std::function<bool()>& begun) {
    const pid_t child = start(arguments, err);
    int status = 0;
    bool ended = false;
    while (!begun() && !ended) {
        ended = ::waitpid(child, &status, WNOHANG) == child;
        std::this_thread::sleep_for(std::chrono::milliseconds(1));
    }
    if (!ended) {
        ::kill(child, signal);
        ::waitpid(child, &status, 0);
    }
    return WIFEXITED(status) ? WEXITSTATUS(status) : -1;
}

} // namespace

TEST_F(KelxTest, HelpAndVersionAreEverywhere) {
    EXPECT_THAT(kelx("--version").out, StartsWith("kelx 0."));
    for (const char* command : {"sample", "info", "run", "check", "import", "convert"}) {
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
          "convert @/sample/sample.kxdb @/x.txt", "import @/x.kxdb --codebook @/b.csv --level town",
          "run @/sample/sample.kxdb ''", "run @/sample/sample.kxdb -e 'COUNT PERSON' --out ''",
          "import @/x.txt --codebook @/b.csv --level A=@/a.csv",
          "import @/x.dicx --codebook @/b.csv --level A=@/a.csv",
          "import @/x --codebook @/b.csv --level A=@/a.csv"}) {
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

TEST_F(KelxTest, ChecksADatabase) {
    const Outcome sound = kelx("check @/sample/sample.dicx");
    EXPECT_EQ(sound.status, 0) << sound.err;
    EXPECT_THAT(sound.out, testing::EndsWith(": 0 errors, 0 warnings\n"));
    // As many blanks as a program counts, where every missing value is blank.
    const json counted = json::parse(kelx("run @/sample/sample.kxdb --format json "
                                          "-e 'COUNT PERSON FILTER MISSING(PERSON.INCOME)'")
                                         .out);
    const json& blanks = counted[0]["rows"][0][1];
    EXPECT_GT(blanks, 0);
    EXPECT_THAT(sound.out, HasSubstr("PERSON_INCOME.kbf: note: PERSON.INCOME: " + blanks.dump() +
                                     " of 3000 values are blank\n"));

    std::filesystem::copy(folder->path() / "sample", folder->path() / "damaged");
    std::filesystem::remove(path("damaged/PERSON_AGE.kbf"));
    folder->write("damaged/extra.kpt", "");
    const Outcome damaged = kelx("check @/damaged/sample.kxdb");
    EXPECT_EQ(damaged.status, 1);
    EXPECT_THAT(damaged.out, HasSubstr("PERSON_AGE.kbf: error: PERSON.AGE: is not there\n"));
    const json told = json::parse(kelx("check @/damaged/sample.kxdb --json").out);
    EXPECT_EQ(told["errors"], 1);
    EXPECT_EQ(told["warnings"], 1);
    EXPECT_EQ(told["records"],
              json::parse(kelx("check @/sample/sample.kxdb --json").out)["records"]);
    const json income{{"entity", "PERSON"},
                      {"variable", "INCOME"},
                      {"file", path("damaged/PERSON_INCOME.kbf")},
                      {"blanks", blanks},
                      {"records", 3000}};
    EXPECT_THAT(told["blanks"], testing::Contains(income));
    ASSERT_EQ(told["findings"].size(), 2u);
    EXPECT_EQ(told["findings"][0]["variable"], "AGE");
    EXPECT_EQ(told["findings"][1]["check"], "Orphans");

    folder->write("damaged/sample.kxdb", "x");
    const Outcome unreadable = kelx("check @/damaged/sample.kxdb");
    EXPECT_EQ(unreadable.status, 1);
    EXPECT_THAT(unreadable.err, HasSubstr("sample.kxdb: "));
}

TEST_F(KelxTest, ChecksAProgramWithoutRunningIt) {
    folder->write("bad.spc", "FREQ PERSON.SEX\nFREQ PERSON.NONSENSE\n");
    const Outcome bad = kelx("check @/sample/sample.kxdb @/bad.spc");
    EXPECT_EQ(bad.status, 1);
    EXPECT_EQ(bad.out, "");
    EXPECT_THAT(bad.err, testing::StartsWith(path("bad.spc") + ":2:"));
    const json told = json::parse(kelx("check @/sample/sample.kxdb @/bad.spc --json").out);
    EXPECT_EQ(told["errors"], 1);
    EXPECT_EQ(told["messages"][0]["line"], 2);
    const std::string name = told["messages"][0]["name"];
    EXPECT_THAT(bad.err, testing::EndsWith(" [" + name + "]\n"));
    EXPECT_THAT(kelx("messages " + name).out, HasSubstr("There is no variable"));
    const Outcome good = kelx("check @/sample/sample.kxdb @/sample/population.spc");
    EXPECT_EQ(good.status, 0) << good.err;
    EXPECT_EQ(good.out + good.err, "");
}

TEST_F(KelxTest, RunsProgramsInEveryFormat) {
    const Outcome counted = kelx("run @/sample/sample.kxdb -e 'COUNT PERSON' --format json");
    ASSERT_EQ(counted.status, 0) << counted.err;
    const json outputs = json::parse(counted.out);
    ASSERT_EQ(outputs.size(), 1u);
    EXPECT_EQ(outputs[0]["unit"], "PERSON");
    EXPECT_EQ(outputs[0]["kind"], "COUNT");
    EXPECT_EQ(outputs[0]["rows"], json::parse(R"([["PERSON", 3000]])"));
    EXPECT_EQ(json::parse(kelx("run @/sample/sample.kxdb --format json -e ''").out), json::array());

    EXPECT_EQ(kelx("run @/sample/sample.dicx -e 'COUNT PERSON' --format csv").out,
              "Entity,Count\r\nPERSON,3000\r\n");
    EXPECT_THAT(kelx("run @/sample/sample.dicx -e 'COUNT PERSON' --time").out,
                testing::ContainsRegex("\nTime: [0-9]+\\.[0-9][0-9][0-9] s\n"));

    const Outcome files =
        kelx("run @/sample/sample.kxdb @/sample/population.spc --format json --out @/tables");
    ASSERT_EQ(files.status, 0) << files.err;
    const auto written = TemporaryFolder::contents(folder->path() / "tables");
    EXPECT_EQ(written.size(), 3u);
    ASSERT_TRUE(written.contains("AGES.json"));
    EXPECT_EQ(json::parse(written.at("AGES.json"))["name"], "AGES");
}

TEST_F(KelxTest, SeveralTablesAsCsvAreToldApart) {
    const Outcome two = kelx("run @/sample/sample.kxdb --format csv --time -e 'TABLE A AS COUNT "
                             "PERSON TABLE B AS COUNT PROVINCE'");
    ASSERT_EQ(two.status, 0) << two.err;
    EXPECT_EQ(two.out, "A\r\nEntity,Count\r\nPERSON,3000\r\n\r\n"
                       "B\r\nEntity,Count\r\nPROVINCE,2\r\n");
    EXPECT_THAT(two.err, testing::MatchesRegex("A: [0-9]+\\.[0-9]+ s\nB: [0-9]+\\.[0-9]+ s\n"));
}

TEST_F(KelxTest, OutputThatIsLostIsAFault) {
    for (const char* arguments :
         {"info @/sample/sample.kxdb", "info @/sample/sample.kxdb --json",
          "run @/sample/sample.kxdb -e 'COUNT PERSON'",
          "run @/sample/sample.kxdb -e 'COUNT PERSON' --format json",
          "run @/sample/sample.kxdb -e 'COUNT PERSON' --format csv", "--help"}) {
        const Outcome lost = kelx(std::string(arguments) + " >/dev/full");
        EXPECT_EQ(lost.status, 1) << arguments;
        EXPECT_THAT(lost.err, HasSubstr("standard output cannot be written")) << arguments;
    }
}

TEST_F(KelxTest, WhatIsSavedIsToldWhereOutputIsLost) {
    ASSERT_EQ(kelx("sample @/full --persons 1000").status, 0);
    const Outcome lost =
        kelx("run @/full/sample.kxdb -e 'DEFINE PERSON.OLD AS PERSON.AGE > 64 SAVE "
             "\"old\" FREQ PERSON.OLD SAVE \"t\"' >/dev/full");
    EXPECT_EQ(lost.status, 1);
    EXPECT_EQ(lost.err, "kelx: PERSON.OLD was saved all the same\n"
                        "kelx: " +
                            path("full/t.json") +
                            " was written all the same\n"
                            "kelx: error: standard output cannot be written to its end\n");
    EXPECT_TRUE(std::filesystem::exists(path("full/old.kbf")));
    EXPECT_TRUE(std::filesystem::exists(path("full/t.json")));
}

TEST_F(KelxTest, ALimitOnFilesIsAFaultAndLeavesNothing) {
    ASSERT_EQ(kelx("sample @/limited --persons 3000").status, 0);
    const auto before = TemporaryFolder::contents(folder->path() / "limited");
    folder->write("limited.sh", "ulimit -f 1\nexec \"$@\"\n"); // 512 or 1024 bytes
    const std::string command =
        "sh " + path("limited.sh") + " " KELX_PROGRAM " run " + path("limited/sample.kxdb") +
        " -e 'DEFINE PERSON.A AS PERSON.AGE SAVE \"a\"' >" + path("out") + " 2>" + path("err");
    const int status = std::system(command.c_str());
    EXPECT_TRUE(WIFEXITED(status) && WEXITSTATUS(status) == 1) << status;
    EXPECT_THAT(folder->read("err"), HasSubstr("File too large"));
    EXPECT_EQ(TemporaryFolder::contents(folder->path() / "limited"), before);
}

TEST_F(KelxTest, SignalsEndTheWorkAndLeaveNothing) {
    for (const int signal : {SIGINT, SIGTERM}) {
        const auto target = folder->path() / ("stopped-" + std::to_string(signal));
        EXPECT_EQ(statusAfter(signal, {"sample", target.string(), "--persons", "90000000"},
                              path("err"), [&] { return hasStaging(target); }),
                  128 + signal);
        EXPECT_FALSE(std::filesystem::exists(target));
        EXPECT_EQ(folder->read("err"), "kelx: interrupted; nothing was written\n");
    }
    const auto killed = folder->path() / "killed";
    statusAfter(SIGKILL, {"sample", killed.string(), "--persons", "90000000"}, path("err"),
                [&] { return hasStaging(killed); });
    EXPECT_TRUE(hasStaging(killed));
    EXPECT_EQ(kelx("sample @/killed --persons 1000").status, 0);
    EXPECT_FALSE(hasStaging(killed));
}

TEST_F(KelxTest, FaultsOfFileNamesAreClear) {
    folder->write("plain", "a file\n");
    const Outcome out = kelx("run @/sample/sample.kxdb -e 'COUNT PERSON' --out @/plain/tables");
    EXPECT_EQ(out.status, 1);
    EXPECT_EQ(out.err, "kelx: error: " + path("plain/tables") +
                           ": the folder cannot be made: Not a directory\n");
    const Outcome nameless = kelx("info ''");
    EXPECT_EQ(nameless.status, 1);
    EXPECT_EQ(nameless.err, "kelx: error: The file of the dictionary has no name.\n");
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

TEST_F(KelxTest, WritesTheFilesOfAProgram) {
    ASSERT_EQ(kelx("sample @/kept --persons 1000").status, 0);
    folder->write("kept/made.spc", "TABLE a FREQ PERSON.SEX OUTFILE \"a.csv\" SAVE \"a.json\"\n"
                                   "TABLE b FREQ PERSON.SEX, PERSON.LITERATE OUTFILE \"b.csv\"\n"
                                   "DEFINE PERSON.ADULT AS PERSON.AGE >= 18 SAVE \"adult.kbf\"\n");
    const Outcome made = kelx("run @/kept/sample.kxdb @/kept/made.spc --json");
    ASSERT_EQ(made.status, 0) << made.err;
    EXPECT_EQ(made.err, "");
    const json tables = json::parse(made.out);
    ASSERT_EQ(tables.size(), 3u);
    EXPECT_EQ(json::parse(folder->read("kept/a.json")), tables[0]);
    EXPECT_EQ(folder->read("kept/a.csv"),
              kelx("run @/kept/sample.kxdb -e 'FREQ PERSON.SEX' --format csv").out);
    const std::string several = folder->read("kept/b.csv");
    EXPECT_THAT(several, StartsWith("b_1\r\nPERSON.SEX,"));
    EXPECT_THAT(several, HasSubstr("\r\n\r\nb_2\r\nPERSON.LITERATE,"));
    // The saved variable is known from now on.
    EXPECT_EQ(kelx("run @/kept/sample.kxdb -e 'FREQ PERSON.ADULT'").status, 0);
}

TEST_F(KelxTest, TablesOfTheRunDoNotReplaceEachOther) {
    ASSERT_EQ(kelx("sample @/twice --persons 1000").status, 0);
    const std::string run = "run @/twice/sample.kxdb --format csv --out @/twice -e ";
    const Outcome refused = kelx(run + "'FREQ PERSON.AGE FREQ PERSON.SEX OUTFILE \"FREQ_1.csv\"'");
    EXPECT_EQ(refused.status, 1);
    EXPECT_THAT(refused.err, HasSubstr("FREQ_1.csv: would be written twice"));
    EXPECT_FALSE(std::filesystem::exists(path("twice/FREQ_1.csv")));
    std::filesystem::create_symlink("d.csv", path("twice/c.csv"));
    ASSERT_EQ(kelx("run @/twice/sample.kxdb -e 'TABLE a FREQ PERSON.AGE OUTFILE \"c.csv\" "
                   "TABLE b FREQ PERSON.SEX OUTFILE \"d.csv\"'")
                  .status,
              0);
    const std::string both = folder->read("twice/d.csv");
    EXPECT_THAT(both, StartsWith("a\r\nPERSON.AGE,"));
    EXPECT_THAT(both, HasSubstr("\r\n\r\nb\r\nPERSON.SEX,"));
    ASSERT_EQ(::mkfifo(path("twice/FREQ_1.csv").c_str(), 0600), 0);
    EXPECT_THAT(kelx(run + "'FREQ PERSON.AGE'").err, HasSubstr("no regular file"));
    EXPECT_TRUE(std::filesystem::is_fifo(path("twice/FREQ_1.csv")));
}

TEST_F(KelxTest, RunsAtOnceLoseNoVariableOfEachOther) {
    ASSERT_EQ(kelx("sample @/shared --persons 1000").status, 0);
    std::vector<pid_t> runs;
    for (int i = 1; i <= 8; ++i) {
        const std::string n = std::to_string(i);
        runs.push_back(
            start({"run", path("shared/sample.kxdb"), "-e",
                   "DEFINE PERSON.X" + n + " AS PERSON.AGE + " + n + " SAVE \"X" + n + "\""},
                  path("err" + n)));
    }
    for (const pid_t run : runs) {
        int status = 0;
        ::waitpid(run, &status, 0);
        EXPECT_EQ(status, 0);
    }
    const Outcome all =
        kelx("run @/shared/sample.kxdb --format csv -e 'SUM PERSON.X1 SUM PERSON.X2 "
             "SUM PERSON.X3 SUM PERSON.X4 SUM PERSON.X5 SUM PERSON.X6 "
             "SUM PERSON.X7 SUM PERSON.X8'");
    EXPECT_EQ(all.status, 0) << all.err;
}

TEST_F(KelxTest, AVariableOfADatabaseThatWasReplacedIsNotSaved) {
    namespace fs = std::filesystem;
    for (const auto& [other, problem] :
         {std::pair<std::string, std::string>("1000", " records of PERSON, and not the "),
          {"3000 --seed 2", "was replaced while the program ran"}}) {
        SCOPED_TRACE(other);
        ASSERT_EQ(kelx("sample @/first --persons 3000 --overwrite").status, 0);
        ASSERT_EQ(kelx("sample @/second --overwrite --persons " + other).status, 0);
        pid_t run = 0;
        {
            const kelx::storage::FolderLock lock(path("first/sample.kxdb"), {});
            run = start({"run", path("first/sample.kxdb"), "-e",
                         "DEFINE PERSON.X AS PERSON.AGE SAVE \"x\""},
                        path("err"));
            while (!hasStaging(path("first")) && ::waitpid(run, nullptr, WNOHANG) == 0)
                std::this_thread::sleep_for(std::chrono::milliseconds(5));
            for (const auto& entry : fs::directory_iterator(path("second")))
                if (entry.is_regular_file())
                    fs::rename(entry.path(), fs::path(path("first")) / entry.path().filename());
        }
        int status = 0;
        ASSERT_EQ(::waitpid(run, &status, 0), run);
        EXPECT_EQ(WEXITSTATUS(status), 1);
        EXPECT_THAT(folder->read("err"), HasSubstr(problem));
        EXPECT_FALSE(fs::exists(path("first/x.kbf")));
        EXPECT_FALSE(hasStaging(path("first")));
    }
}

TEST_F(KelxTest, ARunThatCannotWriteItsTablesChangesNothing) {
    ASSERT_EQ(kelx("sample @/whole --persons 1000").status, 0);
    folder->write("plain", "a file\n");
    const auto before = TemporaryFolder::contents(folder->path() / "whole");
    const Outcome out =
        kelx("run @/whole/sample.kxdb --out @/plain/tables -e 'DEFINE PERSON.ADULT AS PERSON.AGE "
             ">= 18 SAVE \"adult\" FREQ PERSON.ADULT OUTFILE \"a.csv\"'");
    EXPECT_EQ(out.status, 1);
    EXPECT_THAT(out.err, HasSubstr("the folder cannot be made"));
    EXPECT_EQ(TemporaryFolder::contents(folder->path() / "whole"), before);
}

TEST_F(KelxTest, ASignalWhileVariablesAreSavedLeavesNothing) {
    ASSERT_EQ(kelx("sample @/long --persons 100000").status, 0);
    const auto base = folder->path() / "long";
    const auto before = TemporaryFolder::contents(base);
    std::string program;
    for (int i = 0; i < 100; ++i)
        program += "DEFINE PERSON.S" + std::to_string(i) + " AS PERSON.AGE + " + std::to_string(i) +
                   " SAVE \"s" + std::to_string(i) + "\"\n";
    EXPECT_EQ(statusAfter(SIGINT, {"run", (base / "sample.kxdb").string(), "-e", program},
                          path("err"), [&] { return hasStaging(base); }),
              128 + SIGINT);
    EXPECT_EQ(folder->read("err"), "kelx: interrupted; nothing was written\n");
    EXPECT_EQ(TemporaryFolder::contents(base), before);
}

TEST_F(KelxTest, WhatAKilledRunLeavesIsNamedAndRemoved) {
    ASSERT_EQ(kelx("sample @/dead --persons 3000").status, 0);
    const auto base = folder->path() / "dead";
    {
        const kelx::storage::FolderLock lock(base / "sample.kxdb", {}); // where the run waits
        statusAfter(SIGKILL,
                    {"run", (base / "sample.kxdb").string(), "-e",
                     "DEFINE PERSON.X AS PERSON.AGE SAVE \"x.bin\""},
                    path("err"), [&] { return hasStaging(base); });
    }
    EXPECT_TRUE(hasStaging(base));
    EXPECT_THAT(kelx("check @/dead/sample.kxdb").out,
                HasSubstr(".tmp: warning: a program that was stopped has left it behind"));
    EXPECT_EQ(kelx("run @/dead/sample.kxdb -e 'DEFINE PERSON.Y AS PERSON.AGE SAVE \"y\"'").status,
              0);
    EXPECT_FALSE(hasStaging(base));
}

TEST_F(KelxTest, RefusesFormatsOfTheWorkbenchBeforeItRuns) {
    const Outcome refused =
        kelx("run @/sample/sample.kxdb -e 'COUNT PERSON FREQ PERSON.SEX OUTFILE PDF \"x.pdf\"'");
    EXPECT_EQ(refused.status, 1);
    EXPECT_EQ(refused.out, "");
    EXPECT_EQ(refused.err, "-e:1:38: error: PDF files are written by the workbench only; " +
                               path("sample/x.pdf") +
                               " can be had as CSV or JSON here. [KEL_E_OUTFILE_WORKBENCH]\n");
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
    EXPECT_EQ(kelx("import @/again/again.kxdb" + levels).err,
              "kelx: error: " + path("again/again.kxdb") +
                  ": exists already; --overwrite replaces it\n");
    EXPECT_THAT(kelx("import @/again/other.kxdb" + levels).err,
                testing::StartsWith("kelx: error: " + path("again/other.kxdb") + ": its file "));
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
    EXPECT_EQ(fault.err, path("csv/EMIGRANT.csv") + ":2:11: error: AGE: \"x\" is not a number\n");
    EXPECT_TRUE(TemporaryFolder::contents(folder->path() / "bad").empty());
}

TEST_F(KelxTest, ImportsAFlatFile) {
    folder->write("flat.csv", "house,age\n1,30\n1,x1\n2\n2,7\n");
    const std::string import =
        "import @/flat/db.kxdb --flat @/flat.csv --levels House:house,Person";
    const Outcome refused = kelx(import);
    EXPECT_EQ(refused.status, 1);
    EXPECT_EQ(refused.err, path("flat.csv") + ":4:2: error: expected 2 fields, found 1\n");
    EXPECT_FALSE(std::filesystem::exists(folder->path() / "flat"));
    const Outcome tolerant = kelx(import + " --tolerant");
    EXPECT_EQ(tolerant.status, 0);
    EXPECT_EQ(tolerant.err, refused.err);
    EXPECT_EQ(tolerant.out, "HOUSE: 2 records\n"
                            "    HOUSE: INTEGER\n"
                            "PERSON: 3 records, 1 row that cannot be read left out\n"
                            "    AGE: STRING\n"
                            "AGE is STRING: \"x1\" in line 3, column 3 is no number\n");
    EXPECT_EQ(kelx("check @/flat/db.kxdb").status, 0);
    const json info = json::parse(kelx("info @/flat/db.kxdb --json").out);
    EXPECT_EQ(info["entities"][2]["records"], 3);

    folder->write("semi.csv", "house;age\n1;30\n1;\n");
    const std::string semi =
        "import @/semi/db.kxdb --flat @/semi.csv --levels House:house,Person:no";
    EXPECT_EQ(kelx(semi).err, path("semi.csv") +
                                  ":1:1: error: the header is the one field \"house;age\"; its "
                                  "fields seem to be separated by semicolons: --separator \";\"\n");
    EXPECT_EQ(kelx(semi + " --separator ';'").err,
              "kelx: error: There is no field \"no\" in the file, which has HOUSE, AGE.\n");
    EXPECT_EQ(kelx(semi + " --separator x").status, 2);
    EXPECT_EQ(
        kelx("import @/semi/db.kxdb --flat @/semi.csv --separator ';' --levels H:house,P").out,
        "H: 1 record\n    HOUSE: INTEGER\nP: 2 records\n    AGE: INTEGER, 1 blank\n");
    folder->write("tab.csv", "K\tS\n1\t2\n");
    folder->write("tab_book.csv", "level,field,type,code,label,is_missing\nA,K,key integer,,,\n"
                                  "A,S,integer,,,\n");
    const std::string tab = "import @/tab/db.kxdb --codebook @/tab_book.csv --level A=@/tab.csv";
    EXPECT_THAT(kelx(tab).err, HasSubstr("separated by tabs: --separator tab"));
    EXPECT_EQ(kelx(tab + " --separator tab").out, "A: 1 record\n    K: INTEGER\n    S: INTEGER\n");

    folder->write("bad.sav", "no such file");
    const Outcome bad = kelx("import @/bad/db.kxdb --flat @/bad.sav");
    EXPECT_EQ(bad.status, 1);
    EXPECT_THAT(bad.err, HasSubstr("bad.sav: cannot be read: it is no .sav file, or "));
    EXPECT_EQ(kelx(import + " --level A=@/a.csv").status, 2);
    EXPECT_EQ(kelx("import @/x.kxdb --levels A").status, 2);
    const Outcome empty = kelx("import @/x.kxdb --flat @/flat.csv --levels \"\"");
    EXPECT_EQ(empty.status, 2);
    EXPECT_THAT(empty.err, HasSubstr("--levels: must not be empty"));
}

TEST_F(KelxTest, ConvertsTheDictionary) {
    EXPECT_EQ(kelx("convert @/sample/sample.kxdb @/sample/copy.dicx").status, 0);
    EXPECT_THAT(kelx("info @/sample/copy.dicx").out, HasSubstr("PERSON: 3000 records"));
    const std::string before = folder->read("sample/copy.dicx");
    EXPECT_EQ(kelx("convert @/sample/sample.kxdb @/sample/copy.dicx").status, 1);
    EXPECT_EQ(folder->read("sample/copy.dicx"), before);
}

TEST_F(KelxTest, ReportsAsJson) {
    folder->write("b.csv", "level,field,type,code,label,is_missing\nA,K,key integer,,,\n"
                           "A,S,code,1,One,\n");
    folder->write("a.csv", "K,S\n1,1\n2,\n3,2\n");
    const Outcome import =
        kelx("import @/told/told.KXDB --codebook @/b.csv --level A=@/a.csv --json");
    ASSERT_EQ(import.status, 0) << import.err;
    EXPECT_EQ(import.err, "");
    json expected = json::parse(R"({"levels": [{"name": "A", "records": 3, "sorted": false,
        "orphans": 0, "duplicates": 0, "faultyRows": 0, "variables": [
            {"name": "K", "type": "integer", "blanks": 0, "coded": false, "outside": 0,
             "faulty": 0, "conflicts": 0},
            {"name": "S", "type": "integer", "blanks": 1, "coded": true, "outside": 1,
             "faulty": 0, "conflicts": 0}]}],
        "notes": [], "faults": 0, "firstFaults": []})");
    expected["database"] = path("told/told.KXDB");
    EXPECT_EQ(json::parse(import.out), expected);

    const json sample = json::parse(kelx("sample @/sample --overwrite --persons 3000 --json").out);
    const json info = json::parse(kelx("info @/sample/sample.kxdb --json").out);
    EXPECT_EQ(sample["database"], path("sample/sample.kxdb"));
    EXPECT_EQ(sample["persons"], 3000);
    const char* const counts[] = {"provinces", "districts", "households", "persons", "emigrants"};
    for (std::size_t i = 0; i < 5; ++i)
        EXPECT_EQ(sample[counts[i]], info["entities"][i + 1]["records"]) << counts[i];
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
