// SPDX-License-Identifier: GPL-3.0-or-later
#include "sample_files.h"

#include "catalog/names.h"
#include "storage/error.h"

#include <gmock/gmock.h>

using namespace kelx;
using testing::HasSubstr;

namespace {

struct ModelTest : testing::Test {
    test::TemporaryFolder folder;
    std::unique_ptr<catalog::Dictionary> dictionary =
        test::sampleDictionary(folder / "sample.kxdb");
};

TEST_F(ModelTest, FindsInAnyCaseAndNamesBeforeAliases) {
    EXPECT_EQ(dictionary->findEntity("person")->name, "PERSON");
    EXPECT_EQ(dictionary->findEntity("prv")->name, "PROVINCE");
    EXPECT_EQ(dictionary->findEntity("x"), nullptr);
    catalog::Entity& person = *dictionary->findEntity("PERSON");
    EXPECT_EQ(person.findVariable("years")->name, "AGE");
    person.findVariable("SEX")->alias = "age";
    EXPECT_EQ(person.findVariable("age")->name, "AGE");
    EXPECT_EQ(person.findVariable("AGE")->fullName(), "PERSON.AGE");
    EXPECT_EQ(person.level(), 3);
    EXPECT_TRUE(dictionary->root->isAncestorOf(person));
    EXPECT_FALSE(person.isAncestorOf(*dictionary->root));
}

TEST_F(ModelTest, LooksUpLabelsAsTextThenAsNumber) {
    catalog::Variable& sex = *dictionary->findEntity("PERSON")->findVariable("SEX");
    EXPECT_EQ(*sex.labelOf("1"), "Male");
    EXPECT_EQ(*sex.labelOf("01"), "Male");
    EXPECT_EQ(sex.labelOf("3"), nullptr);
    sex.type = catalog::ValueType::String;
    EXPECT_EQ(sex.labelOf("01"), nullptr);
}

TEST_F(ModelTest, ReadsRecordsAndColumns) {
    test::writeSampleData(folder.path());
    catalog::Entity& person = *dictionary->findEntity("PERSON");
    EXPECT_EQ(dictionary->root->records(), 1u);
    EXPECT_EQ(person.records(), 5u);
    EXPECT_EQ(person.pointers()->first(1), 3u);
    EXPECT_EQ(person.findVariable("AGE")->column()->info().blanks, 1u);
}

TEST_F(ModelTest, RefusesColumnOfAnotherLength) {
    test::writeSampleData(folder.path());
    catalog::Variable& sex = *dictionary->findEntity("PERSON")->findVariable("SEX");
    sex.fileName = "prov.kbf";
    EXPECT_THAT(test::thrownBy([&] { sex.column(); }),
                testing::AllOf(HasSubstr("prov.kbf"), HasSubstr("holds 2 records"),
                               HasSubstr("PERSON has 5")));
    catalog::Entity& person = *dictionary->findEntity("PERSON");
    person.closePointers();
    person.fileName = "province.kpt";
    EXPECT_THAT(test::thrownBy([&] { person.records(); }), HasSubstr("PROVINCE has 2"));
}

TEST_F(ModelTest, CountsRecordsUnderRootWithoutPointerFile) {
    test::writeSampleData(folder.path());
    catalog::Entity& province = *dictionary->findEntity("PROVINCE");
    province.fileName.clear();
    EXPECT_EQ(province.records(), 2u);
    catalog::Entity& person = *dictionary->findEntity("PERSON");
    person.fileName.clear();
    EXPECT_THAT(test::thrownBy([&] { person.records(); }),
                HasSubstr("entity PERSON has no pointer file"));
}

TEST_F(ModelTest, ResolvesFileNames) {
    dictionary->dataFolder = "/data/census";
    EXPECT_EQ(dictionary->resolve("a\\b.kbf"), "/data/census/a/b.kbf");
    EXPECT_EQ(dictionary->resolve("..\\x.kbf"), "/data/x.kbf");
    EXPECT_EQ(dictionary->resolve("/else/x.kbf"), "/else/x.kbf");
    EXPECT_EQ(dictionary->resolve(""), "");
    EXPECT_FALSE(dictionary->findEntity("PERSON")->findVariable("AGE")->fileFound());
}

TEST(Names, ReadNumbersWithoutLocale) {
    EXPECT_EQ(catalog::parseNumber(" +1.5 "), 1.5);
    EXPECT_EQ(catalog::parseNumber("1,5"), std::nullopt);
    EXPECT_EQ(catalog::parseNumber("inf"), std::nullopt);
    EXPECT_EQ(catalog::parseNumber(""), std::nullopt);
    EXPECT_EQ(catalog::parseInteger("12x"), std::nullopt);
    EXPECT_EQ(catalog::parseInteger("99999999999999999999"), std::nullopt);
    EXPECT_EQ(catalog::numberText(-0.5), "-0.5");
    EXPECT_TRUE(catalog::isUsableName("A-1_é"));
    EXPECT_FALSE(catalog::isUsableName("A B"));
    EXPECT_FALSE(catalog::isUsableName("A.B"));
}

} // namespace
