// SPDX-License-Identifier: GPL-3.0-or-later
// Programs that call others.
#include "fixture.h"
#include "language/execute_calls.h"
#include "language/message_table.h"

#include <gtest/gtest.h>

namespace kelx::language {

TEST(Execute, RunsAsIfTheTextStoodThere) {
    Census census;
    census.options.autoWeight = false;
    census.write("sub/one.spc", "RUNDEF one FILTER {entity}.AGE > {limit}\n"
                                "TABLE {Name}_{n} FREQ PERSON.{v} TITLE \"{v} // {limit}\"\n"
                                "// {nobody} is told of a comment\n");
    const BoundProgram program = census.compile(
        "execute \"sub\\one.spc\" limit = {10 + 5}, ENTITY = {PERSON}, name = {T}, n={1}, v = "
        "{SEX}\n"
        "FREQ PERSON.GRP\n"
        "EXECUTE \"sub/one.spc\" limit = {2\r\n* 3} entity = {POP} name = {T} n = {2} v = {WORKS}");
    EXPECT_EQ(told(census.messages), "");
    EXPECT_EQ(summary(program),
              "T_1 PERSON: PERSON.SEX all (PERSON.AGE > (10 + 5)) title SEX // 10 + 5\n"
              "FREQ_1 PERSON: PERSON.GRP all (PERSON.AGE > (10 + 5))\n"
              "T_2 PERSON: PERSON.WORKS all (PERSON.AGE > (2 * 3)) title WORKS // 2  * 3\n");
    EXPECT_EQ(program.tables[0].text, "TABLE T_1 FREQ PERSON.SEX TITLE \"SEX // 10 + 5\"");
}

TEST(Execute, TakesNestedFilesFromTheirOwnFolder) {
    Census census;
    census.options.autoWeight = false;
    census.write("a/first.spc",
                 "EXECUTE \"b/second.spc\" v = {v}, w = {{w}}, x = {GRP}, y = {{v}2}");
    census.write("a/b/area_sel.json", "{\"selections\": []}");
    census.write("a/b/second.spc",
                 "RUNDEF SELECTION \"area_sel.json\" SELECTIONLABEL the {v}\nFREQ PERSON.{v}, {w}, "
                 "{x}, {y}");
    const BoundProgram program = census.compile("EXECUTE \"a/first.spc\" v = {SEX}, w = {AGE}");
    EXPECT_EQ(told(census.messages), "");
    ASSERT_EQ(program.tables.size(), 4U);
    EXPECT_EQ(program.tables[1].dimensions[0]->variable->name, "AGE");
    EXPECT_EQ(program.tables[2].dimensions[0]->variable->name, "GRP");
    EXPECT_EQ(program.tables[3].dimensions[0]->variable->name, "SEX2");
    EXPECT_EQ(program.tables[0].settings->selection->label, "the SEX");
}

TEST(Execute, TellsFaultsAtTheCall) {
    Census census;
    census.write("bad.spc", "FREQ PERSON.SEX\n\nFREQ PERSON.SEXX\nFREQ PERSON.AGE FILTER\n");
    census.write("outer.spc", "COUNT PERSON\nEXECUTE \"bad.spc\"");
    census.write("filter.spc", "\nRUNDEF FILTER PERSON.AGE > 3");
    census.write("values.spc", "FREQ {v1}\nFREQ {v2}\nTITLE \"{v3}\" FILTER {V3} = {v3}");
    census.write("latin.spc", "FREQ AGE\nTITLE \"n\xf1o\"");
    census.compile("FREQ AGE\n  EXECUTE \"outer.spc\"\nEXECUTE \"filter.spc\"\nFREQ ROOMS\n"
                   "EXECUTE \"values.spc\" v1 = {AGE}, v4 = {AGE}\nEXECUTE \"latin.spc\"");
    EXPECT_EQ(
        told(census.messages),
        "KEL_E_UNEXPECTED 2:3 bad.spc:5: Found the end of the program, but expected a value, such "
        "as "
        "a number, a text in quotes, Entity.Variable, a function or \"(\".\n"
        "KEL_E_UNKNOWN_VARIABLE 2:3 bad.spc:3: There is no variable \"SEXX\" in PERSON. Did you "
        "mean "
        "PERSON.SEX?\n"
        "KEL_W_FILTER_BELOW 3:1 filter.spc:2: The universal filter is about PERSON: each HOUSEHOLD "
        "that has "
        "at "
        "least one such PERSON is kept.\n"
        "KEL_E_UNKNOWN_VALUE 5:1 values.spc:2: EXECUTE gives no value for {v2}. Did you mean v1?\n"
        "KEL_E_UNKNOWN_VALUE 5:1 values.spc:3: EXECUTE gives no value for {v3}, which stands at 3 "
        "places. Did you mean v1?\n"
        "KEL_W_UNUSED_VALUE 5:34 The program \"values.spc\" has no {v4}. Did you mean v2?\n"
        "KEL_E_NOT_UTF8 6:1 latin.spc:2: The program is not valid UTF-8 here. Save it with the "
        "encoding UTF-8.\n");
}

TEST(Execute, RefusesCyclesAndWhatIsNoProgram) {
    Census census;
    census.write("self.spc", "EXECUTE \"other/../round.spc\"");
    census.write("other/x", "");
    census.write("round.spc", "FREQ AGE\nEXECUTE \"self.spc\"");
    census.write("big.spc", std::string((1U << 20) + 1, ' '));
    census.compile("EXECUTE \"self.spc\"\nEXECUTE \"none.spc\"\nEXECUTE \"other\"\n"
                   "EXECUTE \"big.spc\" FREQ AGE");
    EXPECT_EQ(
        told(census.messages),
        "KEL_E_PROGRAM_CYCLE 1:1 other/../round.spc:2: The program \"self.spc\" cannot be called "
        "here: "
        "it is being called already.\n"
        "KEL_E_PROGRAM_FILE 2:9 The program \"none.spc\" does not exist.\n"
        "KEL_E_PROGRAM_FILE 3:9 The program \"other\" is not a file.\n"
        "KEL_E_PROGRAM_FILE 4:9 The program \"big.spc\" is larger than any program can be.\n");
}

/// Each of 24 programs calls the next one three times: nothing that could ever end.
TEST(Execute, SurvivesProgramsThatMultiply) {
    Census census;
    for (int i = 0; i < 24; ++i) {
        const std::string next = "EXECUTE \"p" + std::to_string(i + 1) + ".spc\"\n";
        census.write("p" + std::to_string(i) + ".spc", next + next + next);
    }
    census.compile("EXECUTE \"p0.spc\"");
    const std::string found = located(census.messages);
    EXPECT_NE(found.find("KEL_E_CALLS_TOO_DEEP 1:1"), std::string::npos);
    std::size_t full = 0;
    for (const Message& message : census.messages.all())
        full += message.code == static_cast<int>(Error::TooManyCalls) ? 1 : 0;
    EXPECT_EQ(full, 1U);
}

/// Each of 20 programs gives the next one its value twice: a megabyte after as many doublings.
TEST(Execute, SurvivesValuesThatMultiply) {
    Census census;
    for (int i = 0; i < 19; ++i)
        census.write("v" + std::to_string(i) + ".spc",
                     "EXECUTE \"v" + std::to_string(i + 1) + ".spc\" v = {{v}{v}{v}{v}}");
    census.write("v19.spc", "FREQ AGE TITLE \"{v}\"");
    census.compile("EXECUTE \"v0.spc\" v = {x}");
    ASSERT_EQ(census.messages.all().size(), 1U);
    EXPECT_EQ(census.messages.all()[0].code, static_cast<int>(Error::ValuesTooLong));

    std::string uses = "// ";
    for (int i = 0; i < 300000; ++i)
        uses += "{";
    uses += "\nFREQ AGE TITLE \"";
    for (int i = 0; i < 100000; ++i)
        uses += "{v}{";
    census.write("uses.spc", uses + "\"");
    census.compile("EXECUTE \"uses.spc\" v = {" + std::string(500000, 'x') + "}");
    EXPECT_EQ(located(census.messages), "KEL_E_VALUES_TOO_LONG 1:9\n");
    census.compile("EXECUTE \"uses.spc\" v = {x}");
    EXPECT_EQ(located(census.messages), "");
}

TEST(ExecuteCalls, AreReadOneByOne) {
    Census census;
    census.write("one.spc", "FREQ {v}\n");
    Messages messages;
    const auto calls = readExecuteCalls(
        "// all\nexecute \"one.spc\" v = {PERSON.SEX}\n\nexecute \"one.spc\" w = {a, b}\n"
        "EXECUTE \"two.spc\"\nFREQ AGE\nEXECUTE \"one.spc\"",
        census.options, messages);
    EXPECT_EQ(
        told(messages),
        "KEL_W_UNUSED_VALUE 4:1 The program \"one.spc\" has no {w}.\n"
        "KEL_E_PROGRAM_FILE 5:9 The program \"two.spc\" does not exist.\n"
        "KEL_E_UNEXPECTED 6:1 Found the reserved word FREQ, but expected EXECUTE and the file "
        "name of a program.\n");
    ASSERT_EQ(calls.size(), 4U);
    EXPECT_EQ(calls[0].file, census.dictionary.dataFolder / "one.spc");
    EXPECT_EQ(calls[0].position.line, 2);
    EXPECT_EQ(programOf(calls[0]), "FREQ PERSON.SEX\n");
    EXPECT_EQ(calls[1].values[0].second, "a, b");
    const auto fault = [](const ExecuteCall& call) {
        try {
            return programOf(call);
        } catch (const std::runtime_error& error) {
            return std::string(error.what());
        }
    };
    EXPECT_EQ(fault(calls[1]), "one.spc:1: EXECUTE gives no value for {v}.");
    EXPECT_EQ(fault(calls[2]), "The program \"two.spc\" does not exist.");
}

} // namespace kelx::language
