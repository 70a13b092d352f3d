// SPDX-License-Identifier: GPL-3.0-or-later
#include "boundary_fixture.h"

#include "catalog/reader.h"
#include "storage/column_writer.h"

#include <algorithm>

using namespace kelx;
using testing::ElementsAre;
using testing::HasSubstr;

namespace {

using Objects = test::BoundaryTest;

TEST_F(Objects, DictionaryShowsItsTree) {
    const auto dictionary = open();
    EXPECT_EQ(dictionary->name(), "SAMPLE");
    EXPECT_EQ(dictionary->label(), "Sample census");
    EXPECT_EQ(dictionary->fileName(), (folder / "sample.kxdb").string());
    const auto root = dictionary->root();
    EXPECT_EQ(root->name(), "COUNTRY");
    ASSERT_EQ(root->children().size(), 1u);
    TKelEntity* province = root->children()[0];
    TKelEntity* person = dictionary->findEntity("person");
    ASSERT_NE(person, nullptr);
    EXPECT_EQ(person->parent(), province);
    EXPECT_EQ(person->dictionary(), dictionary.get());
    EXPECT_EQ(province->codeVar()->name(), "PROV");
    EXPECT_EQ(province->labelVar()->name(), "PROVNAME");
    EXPECT_EQ(person->weightVar()->name(), "WEIGHT");
    EXPECT_TRUE(person->weightVar()->local());
    EXPECT_EQ(person->variables().size(), 5u);
    EXPECT_EQ(person->instanceCount(0), 5);
    EXPECT_EQ(root->instanceCount(0), 1);
    EXPECT_EQ(person->childRecord(1), 3);
    EXPECT_EQ(person->childRecord(2), -1);
    EXPECT_EQ(person->fullFileName(), (folder / "person.kpt").string());
    EXPECT_TRUE(person->isMyAncestor(province, false));
    EXPECT_FALSE(person->isMyAncestor(person, false));
    EXPECT_TRUE(person->isMyAncestor(person, true));
    EXPECT_FALSE(province->isMyAncestor(person, true));
    EXPECT_TRUE(province->isSameBranch(person));
    EXPECT_EQ(root->findEntity("province", true), nullptr);
    EXPECT_EQ(root->findEntity("province", false), province);
    EXPECT_EQ(person->cmpCodeVar()->name(), "CMPCODE");
    EXPECT_EQ(person->cmpCodeVar()->size(), 2);
    EXPECT_EQ(root->cmpCodeVar(), nullptr);
    EXPECT_EQ(person->sdcVar(), nullptr);
}

TEST_F(Objects, CompoundCodesAreAsWideAsTheirLongestParts) {
    const auto model = catalog::readDictionary(folder / "sample.kxdb", {});
    catalog::Entity& person = *model->findEntity("PERSON");
    person.codeVar = person.findVariable("AGE"); // 10 to 40
    person.codeVar->size = 0;
    model->findEntity("PROVINCE")->codeVar->size = 0; // "01" and "02"
    catalog::saveDictionary(*model, folder / "numbered.kxdb");
    EXPECT_EQ(open("numbered.kxdb")->findEntity("PERSON")->cmpCodeVar()->size(), 4);
    storage::ColumnPlan plan;
    plan.type = storage::ValueType::Integer;
    const auto ages = storage::ColumnWriter::create(folder / "age.kbf", plan);
    for (const int age : {7, 12345, 8, 9, 10})
        ages->addInteger(age);
    ages->commit();
    const auto dictionary = open("numbered.kxdb");
    EXPECT_EQ(dictionary->findEntity("PERSON")->cmpCodeVar()->size(), 7);
    EXPECT_EQ(dictionary->findEntity("PROVINCE")->cmpCodeVar()->size(), 2);
}

TEST_F(Objects, VariablesTellWhatTheDictionarySays) {
    const auto dictionary = open();
    TKelVariable* sex = dictionary->findEntity("PERSON")->variables()[0];
    EXPECT_EQ(sex->type(), eVarType::INTEGER);
    EXPECT_EQ(sex->typeName(), "INTEGER");
    EXPECT_EQ(sex->missing(), 9);
    EXPECT_EQ(sex->notapp(), 8);
    EXPECT_TRUE(sex->isMissingValue(9));
    EXPECT_FALSE(sex->isMissingValue(8));
    EXPECT_TRUE(sex->isNotAppValue(8));
    EXPECT_EQ(sex->labelOf(std::string("2")), "Female é");
    EXPECT_EQ(sex->labelOf(TKelVariant(std::int64_t{1})), "Male");
    EXPECT_EQ(sex->labelOf(TKelVariant(1.0)), "Male");
    EXPECT_EQ(sex->labelOf(std::string("7")), "");
    EXPECT_EQ(sex->ranges().size(), 2u);
    EXPECT_EQ(sex->sensitive(), 5);
    EXPECT_EQ(sex->tag(), 3);
    EXPECT_EQ(sex->info(), "PERSON.SEX, INTEGER, Sex <&> \"gender\"");
    EXPECT_THAT(sex->asJson(), HasSubstr(R"("labels":[["1","Male"],["2","Female é"]])"));
}

TEST_F(Objects, ChangesReachTheFile) {
    auto dictionary = open();
    EXPECT_FALSE(dictionary->isDirty());
    TKelVariable* sex = dictionary->findEntity("PERSON")->variables()[0];
    sex->setLabel("Sex of person");
    EXPECT_TRUE(dictionary->isDirty());
    sex->setMissing(std::nullopt);
    sex->setValueLabels({{"1", "M"}, {"2", "F"}});
    EXPECT_TRUE(sex->addValueLabel("1", "Man"));
    kel::saveDictionary(dictionary, (folder / "other.dicx").string());
    EXPECT_FALSE(dictionary->isDirty());
    const auto read = open("other.dicx");
    TKelVariable* back = read->findEntity("PERSON")->variables()[0];
    EXPECT_EQ(back->label(), "Sex of person");
    EXPECT_EQ(back->missing(), std::nullopt);
    EXPECT_EQ(back->labelOf(std::string("1")), "Man");
    EXPECT_NE(read->updated(), "2024-02-01T10:00:00Z");
    EXPECT_EQ(read->created(), "2024-01-31T10:00:00Z");
}

TEST_F(Objects, NamesThatWouldSpoilTheDictionaryAreRefused) {
    const auto dictionary = open();
    TKelEntity* person = dictionary->findEntity("PERSON");
    EXPECT_THAT(test::thrownBy([&] { person->variables()[0]->setName("age"); }),
                HasSubstr("already has a variable AGE"));
    EXPECT_THAT(test::thrownBy([&] { person->variables()[0]->setName("A B"); }),
                HasSubstr("cannot be the name"));
    EXPECT_THAT(test::thrownBy([&] { person->setName("country"); }),
                HasSubstr("already an entity COUNTRY"));
    person->variables()[0]->setName("GENDER");
    EXPECT_EQ(person->variables()[0]->name(), "GENDER");
}

TEST_F(Objects, CopiesAreDetached) {
    const auto dictionary = open();
    TKelEntity* person = dictionary->findEntity("PERSON");
    TKelVariable copy(*person->variables()[0]);
    EXPECT_EQ(copy.entity(true), person);
    EXPECT_EQ(copy.valueLabels().size(), 2u);
    copy.setName("A B");
    copy.setLabel("other");
    copy.addValueLabel("5", "five");
    EXPECT_EQ(person->variables()[0]->name(), "SEX");
    EXPECT_EQ(person->variables()[0]->labelOf(std::string("5")), "");
    EXPECT_FALSE(dictionary->isDirty());
}

// What the workbench's mirror does: entities with a null dictionary, variables copied.
TEST_F(Objects, EntitiesStandAlone) {
    TKelEntity mirror(nullptr);
    TKelEntity child(nullptr);
    EXPECT_EQ(mirror.dictionary(), nullptr);
    EXPECT_EQ(mirror.parent(), nullptr);
    EXPECT_EQ(mirror.cmpCodeVar(), nullptr);
    EXPECT_EQ(mirror.instanceCount(0), 0);
    EXPECT_EQ(mirror.childRecord(0), -1);
    EXPECT_FALSE(mirror.openData());
    EXPECT_FALSE(mirror.isReadOnly());
    EXPECT_FALSE(mirror.isSameBranch(nullptr));
    EXPECT_FALSE(mirror.isMyAncestor(nullptr, true));
    EXPECT_TRUE(mirror.areaEntityCounts("01").empty());
    EXPECT_TRUE(mirror.childAreaCodes("01", "X").empty());
    EXPECT_EQ(mirror.fullFileName(), "");
    mirror.setName("any name");
    mirror.setSelectable(true);
    mirror.addChild(&child);
    mirror.addChild(nullptr);
    mirror.addVariable(nullptr);
    EXPECT_TRUE(child.isMyAncestor(&mirror, false));
    TKelVariable loose(nullptr);
    EXPECT_EQ(loose.entity(true), nullptr);
    EXPECT_EQ(loose.info(), ", NONE");
    loose.setSize(3);
    mirror.setCodeVar(&loose);
    EXPECT_EQ(mirror.cmpCodeVar()->size(), 3);
    EXPECT_EQ(mirror.findEntity("", true), &child);
}

TEST_F(Objects, AreasByCompoundCode) {
    const auto dictionary = open();
    TKelEntity* root = dictionary->root().get();
    TKelEntity* province = dictionary->findEntity("PROVINCE");
    const auto codes = root->childAreaCodes("", "PROVINCE");
    ASSERT_EQ(codes.size(), 2u);
    EXPECT_EQ(codes[1].code, "02");
    EXPECT_EQ(codes[1].label, "South");
    const auto counts = province->areaEntityCounts("01");
    ASSERT_EQ(counts.size(), 1u);
    EXPECT_EQ(counts[0].entity, "PERSON");
    EXPECT_EQ(counts[0].count, 3);
    EXPECT_TRUE(province->areaEntityCounts("07").empty());
    EXPECT_THAT(test::thrownBy([&] { province->childAreaCodes("01", "COUNTRY"); }),
                HasSubstr("no entity COUNTRY below PROVINCE"));
}

TEST_F(Objects, TakesOverAnEditedCopy) {
    const auto dictionary = open();
    TKelEntity copy(nullptr);
    TKelEntity province(nullptr);
    TKelEntity person(nullptr);
    copy.setName("COUNTRY");
    province.setName("PROVINCE");
    province.setLabel("Region");
    province.setFileName("province.kpt");
    person.setName("PERSON");
    person.setFileName("person.kpt");
    copy.addChild(&province);
    province.addChild(&person);
    TKelEntity* original = dictionary->findEntity("PERSON");
    std::vector<std::unique_ptr<TKelVariable>> copies;
    for (TKelVariable* variable : original->variables()) {
        if (variable->name() != "WEIGHT" && variable->name() != "AGE") {
            copies.push_back(std::make_unique<TKelVariable>(*variable));
            person.addVariable(copies.back().get());
        }
    }
    copies[0]->setLabel("changed");
    dictionary->setRoot(std::shared_ptr<TKelEntity>(&copy, [](TKelEntity*) {}));
    EXPECT_EQ(dictionary->findEntity("PROVINCE")->label(), "Region");
    EXPECT_EQ(original->variables()[0]->label(), "changed");
    EXPECT_EQ(original->weightVar(), nullptr) << "the program's variable is gone";
    EXPECT_EQ(original->variables().size(), 4u) << "AGE belongs to the database";
    EXPECT_TRUE(dictionary->isDirty());
    EXPECT_EQ(original->instanceCount(0), 5);
    dictionary->setRoot(dictionary->root());
    EXPECT_EQ(original->variables().size(), 4u);
}

TEST_F(Objects, SaysWhatIsMissing) {
    EXPECT_THAT(test::thrownBy([&] { open("none.kxdb"); }), HasSubstr("none.kxdb"));
    std::filesystem::create_directory(folder / "sub");
    std::filesystem::copy_file(folder / "sample.kxdb", folder / "sub/sample.kxdb");
    EXPECT_EQ(test::thrownBy([&] { open("sub/sample.kxdb"); }), "Missing data location.");
    config->provider->answer = folder.path().string();
    EXPECT_EQ(open("sub/sample.kxdb")->findEntity("PERSON")->instanceCount(0), 5);
    EXPECT_THAT(config->provider->asked, ElementsAre("folder SAMPLE", "folder SAMPLE"));
}

TEST_F(Objects, WorkWithoutFilesUntilTheyAreFound) {
    config->provider->answer = "/";
    std::filesystem::create_directory(folder / "sub");
    std::filesystem::copy_file(folder / "sample.kxdb", folder / "sub/sample.kxdb");
    const auto dictionary = open("sub/sample.kxdb");
    EXPECT_EQ(dictionary->findEntity("PERSON")->instanceCount(0), 0);
    dictionary->setDataPath(folder.path().string());
    EXPECT_EQ(dictionary->findEntity("PERSON")->instanceCount(0), 5);
}

TEST(Functions, WorkWithoutADictionary) {
    EXPECT_EQ(kel::version(), "0.1.0");
    EXPECT_EQ(kel::variant_to_int64(TKelVariant(std::string(" 12 "))), 12);
    EXPECT_EQ(kel::variant_to_int64(TKelVariant(std::string("x"))), 0);
    EXPECT_EQ(kel::variant_to_int64(TKelVariant(1e300)), INT64_MAX);
    EXPECT_EQ(kel::variant_to_int64(TKelVariant(-2.9)), -2);
    EXPECT_EQ(kel::variant_to_double(TKelVariant(std::string("2.5"))), 2.5);
    EXPECT_EQ(kel::variant_to_string(TKelVariant(1e21)), "1000000000000000000000");
    EXPECT_EQ(kel::variant_to_string(TKelVariant(0.1)), "0.1");
    EXPECT_TRUE(kel::isReserved("Freq"));
    EXPECT_FALSE(kel::isReserved("PERSON"));
    const auto words = kel::reservedWords();
    EXPECT_NE(std::find(words.begin(), words.end(), "frequency"), words.end());
    EXPECT_GE(kel::measureTime([] {}), 0.0);
    EXPECT_THAT(test::thrownBy([] { kel::makeDefaultSession(nullptr); }),
                HasSubstr("no open dictionary"));
}

TEST_F(Objects, OutliveTheEngine) {
    auto dictionary = open();
    auto root = dictionary->root();
    auto running = kel::makeDefaultSession(dictionary);
    auto execute = kel::makeExecute(dictionary);
    kel::destroy();
    dictionary.reset();
    running.reset();
    execute.reset();
    EXPECT_EQ(root->dictionary(), nullptr);
    EXPECT_EQ(root->name(), "COUNTRY");
}

} // namespace
