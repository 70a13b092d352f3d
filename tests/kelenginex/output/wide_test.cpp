// SPDX-License-Identifier: Apache-2.0
// Tables of many dimensions: their rows, their limit, and how they are stopped.
#include "output/run.h"

#include "small_country.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <ctime>
#include <map>
#include <random>
#include <sys/resource.h>

namespace kelx::test {
namespace {

constexpr std::size_t width = 14;

/// Persons with fourteen variables V0 to V13, values from 0 by a fixed generator; the last value
/// of each is coded missing.
class WideCountry : public TestDatabase {
public:
    WideCountry(std::size_t persons, unsigned kinds) : values(width) {
        std::mt19937 random(11);
        entity("COUNTRY", "PERSON", {persons});
        for (std::size_t v = 0; v < width; ++v) {
            Integers column;
            for (std::size_t i = 0; i < persons; ++i) {
                values[v].push_back(static_cast<std::int64_t>(random() % kinds));
                column.emplace_back(values[v].back());
            }
            integers("PERSON", "V" + std::to_string(v), column).missing = kinds - 1;
        }
    }
    static std::string program(std::size_t dimensions) {
        std::string text = "TABLE wide AS FREQ PERSON.V0";
        for (std::size_t v = 1; v < dimensions; ++v)
            text += " BY PERSON.V" + std::to_string(v);
        return text;
    }
    output::TablesOfRun run(std::size_t dimensions, const execution::ProgressCallback& progress) {
        return run(program(dimensions), progress);
    }
    output::TablesOfRun run(const std::string& text, const execution::ProgressCallback& progress) {
        bound_ = compiled(dictionary, text);
        execution::RunOptions options;
        options.progress = progress;
        language::Messages messages;
        return output::runTables(bound_, dictionary, options, messages);
    }

    std::vector<std::vector<std::int64_t>> values;

private:
    language::BoundProgram bound_;
};

TEST(Wide, fourteenDimensionsHaveEveryTotalOnce) {
    constexpr std::int64_t missing = 2;
    constexpr std::size_t persons = 30;
    WideCountry country(persons, missing + 1);
    // Places in a dimension: 0, 1, total (2), MV (3). Each person is in the rows of its own places
    // and of all totals of the dimensions where it is valid.
    std::map<std::vector<int>, std::int64_t> expected{{std::vector<int>(width, 2), 0}};
    for (std::size_t i = 0; i < persons; ++i) {
        for (unsigned totals = 0; totals < 1U << width; ++totals) {
            std::vector<int> row;
            for (std::size_t v = 0; v < width; ++v) {
                const std::int64_t value = country.values[v][i];
                const bool isTotal = (totals >> v & 1U) != 0;
                if (isTotal && value == missing)
                    break;
                row.push_back(isTotal ? 2 : value == missing ? 3 : static_cast<int>(value));
            }
            if (row.size() == width)
                ++expected[row];
        }
    }
    const output::Table table = std::move(country.run(width, {}).tables.at(0));
    ASSERT_EQ(table.rows(), static_cast<std::int64_t>(expected.size()));
    std::int64_t number = 0;
    for (const auto& [places, persons] : expected) {
        for (std::size_t v = 0; v < width; ++v) {
            const std::string kind = places[v] == 2 ? "tot" : places[v] == 3 ? "mv" : "";
            ASSERT_EQ(output::toText(table.at(number, v * 3 + 2)), kind) << number;
            ASSERT_EQ(output::toText(table.at(number, v * 3)),
                      kind.empty() ? std::to_string(places[v]) : "0");
        }
        ASSERT_EQ(output::toText(table.at(number, width * 3)), std::to_string(persons)) << number;
        ++number;
    }
}

std::int64_t peakKilobytes() {
    rusage usage{};
    getrusage(RUSAGE_SELF, &usage);
    return usage.ru_maxrss;
}

TEST(Wide, tooManyRowsAreRefusedBeforeTheyTakeMemory) {
    WideCountry country(4000, 10);
    const std::int64_t before = peakKilobytes();
    try {
        country.run(width, {});
        FAIL() << "a table of more than 20 million rows was made";
    } catch (const std::runtime_error& error) {
        EXPECT_NE(std::string(error.what()).find("The table wide would have more than 20000000"),
                  std::string::npos)
            << error.what();
    }
    EXPECT_LT(peakKilobytes() - before, 200 * 1024);
}

/// 98 000 columns and 2 more leave room for 1020 rows of 100 million values in all.
TEST(Wide, listsOfTooManyValuesAreRefused) {
    std::string program = "VIEW PERSON, PERSON.*";
    for (int i = 1; i < 7000; ++i)
        program += ", PERSON.*";
    WideCountry country(1021, 10);
    const std::int64_t before = peakKilobytes();
    try {
        country.run(program, {});
        FAIL() << "a list of more than 100 million values was made";
    } catch (const std::runtime_error& error) {
        EXPECT_NE(std::string(error.what()).find("VIEW_1 would have more than 1020 rows"),
                  std::string::npos)
            << error.what();
    }
    EXPECT_LT(peakKilobytes() - before, 200 * 1024);
}

/// Tables are laid out on the thread that asks, so its own work between two questions counts,
/// however busy the machine is.
double secondsWorked() {
    timespec time{};
    clock_gettime(CLOCK_THREAD_CPUTIME_ID, &time);
    return static_cast<double>(time.tv_sec) + static_cast<double>(time.tv_nsec) * 1e-9;
}

/// The longest silence allowed, in seconds: the aim is 0.1, and sanitizers slow the work down.
constexpr double longestSilence = 0.4;

TEST(Wide, isStoppedWhileItIsLaidOut) {
    WideCountry country(2000, 10); // scanned in a moment, laid out in seconds
    int calls = 0;
    double asked = 0;
    const output::TablesOfRun run = country.run(width, [&](int, int elapsed, int) {
        ++calls;
        asked = secondsWorked();
        return elapsed >= 150;
    });
    EXPECT_LT(secondsWorked() - asked, 2 * longestSilence);
    EXPECT_TRUE(run.cancelled);
    EXPECT_TRUE(run.tables.empty());
    EXPECT_GE(calls, 2);
}

TEST(Wide, tellsProgressWhileItIsLaidOut) {
    WideCountry country(2000, 10);
    std::vector<int> told;
    double last = secondsWorked();
    double longest = 0;
    const output::TablesOfRun run = country.run(11, [&](int, int, int percent) {
        told.push_back(percent);
        longest = std::max(longest, secondsWorked() - last);
        last = secondsWorked();
        return false;
    });
    ASSERT_EQ(run.tables.size(), 1U);
    EXPECT_GT(run.tables[0].rows(), 1'000'000);
    EXPECT_TRUE(std::is_sorted(told.begin(), told.end()));
    EXPECT_EQ(told.back(), 100);
    // Steps in between, not one leap to the end.
    EXPECT_GE(std::count_if(told.begin(), told.end(), [](int p) { return p > 5 && p < 95; }), 3);
    EXPECT_LT(longest, longestSilence);
}

TEST(Wide, tellsProgressWhileItIsSorted) {
    WideCountry country(1000000, 1000);
    double last = secondsWorked();
    double longest = 0;
    const auto tell = [&](int, int, int) {
        longest = std::max(longest, secondsWorked() - last);
        last = secondsWorked();
        return false;
    };
    const output::TablesOfRun run =
        country.run("VIEW PERSON, PERSON.*, PERSON.* SORT DESC PERSON.V3", tell);
    ASSERT_EQ(run.tables.size(), 1U);
    EXPECT_EQ(run.tables[0].rows(), 1000000);
    EXPECT_LT(longest, longestSilence);
}

} // namespace
} // namespace kelx::test
