// SPDX-License-Identifier: GPL-3.0-or-later
// The sample's programs, their figures counted again record by record.
#include "catalog/reader.h"
#include "column_numbers.h"
#include "kelx_fixture.h"

#include <nlohmann/json.hpp>

using nlohmann::json;
namespace catalog = kelx::catalog;

namespace {

/// Figures by the codes of their dimensions, "1|2"; totals are "tot".
using Figures = std::map<std::string, double>;

class FiguresTest : public KelxTest {
protected:
    void SetUp() override {
        database = catalog::readDictionary(folder->path() / "sample" / "sample.kxdb", {});
        findParents();
    }

    const catalog::Entity& entity(const std::string& name) const {
        return *database->findEntity(name);
    }
    std::vector<double> column(const std::string& level, const std::string& name) const {
        return numbers(entity(level), name.c_str());
    }

    /// The province, district and household of each person.
    void findParents() {
        const auto provinces = entity("DISTRICT").pointers();
        const auto districts = entity("HOUSEHOLD").pointers();
        const auto homes = entity("PERSON").pointers();
        for (std::uint64_t p = 0; p < provinces->parents(); ++p)
            for (auto d = provinces->first(p); d < provinces->first(p + 1); ++d)
                for (auto h = districts->first(d); h < districts->first(d + 1); ++h)
                    for (auto i = homes->first(h); i < homes->first(h + 1); ++i) {
                        province.push_back(p);
                        district.push_back(d);
                        household.push_back(h);
                    }
    }

    std::vector<json> run(const std::string& program) const {
        const std::string call = "run @/sample/sample.kxdb @/sample/" + program + " --format json";
        const Outcome one = kelx(call + " --threads 1");
        EXPECT_EQ(one.status, 0) << program;
        EXPECT_EQ(one.err, "") << program;
        EXPECT_EQ(kelx(call + " --threads 3").out, one.out) << program;
        return json::parse(one.out);
    }

    std::unique_ptr<catalog::Dictionary> database;
    std::vector<std::size_t> province, district, household; ///< of each person
};

/// Rows of valid categories and of totals.
Figures figuresOf(const json& table) {
    Figures figures;
    const std::size_t dimensions = (table["fields"].size() - 1) / 3;
    for (const json& row : table["rows"]) {
        std::string key;
        bool valid = true;
        for (std::size_t d = 0; d < dimensions; ++d) {
            const std::string kind = row[3 * d + 2].is_null() ? "" : row[3 * d + 2];
            valid = valid && (kind.empty() || kind == "tot");
            key += (d > 0 ? "|" : "") + (kind.empty() ? row[3 * d].get<std::string>() : kind);
        }
        if (valid)
            figures[key] = row.back();
    }
    return figures;
}

/// Adds a record to its cell and to the totals over it.
void add(Figures& figures, const std::vector<std::string>& codes, double weight) {
    for (unsigned totals = 0; totals < 1u << codes.size(); ++totals) {
        std::string key;
        for (std::size_t d = 0; d < codes.size(); ++d)
            key += (d > 0 ? "|" : "") + ((totals >> d & 1u) != 0 ? "tot" : codes[d]);
        figures[key] += weight;
    }
}

std::string code(double number) {
    return std::to_string(static_cast<long>(number));
}

void expectSame(const json& table, const Figures& expected) {
    const Figures made = figuresOf(table);
    EXPECT_GT(made.size(), 2u) << table["name"];
    EXPECT_EQ(made.size(), expected.size()) << table["name"];
    for (const auto& [key, value] : expected) {
        ASSERT_TRUE(made.contains(key)) << table["name"] << " " << key;
        EXPECT_NEAR(made.at(key), value, 1e-9 * value) << table["name"] << " " << key;
    }
}

} // namespace

TEST_F(FiguresTest, TablesHaveTheirShape) {
    for (const json& table : run("population.spc")) {
        EXPECT_TRUE(table["name"].is_string());
        EXPECT_TRUE(table["title"].is_string());
        EXPECT_EQ(table["kind"], "FREQUENCY");
        EXPECT_EQ(table["method"], "FREQUENCY");
        ASSERT_EQ(table["fields"].size(), 3 * table["variables"].size() + 1);
        for (const json& variable : table["variables"])
            EXPECT_TRUE(variable["name"].is_string() && variable["label"].is_string());
        for (const json& field : table["fields"])
            EXPECT_TRUE(field["name"].is_string() && field["label"].is_string() &&
                        field["group"].is_string());
        ASSERT_FALSE(table["rows"].empty());
        for (const json& row : table["rows"]) {
            ASSERT_TRUE(row.is_array());
            ASSERT_EQ(row.size(), table["fields"].size());
            EXPECT_TRUE(row.back().is_number());
        }
    }
    const json sexes = run("population.spc").at(0);
    EXPECT_EQ(sexes["variables"][0]["name"], "PERSON.SEX");
    EXPECT_EQ(sexes["variables"][0]["label"], "Sex");
    EXPECT_EQ(sexes["rows"][0][0], "1");
    EXPECT_EQ(sexes["rows"][0][1], "Male");
}

TEST_F(FiguresTest, Population) {
    const auto sex = column("PERSON", "SEX"), age = column("PERSON", "AGE");
    const auto marital = column("PERSON", "MARITAL"), weight = column("HOUSEHOLD", "WEIGHT");
    Figures sexes, ages, statuses;
    for (std::size_t i = 0; i < sex.size(); ++i) {
        const double w = weight[household[i]];
        add(sexes, {code(sex[i])}, w);
        if (age[i] != 99)
            add(ages, {code(age[i])}, w);
        if (age[i] >= 15 && age[i] < 99 && marital[i] < 8)
            add(statuses, {code(marital[i]), code(sex[i])}, w);
    }
    const auto tables = run("population.spc");
    ASSERT_EQ(tables.size(), 3u);
    expectSame(tables[0], sexes);
    expectSame(tables[1], ages);
    expectSame(tables[2], statuses);
}

TEST_F(FiguresTest, Housing) {
    const auto type = column("HOUSEHOLD", "TYPE"), tenure = column("HOUSEHOLD", "TENURE");
    const auto water = column("HOUSEHOLD", "WATER"), rooms = column("HOUSEHOLD", "ROOMS");
    const auto power = column("HOUSEHOLD", "ELECTRICITY");
    Figures types, sources, sizes;
    for (std::size_t i = 0; i < type.size(); ++i) {
        if (tenure[i] != 9)
            add(types, {code(type[i]), code(tenure[i])}, 1);
        if (tenure[i] != 9 && water[i] != 9)
            add(sources, {code(water[i]), code(tenure[i])}, 1);
        if (power[i] == 1 && rooms[i] != 99)
            add(sizes, {code(rooms[i])}, 1);
    }
    const auto tables = run("housing.spc");
    ASSERT_EQ(tables.size(), 4u);
    EXPECT_EQ(tables[0]["rows"], json::array({json::array({"HOUSEHOLD", type.size()})}));
    expectSame(tables[1], types);
    expectSame(tables[2], sources);
    expectSame(tables[3], sizes);
}

TEST_F(FiguresTest, Capital) {
    const auto sex = column("PERSON", "SEX"), age = column("PERSON", "AGE");
    const auto work = column("PERSON", "OCCUPATION"), weight = column("HOUSEHOLD", "WEIGHT");
    const auto school = column("PERSON", "EDUCATION"), activity = column("PERSON", "ACTIVITY");
    int persons = 0;
    Figures occupations, schooling;
    for (std::size_t i = 0; i < sex.size(); ++i) {
        if (district[i] != 0 || age[i] < 15 || age[i] == 99)
            continue;
        ++persons;
        if (work[i] < 98)
            add(occupations, {code(work[i]), code(sex[i])}, weight[household[i]]);
        if (school[i] < 98 && activity[i] < 8)
            add(schooling, {code(school[i]), code(activity[i])}, weight[household[i]]);
    }
    const auto tables = run("capital.spc");
    ASSERT_EQ(tables.size(), 3u);
    EXPECT_EQ(tables[0]["rows"], json::array({json::array({"PERSON", persons})}));
    expectSame(tables[1], occupations);
    expectSame(tables[2], schooling);
}

TEST_F(FiguresTest, Provinces) {
    const auto sex = column("PERSON", "SEX"), weight = column("HOUSEHOLD", "WEIGHT");
    const auto codes = column("PROVINCE", "CODE"), birth = column("PERSON", "BIRTHPLACE");
    const auto ownCodes = entity("PROVINCE").findVariable("CODE")->column();
    const auto birthCodes = entity("PERSON").findVariable("BIRTHPLACE")->column();
    Figures people, births, emigrants;
    for (std::size_t i = 0; i < sex.size(); ++i) {
        const std::string own(ownCodes->text(static_cast<std::uint64_t>(codes[province[i]])));
        add(people, {own, code(sex[i])}, weight[household[i]]);
        if (!std::isnan(birth[i]))
            add(births, {own, std::string(birthCodes->text(static_cast<std::uint64_t>(birth[i])))},
                weight[household[i]]);
    }
    const auto away = entity("EMIGRANT").pointers();
    const auto where = column("EMIGRANT", "DESTINATION"), who = column("EMIGRANT", "SEX");
    for (std::uint64_t h = 0; h < away->parents(); ++h)
        for (auto i = away->first(h); i < away->first(h + 1); ++i)
            if (where[i] != 9)
                add(emigrants, {code(where[i]), code(who[i])}, weight[h]);
    const auto tables = run("provinces.spc");
    ASSERT_EQ(tables.size(), 3u);
    expectSame(tables[0], people);
    expectSame(tables[1], births);
    expectSame(tables[2], emigrants);
}
