// SPDX-License-Identifier: GPL-3.0-or-later
// The settings that an output says it was made under.
#include "boundary_fixture.h"

using namespace kelx;
using testing::ElementsAre;

namespace {

constexpr const char* none = "none";

std::string told(const TKelOutput& output) {
    const auto definition = output.runDefinition();
    return output.name() + "|" + definition->selection()->label() + "|" +
           definition->universalFilter().value_or(none);
}

class RunSettingsTest : public test::BoundaryTest {
protected:
    RunSettingsTest() { dropSensitivity(); }

    template <typename Run>
    static std::vector<std::string> toldOf(Run& run) {
        std::vector<std::string> result;
        for (const TKelOutput* output : run.outputs()) {
            result.push_back(told(*output));
        }
        return result;
    }
};

// The session's own answer is that of the last block only.
TEST_F(RunSettingsTest, EachOutputKeepsThoseOfItsBlock) {
    run("COUNT PERSON\n"
        "RUNDEF a NOWEIGHT SELECTION INLINE PROVINCE \"01\" \"North\" FILTER PERSON.AGE > 15\n"
        "TABLE T1 AS FREQ PERSON.SEX\nAREALIST PROVINCE, T1\nVIEW PERSON, PERSON.AGE\n"
        "RUNDEF b NOWEIGHT SELECTION INLINE PROVINCE \"02\" FILTER PERSON.AGE < 99\n"
        "FILTERLABEL young ones\nAVERAGE PERSON.AGE\n"
        "RUNDEF c NOWEIGHT\nFREQ PERSON.SEX");
    EXPECT_THAT(toldOf(*session), ElementsAre("COUNT_1||none", "AREALIST_1|North|PERSON.AGE > 15",
                                              "VIEW_1|North|PERSON.AGE > 15",
                                              "AVERAGE_1|02|young ones", "FREQ_1||none"));
    EXPECT_EQ(session->runDefinition()->selection()->label(), "");
    EXPECT_EQ(session->runDefinition()->universalFilter(), std::nullopt);
}

// What is made of tables was counted where they were, not where it is asked for.
TEST_F(RunSettingsTest, TablesOfTablesTellWhatTheyHaveInCommon) {
    run("RUNDEF a NOWEIGHT SELECTION INLINE PROVINCE \"01\" \"North\" FILTER PERSON.AGE > 15\n"
        "TABLE A AS FREQ PERSON.SEX\n"
        "RUNDEF b NOWEIGHT SELECTION INLINE PROVINCE \"02\" \"South\" FILTER PERSON.AGE > 15\n"
        "TABLE B AS FREQ PERSON.SEX\n"
        "RUNDEF c NOWEIGHT\n"
        "TABLE C AS TABOP OF A * 2\nTABLE D AS TABLIST A, B");
    EXPECT_THAT(toldOf(*session),
                ElementsAre("C|North|PERSON.AGE > 15", "D|Several areas|PERSON.AGE > 15"));
}

TEST_F(RunSettingsTest, CalledProgramsHaveTheirOwn) {
    test::writeFile(folder / "north.spc",
                    "RUNDEF r NOWEIGHT SELECTION INLINE PROVINCE \"01\" \"North\"\nCOUNT PERSON");
    test::writeFile(folder / "grown.spc",
                    "RUNDEF r NOWEIGHT FILTER PERSON.AGE >= {age}\nCOUNT PERSON");
    const auto execute = kel::makeExecute(open());
    execute->setErrorsListener(&listener);
    execute->execute("EXECUTE \"north.spc\"\nEXECUTE \"grown.spc\" age = {30}");
    EXPECT_THAT(toldOf(*execute), ElementsAre("COUNT_1|North|none", "COUNT_1||PERSON.AGE >= 30"));
    // A program that calls others goes on under its own settings.
    run("RUNDEF m NOWEIGHT FILTER PERSON.AGE < 99\nCOUNT PERSON\nEXECUTE \"north.spc\"");
    EXPECT_THAT(toldOf(*session), ElementsAre("COUNT_1||PERSON.AGE < 99", "COUNT_2|North|none"));
}

TEST_F(RunSettingsTest, AnOutputOfNoRunHasEmptyOnes) {
    const TKelOutput output;
    ASSERT_NE(output.runDefinition(), nullptr);
    EXPECT_EQ(told(output), "||none");
}

} // namespace
