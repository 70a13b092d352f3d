// SPDX-License-Identifier: GPL-3.0-or-later
#include "fixture.h"
#include "language/text.h"

#include <algorithm>
#include <chrono>
#include <gtest/gtest.h>
#include <random>

namespace kelx::language {

namespace {

std::string repeated(const std::string& text, int times) {
    std::string result;
    for (int i = 0; i < times; ++i)
        result += text;
    return result;
}

const std::vector<std::string>& pieces() {
    static const std::vector<std::string> all = {
        "RUNDEF",     "FREQ",   "TABLE",    "CROSSTABS", "COUNT",     "DEFINE",
        "AS",         "BY",     "WEIGHT",   "TALLY",     "FILTER",    "TITLE",
        "IN",         "NOT",    "AND",      "OR",        "PERSON",    ".",
        "SEX2",       "AGE",    "ROOMS",    "PROVINCE",  "CAUSE",     "GRP",
        "(",          ")",      ",",        ":",         "=",         "<==",
        "<>",         "-",      "+",        "*",         "/",         "1",
        "2.5",        "\"03\"", "\"",       "LEFT(",     "MISSING(",  "CMPCODE",
        "{",          "}",      "//",       "/*",        "*/",        "\n",
        "DECIMALS",   "INLINE", "DISTRICT", "POP-2020",  "SELECTION", "SELECTIONLABEL",
        "\xc3\xb1",   "\xff",   "#",        "SORT",      "AVERAGE",   "EXECUTE",
        "LOWEST",     "TRUE",   "1e",       "POP-",      "2ND",       "PERSON.*",
        "PERSON.AGE", "WORKS",  "OF",       "NOWEIGHT",  "\r"};
    return all;
}

/// Messages must stand in the program and be readable, whatever the program is.
void expectSoundMessages(const Census& census, const std::string& program) {
    const auto lines = std::count(program.begin(), program.end(), '\n') +
                       std::count(program.begin(), program.end(), '\r') + 1;
    for (const Message& message : census.messages.all()) {
        EXPECT_GE(message.position.line, 1) << program;
        EXPECT_LE(message.position.line, lines) << program;
        EXPECT_GE(message.position.column, 1) << program;
        EXPECT_FALSE(message.text.empty()) << program;
        EXPECT_FALSE(firstInvalidUtf8(message.text)) << program;
    }
}

} // namespace

TEST(Hostile, DeepProgramsAreRefused) {
    Census census;
    const int deep = 100000;
    const std::vector<std::string> programs = {
        "FREQ SEX2 FILTER " + repeated("(", deep) + "WORKS" + repeated(")", deep),
        "FREQ SEX2 FILTER " + repeated("NOT ", deep) + "WORKS",
        "FREQ SEX2 FILTER AGE > " + repeated("- ", deep) + "AGE",
        "FREQ SEX2 FILTER AGE > " + repeated("ABS(", deep) + "AGE",
        "FREQ SEX2 FILTER AGE > AGE" + repeated("+AGE", deep),
        "FREQ SEX2 FILTER AGE > AGE" + repeated("*2", deep),
        "FREQ SEX2 FILTER AGE" + repeated("=1", deep),
        "FREQ SEX2 FILTER AGE" + repeated(" IN (1)", deep),
    };
    for (const std::string& program : programs) {
        census.compile(program);
        ASSERT_EQ(census.messages.all().size(), 1u) << program.substr(0, 40);
        EXPECT_EQ(census.messages.all()[0].text, "The expression is nested too deeply here.");
    }
}

TEST(Hostile, LongConditionsAreNoDeepOnes) {
    Census census;
    const std::string many = "FREQ SEX2 FILTER AGE = 0" + repeated(" OR AGE = 7", 50000);
    const BoundProgram program = census.compile(many);
    EXPECT_EQ(told(census.messages), "");
    ASSERT_EQ(program.tables.size(), 1u);
    const Expression* node = program.tables[0].filter.get();
    int depth = 0;
    for (; node->operation == Operation::Or; node = node->arguments[0].get())
        ++depth;
    EXPECT_LE(depth, 20);
    census.compile("FREQ SEX2 FILTER AGE > 0" + repeated(" + AGE", 150));
    EXPECT_EQ(told(census.messages), "");
}

TEST(Hostile, LargeProgramsAreRefused) {
    Census census;
    census.compile(std::string((1 << 20) + 1, ' '));
    EXPECT_EQ(told(census.messages),
              "KEL_E_PROGRAM_TOO_LARGE 1:1 The program is too long: a program may "
              "have 1048576 bytes.\n");
    census.compile(std::string(1 << 20, ' '));
    EXPECT_EQ(told(census.messages), "");
    census.compile("FREQ SEX2" + repeated(", SEX2", 10000));
    EXPECT_EQ(told(census.messages),
              "KEL_E_TOO_MANY_TABLES 1:1 The program would make more than 10000 tables.\n");
    census.compile("FREQ SEX2" + repeated(" BY AGE, SEX2, GRP, LINE2", 300));
    EXPECT_TRUE(census.messages.hasErrors());
    census.compile("FREQ SEX2" + repeated(" BY AGE, SEX2, GRP", 300));
    EXPECT_EQ(located(census.messages), "KEL_E_TOO_MANY_TABLES 1:1\n");
}

TEST(Hostile, LargeProgramsTakeNoTime) {
    Census census;
    const int size = 1 << 20;
    const auto fill = [&](const std::string& text) {
        return repeated(text, size / static_cast<int>(text.size()));
    };
    const auto start = std::chrono::steady_clock::now();
    for (const char* text : {"POP-", "a-", "\"", "(", "/", "{", "FREQ ", "A.", "\"\"", "x\n", "1.",
                             "SELECTIONLABEL ", "FREQ ROMS\n", "FREQ PERSON.ROMS FILTER X=1\n"}) {
        const std::string program = fill(text);
        census.compile(program);
        EXPECT_TRUE(census.messages.hasErrors() || text == std::string("/")) << text;
    }
    EXPECT_LT(std::chrono::steady_clock::now() - start, std::chrono::seconds(60));
}

TEST(Hostile, RandomProgramsAreAnswered) {
    std::mt19937 random(20240611);
    Census census;
    for (int round = 0; round < 20000; ++round) {
        std::string program = round % 2 == 0 ? "FREQ SEX2 FILTER " : "";
        for (std::uint32_t i = random() % 25; i > 0; --i)
            program += pieces()[random() % pieces().size()] + (random() % 4 == 0 ? "" : " ");
        census.compile(program);
        expectSoundMessages(census, program);
    }
}

TEST(Hostile, MutatedProgramsAreAnswered) {
    const std::string good =
        "WEIGHT HOUSEHOLD.WEIGHT\nRUNDEF r TITLE \"t\" FILTER PERSON.AGE >== 15 AND SEX2 IN (1:5, "
        "9)\n"
        "SELECTION INLINE PROVINCE \"01\" \"One\"\nSELECTIONLABEL a label\n\n"
        "FREQ PERSON.SEX, HOUSEHOLD.ROOMS BY DISTRICT.POP-2020\nTALLY ABS(-PERSON.AGE) * 2\n"
        "TABLE x AS CROSSTABS GRP BY WORKS FILTER LEFT(GRP, 2) <> \"a\"\"b\" /* c */ OR "
        "MISSING(AGE)\n";
    std::mt19937 random(7);
    Census census;
    census.compile(good);
    ASSERT_EQ(told(census.messages), "");
    for (int round = 0; round < 20000; ++round) {
        std::string program = good;
        for (std::uint32_t i = 1 + random() % 3; i > 0; --i) {
            const std::size_t at = random() % program.size();
            switch (random() % 4) {
            case 0:
                program[at] = static_cast<char>(random() % 256);
                break;
            case 1:
                program.erase(at, 1 + random() % 20);
                break;
            case 2:
                program.insert(at, pieces()[random() % pieces().size()]);
                break;
            default:
                program.insert(at, program.substr(random() % program.size(), random() % 40));
            }
        }
        census.compile(program);
        expectSoundMessages(census, program);
    }
}

} // namespace kelx::language
