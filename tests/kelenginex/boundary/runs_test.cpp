// SPDX-License-Identifier: GPL-3.0-or-later
// What runs leave behind: variables, files, settings of outputs; and lists of programs.
#include "boundary_fixture.h"

#include <algorithm>
#include <filesystem>

using namespace kelx;
using testing::Contains;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::Not;

namespace {

class RunsTest : public test::BoundaryTest {
protected:
    RunsTest() {
        dropSensitivity();
        dictionary = open();
    }

    void execute(const std::string& program) {
        session = kel::makeDefaultSession(dictionary);
        session->setErrorsListener(&listener);
        session->executeText("RUNDEF r NOWEIGHT\n" + program, nullptr);
    }
    std::vector<std::string> rows(std::size_t output = 0) {
        return test::rowsOf(*session->outputs().at(output)->dataset());
    }
    TKelEntity& person() { return *dictionary->findEntity("PERSON"); }
    static TKelVariable* named(const std::vector<TKelVariable*>& variables,
                               const std::string& name) {
        for (TKelVariable* variable : variables) {
            if (variable->name() == name) {
                return variable;
            }
        }
        return nullptr;
    }
    std::string file(const std::string& name) const { return (folder / name).string(); }

    std::shared_ptr<TKelDictionary> dictionary;
};

// Ages are 10, 20, 30, 40 and blank.
TEST_F(RunsTest, SavedVariablesJoinTheDictionary) {
    execute("DEFINE PERSON.OLD AS PERSON.AGE > 25 SAVE \"old.kbf\"\n"
            "DEFINE PERSON.TWICE AS PERSON.AGE * 2 VARLABEL \"Twice\"\n"
            "FREQ PERSON.OLD FREQ PERSON.TWICE");
    const auto expected = rows();
    EXPECT_TRUE(dictionary->isDirty());
    TKelVariable* old = named(person().variables(), "OLD");
    ASSERT_NE(old, nullptr);
    EXPECT_TRUE(old->local());
    EXPECT_FALSE(old->define());
    EXPECT_EQ(old->type(), eVarType::BOOLEAN);
    EXPECT_EQ(old->entity(true), &person());
    EXPECT_EQ(named(person().allVariables(), "TWICE"), nullptr);
    EXPECT_TRUE(person().virtualVariables().empty());
    TKelVariable* shown = session->outputs().at(1)->variables().at(0);
    EXPECT_EQ(shown->name(), "TWICE");
    EXPECT_EQ(shown->label(), "Twice");
    EXPECT_EQ(shown->entity(true), &person());
    execute("FREQ PERSON.OLD");
    EXPECT_EQ(rows(), expected);
    for (const char* name : {"again.dicx", "again.kxdb"}) {
        kel::saveDictionary(dictionary, file(name));
        auto again = kel::makeDefaultSession(open(name));
        again->executeText("RUNDEF r NOWEIGHT FREQ PERSON.OLD", nullptr);
        EXPECT_EQ(test::rowsOf(*again->outputs().at(0)->dataset()), expected) << name;
        TKelEntity* persons = again->dictionary()->findEntity("PERSON");
        old = named(persons->variables(), "OLD");
        ASSERT_NE(old, nullptr) << name;
        EXPECT_TRUE(old->local()) << name;
    }
}

TEST_F(RunsTest, ASavedVariableTakesThePlaceOfTheFormer) {
    execute(
        "DEFINE PERSON.GROUP1 AS PERSON.AGE / 10 TYPE INTEGER SAVE \"g.kbf\" FREQ PERSON.GROUP1");
    EXPECT_THAT(rows(), Contains("4|4||1"));
    TKelVariable* first = named(person().variables(), "GROUP1");
    execute("DEFINE PERSON.GROUP1 AS PERSON.AGE / 20 TYPE INTEGER SAVE \"g.kbf\" OVERWRITE");
    EXPECT_EQ(named(person().variables(), "GROUP1"), first);
    execute("FREQ PERSON.GROUP1");
    EXPECT_THAT(rows(), Contains("2|2||2")); // 30 / 20 is rounded up
    EXPECT_THAT(rows(), Not(Contains("4|4||1")));
}

TEST_F(RunsTest, ColumnsWrittenAnewFitTheFileUnsaved) {
    const std::string tens = "DEFINE PERSON.TENS AS PERSON.AGE / 10 TYPE INTEGER SAVE \"g.kbf\" ";
    execute(tens + "NOTAPP 1");
    EXPECT_EQ(named(open()->findEntity("PERSON")->variables(), "TENS"), nullptr);
    kel::saveDictionary(dictionary, file("sample.kxdb"));
    execute(tens + "OVERWRITE NOTAPP 4\nDEFINE PERSON.MORE AS 1 SAVE \"more.kbf\"");
    EXPECT_TRUE(dictionary->isDirty());
    // The user does not want the dictionary saved.
    dictionary = open();
    EXPECT_EQ(named(person().variables(), "MORE"), nullptr);
    execute("FREQ PERSON.TENS");
    EXPECT_THAT(rows(), Contains("1|1||1"));
    EXPECT_THAT(rows(), Contains("0|__na__|na|1"));
    EXPECT_THAT(rows(), Not(Contains("4|4||1")));
}

TEST_F(RunsTest, SavingKeepsWhatOthersHaveSavedMeanwhile) {
    const std::string tens = "DEFINE PERSON.TENS AS PERSON.AGE / 10 TYPE INTEGER SAVE \"g.kbf\" ";
    execute(tens + "NOTAPP 1");
    kel::saveDictionary(dictionary, file("sample.kxdb"));
    const auto ours = open();
    execute(tens + "OVERWRITE NOTAPP 4\nDEFINE PERSON.MORE AS 1 SAVE \"more.kbf\"");
    kel::saveDictionary(dictionary, file("sample.kxdb"));
    ours->findEntity("PERSON")->setLabel("Ours");
    kel::saveDictionary(ours, file("sample.kxdb"));
    EXPECT_NE(named(ours->findEntity("PERSON")->variables(), "MORE"), nullptr);
    dictionary = open();
    EXPECT_EQ(person().label(), "Ours");
    execute("FREQ PERSON.TENS FREQ PERSON.MORE");
    EXPECT_THAT(rows(0), Contains("1|1||1"));
    EXPECT_THAT(rows(0), Contains("0|__na__|na|1"));
    EXPECT_THAT(rows(1), Contains("1|1||5"));
}

TEST_F(RunsTest, SavingDoesNotBringBackFormerNames) {
    execute("DEFINE PERSON.MORE AS 1 SAVE \"more.kbf\"");
    kel::saveDictionary(dictionary, file("sample.kxdb"));
    dictionary = open();
    named(person().variables(), "MORE")->setName("OTHER");
    kel::saveDictionary(dictionary, file("sample.kxdb"));
    dictionary = open();
    EXPECT_EQ(named(person().variables(), "MORE"), nullptr);
    EXPECT_NE(named(person().variables(), "OTHER"), nullptr);
}

TEST_F(RunsTest, ARunThatDoesNotEndWellAddsNothing) {
    const std::string program = "DEFINE PERSON.OLD AS PERSON.AGE > 25 SAVE \"old.kbf\"\n"
                                "FREQ PERSON.OLD SAVE \"t.json\"";
    session = kel::makeDefaultSession(dictionary);
    session->setTimerCallback([](void*, int&, int&, int&, void*) { return true; });
    session->executeText(program, nullptr);
    EXPECT_TRUE(session->outputs().empty());
    EXPECT_EQ(named(person().allVariables(), "OLD"), nullptr);
    EXPECT_FALSE(dictionary->isDirty());
    EXPECT_FALSE(std::filesystem::exists(folder / "old.kbf"));
    EXPECT_FALSE(std::filesystem::exists(folder / "t.json"));
}

TEST_F(RunsTest, TablesAreWrittenAsJson) {
    execute("FREQ PERSON.SEX SAVE \"t.json\"\nFREQ PERSON.SEX OUTFILE JSON \"u.json\"");
    for (std::size_t i = 0; i < 2; ++i) {
        TKelOutput& output = *session->outputs().at(i);
        EXPECT_EQ(test::readFile(folder / (i == 0 ? "t.json" : "u.json")), output.asJson() + "\n");
        EXPECT_EQ(output.options().outputFile, "");
        EXPECT_FALSE(output.options().direct);
    }
    EXPECT_THAT(test::thrownBy([&] { execute("FREQ PERSON.SEX SAVE \"no/such/t.json\""); }),
                HasSubstr("1 error"));
    EXPECT_TRUE(session->outputs().empty());
}

TEST_F(RunsTest, OptionsSayWhatTheProgramAskedFor) {
    execute("FREQ PERSON.SEX OUTFILE XLSX \"a.xlsx\" TITLE \"t\" FILTER PERSON.AGE > 5 DECIMALS 3\n"
            "FREQ PERSON.SEX OUTFILE PDF \"b.pdf\" OVERWRITE SORT DESC PERSON.SEX 1\n"
            "FREQ PERSON.SEX OUTFILE \"c.csv\" SORT ASC PERSON.SEX WEIGHT 2 TALLY PERSON.AGE\n"
            "FREQ PERSON.SEX");
    const auto outputs = session->outputs();
    ASSERT_EQ(outputs.size(), 4u);
    EXPECT_EQ(outputs[0]->options().outputFile, file("a.xlsx"));
    EXPECT_EQ(outputs[0]->options().format, 3);
    EXPECT_EQ(outputs[0]->options().formatFlavour, 2);
    EXPECT_TRUE(outputs[0]->options().direct);
    EXPECT_EQ(outputs[0]->options().title, "t");
    EXPECT_EQ(outputs[0]->options().filter, "PERSON.AGE > 5");
    EXPECT_EQ(outputs[0]->options().decimals, 3);
    EXPECT_FALSE(outputs[0]->options().sort);
    EXPECT_EQ(outputs[1]->options().format, 10);
    EXPECT_NE(outputs[1]->options().formatFlavour, 2);
    ASSERT_TRUE(outputs[1]->options().sort);
    EXPECT_EQ(outputs[1]->options().sort->variable, "PERSON.SEX");
    EXPECT_EQ(outputs[1]->options().sort->limit, 1);
    EXPECT_EQ(outputs[1]->options().sort->order, TKelOutputSortConfig::Order::DESCENDING);
    EXPECT_THAT(rows(1), ElementsAre("2|Female é||2", "0|__tot__|tot|4", "0|__mv__|mv|1"));
    EXPECT_EQ(outputs[2]->options().outputFile, file("c.csv"));
    EXPECT_EQ(outputs[2]->options().sort->limit, std::nullopt);
    EXPECT_EQ(outputs[2]->options().sort->order, TKelOutputSortConfig::Order::ASCENDING);
    EXPECT_EQ(outputs[2]->options().weightKind, 2);
    EXPECT_EQ(outputs[2]->options().weightVariable, "PERSON.AGE, weight 2");
    EXPECT_EQ(outputs[3]->options().outputFile, "");
    EXPECT_FALSE(outputs[3]->options().direct);
    EXPECT_FALSE(std::filesystem::exists(folder / "c.csv")); // others write these
}

TEST_F(RunsTest, TheOptionsNameTheColumnThatWasSortedBy) {
    execute("FREQ PERSON.SEX SORT DESC\nTABLE A FREQ PERSON.SEX\n"
            "AREALIST PROVINCE, A SORT A 2\nAREALIST PROVINCE, A SORT DESC A 70");
    const auto outputs = session->outputs();
    ASSERT_EQ(outputs.size(), 3u);
    EXPECT_EQ(outputs[0]->options().sort->variable, "PERSON");
    EXPECT_EQ(outputs[1]->options().sort->variable, "2. Female é");
    EXPECT_EQ(outputs[1]->options().sort->limit, std::nullopt);
    EXPECT_EQ(outputs[2]->options().sort->variable, "A");
    EXPECT_EQ(outputs[2]->options().sort->limit, 70);
}

TEST_F(RunsTest, AColumnThatIsNotThereIsToldWhereItStands) {
    EXPECT_EQ(test::thrownBy([&] {
                  execute("TABLE A FREQ PERSON.SEX\nAREALIST PROVINCE, A\n"
                          "    SORT DESC \"A Child\"");
              }),
              "1 error found");
    ASSERT_EQ(listener.errors.size(), 1u);
    EXPECT_EQ(listener.errors[0].name, "KEL_E_SORT_COLUMN");
    EXPECT_EQ(listener.errors[0].line, 4); // behind the line of the settings
    EXPECT_EQ(listener.errors[0].column, 15);
    EXPECT_TRUE(session->outputs().empty());
}

TEST_F(RunsTest, AreasThatBreakTheRunAreTheirCompoundCode) {
    execute("RUNDEF r NOWEIGHT AREABREAK PROVINCE\nAVERAGE PERSON.AGE BY PERSON.SEX");
    TKelOutput& output = *session->outputs().at(0);
    EXPECT_EQ(output.dimension(), 2);
    const auto variables = output.variables();
    ASSERT_EQ(variables.size(), 3u);
    EXPECT_EQ(variables[0]->name(), "AGE");
    EXPECT_EQ(variables[1], dictionary->findEntity("PROVINCE")->cmpCodeVar());
    EXPECT_EQ(variables[2]->name(), "SEX");
    EXPECT_THAT(rows(), Contains("01|North||0|__tot__|tot|20"));
    EXPECT_EQ(output.method(), eTableMethod::AVERAGE);
}

// Whatever the configuration answers: kelx gives the same.
TEST_F(RunsTest, QuantilesWithoutANumberAreFourParts) {
    execute("QUANTILE PERSON.AGE BY PERSON.SEX");
    ASSERT_NE(config->defaultQuantiles(), 4);
    const std::string row = rows().at(0);
    EXPECT_EQ(std::count(row.begin(), row.end(), '|'), 3) << row;
}

TEST_F(RunsTest, TablesOfTablesAreShownAsTheConfigurationSays) {
    const std::string program = "TABLE a AS FREQ PERSON.SEX\nTABLE b AS TABOP OF a * 2\n"
                                "TABLE c AS AREALIST PROVINCE, a";
    const auto namesOf = [&] {
        execute(program);
        std::string names;
        for (TKelOutput* output : session->outputs()) {
            names += output->name();
        }
        return names;
    };
    EXPECT_EQ(namesOf(), "bc");
    EXPECT_EQ(session->outputs()[0]->type(), eOutputType::TABOP);
    EXPECT_EQ(session->outputs()[1]->entity(), dictionary->findEntity("PROVINCE"));
    config->intermediate = true;
    EXPECT_EQ(namesOf(), "abc");
    EXPECT_EQ(test::rowsOf(*session->outputs()[2]->dataset())[0].substr(0, 9), "01|North|");
}

class ExecuteTest : public RunsTest {
protected:
    ExecuteTest() {
        std::filesystem::create_directories(folder / "sub");
        test::writeFile(folder / "sub" / "one.spc",
                        "RUNDEF r NOWEIGHT\nFREQ PERSON.SEX SAVE \"one.json\"");
        test::writeFile(folder / "sub" / "two.spc",
                        "RUNDEF r NOWEIGHT\nTABLE {name} AS COUNT {what}");
        execute_->setErrorsListener(&listener);
    }
    std::string namesOf() const {
        std::string names;
        for (TKelOutput* output : execute_->outputs()) {
            names += output->name() + " ";
        }
        return names;
    }
    std::shared_ptr<TKelExecute> execute_ = kel::makeExecute(dictionary);
};

TEST_F(ExecuteTest, RunsProgramsOneAfterTheOther) {
    std::vector<std::string> told;
    execute_->setCallback([&](void*, const TKelExecuteCallbackInfo& info, void*) {
        const std::string line = info.programName + " " + std::to_string(info.current + 1) + "/" +
                                 std::to_string(info.total);
        if (told.empty() || told.back() != line) {
            told.push_back(line);
        }
        EXPECT_GE(info.percent, 0);
        EXPECT_LE(info.percent, 100);
        return false;
    });
    execute_->execute("EXECUTE \"sub/one.spc\"\n"
                      "EXECUTE \"sub/two.spc\" name = {T}, what = {PROVINCE}\n"
                      "EXECUTE \"sub/two.spc\" name = {U}, what = {PERSON}");
    EXPECT_THAT(told, ElementsAre("one.spc 1/3", "two.spc 2/3", "two.spc 3/3"));
    EXPECT_EQ(namesOf(), "FREQ_1 T U ");
    EXPECT_THAT(test::rowsOf(*execute_->outputs()[2]->dataset()), ElementsAre("PERSON|5"));
    EXPECT_TRUE(std::filesystem::exists(folder / "sub" / "one.json"));
    EXPECT_TRUE(listener.errors.empty());
}

// As tools write it when a style is chosen.
TEST_F(ExecuteTest, AStyleBeforeTheCallsHoldsForAllOfThem) {
    execute_->execute("DEFINE\n TABLESTYLE \"styles/a.json\"\nEXECUTE \"sub/two.spc\" name = {T}, "
                      "what = {PROVINCE}\nTABLESTYLE \"b.json\"\nEXECUTE \"sub/two.spc\" name = "
                      "{U}, what = {PERSON}");
    EXPECT_EQ(namesOf(), "T U ");
    EXPECT_EQ(execute_->outputs()[0]->options().style, (folder / "styles" / "a.json").string());
    EXPECT_EQ(execute_->outputs()[1]->options().style, (folder / "b.json").string());
}

TEST_F(ExecuteTest, FaultsPointToTheCallAndNothingIsRun) {
    test::writeFile(folder / "bad.spc", "RUNDEF r NOWEIGHT\n\nFREQ PERSON.SEXX\nFREQ X.Y");
    EXPECT_EQ(test::thrownBy(
                  [&] { execute_->execute("EXECUTE \"sub/one.spc\"\n  EXECUTE \"bad.spc\""); }),
              "2 errors found");
    ASSERT_EQ(listener.errors.size(), 2u);
    EXPECT_EQ(listener.errors[0].name, "KEL_E_UNKNOWN_VARIABLE");
    EXPECT_THAT(listener.errors[0].text, testing::StartsWith("bad.spc:3: "));
    EXPECT_EQ(listener.errors[0].line, 2);
    EXPECT_EQ(listener.errors[0].column, 3);
    EXPECT_THAT(listener.errors[1].text, testing::StartsWith("bad.spc:4: "));
    EXPECT_TRUE(execute_->outputs().empty());
    EXPECT_FALSE(std::filesystem::exists(folder / "sub" / "one.json"));
    listener.clear();
    EXPECT_EQ(test::thrownBy([&] { execute_->execute("EXECUTE \"none.spc\" FREQ PERSON.SEX"); }),
              "2 errors found");
    EXPECT_EQ(listener.errors.size(), 2u);
}

TEST_F(ExecuteTest, ProgramsMayUseWhatThoseBeforeHaveSaved) {
    test::writeFile(folder / "first.spc", "DEFINE PERSON.OLD AS PERSON.AGE > 25 SAVE \"old.kbf\"");
    test::writeFile(folder / "second.spc", "RUNDEF r NOWEIGHT FREQ PERSON.OLD");
    execute_->execute("EXECUTE \"first.spc\" EXECUTE \"second.spc\"");
    ASSERT_EQ(execute_->outputs().size(), 1u);
    EXPECT_THAT(test::rowsOf(*execute_->outputs()[0]->dataset()), Contains("0|__tot__|tot|5"));
    // The other way round the second one's variable is not known yet.
    std::filesystem::remove(folder / "old.kbf");
    execute_ = kel::makeExecute(open());
    EXPECT_EQ(
        test::thrownBy([&] { execute_->execute("EXECUTE \"second.spc\" EXECUTE \"first.spc\""); }),
        "1 error found");
}

TEST_F(ExecuteTest, AStopLeavesNoOutputs) {
    execute_->setCallback(
        [](void*, const TKelExecuteCallbackInfo& info, void*) { return info.current == 1; });
    execute_->execute("EXECUTE \"sub/one.spc\" EXECUTE \"sub/one.spc\"");
    EXPECT_TRUE(execute_->outputs().empty());
    execute_->setCallback({});
    execute_->execute("EXECUTE \"sub/one.spc\"");
    EXPECT_EQ(execute_->outputs().size(), 1u);
    execute_->execute("");
    EXPECT_TRUE(execute_->outputs().empty());
}

} // namespace
