// SPDX-License-Identifier: GPL-3.0-or-later
#include "fixture.h"
#include "language/message_table.h"
#include "language/text.h"

#include <algorithm>
#include <ctime>
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
    static const std::vector<std::string> all = {"RUNDEF",
                                                 "FREQ",
                                                 "TABLE",
                                                 "CROSSTABS",
                                                 "COUNT",
                                                 "DEFINE",
                                                 "AS",
                                                 "BY",
                                                 "WEIGHT",
                                                 "TALLY",
                                                 "FILTER",
                                                 "TITLE",
                                                 "IN",
                                                 "NOT",
                                                 "AND",
                                                 "OR",
                                                 "PERSON",
                                                 ".",
                                                 "SEX2",
                                                 "AGE",
                                                 "ROOMS",
                                                 "PROVINCE",
                                                 "CAUSE",
                                                 "GRP",
                                                 "(",
                                                 ")",
                                                 ",",
                                                 ":",
                                                 "=",
                                                 "<==",
                                                 "<>",
                                                 "-",
                                                 "+",
                                                 "*",
                                                 "/",
                                                 "1",
                                                 "2.5",
                                                 "\"03\"",
                                                 "\"",
                                                 "LEFT(",
                                                 "MISSING(",
                                                 "CMPCODE",
                                                 "{",
                                                 "}",
                                                 "//",
                                                 "/*",
                                                 "*/",
                                                 "\n",
                                                 "DECIMALS",
                                                 "INLINE",
                                                 "DISTRICT",
                                                 "POP-2020",
                                                 "SELECTION",
                                                 "SELECTIONLABEL",
                                                 "\xc3\xb1",
                                                 "\xff",
                                                 "#",
                                                 "SORT",
                                                 "AVERAGE",
                                                 "EXECUTE",
                                                 "LOWEST",
                                                 "TRUE",
                                                 "1e",
                                                 "POP-",
                                                 "2ND",
                                                 "PERSON.*",
                                                 "PERSON.AGE",
                                                 "WORKS",
                                                 "OF",
                                                 "NOWEIGHT",
                                                 "\r",
                                                 "!=",
                                                 "'",
                                                 "\xe2\x80\x9c",
                                                 "\xe2\x80\x8b",
                                                 "\xc2\xa0",
                                                 "1.",
                                                 "NOT IN",
                                                 "=>",
                                                 "-9223372036854775808",
                                                 "1e999",
                                                 "\xc2\xad"};
    return all;
}

const std::vector<std::string>& definitionPieces() {
    static const std::vector<std::string> all = {"DEFINE",
                                                 "PERSON.X",
                                                 "PERSON.Y",
                                                 "HOUSEHOLD.X",
                                                 "DISTRICT.A-B",
                                                 "AS",
                                                 "COUNT",
                                                 "SUM",
                                                 "MEDIAN",
                                                 "MAX",
                                                 "RECODE",
                                                 "SWITCH",
                                                 "CASE",
                                                 "ASSIGN",
                                                 "ELSE",
                                                 "NUMBER",
                                                 "SAMPLE",
                                                 "RANDOM",
                                                 "RATIO",
                                                 "FRACTION",
                                                 "NUM",
                                                 "DENOM",
                                                 "INDICATOR",
                                                 "SYSTEMATIC",
                                                 "PERSON",
                                                 "DEATH",
                                                 "HOUSEHOLD",
                                                 "PERSON.AGE",
                                                 "AGE",
                                                 "GRP",
                                                 "WORKS",
                                                 "ROOMS",
                                                 "CAUSE",
                                                 "SEX2",
                                                 "X",
                                                 "Y",
                                                 "(1 : 5)",
                                                 "(1 = 2)",
                                                 "(1:2 = \"a\")",
                                                 "(LOWEST:9)",
                                                 "(",
                                                 ")",
                                                 "TYPE",
                                                 "REAL",
                                                 "STRING",
                                                 "BOOL",
                                                 "INTEGER",
                                                 "WEIGHT",
                                                 "FILTER",
                                                 "RANGE",
                                                 "VARLABEL",
                                                 "VALUELABELS",
                                                 "\"text\"",
                                                 "1",
                                                 "-2.5",
                                                 "DOC",
                                                 "DEFAULT",
                                                 "MISSING",
                                                 "NOTAPP",
                                                 "SENSITIVE",
                                                 "LIKE",
                                                 "SAVE",
                                                 "OVERWRITE",
                                                 "ALIAS",
                                                 "GROUP",
                                                 "DECIMALS",
                                                 "TRUE",
                                                 ">",
                                                 "=",
                                                 "+",
                                                 "AND",
                                                 "MISSING(AGE)",
                                                 "RUNDEF",
                                                 "FREQ",
                                                 "TABLESTYLE",
                                                 "\n",
                                                 "CMPCODE(DISTRICT)",
                                                 "99999999999"};
    return all;
}

/// One to three changes: a byte, a piece gone, a piece from elsewhere.
std::string mutated(std::string program, const std::vector<std::string>& words,
                    std::mt19937& random) {
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
            program.insert(at, words[random() % words.size()]);
            break;
        default:
            program.insert(at, program.substr(random() % program.size(), random() % 40));
        }
    }
    return program;
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
    census.compile("FREQ SEX2" + repeated(" BY AGE, SEX2, GRP, LINE2", 90));
    EXPECT_TRUE(census.messages.hasErrors());
    census.compile("FREQ SEX2" + repeated(" BY AGE, SEX2, GRP", 30));
    EXPECT_EQ(located(census.messages), "KEL_E_TOO_MANY_TABLES 1:1\n");
}

TEST(Hostile, TablesHaveBoundsInEachDirection) {
    Census census;
    census.write("PERSON_LOST.kbf", "x");
    census.compile("VIEW PERSON, PERSON.*" + repeated(", POP.*", 100000));
    EXPECT_EQ(located(census.messages).substr(0, 25), "KEL_E_TOO_MANY_COLUMNS 1:");
    census.compile("FREQ POP.*" + repeated(", POP.*", 100000) + " FREQ SEX2 FREQ POP.*" +
                   repeated(", POP.*", 2000));
    EXPECT_EQ(located(census.messages), "KEL_E_TOO_MANY_TABLES 1:1\n");
    census.compile("FREQ SEX2" + repeated(" BY SEX2", 100000));
    EXPECT_EQ(located(census.messages), "KEL_E_TOO_MANY_DIMENSIONS 1:1\n");
    census.compile("FREQ SEX2" + repeated(" BY SEX2", 99));
    EXPECT_EQ(located(census.messages), "");
}

TEST(Hostile, RepeatedTextsHaveBounds) {
    Census census;
    const std::string title = "\"" + std::string(500000, 'x') + "\"";
    std::string areas, labels;
    for (int i = 0; i < 25000; ++i) {
        areas += " PROVINCE \"" + std::to_string(i) + "\"";
        labels += " " + std::to_string(i) + " \"x\"";
    }
    for (const std::string& program :
         {"FREQ SEX2" + repeated(", SEX2", 9000) + " TITLE " + title,
          "TABLE a COUNT PERSON TITLE " + title + " AREALIST PROVINCE" + repeated(", a", 9000),
          "RUNDEF SELECTION INLINE" + areas + "\n" +
              repeated("DEFINE TABLESTYLE \"s\"\nFREQ AGE\n", 9000),
          "DEFINE PERSON.A AS 1 VALUELABELS" + labels + "\n" +
              repeated("DEFINE PERSON.B AS 1 LIKE A\n", 20000)}) {
        census.compile(program);
        std::size_t told = 0;
        for (const Message& message : census.messages.all())
            told += message.code == static_cast<int>(Error::TooMuchText) &&
                    message.severity == Severity::Error;
        EXPECT_EQ(told, 1U) << program.substr(0, 40);
        EXPECT_EQ(census.messages.errorCount(), 1U) << program.substr(0, 40);
    }
}

namespace {

/// One text again and again behind another, up to the longest program.
struct Shape {
    std::string begin, piece;
};

std::vector<Shape> shapes() {
    const std::string tables = "FREQ SEX2" + repeated(", SEX2", 9000) + "\n";
    std::vector<Shape> all = {
        {"DEFINE PERSON.a" + repeated("-a", 99) + " AS 1\n", "a-"},
        {"DEFINE PERSON.ax" + repeated("-ax", 60) + " AS 1\n", "ax-"},
        {"DEFINE PERSON.X AS AGE RANGE", " (1 : 2)"},
        {"VIEW PERSON", ", nobody"},
        {tables + "AREALIST PROVINCE", ", FREQ1"},
        {tables + "TABLIST FREQ_1", ", FREQ_7"},
        {tables + "TABOP (FREQ_1", ")*(FREQ_7"},
        {"FREQ AGE", ", nobody"},
        {"FREQ AGE FILTER AGE", " NOT IN (1) OR AGE"},
        {"EXECUTE \"none\"", " x={1}"},
        {"RUNDEF FILTER AGE > 5 ", "FREQ ROOMS "},
        {"AVERAGE AGE BY AGE" + repeated(", AGE", 5000) + " FILTER AGE = 1", " OR AGE = 2"},
        {"FREQ AGE TITLE \"", "{x}"}};
    for (const char* piece : {"POP-",
                              "a-",
                              "\"",
                              "(",
                              "/",
                              "{",
                              "FREQ ",
                              "A.",
                              "\"\"",
                              "x\n",
                              "1.",
                              "1e",
                              "-1 ",
                              "-",
                              "SELECTIONLABEL ",
                              "SELECTIONLABEL \"\" ",
                              "SELECTIONLABEL a/**/",
                              "FREQ ROMS\n",
                              "FREQ PERSON.ROMS FILTER X=1\n",
                              "FREQ AGE x\n",
                              "TITLE \"x\" ",
                              "'",
                              "'x'",
                              "!=",
                              "[",
                              "\xe2\x80\x9c",
                              "\xe2\x80\x8b",
                              "a\xe2\x80\x8b",
                              "\xc2\xa0",
                              "DEFINE ",
                              "DOC \"",
                              "DEFINE PERSON.a-",
                              "DEFINE TABLESTYLE \"s\" ",
                              "TABLESTYLE \"s\"\n",
                              "WEIGHT 1\n",
                              "RUNDEF\n",
                              "RUNDEF SELECTION INLINE PROVINCE \"1\"\n",
                              "TABOP 1\n",
                              "VIEW PERSON\n",
                              "DEFINE HOUSEHOLD.X AS RATIO AGE (1)\n",
                              "DEFINE PERSON.X AS NOBODY\n"})
        all.push_back({"", piece});
    for (const char* piece : {"DEFINE PERSON.X AS X ", "DEFINE PERSON.X AS AGE ",
                              "VALUELABELS 1 \"a\" ", "(1 = 2) ", "CASE 1 = 1 ASSIGN ", "GROUP a "})
        all.push_back({"DEFINE PERSON.X AS RECODE AGE (1 = 1) ", piece});
    return all;
}

/// As long as a program can be; shorter under sanitizers, which are there for other faults.
#ifdef __SANITIZE_ADDRESS__
constexpr std::size_t longest = 1 << 17;
#else
constexpr std::size_t longest = 1 << 20;
#endif

/// A program of the longest kind is checked in about a second of work.
void expectNoTime(Census& census, const std::string& program) {
    const std::clock_t start = std::clock();
    census.compile(program.substr(0, longest));
    const double taken = static_cast<double>(std::clock() - start) / CLOCKS_PER_SEC;
    EXPECT_LT(taken, 10) << program.substr(0, 60) << " ... " << program.substr(program.size() - 30);
}

} // namespace

TEST(Hostile, LargeProgramsTakeNoTime) {
    Census census;
    for (const auto& [begin, piece] : shapes())
        expectNoTime(census, begin + repeated(piece, static_cast<int>(longest / piece.size())));
}

TEST(Hostile, ManyNamesTakeNoTime) {
    Census census;
    std::string labels = "DEFINE PERSON.X AS AGE VALUELABELS", names, odd, values;
    for (int i = 0; labels.size() < 1000000; ++i)
        labels += " " + std::to_string(i) + " \"\"";
    for (int i = 0; names.size() < 500000; ++i) {
        names += "DEFINE POP.a" + std::to_string(i) + " AS 1\n";
        odd += "DEFINE POP.a-" + std::to_string(i) + " AS 1\n";
    }
    for (int i = 0; values.size() < 1000000; ++i)
        values += " a" + std::to_string(i) + "={1}";
    census.write("empty.spc", "FREQ AGE");
    for (const std::string& program :
         {labels, names + names, odd + odd, names + repeated("FREQ a12y\n", 50000),
          "EXECUTE \"empty.spc\"" + values})
        expectNoTime(census, program);
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
        const std::string program = mutated(good, pieces(), random);
        census.compile(program);
        expectSoundMessages(census, program);
    }
}

TEST(Hostile, RandomDefinitionsAreAnswered) {
    std::mt19937 random(20241121);
    Census census;
    std::size_t good = 0;
    for (int round = 0; round < 20000; ++round) {
        std::string program = "DEFINE PERSON.X AS ";
        for (std::uint32_t i = random() % 25; i > 0; --i)
            program += definitionPieces()[random() % definitionPieces().size()] + " ";
        const BoundProgram bound = census.compile(program);
        expectSoundMessages(census, program);
        good += census.messages.hasErrors() ? 0 : bound.definitions.size();
    }
    EXPECT_GT(good, 10U) << "the pieces make no programs any more";
}

TEST(Hostile, MutatedDefinitionsAreAnswered) {
    const std::string good =
        "DEFINE\n  TABLESTYLE \"s\"\nDEFINE PERSON.X AS RECODE PERSON.AGE (LOWEST : 14 = 1)\n"
        "(15 : 64 = AGE / 2) ELSE 9 TYPE real RANGE (1 : 5) (9) VARLABEL \"x\" VALUELABELS 1 "
        "\"a\" 2 \"b\"\nDOC \"d\nd\" DEFAULT -1 MISSING 98 SENSITIVE 3 LIKE SEX2 ALIAS A GROUP g "
        "h\n"
        "DEFINE DISTRICT.A-B AS FRACTION NUM AGE (1:3)(5) DENOM CAUSE (1) FILTER ROOMS > 1\n"
        "DEFINE PERSON.S AS SWITCH CASE X > 1 ASSIGN 2 ELSE 0 SAVE \"f.kbf\" OVERWRITE\n"
        "RUNDEF AREABREAK DISTRICT FILTER A > 0\nFREQ S, A-B WEIGHT X\n";
    std::mt19937 random(11);
    Census census;
    census.compile(good);
    ASSERT_EQ(located(census.messages), "");
    for (int round = 0; round < 20000; ++round) {
        const std::string program = mutated(good, definitionPieces(), random);
        census.compile(program);
        expectSoundMessages(census, program);
    }
}

} // namespace kelx::language
