// SPDX-License-Identifier: GPL-3.0-or-later
#include "catalog/reader.h"
#include "import/csv_importer.h"
#include "storage/error.h"
#include "support/temporary_folder.h"

#include <gmock/gmock.h>

#include <algorithm>
#include <cstring>
#include <fcntl.h>
#include <sys/file.h>
#include <sys/wait.h>
#include <unistd.h>

using kelx::test::TemporaryFolder;

namespace tools = kelx::tools;
namespace catalog = kelx::catalog;
namespace storage = kelx::storage;
using testing::ElementsAre;
using testing::HasSubstr;

namespace {

const char* const codebook = "level,field,type,code,label,is_missing\n"
                             "town,,,,A town,\n"
                             "town,code,key text(2),,Town code,\n"
                             "town,name,label,,,\n"
                             "town,share,real,-1,None,notapp\n"
                             "home,town,parent key,,,\n"
                             "home,id,key integer,,,\n"
                             "home,power,boolean,,,\n"
                             "home,w,weight,,,\n"
                             "person,home,parent key,,,\n"
                             "person,age,integer,,Age,\n"
                             "person,age,integer,99,Unknown,missing\n"
                             "person,sex,code,1,Male,\n"
                             "person,sex,code,2,Female,\n"
                             "person,born,code text(2),01,First,\n"
                             "person,note,text(5),,,\n";
const char* const towns = "code,name,share\n01,Aville,0.25\n02,\"B, \"\"the\"\" ville\",\n";
const char* const homes = "town,id,power,w\n02,7,1,1.5\n01,5,no,2\n02,3,,0.125\n";
const char* const persons = "home,age,sex,born,note\n"
                            "3,30,1,01,a\n"
                            "7,99,2,02,\n"
                            "5,,3,,\"x\ny\"\n"
                            "7,12,1,01,ünder\n";

class ImportTest : public testing::Test {
protected:
    ImportTest() {
        folder.write("codebook.csv", codebook);
        folder.write("town.csv", towns);
        folder.write("home.csv", homes);
        folder.write("person.csv", persons);
        request.database = folder.path() / "out" / "db.kxdb";
        request.codebook = folder.path() / "codebook.csv";
        for (const char* level : {"town", "home", "person"})
            request.levels.emplace_back(level, folder.path() / (std::string(level) + ".csv"));
    }

    /// The fault of an import after one file is replaced, its folder cut off; the folder of the
    /// database must be as before.
    std::string faultWith(const std::string& file, const std::string& text) {
        const std::string before = folder.read(file);
        folder.write(file, text);
        std::string fault = "no fault";
        try {
            tools::importCsv(request);
        } catch (const std::exception& error) {
            fault = error.what();
        }
        EXPECT_TRUE(TemporaryFolder::contents(folder.path() / "out").empty()) << fault;
        std::filesystem::remove_all(folder.path() / "out");
        folder.write(file, before);
        const std::string prefix = folder.path().string() + "/";
        for (std::size_t at; (at = fault.find(prefix)) != std::string::npos;)
            fault.erase(at, prefix.size());
        return fault;
    }

    std::unique_ptr<catalog::Dictionary> import() {
        report = tools::importCsv(request);
        return catalog::readDictionary(request.database, {});
    }

    TemporaryFolder folder;
    tools::ImportRequest request;
    tools::ImportReport report;
};

/// Values as texts; "-" for a blank.
std::vector<std::string> values(const catalog::Dictionary& dictionary, const char* entity,
                                const char* variable) {
    const auto column = dictionary.findEntity(entity)->findVariable(variable)->column();
    storage::ColumnScratch scratch;
    std::vector<std::string> texts;
    const storage::ColumnInfo& info = column->info();
    const auto size = storage::physicalSize(info.physical);
    const auto* bytes =
        static_cast<const char*>(column->read(0, static_cast<std::size_t>(info.records), scratch));
    for (std::uint64_t i = 0; i < info.records; ++i) {
        if (info.physical == storage::Physical::Real64) {
            double value = 0;
            std::memcpy(&value, bytes + i * size, size);
            texts.push_back(value != value ? "-" : testing::PrintToString(value));
            continue;
        }
        std::uint64_t code = 0;
        std::memcpy(&code, bytes + i * size, size);
        if (code == storage::blankCode(info.physical))
            texts.emplace_back("-");
        else if (info.type == storage::ValueType::String)
            texts.emplace_back(column->text(code));
        else
            texts.push_back(std::to_string(info.base + static_cast<std::int64_t>(code)));
    }
    return texts;
}

} // namespace

TEST_F(ImportTest, PutsRowsUnderTheirParents) {
    const auto db = import();
    EXPECT_THAT(values(*db, "TOWN", "CODE"), ElementsAre("01", "02"));
    EXPECT_THAT(values(*db, "TOWN", "NAME"), ElementsAre("Aville", "B, \"the\" ville"));
    EXPECT_THAT(values(*db, "TOWN", "SHARE"), ElementsAre("0.25", "-"));
    EXPECT_THAT(values(*db, "HOME", "ID"), ElementsAre("5", "7", "3"));
    EXPECT_THAT(values(*db, "HOME", "POWER"), ElementsAre("0", "1", "-"));
    EXPECT_THAT(values(*db, "HOME", "W"), ElementsAre("2", "1.5", "0.125"));
    EXPECT_THAT(values(*db, "PERSON", "AGE"), ElementsAre("-", "99", "12", "30"));
    EXPECT_THAT(values(*db, "PERSON", "SEX"), ElementsAre("3", "2", "1", "1"));
    EXPECT_THAT(values(*db, "PERSON", "BORN"), ElementsAre("-", "02", "01", "01"));
    EXPECT_THAT(values(*db, "PERSON", "NOTE"), ElementsAre("x\ny", "-", "ünder", "a"));

    const auto pointers = db->findEntity("PERSON")->pointers();
    ASSERT_EQ(pointers->parents(), 3u);
    EXPECT_EQ(pointers->first(1), 1u);
    EXPECT_EQ(pointers->first(2), 3u);
    EXPECT_EQ(pointers->first(3), 4u);
    EXPECT_EQ(db->findEntity("HOME")->pointers()->first(1), 1u);
    EXPECT_EQ(db->findEntity("TOWN")->records(), 2u);
}

TEST_F(ImportTest, DescribesWhatItMade) {
    const auto db = import();
    EXPECT_EQ(db->root->name, "DATABASE");
    const catalog::Entity& town = *db->findEntity("TOWN");
    EXPECT_EQ(town.label, "A town");
    EXPECT_EQ(town.codeVar->name, "CODE");
    EXPECT_EQ(town.labelVar->name, "NAME");
    EXPECT_TRUE(town.selectable);
    EXPECT_EQ(town.findVariable("SHARE")->notapp, -1.0);
    EXPECT_EQ(db->findEntity("HOME")->weightVar->name, "W");
    EXPECT_EQ(db->findEntity("HOME")->findVariable("TOWN"), nullptr);
    const catalog::Variable& age = *db->findEntity("PERSON")->findVariable("AGE");
    EXPECT_EQ(age.label, "Age");
    EXPECT_EQ(age.missing, 99.0);
    EXPECT_EQ(*age.labelOf("99"), "Unknown");
    EXPECT_EQ(age.column()->info().physical, storage::Physical::Code8);

    ASSERT_EQ(report.levels.size(), 3u);
    EXPECT_FALSE(report.levels[0].sorted);
    EXPECT_TRUE(report.levels[1].sorted);
    const tools::ImportReport::Level& person = report.levels[2];
    EXPECT_EQ(person.records, 4u);
    EXPECT_EQ(person.variables[0].blanks, 1u);
    EXPECT_EQ(person.variables[1].outside, 1u);
    EXPECT_EQ(person.variables[2].outside, 1u);
}

TEST_F(ImportTest, TellsBranchesAndAFileAsTheRoot) {
    folder.write("codebook.csv", std::string(codebook) + "land,,root,,The land,\n"
                                                         "land,area,integer,,,\n"
                                                         "trip,home,parent key,,,\n"
                                                         "trip,year,integer,,,\n");
    request.levels.insert(request.levels.begin(),
                          {"LAND", folder.write("land.csv", "area\n70000\n")});
    request.levels.emplace_back("Trip", folder.write("trip.csv", "home,year\n3,2001\n7,1999\n"));
    request.under.emplace_back("trip", "Home");
    const auto db = import();
    EXPECT_EQ(db->root->name, "LAND");
    EXPECT_EQ(db->root->label, "The land");
    EXPECT_THAT(values(*db, "LAND", "AREA"), ElementsAre("70000"));
    EXPECT_EQ(db->findEntity("TRIP")->parent, db->findEntity("HOME"));
    EXPECT_THAT(values(*db, "TRIP", "YEAR"), ElementsAre("1999", "2001"));
    folder.write("land.csv", "area\n1\n2\n");
    request.overwrite = true;
    EXPECT_THROW(tools::importCsv(request), tools::LocatedError);
}

TEST_F(ImportTest, FindsParentsByTheKeysOfAllLevels) {
    // The home's number alone says nothing here: both towns have a home 1.
    folder.write("home.csv", "town,id,power,w\n01,1,1,1\n02,1,0,2\n");
    EXPECT_THAT(faultWith("person.csv", "home,age,sex,born,note\n1,1,1,01,\n"),
                HasSubstr("person.csv:2:1: error: several records of HOME have the key \"1\""));
    std::string wider = codebook;
    wider.insert(wider.find("person,home"), "person,town,parent key,,,\n");
    folder.write("codebook.csv", wider);
    EXPECT_EQ(faultWith("person.csv", "home,town,age,sex,born,note\n1,03,1,1,01,\n"),
              "person.csv:2:3: error: no record of TOWN has the key \"03\"");
    EXPECT_EQ(faultWith("person.csv", "home,town,age,sex,born,note\n2,01,1,1,01,\n"),
              "person.csv:2:1: error: no record of HOME has the key \"2\" there");
    folder.write("person.csv", "home,town,age,sex,born,note\n1,02,20,1,01,\n1,01,10,1,01,\n");
    EXPECT_THAT(values(*import(), "PERSON", "AGE"), ElementsAre("10", "20"));
}

TEST_F(ImportTest, RefusesFaultyDataAtTheirPlace) {
    EXPECT_EQ(faultWith("home.csv", "town,id,power,w\n02,7,1,1.5\n09,8,1,1\n"),
              "home.csv:3:1: error: no record of TOWN has the key \"09\"");
    EXPECT_EQ(faultWith("home.csv", "town,id,power,w\n,7,1,1.5\n"),
              "home.csv:2:1: error: the parent key TOWN is blank");
    EXPECT_EQ(faultWith("town.csv", "code,name,share\n01,A,1\n\n01,B,1\n"),
              "town.csv:4:1: error: the key \"01\" occurs twice");
    EXPECT_EQ(faultWith("home.csv", "power,town,id,w\n0,02,7,1\n0,01,7,1\n0,02,7,1\n"),
              "home.csv:4:6: error: the key \"7\" occurs twice under one parent");
    EXPECT_EQ(faultWith("town.csv", "code,name,share\n,A,1\n"),
              "town.csv:2:1: error: the key of TOWN is blank");
    EXPECT_EQ(faultWith("town.csv", "name,code,share\nÄ,001,1\n"),
              "town.csv:2:3: error: CODE: \"001\" has 3 characters, not 2");
    EXPECT_EQ(faultWith("person.csv", "home,age,sex,born,note\n3,1,1,01,sixsix\n"),
              "person.csv:2:10: error: NOTE: \"sixsix\" has 6 characters, not at most 5");
    EXPECT_EQ(faultWith("person.csv", "home,age,sex,born,note\n3,1,1,1,\n"),
              "person.csv:2:7: error: BORN: \"1\" has 1 character, not 2");
    EXPECT_EQ(faultWith("person.csv", "home,note,age,sex,born\n3,\"a\nb\",x7,1,01\n"),
              "person.csv:3:4: error: AGE: \"x7\" is not a number");
    for (const char* number : {"1.5", "1e3", "99999999999999999999"})
        EXPECT_EQ(faultWith("person.csv",
                            std::string("home,sex,age,born,note\n3,1,") + number + ",01,\n"),
                  std::string("person.csv:2:5: error: AGE: \"") + number +
                      "\" is not a whole number that can be held");
    for (const char* number : {"1,5", "nan", "inf", " 1", "0x1", "1.2.3"})
        EXPECT_THAT(
            faultWith("town.csv", std::string("code,name,share\n01,A,\"") + number + "\"\n"),
            testing::StartsWith("town.csv:2:6: error: SHARE: "));
    EXPECT_THAT(faultWith("home.csv", "town,id,power,w\n01,5,maybe,2\n"),
                testing::StartsWith("home.csv:2:6: error: POWER: \"maybe\" is neither"));
    EXPECT_EQ(faultWith("town.csv", "code,name,share\n01,\xe9,1\n"),
              "town.csv:2:4: error: bytes that are no UTF-8");
}

TEST_F(ImportTest, RefusesFaultyColumns) {
    EXPECT_EQ(faultWith("town.csv", "code,name,mayor,share\n"),
              "town.csv:1:11: error: unknown column \"mayor\": the codebook has no such field of "
              "TOWN");
    EXPECT_EQ(faultWith("town.csv", "code,name,Name,share\n"),
              "town.csv:1:11: error: the column NAME stands here twice");
    EXPECT_EQ(faultWith("town.csv", "code,name\n"),
              "codebook.csv:5:6: error: the field SHARE is no column of town.csv");
    EXPECT_EQ(faultWith("town.csv", "code,name,share\n01,A\n"),
              "town.csv:2:5: error: expected 3 fields, found 2");
    EXPECT_EQ(faultWith("town.csv", "code,name,share\n01,A,1,2\n"),
              "town.csv:2:8: error: expected 3 fields, found 4");
    EXPECT_EQ(faultWith("town.csv", ""), "town.csv:1:1: error: the file has no header");
}

TEST_F(ImportTest, RefusesAFaultyCodebook) {
    const std::string head = "level,field,type,code,label,is_missing\n";
    const auto fault = [&](const std::string& rows) {
        return faultWith("codebook.csv", head + rows);
    };
    EXPECT_EQ(fault("town,code,key number,,,\n"),
              "codebook.csv:2:11: error: unknown type \"key number\"");
    EXPECT_EQ(fault("town,code,text(0),,,\n"),
              "codebook.csv:2:11: error: unknown type \"text(0)\"");
    EXPECT_EQ(fault("town,a b,text,,,\n"),
              "codebook.csv:2:6: error: a name holds letters, digits, \"_\" and \"-\" only, not "
              "\"a b\"");
    EXPECT_EQ(fault("town,code,,,,\n"), "codebook.csv:2:11: error: CODE has no type");
    EXPECT_EQ(fault("town,s,code,1,A,\ntown,s,integer,2,B,\n"),
              "codebook.csv:3:8: error: \"integer\" is not the type that S got before");
    EXPECT_EQ(fault("town,s,code,1,A,\ntown,s,code,01,B,\n"),
              "codebook.csv:3:13: error: the code \"1\" stands here twice");
    EXPECT_EQ(fault("town,s,code,x,A,\n"),
              "codebook.csv:2:13: error: \"x\" is no value of this type");
    EXPECT_EQ(fault("town,s,code,9,A,perhaps\n"),
              "codebook.csv:2:17: error: expected \"missing\", \"notapp\" or nothing, found "
              "\"perhaps\"");
    EXPECT_EQ(fault("town,s,code,8,A,missing\ntown,s,code,9,A,missing\n"),
              "codebook.csv:3:17: error: S has such a code already: \"8\"");
    EXPECT_EQ(faultWith("codebook.csv", "level,field,type,code,label\n"),
              "codebook.csv:1:28: error: the column IS_MISSING is not there");
    std::string keyless = codebook;
    keyless.replace(keyless.find("key integer"), 11, "integer");
    EXPECT_EQ(faultWith("codebook.csv", keyless),
              "codebook.csv:6:1: error: HOME needs a key, since PERSON lies under it");
    EXPECT_EQ(faultWith("codebook.csv", codebook + std::string("ghost,x,integer,,,\n")),
              "codebook.csv:17:1: error: the level GHOST has no file");
}

TEST_F(ImportTest, TakesCodesOfAFieldThatIsDescribedAlready) {
    const std::string head = "level,field,type,code,label,is_missing\ntown,s,text(3),,,\n";
    EXPECT_EQ(faultWith("codebook.csv", head + "town,s,code,1,A,\n"),
              "codebook.csv:3:8: error: \"code\" is not the type that S got before");
    EXPECT_EQ(faultWith("codebook.csv", head + "town,s,code text(2),01,A,\n"),
              "codebook.csv:3:8: error: \"code text(2)\" is not the type that S got before");

    std::string book = codebook;
    const auto replace = [&](const std::string& row, const std::string& by) {
        const auto at = book.find(row);
        ASSERT_NE(at, std::string::npos) << row;
        book.replace(at, row.size(), by);
    };
    replace("person,age,integer,99,", "person,age,code,99,");
    replace("town,share,real,-1,None,notapp\n",
            "town,share,real,,Share,\ntown,share,code,-1,None,notapp\n");
    replace("person,sex,code,2,", "person,sex,,2,");
    folder.write("codebook.csv", book);
    using Labels = std::vector<std::pair<std::string, std::string>>;
    const auto dictionary = import();
    const catalog::Variable& age = *dictionary->findEntity("PERSON")->findVariable("AGE");
    EXPECT_EQ(age.label, "Age");
    EXPECT_EQ(age.missing, 99);
    EXPECT_EQ(age.valueLabels, (Labels{{"99", "Unknown"}}));
    const catalog::Variable& share = *dictionary->findEntity("TOWN")->findVariable("SHARE");
    EXPECT_EQ(share.type, storage::ValueType::Real);
    EXPECT_EQ(share.notapp, -1);
    EXPECT_EQ(dictionary->findEntity("PERSON")->findVariable("SEX")->valueLabels,
              (Labels{{"1", "Male"}, {"2", "Female"}}));
}

TEST_F(ImportTest, KeepsWhatIsThere) {
    import();
    const auto before = TemporaryFolder::contents(folder.path() / "out");
    folder.write("town.csv", "code,name,share\n01,Other,\n02,Place,\n");
    EXPECT_THROW(tools::importCsv(request), storage::FileError);
    EXPECT_EQ(TemporaryFolder::contents(folder.path() / "out"), before);
    request.overwrite = true;
    EXPECT_THAT(values(*import(), "TOWN", "NAME"), ElementsAre("Other", "Place"));
}

TEST_F(ImportTest, ReplacesWhatBelongsToTheReplacedDatabaseOnly) {
    const auto faultOf = [&] {
        const auto before = TemporaryFolder::contents(folder.path() / "out");
        std::string fault = "no fault";
        try {
            tools::importCsv(request);
        } catch (const std::exception& error) {
            fault = error.what();
        }
        EXPECT_EQ(TemporaryFolder::contents(folder.path() / "out"), before);
        const std::string prefix = (folder.path() / "out").string() + "/";
        for (std::size_t at; (at = fault.find(prefix)) != std::string::npos;)
            fault.erase(at, prefix.size());
        return fault;
    };
    import();
    request.overwrite = true;
    request.database = folder.path() / "out" / "other.kxdb";
    EXPECT_EQ(faultOf(),
              "HOME.kpt: exists already and does not belong to the database to be replaced");
    request.database = folder.path() / "out" / "db.kxdb";
    folder.write("out/more.kxdb", "rubbish");
    EXPECT_THAT(faultOf(), testing::StartsWith("HOME.kpt: may belong to another database in the "
                                               "folder and cannot be replaced: more.kxdb: "));
    std::filesystem::remove(folder.path() / "out" / "more.kxdb");
    const auto dictionary = catalog::readDictionary(request.database, {});
    catalog::saveDictionary(*dictionary, folder.path() / "out" / "copy.dicx");
    EXPECT_EQ(faultOf(),
              "HOME.kpt: belongs to copy.dicx too and cannot be replaced; take another folder");
    std::filesystem::remove(folder.path() / "out" / "copy.dicx");

    folder.write("codebook.csv", "level,field,type,code,label,is_missing\n"
                                 "town,code,key text(2),,Town code,\n"
                                 "town,title,label,,,\n");
    folder.write("town.csv", "code,title\n01,One\n");
    request.levels.resize(1);
    folder.write("out/notes.kbf", "mine");
    EXPECT_THAT(values(*import(), "TOWN", "TITLE"), ElementsAre("One"));
    std::vector<std::string> left;
    for (const auto& [file, text] : TemporaryFolder::contents(folder.path() / "out"))
        left.push_back(file);
    EXPECT_THAT(left,
                ElementsAre("TOWN.kpt", "TOWN_CODE.kbf", "TOWN_TITLE.kbf", "db.kxdb", "notes.kbf"));
}

TEST_F(ImportTest, TellsTheBytesReadAndEndsWhenAsked) {
    const std::uint64_t bytes =
        2 * (std::strlen(towns) + std::strlen(homes) + std::strlen(persons));
    std::vector<std::uint64_t> told;
    request.progress = [&](std::uint64_t done, std::uint64_t all) {
        EXPECT_EQ(all, bytes);
        told.push_back(done);
    };
    import();
    ASSERT_GE(told.size(), 6u); // three files, twice
    EXPECT_TRUE(std::is_sorted(told.begin(), told.end()));
    EXPECT_EQ(told.back(), bytes);
    // Wherever the work is ended, before or while data are written, nothing of it stays.
    request.database = folder.path() / "none" / "db.kxdb";
    for (std::size_t last = 1; last <= told.size(); ++last) {
        std::size_t calls = 0;
        request.progress = [&](std::uint64_t, std::uint64_t) {
            if (++calls == last)
                throw std::runtime_error("enough");
        };
        EXPECT_THROW(tools::importCsv(request), std::runtime_error) << last;
        EXPECT_FALSE(std::filesystem::exists(folder.path() / "none")) << last;
    }
}

TEST_F(ImportTest, RemovesWhatKilledProcessesLeft) {
    const pid_t child = ::fork();
    if (child == 0)
        ::_exit(0);
    ASSERT_EQ(::waitpid(child, nullptr, 0), child); // from now on nobody has its number
    const std::string gone = "out/.kelx-" + std::to_string(child) + "-7";
    const std::string alive = "out/.kelx-" + std::to_string(::getppid()) + "-7";
    folder.write(gone + "/PERSON_AGE.kbf", "half a column");
    folder.write(alive + "/PERSON_AGE.kbf", "half a column");
    folder.write("out/.kelx-1x-7/file", "of somebody else");
    import();
    EXPECT_FALSE(std::filesystem::exists(folder.path() / gone));
    EXPECT_TRUE(std::filesystem::exists(folder.path() / alive));
    EXPECT_TRUE(std::filesystem::exists(folder.path() / "out/.kelx-1x-7/file"));
}

TEST_F(ImportTest, LeavesAStagingThatIsAtWork) {
    const std::string child = "out/.kelx-" + std::to_string(::getpid()) + "-7";
    folder.write(child + "/PERSON_AGE.kbf", "half a column");
    const int lock = ::open((folder.path() / child).c_str(), O_RDONLY | O_DIRECTORY);
    ASSERT_EQ(::flock(lock, LOCK_EX), 0);
    import();
    EXPECT_TRUE(std::filesystem::exists(folder.path() / child));
    ::close(lock);
    request.overwrite = true;
    import();
    EXPECT_FALSE(std::filesystem::exists(folder.path() / child));
}

TEST_F(ImportTest, ProtectsWhereAKeyIsGiven) {
    request.key = storage::Secret::derive("secret", storage::Secret::newRecipe());
    tools::importCsv(request);
    for (const auto& [name, bytes] : TemporaryFolder::contents(folder.path() / "out"))
        EXPECT_THAT(bytes, testing::Not(HasSubstr("Aville"))) << name;
    catalog::Questions questions;
    questions.password = [](const std::string&) { return std::string("wrong"); };
    EXPECT_THROW(catalog::readDictionary(request.database, questions), std::runtime_error);
    questions.password = [](const std::string&) { return std::string("secret"); };
    const auto db = catalog::readDictionary(request.database, questions);
    EXPECT_THAT(values(*db, "PERSON", "AGE"), ElementsAre("-", "99", "12", "30"));
}
