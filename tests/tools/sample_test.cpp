// SPDX-License-Identifier: GPL-3.0-or-later
#include "catalog/reader.h"
#include "column_numbers.h"
#include "sample/sample.h"
#include "storage/error.h"
#include "support/temporary_folder.h"

#include <gmock/gmock.h>
#include <nlohmann/json.hpp>

#include <cmath>
#include <set>

using kelx::test::TemporaryFolder;

namespace tools = kelx::tools;
namespace catalog = kelx::catalog;
namespace storage = kelx::storage;

namespace {

constexpr std::uint64_t persons = 60000;

tools::SampleReport writeTo(const std::filesystem::path& folder, std::uint64_t seed,
                            std::uint64_t count = persons) {
    tools::SampleRequest request;
    request.folder = folder;
    request.seed = seed;
    request.persons = count;
    return tools::writeSample(request);
}

double share(const std::vector<double>& values, double low, double high) {
    const auto within = std::count_if(values.begin(), values.end(),
                                      [&](double v) { return v >= low && v <= high; });
    return static_cast<double>(within) / static_cast<double>(values.size());
}

class SampleTest : public testing::Test {
protected:
    static void SetUpTestSuite() {
        folder = new TemporaryFolder;
        report = writeTo(folder->path() / "a", 5);
        db = catalog::readDictionary(folder->path() / "a" / "sample.kxdb", {}).release();
    }
    static void TearDownTestSuite() {
        delete db;
        delete folder;
    }
    static const catalog::Entity& entity(const char* name) { return *db->findEntity(name); }

    static inline TemporaryFolder* folder = nullptr;
    static inline catalog::Dictionary* db = nullptr;
    static inline tools::SampleReport report;
};

} // namespace

TEST_F(SampleTest, TheSeedDecidesEveryByte) {
    writeTo(folder->path() / "again", 5);
    writeTo(folder->path() / "other", 6);
    const auto first = TemporaryFolder::contents(folder->path() / "a");
    const auto again = TemporaryFolder::contents(folder->path() / "again");
    EXPECT_EQ(first.size(), again.size());
    for (const auto& [file, bytes] : first) {
        const auto found = again.find(file);
        const bool same = found != again.end() && found->second == bytes;
        EXPECT_TRUE(same || file == "sample.prj.json") << file; // the project tells its folder
    }
    const auto other = TemporaryFolder::contents(folder->path() / "other");
    for (const char* file : {"PERSON_AGE.kbf", "PERSON_INCOME.kbf", "HOUSEHOLD_TYPE.kbf",
                             "PERSON.kpt", "DISTRICT_NAME.kbf", "EMIGRANT_YEAR.kbf"})
        EXPECT_NE(first.at(file), other.at(file)) << file;
}

TEST_F(SampleTest, EveryLevelFitsTheOneAbove) {
    EXPECT_EQ(report.persons, persons);
    EXPECT_EQ(entity("PERSON").records(), persons);
    EXPECT_EQ(report.districts, 120u);
    for (const catalog::Entity* level : db->entities()) {
        if (level->parent == nullptr)
            continue;
        EXPECT_EQ(level->pointers()->parents(), level->parent->records()) << level->name;
        for (const auto& variable : level->variables) {
            EXPECT_EQ(variable->column()->info().records, level->records()) << variable->name;
            variable->column()->verify();
        }
    }
    const auto people = entity("PERSON").pointers();
    const auto relation = numbers(entity("PERSON"), "RELATION");
    for (std::uint64_t home = 0; home < people->parents(); ++home) {
        ASSERT_LT(people->first(home), people->first(home + 1)) << "household " << home;
        EXPECT_EQ(relation[people->first(home)], 1);
        for (auto i = people->first(home) + 1; i < people->first(home + 1); ++i)
            EXPECT_NE(relation[i], 1);
    }
}

TEST_F(SampleTest, CodesAreUniqueAndKeepTheirZeros) {
    const auto codes = entity("DISTRICT").codeVar->column();
    const auto numbersOf = numbers(entity("DISTRICT"), "CODE");
    const auto pointers = entity("DISTRICT").pointers();
    for (std::uint64_t p = 0; p < pointers->parents(); ++p) {
        std::set<double> seen(numbersOf.begin() + static_cast<std::ptrdiff_t>(pointers->first(p)),
                              numbersOf.begin() +
                                  static_cast<std::ptrdiff_t>(pointers->first(p + 1)));
        EXPECT_EQ(seen.size(), pointers->first(p + 1) - pointers->first(p));
    }
    for (std::uint64_t i = 0; i < codes->textCount(); ++i)
        EXPECT_THAT(std::string(codes->text(i)), testing::MatchesRegex("[0-9][0-9]"));
    EXPECT_EQ(codes->text(0), "01");
    EXPECT_EQ(entity("PERSON").findVariable("AGE")->column()->info().physical,
              storage::Physical::Code8);
}

TEST_F(SampleTest, PeopleArePlausible) {
    const catalog::Entity& person = entity("PERSON");
    const auto age = numbers(person, "AGE");
    const auto sex = numbers(person, "SEX");
    EXPECT_NEAR(static_cast<double>(persons) / static_cast<double>(report.households), 4, 0.5);
    EXPECT_NEAR(share(sex, 2, 2), 0.51, 0.03);
    EXPECT_NEAR(share(age, 0, 14), 0.34, 0.04);
    EXPECT_NEAR(share(age, 65, 98), 0.06, 0.03);
    EXPECT_NEAR(share(age, 99, 99), 0.006, 0.002);
    EXPECT_EQ(share(age, 0, 99), 1);
    for (int from = 0; from < 70; from += 10)
        EXPECT_GT(share(age, from, from + 9), share(age, from + 20, from + 29)) << from;

    const auto marital = numbers(person, "MARITAL");
    const auto activity = numbers(person, "ACTIVITY");
    const auto education = numbers(person, "EDUCATION");
    const auto income = numbers(person, "INCOME");
    double young = 0, youngYears = 0, old = 0, oldYears = 0, logs = 0, incomes = 0;
    for (std::size_t i = 0; i < age.size(); ++i) {
        if (age[i] < 99) {
            EXPECT_EQ(marital[i] == 8, age[i] < 15);
            EXPECT_EQ(activity[i] == 8, age[i] < 10);
            EXPECT_EQ(education[i] == 98, age[i] < 5);
            EXPECT_TRUE(education[i] >= 98 || education[i] <= std::max(0.0, age[i] - 6)) << i;
        }
        EXPECT_EQ(activity[i] == 1, income[i] != -1) << i;
        if (income[i] > 0) {
            logs += std::log(income[i]);
            ++incomes;
        }
        if (education[i] >= 98)
            continue;
        if (age[i] >= 25 && age[i] < 35) {
            ++young;
            youngYears += education[i];
        } else if (age[i] >= 60 && age[i] < 99) {
            ++old;
            oldYears += education[i];
        }
    }
    EXPECT_NEAR(youngYears / young, 11.5, 1.5);
    EXPECT_NEAR(oldYears / old, 7, 2);
    EXPECT_NEAR(std::exp(logs / incomes), 1400, 500);
    for (const double weight : numbers(entity("HOUSEHOLD"), "WEIGHT"))
        ASSERT_TRUE(weight > 0.95 && weight < 1.25) << weight;
}

TEST_F(SampleTest, ItsCompanionsFitTogether) {
    using nlohmann::json;
    const auto project = json::parse(folder->read("a/sample.prj.json"));
    EXPECT_EQ(project["typeFile"], "project");
    for (const char* key : {"namePrj", "created", "workDir", "resultDir"})
        EXPECT_NE(project[key], "") << key;
    for (const json& location :
         {project["dictionaries"][0]["location"], project["workDir"], project["resultDir"],
          project["program"][1]["elementDir"][0]["location"],
          project["program"][2]["lastPrograms"][0]["location"],
          project["selection"][1]["elementDir"][0]["location"],
          project["selection"][2]["lastSelections"][0]["location"]}) {
        const std::filesystem::path path = location.get<std::string>();
        EXPECT_TRUE(path.is_absolute()) << path;
        EXPECT_TRUE(std::filesystem::exists(path)) << path;
    }
    const auto selection = json::parse(folder->read("a/capital_sel.json"));
    EXPECT_EQ(selection["typeFile"], "selection");
    EXPECT_EQ(selection["selections"][0]["entity"], "DISTRICT");
    EXPECT_EQ(selection["selections"][0]["codes"], json::array({"0101"}));
    const auto dicx = catalog::readDictionary(folder->path() / "a" / "sample.dicx", {});
    EXPECT_EQ(dicx->findEntity("PERSON")->records(), persons);
    EXPECT_EQ(dicx->created, "2025-01-01T00:00:00");
    EXPECT_EQ(dicx->updated, "2025-01-01T00:00:00");
}

TEST_F(SampleTest, TellsThePersonsWrittenAndEndsWhenAsked) {
    tools::SampleRequest request;
    request.folder = folder->path() / "stopped";
    request.persons = 70000;
    std::vector<std::uint64_t> told;
    request.progress = [&](std::uint64_t done, std::uint64_t all) {
        EXPECT_EQ(all, 70000u);
        told.push_back(done);
        if (done == all)
            throw std::runtime_error("enough");
    };
    EXPECT_THROW(tools::writeSample(request), std::runtime_error);
    EXPECT_EQ(told, (std::vector<std::uint64_t>{65536, 70000}));
    EXPECT_FALSE(std::filesystem::exists(request.folder));
}

TEST_F(SampleTest, AnyNumberWithinBoundsIsMetExactly) {
    for (const std::uint64_t count : {1000ul, 1001ul, 4999ul})
        EXPECT_EQ(writeTo(folder->path() / std::to_string(count), 9, count).persons, count);
    EXPECT_THROW(writeTo(folder->path() / "none", 1, 999), std::runtime_error);
    EXPECT_FALSE(std::filesystem::exists(folder->path() / "none"));
    EXPECT_THROW(writeTo(folder->path() / "a", 1), storage::FileError);
}
