// SPDX-License-Identifier: GPL-3.0-or-later
#include "sample_files.h"

#include "catalog/reader.h"
#include "storage/error.h"
#include "storage/raw_column.h"

#include <gmock/gmock.h>

#include <sys/stat.h>

using namespace kelx;
using testing::HasSubstr;

namespace {

namespace fs = std::filesystem;

struct ReaderTest : testing::Test {
    test::TemporaryFolder folder;
    int asked = 0;
    catalog::Questions answering(const std::string& answer) {
        return {[this, answer](const std::string&) { return ++asked, answer; },
                [this, answer](const std::string&) { return ++asked, answer; }};
    }
    void save(const fs::path& file) {
        catalog::saveDictionary(*test::sampleDictionary(file), file);
    }
};

TEST_F(ReaderTest, BothFormsGiveTheSameDictionary) {
    test::writeSampleData(folder.path());
    save(folder / "a.kxdb");
    auto binary = catalog::readDictionary(folder / "a.kxdb", {});
    const std::string expected = test::described(*binary);
    catalog::saveDictionary(*binary, folder / "b.dicx");
    auto text = catalog::readDictionary(folder / "b.dicx", {});
    EXPECT_EQ(test::described(*text), expected);
    catalog::saveDictionary(*text, folder / "c");
    EXPECT_EQ(test::described(*catalog::readDictionary(folder / "c", {})), expected);
    EXPECT_EQ(expected, test::described(*test::sampleDictionary("/x")));
}

TEST_F(ReaderTest, TellsWhatIsWrongWithAFile) {
    EXPECT_THAT(test::thrownBy([&] { catalog::readDictionary(folder / "none.dicx", {}); }),
                HasSubstr("none.dicx"));
    EXPECT_THAT(test::thrownBy([&] { catalog::readDictionary(folder / "none.kxdb", {}); }),
                HasSubstr("none.kxdb"));
    test::writeFile(folder / "bad.kxdb", "not a dictionary at all");
    EXPECT_THAT(test::thrownBy([&] { catalog::readDictionary(folder / "bad.kxdb", {}); }),
                HasSubstr("bad.kxdb"));
    test::writeFile(folder / "empty.dicx", "");
    EXPECT_THAT(test::thrownBy([&] { catalog::readDictionary(folder / "empty.dicx", {}); }),
                HasSubstr("empty.dicx"));
}

TEST_F(ReaderTest, AsksForTheDataFolderOnce) {
    save(folder / "a.kxdb");
    test::writeSampleData(folder / "elsewhere");
    const auto read =
        catalog::readDictionary(folder / "a.kxdb", answering((folder / "elsewhere").string()));
    EXPECT_EQ(asked, 1);
    EXPECT_EQ(read->findEntity("PERSON")->records(), 5u);
    // A folder without the files is taken too: they are marked as missing.
    const auto poor = catalog::readDictionary(folder / "a.kxdb", answering("/"));
    EXPECT_EQ(asked, 2);
    EXPECT_FALSE(poor->findEntity("PERSON")->findVariable("AGE")->fileFound());
}

TEST_F(ReaderTest, ARefusalEndsTheLoad) {
    save(folder / "a.kxdb");
    catalog::Questions questions;
    questions.dataFolder = [](const std::string&) -> std::string {
        throw std::runtime_error("Missing data location.");
    };
    EXPECT_EQ(test::thrownBy([&] { catalog::readDictionary(folder / "a.kxdb", questions); }),
              "Missing data location.");
    EXPECT_EQ(test::thrownBy([&] { catalog::readDictionary(folder / "a.kxdb", answering("")); }),
              "Missing data location.");
}

TEST_F(ReaderTest, LoadsWithSomeFilesMissingOrDamaged) {
    test::writeSampleData(folder.path());
    save(folder / "a.kxdb");
    fs::remove(folder / "age.kbf");
    test::writeFile(folder / "income.kbf", "damaged");
    const auto read = catalog::readDictionary(folder / "a.kxdb", answering("/"));
    EXPECT_EQ(asked, 0);
    const catalog::Entity& person = *read->findEntity("PERSON");
    EXPECT_FALSE(person.findVariable("AGE")->fileFound());
    EXPECT_TRUE(person.findVariable("SEX")->fileFound());
    EXPECT_THAT(test::thrownBy([&] { person.findVariable("INCOME")->column(); }),
                HasSubstr("income.kbf"));
}

TEST_F(ReaderTest, ProtectedDictionariesAskForThePassword) {
    test::writeSampleData(folder.path());
    auto dictionary = test::sampleDictionary(folder / "a.kxdb");
    dictionary->key = storage::Secret::derive("right", storage::Secret::newRecipe());
    catalog::saveDictionary(*dictionary, folder / "a.kxdb");
    EXPECT_EQ(test::readFile(folder / "a.kxdb").find("PERSON"), std::string::npos);
    EXPECT_EQ(
        test::thrownBy([&] { catalog::readDictionary(folder / "a.kxdb", answering("wrong")); }),
        "Wrong password.");
    const auto read = catalog::readDictionary(folder / "a.kxdb", answering("right"));
    EXPECT_EQ(asked, 2);
    EXPECT_EQ(test::described(*read), test::described(*dictionary));
    EXPECT_NE(read->key, nullptr);
    EXPECT_THAT(test::thrownBy([&] { catalog::readDictionary(folder / "a.kxdb", {}); }),
                HasSubstr("password"));
}

TEST_F(ReaderTest, FileNamesFollowTheDictionary) {
    test::writeSampleData(folder / "data");
    fs::create_directories(folder / "other/deep");
    auto dictionary = test::sampleDictionary(folder / "data/a.kxdb");
    catalog::Entity& person = *dictionary->findEntity("PERSON");
    person.findVariable("AGE")->fileName = (folder / "data/age.kbf").string();
    catalog::saveDictionary(*dictionary, folder / "other/deep/b.dicx");
    const auto read = catalog::readDictionary(folder / "other/deep/b.dicx", {});
    const catalog::Entity& moved = *read->findEntity("PERSON");
    EXPECT_EQ(moved.findVariable("SEX")->fileName, "../../data/sex.kbf");
    EXPECT_EQ(moved.findVariable("AGE")->fileName, (folder / "data/age.kbf").string());
    EXPECT_EQ(moved.findVariable("SEX")->column()->info().records, 5u);
}

TEST_F(ReaderTest, AFailedSaveChangesNothing) {
    test::writeSampleData(folder / "data");
    auto dictionary = test::sampleDictionary(folder / "data/a.kxdb");
    dictionary->dirty = true;
    const std::string before = test::described(*dictionary);
    EXPECT_THAT(
        test::thrownBy([&] { catalog::saveDictionary(*dictionary, folder / "none/b.kxdb"); }),
        HasSubstr("none"));
    EXPECT_EQ(test::described(*dictionary), before);
    EXPECT_EQ(dictionary->file, folder / "data/a.kxdb");
    EXPECT_TRUE(dictionary->dirty);
}

TEST_F(ReaderTest, DescribesRawFilesBesideThem) {
    test::writeSampleData(folder.path());
    test::writeFile(folder / "raw.bin", std::string("\1\0\2\0\3\0\4\0\5\0", 10));
    auto dictionary = test::sampleDictionary(folder / "a.kxdb");
    catalog::Variable& age = *dictionary->findEntity("PERSON")->findVariable("AGE");
    age.fileName = "raw.bin";
    age.raw = storage::RawLayout{storage::RawType::Int, 2, 0, catalog::ValueType::Integer};
    catalog::saveDictionary(*dictionary, folder / "a.kxdb");
    catalog::readDictionary(folder / "a.kxdb", {});
    EXPECT_TRUE(fs::exists(folder / "raw.bin.desc"));

    age.raw = storage::RawLayout{storage::RawType::Chr, 1, 0, catalog::ValueType::String};
    catalog::saveDictionary(*dictionary, folder / "b.kxdb");
    const auto described = catalog::readDictionary(folder / "b.kxdb", {});
    const catalog::Variable& read = *described->findEntity("PERSON")->findVariable("AGE");
    EXPECT_EQ(read.raw->type, storage::RawType::Int) << "the description wins";
    EXPECT_EQ(read.type, catalog::ValueType::Integer);

    fs::remove(folder / "raw.bin.desc");
    EXPECT_THAT(test::thrownBy([&] { catalog::readDictionary(folder / "b.kxdb", {}); }),
                HasSubstr("raw.bin"));
}

} // namespace
