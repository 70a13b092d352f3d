// SPDX-License-Identifier: GPL-3.0-or-later
#include "boundary_fixture.h"

#include "boundary/engine.h"
#include "boundary/table_dataset.h"
#include "storage/column_writer.h"

#include <algorithm>
#include <new>

using namespace kelx;
using testing::ElementsAre;
using testing::HasSubstr;

namespace {

class SessionTest : public test::BoundaryTest {
protected:
    SessionTest() { dropSensitivity(); }
};

// Persons: sex 1 2 1 2 9 with 9 missing; weights 1 1 2 2 4.
TEST_F(SessionTest, RunsAFrequency) {
    EXPECT_THAT(run("RUNDEF r NOWEIGHT\nFREQ PERSON.SEX TITLE \"Sexes\""),
                testing::UnorderedElementsAre("1|Male||2", "2|Female é||2", "0|__tot__|tot|4",
                                              "0|__mv__|mv|1"));
    ASSERT_EQ(session->outputs().size(), 1u);
    TKelOutput* output = session->outputs()[0];
    EXPECT_EQ(output->type(), eOutputType::TABLE);
    EXPECT_EQ(output->method(), eTableMethod::FREQUENCY);
    EXPECT_EQ(output->typeName(), "TABLE");
    EXPECT_EQ(output->methodName(), "FREQUENCY");
    EXPECT_EQ(output->dimension(), 1);
    EXPECT_EQ(output->name(), "FREQ_1");
    EXPECT_EQ(output->options().title, "Sexes");
    EXPECT_EQ(output->options().weightVariable, std::nullopt);
    ASSERT_EQ(output->variables().size(), 1u);
    EXPECT_EQ(output->variables()[0], session->dictionary()->findEntity("PERSON")->variables()[0]);
    EXPECT_THAT(output->asJson(), HasSubstr("\"PERSON\""));
    EXPECT_FALSE(listener.hasErrors());
    EXPECT_FALSE(listener.hasWarnings());
}

TEST_F(SessionTest, WeightsAsTheConfigurationSays) {
    EXPECT_THAT(run("FREQ PERSON.SEX"), testing::Contains("0|__tot__|tot|6"));
    EXPECT_EQ(session->outputs()[0]->options().weightKind, 1);
    EXPECT_EQ(session->outputs()[0]->options().weightVariable, "PERSON.WEIGHT");
    config->weight = false;
    EXPECT_THAT(run("FREQ PERSON.SEX"), testing::Contains("0|__tot__|tot|4"));
    EXPECT_THAT(run("RUNDEF r AUTOWEIGHT\nFREQ PERSON.SEX"), testing::Contains("0|__tot__|tot|6"));
}

// The selection of a program and the questions about areas mean the same codes.
TEST_F(SessionTest, BlanksAroundCodesDoNotCount) {
    storage::ColumnPlan plan;
    plan.type = storage::ValueType::String;
    const auto codes = storage::ColumnWriter::create(folder / "prov.kbf", plan);
    codes->addText(" 1");
    codes->addText("12 ");
    codes->commit();
    for (const auto& [code, persons] : {std::pair("1", 3), std::pair("12", 2)}) {
        const std::string program = std::string("RUNDEF r NOWEIGHT SELECTION INLINE PROVINCE \"") +
                                    code + "\"\nCOUNT PERSON";
        EXPECT_THAT(run(program), ElementsAre("PERSON|" + std::to_string(persons))) << code;
        EXPECT_FALSE(listener.hasWarnings());
        TKelEntity* province = session->dictionary()->findEntity("PROVINCE");
        const auto counts = province->areaEntityCounts(code);
        ASSERT_EQ(counts.size(), 1u) << code;
        EXPECT_EQ(counts[0].count, persons) << code;
    }
    const auto areas = session->dictionary()->root()->childAreaCodes("", "PROVINCE");
    ASSERT_EQ(areas.size(), 2u);
    EXPECT_EQ(areas[0].code, "1");
    EXPECT_EQ(areas[1].code, "12");
}

// The whole text or nothing, and no words for numbers.
TEST(TableDataset, TextsAreReadAsNumbers) {
    using output::Value;
    output::Table table;
    table.fields.push_back({"T", "T", "T"});
    table.columns.push_back(output::Column::of(
        {Value("0102"), Value("1e5"), Value("nan"), Value("-3.5"), Value("12 a"), Value("")}));
    boundary::TableDataset data(table);
    const std::vector<std::pair<std::string, double>> expected{
        {"0102", 102}, {"1e5", 100000}, {"nan", 0}, {"-3.5", -3.5}, {"12 a", 0}, {"", 0}};
    for (std::size_t row = 0; row < expected.size(); ++row) {
        EXPECT_EQ(data.stringValue(static_cast<std::int64_t>(row), 0), expected[row].first);
        EXPECT_EQ(data.doubleValue(static_cast<std::int64_t>(row), 0), expected[row].second);
    }
}

TEST_F(SessionTest, DatasetsEndAtTheirBounds) {
    run("RUNDEF r NOWEIGHT\nFREQ PERSON.SEX");
    TKelDataset& dataset = *session->outputs()[0]->dataset();
    ASSERT_EQ(dataset.numFields(), 4);
    std::pair<double, double> range(5, 5);
    dataset.range(range, 3);
    EXPECT_EQ(range, std::pair(1.0, 4.0));
    dataset.range(range, 0); // the codes, but not the marker's 0
    EXPECT_EQ(range, std::pair(1.0, 2.0));
    for (const int column : {-1, 1, 2, 4, 1000}) {
        range = {5, 5};
        dataset.range(range, column);
        EXPECT_EQ(range, std::pair(0.0, 0.0)) << column;
    }
    EXPECT_EQ(dataset.stringValue(-1, 0), "");
    EXPECT_EQ(dataset.stringValue(dataset.recCount(), 0), "");
    EXPECT_EQ(dataset.doubleValue(0, 9), 0);
    EXPECT_EQ(dataset.field(-1), nullptr);
    EXPECT_EQ(dataset.field(4), nullptr);
    EXPECT_NE(dataset.field(3), nullptr);
    EXPECT_EQ(kel::variant_to_string(dataset.value("unknown")), "");
    for (const std::string& name : dataset.valueNames()) {
        EXPECT_NE(kel::variant_to_string(dataset.value(name)), "") << name;
    }
}

TEST_F(SessionTest, ErrorsGoToTheListenerAndIntoTheText) {
    session = kel::makeDefaultSession(open());
    session->setErrorsListener(&listener);
    session->setTimerCallback({});
    EXPECT_EQ(test::thrownBy([&] { session->compile("FREQ PERSON.SEXX"); }), "1 error found");
    ASSERT_EQ(listener.errors.size(), 1u);
    EXPECT_EQ(listener.errors[0].name, "KEL_E_UNKNOWN_VARIABLE");
    EXPECT_EQ(listener.errors[0].line, 1);
    listener.clear();
    EXPECT_EQ(test::thrownBy(
                  [&] { session->executeText("FREQ PERSON.SEXX\nFREQ PERSON.AGEX", nullptr); }),
              "2 errors found");
    EXPECT_EQ(listener.errors.size(), 2u);
    EXPECT_EQ(listener.errors[1].line, 2);
    EXPECT_TRUE(session->outputs().empty());
    session->setErrorsListener(nullptr);
    EXPECT_EQ(test::thrownBy([&] { session->compile("FREQ"); }), "1 error found");
}

TEST_F(SessionTest, ANewRunReplacesTheOld) {
    session = kel::makeDefaultSession(open());
    EXPECT_TRUE(session->outputs().empty());
    EXPECT_EQ(session->runDefinition()->selection()->label(), "");
    session->executeText("FREQ PERSON.SEX FREQ PERSON.AGE", nullptr);
    EXPECT_EQ(session->outputs().size(), 2u);
    session->executeText("COUNT PERSON", nullptr);
    ASSERT_EQ(session->outputs().size(), 1u);
    EXPECT_EQ(session->outputs()[0]->entity(), session->dictionary()->findEntity("PERSON"));
    EXPECT_ANY_THROW(session->executeText("FREQ X.Y", nullptr));
    EXPECT_TRUE(session->outputs().empty());
}

TEST_F(SessionTest, TellsSelectionAndUniversalFilter) {
    run("RUNDEF r NOWEIGHT SELECTION INLINE PROVINCE \"01\" \"North\"\n"
        "FILTER PERSON.AGE > 15\nFREQ PERSON.SEX");
    EXPECT_EQ(session->runDefinition()->selection()->label(), "North");
    EXPECT_EQ(session->runDefinition()->universalFilter(), "PERSON.AGE > 15");
    // Persons 2 and 3 of the first province.
    EXPECT_THAT(test::rowsOf(*session->outputs()[0]->dataset()),
                testing::Contains("0|__tot__|tot|2"));
}

TEST_F(SessionTest, AMissingFileIsAnErrorOfTheProgram) {
    std::filesystem::remove(folder / "age.kbf");
    session = kel::makeDefaultSession(open());
    session->setErrorsListener(&listener);
    EXPECT_EQ(test::thrownBy([&] { session->executeText("FREQ PERSON.AGE", nullptr); }),
              "1 error found");
    ASSERT_EQ(listener.errors.size(), 1u);
    EXPECT_THAT(listener.errors[0].text, HasSubstr("age.kbf"));
}

TEST_F(SessionTest, DamagedDataEndTheRun) {
    std::string bytes = test::readFile(folder / "sex.kbf");
    session = kel::makeDefaultSession(open());
    bytes[bytes.size() - 3] ^= 0x55;
    bytes[64] ^= 0x55;
    test::writeFile(folder / "sex.kbf", bytes);
    EXPECT_NE(test::thrownBy([&] { session->executeText("FREQ PERSON.SEX", nullptr); }), "");
    EXPECT_TRUE(session->outputs().empty());
}

TEST_F(SessionTest, TuningNeverChangesFigures) {
    const auto expected = run("FREQ PERSON.SEX");
    for (const boundary::RunTuning& tuning :
         {boundary::RunTuning{1, 65536}, boundary::RunTuning{4, 2}}) {
        boundary::setRunTuning(tuning);
        EXPECT_EQ(run("FREQ PERSON.SEX"), expected);
    }
    boundary::setRunTuning({});
}

TEST_F(SessionTest, ACancelledRunHasNoOutputs) {
    session = kel::makeDefaultSession(open());
    session->setTimerCallback([](void*, int&, int&, int&, void*) { return true; });
    EXPECT_EQ(test::thrownBy([&] { session->executeText("FREQ PERSON.SEX", nullptr); }), "");
    EXPECT_TRUE(session->outputs().empty());
}

TEST_F(SessionTest, ProgressEndsAtItsWhole) {
    session = kel::makeDefaultSession(open());
    std::vector<int> told;
    session->setTimerCallback([&](void*, int&, int&, int& percent, void*) {
        told.push_back(percent);
        return false;
    });
    session->executeText("FREQ PERSON.SEX COUNT PERSON", nullptr);
    EXPECT_TRUE(std::is_sorted(told.begin(), told.end()));
    ASSERT_FALSE(told.empty());
    EXPECT_EQ(told.back(), 100);
    // The last answer before all is done counts like any other, but what is done stays so.
    session->setTimerCallback([](void*, int&, int&, int& percent, void*) { return percent == 99; });
    session->executeText("FREQ PERSON.SEX COUNT PERSON", nullptr);
    EXPECT_TRUE(session->outputs().empty());
    session->setTimerCallback(
        [](void*, int&, int&, int& percent, void*) { return percent == 100; });
    session->executeText("FREQ PERSON.SEX COUNT PERSON", nullptr);
    EXPECT_EQ(session->outputs().size(), 2U);
}

TEST_F(SessionTest, LackOfMemoryIsToldInWords) {
    session = kel::makeDefaultSession(open());
    session->setTimerCallback(
        [](void*, int&, int&, int&, void*) -> bool { throw std::bad_alloc(); });
    EXPECT_THAT(test::thrownBy([&] { session->executeText("FREQ PERSON.SEX", nullptr); }),
                HasSubstr("not enough memory"));
    EXPECT_TRUE(session->outputs().empty());
}

TEST_F(SessionTest, TextAndBinaryDictionaryGiveTheSameTables) {
    const auto expected = run("FREQ PERSON.SEX");
    auto dictionary = open();
    kel::saveDictionary(dictionary, (folder / "x.dicx").string());
    auto second = kel::makeDefaultSession(open("x.dicx"));
    second->executeText("FREQ PERSON.SEX", nullptr);
    EXPECT_EQ(test::rowsOf(*second->outputs()[0]->dataset()), expected);
}

TEST_F(SessionTest, SmallCellsOfSensitiveVariablesAreHidden) {
    auto dictionary = open();
    session = kel::makeDefaultSession(dictionary);
    session->executeText("RUNDEF r NOWEIGHT FREQ PERSON.SEX SENSITIVE 2", nullptr);
    // Two of each sex are enough, the one of unknown sex is not.
    EXPECT_THAT(test::rowsOf(*session->outputs()[0]->dataset()),
                ElementsAre("1|Male||2", "2|Female é||2", "0|__tot__|tot|4", "0|__mv__|mv|"));
    EXPECT_EQ(session->outputs()[0]->suppressed(), 1);
}

TEST_F(SessionTest, SessionsOutliveTheirDictionaryPointer) {
    run("FREQ PERSON.SEX");
    TKelOutput* output = session->outputs()[0];
    EXPECT_EQ(output->variables()[0]->name(), "SEX");
    kel::destroy();
    session.reset();
}

} // namespace
