// SPDX-License-Identifier: GPL-3.0-or-later
#include "flat_fixture.h"
#include "import/statistics_source.h"
#include "import/statistics_stream.h"
#include "statistics_files.h"

#include <cmath>
#include <random>
#include <sys/stat.h>

using kelx::storage::ValueType;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::Pair;

namespace {

namespace tools = kelx::tools;
using kelx::test::StatisticsVariable;
using tools::encodeFrame;
using tools::FrameKind;
using tools::PayloadWriter;
using tools::ValueTag;

/// Four persons in two houses.
std::vector<StatisticsVariable> persons() {
    StatisticsVariable zone{"zone", "Zone of the town", true, {}, {}, {}, {}, "", 0};
    zone.texts = {"Añil", "Añil", "Béta", "Béta"};
    StatisticsVariable house{"House", "Number", false, {}, {}, {}, {}, "", 0};
    house.numbers = {1, 1, 2, 2};
    StatisticsVariable age{"age", "Age in years", false, {}, {}, {}, {}, "", 0};
    age.numbers = {30, 28, 7, {}};
    StatisticsVariable sex{"sex", "Sex", false, {{1, "Male"}, {2, "Female"}}, {}, {}, {}, "", 0};
    sex.numbers = {1, 2, 1, 9};
    StatisticsVariable income{"income", "", false, {}, {}, {}, {}, "", 0};
    income.numbers = {0.5, 1e10, -3.25, {}};
    return {zone, house, age, sex, income};
}

class StatisticsTest : public kelx::test::FlatTest {
protected:
    StatisticsTest() {
        request.helper = KELX_STATISTICS;
        request.levels = "ZONE:zone,HOUSE:house,PERSON";
    }
    void write(const std::string& name, const std::vector<StatisticsVariable>& variables,
               const std::string& weight = "") {
        request.data = folder / name;
        kelx::test::writeStatistics(request.data, variables, weight);
    }
    const kelx::catalog::Variable& variable(const kelx::catalog::Dictionary& db, const char* name) {
        return *db.findEntity("PERSON")->findVariable(name);
    }
    /// A helper that is a script of ours.
    void useScript(const std::string& text) {
        request.helper = folder.write("helper", "#!/bin/sh\n" + text + "\n");
        ::chmod(request.helper.c_str(), 0700);
    }
    void useStream(const std::string& bytes) {
        folder.write("stream", bytes);
        useScript("cat '" + (folder / "stream").string() + "'");
    }
};

TEST_F(StatisticsTest, ReadsTheThreePackages) {
    for (const char* name : {"p.sav", "p.zsav", "p.dta", "p.sas7bdat"}) {
        SCOPED_TRACE(name);
        write(name, persons());
        request.overwrite = true;
        const auto db = import();
        EXPECT_THAT(values(*db, "ZONE", "ZONE"), ElementsAre("Añil", "Béta"));
        EXPECT_THAT(values(*db, "HOUSE", "HOUSE"), ElementsAre("1", "2"));
        EXPECT_THAT(values(*db, "PERSON", "AGE"), ElementsAre("30", "28", "7", "-"));
        EXPECT_THAT(values(*db, "PERSON", "SEX"), ElementsAre("1", "2", "1", "9"));
        EXPECT_THAT(values(*db, "PERSON", "INCOME"),
                    ElementsAre("0.5", "10000000000", "-3.25", "-"));
        EXPECT_THAT(children(*db, "PERSON"), ElementsAre(2, 2));
        EXPECT_EQ(variable(*db, "AGE").label, "Age in years");
        EXPECT_EQ(variable(*db, "AGE").type, ValueType::Integer);
        EXPECT_EQ(variable(*db, "INCOME").type, ValueType::Real);
        if (std::string(name) != "p.sas7bdat") {
            EXPECT_THAT(variable(*db, "SEX").valueLabels,
                        ElementsAre(Pair("1", "Male"), Pair("2", "Female")));
            EXPECT_EQ(report.levels[2].variables[1].outside, 1u);
        }
    }
}

TEST_F(StatisticsTest, MissingValuesBecomeCodes) {
    auto variables = persons();
    variables[2].missing = {{99, 99}};
    variables[2].numbers = {30, 99, 7, {}};
    variables[3].labels = {{1, "Male"}, {7, "Refused"}, {8, "Not applicable"}, {9, "Unknown"}};
    variables[3].missing = {{7, 7}, {8, 8}, {9, 9}};
    variables[3].numbers = {1, 7, 8, 9};
    variables[4].missing = {{-10, -3}};
    write("p.sav", variables, "age");
    const auto db = import();
    EXPECT_EQ(variable(*db, "AGE").missing, 99);
    EXPECT_EQ(db->findEntity("PERSON")->weightVar, &variable(*db, "AGE"));
    EXPECT_EQ(variable(*db, "SEX").missing, 7);
    EXPECT_EQ(variable(*db, "SEX").notapp, 8);
    EXPECT_THAT(values(*db, "PERSON", "SEX"), ElementsAre("1", "7", "8", "7"));
    EXPECT_THAT(variable(*db, "SEX").valueLabels,
                ElementsAre(Pair("1", "Male"), Pair("7", "Refused"), Pair("8", "Not applicable")));
    EXPECT_EQ(variable(*db, "INCOME").missing, -3);
    EXPECT_THAT(values(*db, "PERSON", "INCOME"), ElementsAre("0.5", "10000000000", "-3", "-"));
    EXPECT_THAT(report.notes,
                ElementsAre("SEX: the missing values 9 became the missing code 7",
                            "INCOME: the missing values -10 to -3 became the missing code -3"));

    variables = persons();
    variables[2].tagAt0 = 'b';
    variables[4].format = "%td";
    write("p.dta", variables);
    request.overwrite = true;
    const auto stata = import();
    EXPECT_THAT(values(*stata, "PERSON", "AGE"), ElementsAre("-", "28", "7", "-"));
    EXPECT_THAT(report.notes, ElementsAre("AGE: 1 missing values with a letter became blank",
                                          "INCOME holds dates or times as the package's numbers"));
}

// Whoever wrote the file may not have known how many cases would come.
TEST_F(StatisticsTest, TheNumberOfCasesMayBeUnknown) {
    constexpr std::size_t casesAt = 80;
    for (const auto& [name, packed] :
         {std::pair("p.sav", false), std::pair("p.sav", true), std::pair("p.zsav", false)}) {
        SCOPED_TRACE(std::string(name) + (packed ? " packed" : ""));
        request.data = folder / name;
        request.overwrite = true;
        request.tolerant = false;
        kelx::test::writeStatistics(request.data, persons(), "", packed);
        std::string bytes = folder.read(name);
        ASSERT_EQ(bytes.substr(casesAt, 4), std::string("\4\0\0\0", 4));
        folder.write(name, bytes.replace(casesAt, 4, "\xff\xff\xff\xff"));
        EXPECT_THAT(values(*import(), "PERSON", "AGE"), ElementsAre("30", "28", "7", "-"));
        std::filesystem::remove_all(folder / "out");

        folder.write(name, bytes.replace(casesAt, 4, std::string("\2\0\0\0", 4)));
        EXPECT_EQ(fault(), std::string(name) + ":4:1: error: the file says that it has 2 rows, but "
                                               "it has 4");
        request.tolerant = true;
        EXPECT_THAT(values(*import(), "PERSON", "AGE"), ElementsAre("30", "28", "7", "-"));
        EXPECT_THAT(report.firstFaults, ElementsAre(HasSubstr("says that it has 2 rows")));
        std::filesystem::remove_all(folder / "out");
    }
    request.tolerant = false;
    write("p.sav", persons());
    std::string cut = folder.read("p.sav").replace(casesAt, 4, "\xff\xff\xff\xff");
    cut.resize(cut.size() - 3);
    folder.write("p.sav", cut);
    EXPECT_EQ(fault(), "p.sav: cannot be read: its last row is not complete");
}

TEST_F(StatisticsTest, TextsHaveTheEncodingThatIsGiven) {
    auto variables = persons();
    variables[0].texts = {"A\xf1il", "A\xf1il", "\xc9", "\xc9"};
    variables[3].labels = {{1, "M\xe4nnlich"}, {2, "Weiblich"}};
    for (const char* name : {"p.sav", "p.zsav", "p.dta"}) {
        SCOPED_TRACE(name);
        write(name, variables);
        std::string bytes = folder.read(name);
        if (std::string(name) != "p.dta") { // the record that tells an encoding
            const std::string record("\7\0\0\0\3\0\0\0\4\0\0\0\10\0\0\0", 16);
            const std::size_t at = bytes.find(record);
            ASSERT_NE(at, std::string::npos);
            if (std::string(name) == "p.sav") // whose data have no offsets
                folder.write(name, bytes.erase(at, 48));
        }
        request.overwrite = true;
        request.encoding = "windows-1252";
        const auto db = import();
        EXPECT_THAT(values(*db, "ZONE", "ZONE"), ElementsAre("Añil", "É"));
        EXPECT_THAT(variable(*db, "SEX").valueLabels,
                    ElementsAre(Pair("1", "Männlich"), Pair("2", "Weiblich")));
        std::filesystem::remove_all(folder / "out");
        request.encoding.clear();
        EXPECT_THAT(fault(), HasSubstr("--encoding NAME tells how"));
        request.encoding = "NOPE-99";
        EXPECT_EQ(fault(), "There is no encoding \"NOPE-99\".");
        request.encoding = "";
    }
    request.encoding = "EUC-JP";
    write("p.sav", variables);
    EXPECT_EQ(fault(), "p.sav: cannot be read: a text is not written in EUC-JP");
    request.data = folder.write("flat.csv", "zone,house\n1,1\n");
    EXPECT_EQ(fault(), "Only files of statistics packages have an encoding to be given; other "
                       "texts are UTF-8.");
}

TEST_F(StatisticsTest, MissingRangesMayHaveNoEnd) {
    auto variables = persons();
    variables[2].missing = {{97, HUGE_VAL}};
    variables[2].numbers = {30, 98, 97, {}};
    variables[4].missing = {{-HUGE_VAL, -1}};
    write("p.sav", variables);
    const auto db = import();
    EXPECT_EQ(variable(*db, "AGE").missing, 97);
    EXPECT_EQ(variable(*db, "INCOME").missing, -1);
    EXPECT_THAT(values(*db, "PERSON", "AGE"), ElementsAre("30", "97", "97", "-"));
    EXPECT_THAT(report.notes,
                ElementsAre("AGE: the missing values 97 and above became the missing code 97",
                            "INCOME: the missing values -1 and below became the missing code -1"));
}

TEST_F(StatisticsTest, LabelsOfSasComeFromAFileOfTheirOwn) {
    auto variables = persons();
    variables[3].format = "SEXFMT";
    write("p.sas7bdat", variables);
    request.formats = folder / "p.sas7bcat";
    kelx::test::writeFormats(request.formats, "SEXFMT", {{1, "Male"}, {2, "Female"}});
    const auto db = import();
    EXPECT_THAT(variable(*db, "SEX").valueLabels,
                ElementsAre(Pair("1", "Male"), Pair("2", "Female")));
}

TEST_F(StatisticsTest, TellsFaultsByRowAndVariable) {
    write("p.sav", persons());
    request.places = {{"sex", "HOUSE"}};
    EXPECT_EQ(fault(),
              "p.sav:2:4: error: SEX is \"2\" here, but \"1\" in line 1 for the same record "
              "of HOUSE");
    request.places.clear();
    request.levels = "HOUSE:house,PERSON:sex";
    request.data = folder / "none.sav";
    EXPECT_EQ(fault(), "none.sav: cannot be opened");
    folder.write("text.dta", "this is no such file");
    request.data = folder / "text.dta";
    EXPECT_THAT(fault(), testing::StartsWith("text.dta: cannot be read: it is no .dta file, or "));
    request.helper = folder / "nowhere";
    EXPECT_EQ(fault(), "text.dta: cannot be read: the program kelx-statistics is not there");
}

// Whatever a damaged file does to its reader: either it can be read, or the fault names it and
// nothing is left of the import.
TEST_F(StatisticsTest, DamagedFilesAreFaults) {
    std::mt19937 random(7);
    for (const char* name : {"p.sav", "p.zsav", "p.dta", "p.sas7bdat"}) {
        write(name, persons());
        const std::string sound = folder.read(name);
        request.overwrite = true;
        std::size_t refused = 0;
        for (int i = 0; i < 40; ++i) {
            std::string damaged = sound;
            if (i % 3 == 0) {
                damaged.resize(random() % sound.size());
            } else {
                // Most of what matters stands at the begin.
                const std::size_t reach = i % 3 == 1 ? sound.size() : sound.size() / 8 + 1;
                for (int n = 0; n < 1 + i % 4; ++n)
                    damaged[random() % reach] = static_cast<char>(random());
            }
            folder.write(name, damaged);
            try {
                tools::importFlat(request);
            } catch (const std::exception& error) {
                ++refused;
                EXPECT_THAT(std::string(error.what()),
                            testing::AnyOf(HasSubstr(name), HasSubstr("There is no field")));
            }
            for (const auto& [file, text] : kelx::test::TemporaryFolder::contents(folder / "out"))
                EXPECT_THAT(file, testing::Not(HasSubstr(".kelx-")));
        }
        EXPECT_GT(refused, 8u) << name;
    }
}

TEST_F(StatisticsTest, AHelperThatFailsIsAFault) {
    folder.write("p.sav", "x");
    request.data = folder / "p.sav";
    for (const auto& [script, problem] : std::vector<std::pair<std::string, std::string>>{
             {"exit 0", "its reader ended too early"},
             {"exit 3", "its reader failed (status 3)"},
             {"kill -SEGV $$", "its reader crashed (signal 11)"},
             {"kill -XCPU $$", "more time or memory"},
             {"head -c 100000 /dev/urandom", "its reader sends a frame of an unknown kind"},
             {"head -c 7 /dev/zero", "its reader ended too early"},
             {"yes", "its reader sends a frame"},
             {"cat >/dev/null; ls /proc/self/fd | grep -q '^[4-9]' && exit 4; ulimit -c | grep -q "
              "'^0$' || exit 5; ulimit -v | grep -q unlimited && exit 6; exit 0",
              SANITIZED ? "failed (status 6)" : "its reader ended too early"}}) {
        useScript(script);
        EXPECT_THAT(fault(), testing::AllOf(testing::StartsWith("p.sav: cannot be read: "),
                                            HasSubstr(problem)))
            << script;
    }
    useScript("sleep 60");
    const auto begin = std::chrono::steady_clock::now();
    EXPECT_THROW(tools::StatisticsSource(
                     {request.data, {}, "", request.helper, std::chrono::seconds(1)}, {}),
                 std::runtime_error);
    // One that has nothing more to say, but does not go.
    useScript("exec >&-; exec sleep 60");
    EXPECT_THROW(tools::StatisticsSource(
                     {request.data, {}, "", request.helper, std::chrono::seconds(1)}, {}),
                 std::runtime_error);
    EXPECT_LT(std::chrono::steady_clock::now() - begin, std::chrono::seconds(30));
}

std::string variableFrame(std::uint32_t index, bool isText, const std::string& name,
                          std::uint32_t ranges = 0) {
    PayloadWriter payload;
    payload.put(index);
    payload.put(static_cast<std::uint8_t>(isText));
    for (const std::string& text : {name, std::string("label"), std::string(), std::string("set")})
        payload.putText(text);
    payload.put(ranges);
    payload.put(static_cast<std::uint8_t>(0));
    return encodeFrame(FrameKind::Variable, payload.bytes());
}

template <class... Numbers>
std::string frame(FrameKind kind, Numbers... numbers) {
    PayloadWriter payload;
    (payload.put(numbers), ...);
    return encodeFrame(kind, payload.bytes());
}

// Frames with right checksums that lie.
TEST_F(StatisticsTest, AHelperThatLiesIsAFault) {
    folder.write("p.sav", "x");
    request.data = folder / "p.sav";
    request.levels = "R";
    const std::string number = variableFrame(0, false, "A");
    const std::string row = frame(FrameKind::Rows, 1U, std::uint8_t{1}, 5.0);
    const std::string end = frame(FrameKind::End, std::uint64_t{1});
    useStream(number + row + end);
    EXPECT_THAT(values(*import(), "R", "A"), ElementsAre("5"));
    std::filesystem::remove_all(folder / "out");

    PayloadWriter text;
    text.put(1U);
    text.putTag(ValueTag::Text);
    text.putText("\xff\xfe");
    std::string longPayload = number;
    longPayload[7] = '\x7f';
    for (const auto& [stream, problem] : std::vector<std::pair<std::string, std::string>>{
             {row + end, "rows without values"},
             {number + number, "variables out of order"},
             {variableFrame(0, false, "A", 1000), "too many missing values"},
             {number + row + variableFrame(1, false, "B"), "one behind the first row"},
             {number + row, "ended too early"},
             {number + row + frame(FrameKind::End, std::uint64_t{2}), "another number of rows"},
             {number + row + end + "x", "more than it should"},
             {number + frame(FrameKind::Weight, 7U), "a weight that is no variable"},
             {variableFrame(0, true, "A") + frame(FrameKind::Weight, 0U),
              "a weight that is a text"},
             {number + frame(FrameKind::Rows, 9U, std::uint8_t{1}, 5.0), "ends too early"},
             {number + frame(FrameKind::Rows, 1U, std::uint8_t{1}, 5.0, 1), "more than they"},
             {number + frame(FrameKind::Rows, 1U, std::uint8_t{9}, 5.0), "unknown kind"},
             {variableFrame(0, true, "A") + row, "another type than its variable's"},
             {variableFrame(0, true, "A") + encodeFrame(FrameKind::Rows, text.bytes()), "no UTF-8"},
             {variableFrame(0, false, "\xc3"), "no UTF-8"},
             {variableFrame(0, false, std::string("A\0", 2)), "zero byte"},
             {number.substr(0, number.size() - 1) + "x" + row, "its checksum"},
             {longPayload, "impossible length"},
             {frame(FrameKind::Size, 1U), "ends too early"},
             {frame(FrameKind::Label, 0xffffffffU), "too long"}}) {
        useStream(stream);
        EXPECT_THAT(fault(), testing::AllOf(testing::StartsWith("p.sav: cannot be read: "),
                                            HasSubstr(problem)));
    }
}

} // namespace
