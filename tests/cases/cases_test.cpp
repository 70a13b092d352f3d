// SPDX-License-Identifier: GPL-3.0-or-later
// Runs files of cases: each case with one thread and with two, and with blocks of many records and
// of few, which must all give the same. With KELX_CASES_PRINT in the environment the outcome of
// each case is printed.
#include "case_database.h"
#include "case_file.h"
#include "case_run.h"
#include "support/temporary_folder.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <charconv>
#include <cmath>
#include <cstdlib>
#include <iostream>
#include <optional>

namespace kelx::test {
namespace {

namespace fs = std::filesystem;

struct Tuning {
    unsigned threads;
    std::size_t blockRecords;
};
constexpr Tuning plain = {1, 65536};
constexpr Tuning others[] = {{2, 65536}, {1, 64}, {2, 64}, {1, 1}, {2, 1}};

/// The databases that cases have asked for, each made once.
class Databases {
public:
    const fs::path& folderOf(const Case& given) {
        fs::path& folder = folders_[given.database];
        if (folder.empty()) {
            const fs::path made = home_ / given.database;
            makeCaseDatabase(given.file.parent_path() / "databases" / given.database, made);
            folder = made;
        }
        return folder;
    }
    static Databases& all() {
        static Databases databases;
        return databases;
    }

private:
    TemporaryFolder home_;
    std::map<std::string, fs::path> folders_;
};

Outcome runFresh(const Case& given, const Tuning& tuning) {
    const TemporaryFolder folder;
    fs::copy(Databases::all().folderOf(given), folder.path(), fs::copy_options::recursive);
    return runCase(given, folder.path(), tuning.threads, tuning.blockRecords);
}

std::size_t characters(const std::string& text) {
    return static_cast<std::size_t>(
        std::count_if(text.begin(), text.end(), [](char c) { return (c & 0xc0) != 0x80; }));
}

/// Two lists of lines side by side, those that differ marked.
std::string sideBySide(const std::vector<std::string>& expected,
                       const std::vector<std::string>& actual, const std::vector<bool>& same) {
    std::size_t width = 8;
    for (const std::string& line : expected)
        width = std::max(width, characters(line));
    std::string text = "    expected" + std::string(width - 8, ' ') + "    actual\n";
    for (std::size_t i = 0; i < std::max(expected.size(), actual.size()); ++i) {
        const std::string left = i < expected.size() ? expected[i] : "";
        text += (i < same.size() && same[i] ? "    " : "  ! ") + left +
                std::string(width - characters(left), ' ') + "    " +
                (i < actual.size() ? actual[i] : "") + "\n";
    }
    return text;
}

std::vector<std::string> linesOf(const std::vector<Cells>& rows) {
    std::vector<std::string> lines;
    for (const Cells& row : rows)
        lines.push_back(joinRow(row));
    return lines;
}

std::optional<double> number(const std::string& text) {
    double value = 0;
    const auto end = std::from_chars(text.data(), text.data() + text.size(), value).ptr;
    return end == text.data() + text.size() && !text.empty() ? std::optional(value) : std::nullopt;
}

bool sameCell(const std::string& expected, const std::string& actual, double tolerance) {
    if (expected == actual || tolerance == 0)
        return expected == actual;
    const auto a = number(expected);
    const auto b = number(actual);
    return a && b && std::abs(*a - *b) <= tolerance * std::abs(*a);
}

bool sameRow(const Cells& expected, const Cells& actual, double tolerance) {
    return std::equal(expected.begin(), expected.end(), actual.begin(), actual.end(),
                      [&](const auto& a, const auto& b) { return sameCell(a, b, tolerance); });
}

void compareTable(const Case& given, const ExpectedTable& expected, const ActualTable& actual) {
    const std::string place = given.file.string() + ":" + std::to_string(expected.line);
    EXPECT_EQ(actual.name, expected.name) << place;
    for (const auto& [name, value] : expected.facts) {
        const auto found = actual.facts.find(name);
        EXPECT_EQ(found == actual.facts.end() ? "nothing known" : found->second, value)
            << place << ": " << name << " of " << expected.name;
    }
    std::vector<bool> same(std::max(expected.rows.size(), actual.rows.size()), false);
    for (std::size_t i = 0; i < std::min(expected.rows.size(), actual.rows.size()); ++i)
        same[i] = sameRow(expected.rows[i], actual.rows[i], expected.tolerance);
    if (std::find(same.begin(), same.end(), false) != same.end())
        ADD_FAILURE() << place << ": rows of " << expected.name << "\n"
                      << sideBySide(linesOf(expected.rows), linesOf(actual.rows), same);
}

void compareMessages(const Case& given, const Outcome& outcome) {
    std::vector<bool> same;
    for (std::size_t i = 0; i < std::max(given.messages.size(), outcome.messages.size()); ++i) {
        // Name and place, then any part of the text.
        if (i >= given.messages.size() || i >= outcome.messages.size()) {
            same.push_back(false);
            continue;
        }
        const std::string& expected = given.messages[i];
        const auto end = std::min(expected.find(' ', expected.find(' ') + 1), expected.size());
        same.push_back(outcome.messages[i].starts_with(expected.substr(0, end) + " ") &&
                       (end == expected.size() ||
                        outcome.messages[i].find(expected.substr(end + 1)) != std::string::npos));
    }
    if (std::find(same.begin(), same.end(), false) != same.end())
        ADD_FAILURE() << given.file.string() << ":" << given.line << ": messages\n"
                      << sideBySide(given.messages, outcome.messages, same);
}

void compareOutcome(const Case& given, const Outcome& outcome) {
    compareMessages(given, outcome);
    const bool mayFail = std::any_of(given.messages.begin(), given.messages.end(),
                                     [](const auto& m) { return m.starts_with("KEL_E_"); });
    if (!mayFail)
        EXPECT_EQ(outcome.thrown, "") << given.file.string() << ":" << given.line;
    else
        EXPECT_NE(outcome.thrown, "") << given.file.string() << ":" << given.line;
    if (!given.hasTables)
        return;
    EXPECT_EQ(outcome.tables.size(), given.tables.size())
        << given.file.string() << ":" << given.line << ": number of tables\n"
        << toText(outcome);
    for (std::size_t i = 0; i < std::min(outcome.tables.size(), given.tables.size()); ++i)
        compareTable(given, given.tables[i], outcome.tables[i]);
}

class CaseTest : public testing::Test {
public:
    explicit CaseTest(const Case& given) : given_(given) {}

private:
    void TestBody() override {
        ASSERT_TRUE(given_.hasTables || !given_.messages.empty()) << "nothing is expected";
        const Outcome outcome = runFresh(given_, plain);
        if (std::getenv("KELX_CASES_PRINT") != nullptr)
            std::cout << toText(outcome);
        compareOutcome(given_, outcome);
        for (const Tuning& tuning : others)
            EXPECT_EQ(toText(runFresh(given_, tuning)), toText(outcome))
                << given_.file.string() << ":" << given_.line << ": with " << tuning.threads
                << " threads and blocks of " << tuning.blockRecords;
    }

    const Case& given_;
};

std::string identifier(const std::string& title) {
    std::string name;
    for (const char c : title)
        name += std::isalnum(static_cast<unsigned char>(c)) != 0 ? c : '_';
    return name;
}

/// The cases must outlive the tests.
void registerCases(const std::vector<Case>& cases) {
    for (const Case& given : cases)
        testing::RegisterTest(
            identifier(given.file.stem().string()).c_str(), identifier(given.title).c_str(),
            nullptr, nullptr, given.file.c_str(), given.line,
            [&given] { return static_cast<testing::Test*>(new CaseTest(given)); });
}

} // namespace
} // namespace kelx::test

int main(int argc, char** argv) {
    testing::InitGoogleTest(&argc, argv);
    std::vector<std::vector<kelx::test::Case>> files;
    try {
        for (int i = 1; i < argc; ++i)
            files.push_back(kelx::test::readCases(argv[i]));
    } catch (const std::exception& error) {
        std::cerr << error.what() << "\n";
        return 2;
    }
    if (files.empty()) {
        std::cerr << "cases_test FILE.case ...\n";
        return 2;
    }
    for (const auto& cases : files)
        kelx::test::registerCases(cases);
    return RUN_ALL_TESTS();
}
