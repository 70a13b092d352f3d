// SPDX-License-Identifier: Apache-2.0
// Measures of random data of several chunks against plain loops by the definitions.
#include "measure_fixture.h"

#include <gtest/gtest.h>

#include <cmath>
#include <functional>
#include <limits>
#include <random>

namespace kelx::test {
namespace {

using language::TableKind;

/// Six districts of persons, with values of all kinds by a fixed generator.
class DistrictCountry : public TestDatabase {
public:
    static constexpr double infinity = std::numeric_limits<double>::infinity();

    DistrictCountry() {
        std::mt19937_64 random(7);
        const auto below = [&](std::uint64_t n) { return static_cast<std::int64_t>(random() % n); };
        entity("COUNTRY", "DISTRICT", {6});
        const std::vector<std::uint64_t> sizes = {300000, 5, 60000, 20000, 39995, 0};
        entity("DISTRICT", "HOUSEHOLD", sizes).parent->codeVar =
            &integers("DISTRICT", "CODE", {1, 2, 3, 4, 5, 6});
        std::vector<std::uint64_t> members;
        std::vector<double> weights;
        for (std::size_t d = 0; d < sizes.size(); ++d) {
            for (std::uint64_t h = 0; h < sizes[d]; ++h) {
                members.push_back(random() % 6);
                weights.push_back(static_cast<double>(1 + below(40)) / 10);
                district.insert(district.end(), members.back(), static_cast<std::int64_t>(d + 1));
                weight.insert(weight.end(), members.back(), weights.back());
            }
        }
        entity("HOUSEHOLD", "PERSON", members);
        reals("HOUSEHOLD", "WT", weights);
        std::lognormal_distribution<double> skewed(7, 1.5);
        for (std::size_t i = 0; i < district.size(); ++i) {
            sex.push_back(below(2) + 1);
            age.push_back(below(60) == 0 ? std::nullopt : std::optional(below(100)));
            // Zero for many, here and there blank, missing (-1) or not applicable.
            const std::int64_t sort = below(20);
            income.push_back(sort < 7    ? 0
                             : sort == 7 ? blankReal
                             : sort == 8 ? -1
                             : sort == 9 ? 9999999
                                         : std::round(skewed(random) * 100) / 100);
            score.push_back(static_cast<double>(below(2000001)) / 1000 - 1000);
            wealth.push_back(below(std::uint64_t{1} << 52) - (std::int64_t{1} << 51));
            odd.push_back(below(300000) == 0   ? infinity
                          : below(300000) == 0 ? -infinity
                          : below(3) == 0      ? 5
                                               : std::ldexp(1.0, static_cast<int>(below(200))));
        }
        integers("PERSON", "SEX", sex);
        integers("PERSON", "AGE", age).missing = 99;
        catalog::Variable& incomes = reals("PERSON", "INCOME", income);
        incomes.missing = -1;
        incomes.notapp = 9999999;
        reals("PERSON", "SCORE", score);
        integers("PERSON", "WEALTH", wealth);
        reals("PERSON", "ODD", odd);
        std::vector<double> same(district.size(), 12.5);
        reals("PERSON", "SAME", same);
    }

    std::optional<double> ageOf(std::size_t i) const {
        return age[i] && *age[i] != 99 ? std::optional(static_cast<double>(*age[i])) : std::nullopt;
    }
    std::optional<double> incomeOf(std::size_t i) const {
        const bool valid = !std::isnan(income[i]) && income[i] != -1 && income[i] != 9999999;
        return valid ? std::optional(income[i]) : std::nullopt;
    }

    std::vector<std::int64_t> district;
    Integers sex, age, wealth;
    std::vector<double> weight, income, score, odd;
};

class RandomMeasures : public testing::Test {
protected:
    static void SetUpTestSuite() { country_ = std::make_unique<DistrictCountry>(); }
    static void TearDownTestSuite() { country_.reset(); }

    static const DistrictCountry& c() { return *country_; }
    static MeasureRows of(const MeasureQuestion& question) {
        return measure(country_->dictionary, question, {4096, 65536});
    }

    using Value = std::function<std::optional<double>(std::size_t)>;
    using Key = std::function<std::string(std::size_t)>;
    /// Cases by key; those with an empty key are left out. Everything is also in "all".
    static std::map<std::string, Expected> expected(const Key& key, const Value& value,
                                                    bool weighted) {
        std::map<std::string, std::vector<Case>> cases;
        for (std::size_t i = 0; i < c().district.size(); ++i) {
            const std::string name = key(i);
            const std::optional<double> number = value(i);
            if (name.empty() || !number)
                continue;
            for (const std::string& row : {name, std::string("all")})
                cases[row].push_back({*number, weighted ? c().weight[i] : 1});
        }
        std::map<std::string, Expected> result;
        for (auto& [name, own] : cases)
            result.emplace(name, Expected(std::move(own), weighted));
        return result;
    }
    static void expectRows(const MeasureRows& rows, const std::map<std::string, Expected>& expected,
                           const std::function<std::vector<double>(const Expected&)>& figures,
                           double tolerance) {
        EXPECT_EQ(rows.size(), expected.size() + 2); // without "even" and "none"
        for (const auto& [name, own] : expected) {
            ASSERT_TRUE(rows.contains(name)) << name;
            const std::vector<double> wanted = figures(own);
            ASSERT_EQ(rows.at(name).size(), wanted.size());
            for (std::size_t i = 0; i < wanted.size(); ++i)
                EXPECT_NEAR(number(rows.at(name)[i]), wanted[i], std::fabs(wanted[i]) * tolerance)
                    << name << " figure " << i;
        }
    }
    static std::vector<double> median(const Expected& e) { return {e.quantile(1, 2)}; }
    static std::vector<double> deciles(const Expected& e) {
        std::vector<double> result;
        for (int i = 1; i < 10; ++i)
            result.push_back(e.quantile(i, 10));
        return result;
    }
    static std::string districtOf(std::size_t i) { return std::to_string(c().district[i]); }
    static std::string sexOf(std::size_t i) { return std::to_string(*c().sex[i]); }
    static std::optional<double> incomeOf(std::size_t i) { return c().incomeOf(i); }
    static std::optional<double> scoreOf(std::size_t i) { return c().score[i]; }

    static std::unique_ptr<DistrictCountry> country_;
};
std::unique_ptr<DistrictCountry> RandomMeasures::country_;

TEST_F(RandomMeasures, mediansInPlaceAndCopied) {
    expectRows(of({TableKind::Median, "PERSON.INCOME", "DISTRICT.CODE", {}, {}}),
               expected(districtOf, incomeOf, false), median, 1e-15);
    expectRows(of({TableKind::Median, "PERSON.SCORE", "DISTRICT.CODE", {}, {}}),
               expected(districtOf, scoreOf, false), median, 1e-12);
    expectRows(of({TableKind::Median, "PERSON.INCOME", "PERSON.SEX BY DISTRICT.CODE", {}, {}}),
               expected([](auto i) { return sexOf(i) + "|" + districtOf(i); }, incomeOf, false),
               median, 1e-15);
    expectRows(of({TableKind::Median,
                   "PERSON.INCOME",
                   "DISTRICT.CODE",
                   "FILTER PERSON.SEX = 1 AND PERSON.AGE >= 15",
                   {}}),
               expected(
                   [](auto i) {
                       return *c().sex[i] == 1 && c().age[i] && *c().age[i] >= 15 ? districtOf(i)
                                                                                  : "";
                   },
                   incomeOf, false),
               median, 1e-15);
    expectRows(of({TableKind::Median, "PERSON.INCOME * 2", "DISTRICT.CODE", {}, {}}),
               expected(
                   districtOf,
                   [](auto i) {
                       const auto income = c().incomeOf(i);
                       return income ? std::optional(*income * 2) : std::nullopt;
                   },
                   false),
               median, 1e-15);
}

TEST_F(RandomMeasures, quantilesWithAndWithoutWeights) {
    MeasureQuestion question{TableKind::Quantile, "PERSON.INCOME", "DISTRICT.CODE", {}, {}, 10};
    expectRows(of(question), expected(districtOf, incomeOf, false), deciles, 1e-12);
    question.clauses = "WEIGHT HOUSEHOLD.WT";
    expectRows(of(question), expected(districtOf, incomeOf, true), deciles, 0);
    question.measure = "PERSON.SCORE";
    question.by = "PERSON.SEX";
    expectRows(of(question), expected(sexOf, scoreOf, true), deciles, 0);
    question.measure = "PERSON.AGE";
    expectRows(of(question),
               expected(
                   sexOf, [](auto i) { return c().ageOf(i); }, true),
               deciles, 0);
    question = {TableKind::Quantile, "PERSON.SCORE", {}, {}, {}, 100};
    const Expected all = expected([](auto) { return "x"; }, scoreOf, false).at("all");
    const std::vector<execution::Figure> figures = of(question).at("all");
    ASSERT_EQ(figures.size(), 99U);
    for (int i = 1; i < 100; ++i)
        EXPECT_NEAR(number(figures[static_cast<std::size_t>(i) - 1]), all.quantile(i, 100), 1e-9);
}

TEST_F(RandomMeasures, statistics) {
    const auto stats = [](const Expected& e) { return e.stats(); };
    for (const bool weighted : {false, true}) {
        const std::string weight = weighted ? "WEIGHT HOUSEHOLD.WT" : "";
        expectRows(of({TableKind::Stats, "PERSON.INCOME", "DISTRICT.CODE", weight, {}}),
                   expected(districtOf, incomeOf, weighted), stats, 1e-9);
        expectRows(of({TableKind::Stats, "PERSON.AGE", "PERSON.SEX", weight, {}}),
                   expected(
                       sexOf, [](auto i) { return c().ageOf(i); }, weighted),
                   stats, 1e-9);
        expectRows(
            of({TableKind::Gini, "PERSON.INCOME", "DISTRICT.CODE", weight, {}}),
            expected(districtOf, incomeOf, weighted),
            [](const Expected& e) { return std::vector{e.gini()}; }, 1e-9);
        expectRows(
            of({TableKind::Gini, "PERSON.AGE", "DISTRICT.CODE", weight, {}}),
            expected(
                districtOf, [](auto i) { return c().ageOf(i); }, weighted),
            [](const Expected& e) { return std::vector{e.gini()}; }, 1e-9);
    }
}

TEST_F(RandomMeasures, totals) {
    const auto sum = [](const Expected& e) { return std::vector{e.sum()}; };
    const auto mean = [](const Expected& e) { return std::vector{e.mean()}; };
    expectRows(of({TableKind::Sum, "PERSON.SCORE", "DISTRICT.CODE", "WEIGHT HOUSEHOLD.WT", {}}),
               expected(districtOf, scoreOf, true), sum, 1e-9);
    expectRows(of({TableKind::Average, "PERSON.INCOME", "PERSON.SEX", {}, {}}),
               expected(sexOf, incomeOf, false), mean, 1e-12);
    const MeasureRows sums = of({TableKind::Sum, "PERSON.WEALTH", "PERSON.SEX", {}, {}});
    std::int64_t men = 0;
    for (std::size_t i = 0; i < c().sex.size(); ++i)
        men += *c().sex[i] == 1 ? *c().wealth[i] : 0;
    EXPECT_EQ(sums.at("1"), (std::vector<execution::Figure>{men}));
    expectRows(of({TableKind::Median, "PERSON.WEALTH", "PERSON.SEX", {}, {}}),
               expected(
                   sexOf, [](auto i) { return static_cast<double>(*c().wealth[i]); }, false),
               median, 1e-15);
}

TEST_F(RandomMeasures, hostileValues) {
    expectRows(of({TableKind::Median, "PERSON.ODD", "DISTRICT.CODE", {}, {}}),
               expected(
                   districtOf, [](auto i) { return c().odd[i]; }, false),
               median, 0);
    expectRows(of({TableKind::Quantile, "PERSON.ODD", {}, "WEIGHT HOUSEHOLD.WT", {}, 10}),
               {{"", expected(
                         districtOf, [](auto i) { return c().odd[i]; }, true)
                         .at("all")},
                {"all", expected(
                            districtOf, [](auto i) { return c().odd[i]; }, true)
                            .at("all")}},
               deciles, 0);
    EXPECT_EQ(number(of({TableKind::Median, "PERSON.SAME", "PERSON.SEX", {}, {}}).at("all")[0]),
              12.5);
    EXPECT_EQ(number(of({TableKind::Maximum, "PERSON.ODD", {}, {}, {}}).at("all")[0]),
              DistrictCountry::infinity);
}

TEST_F(RandomMeasures, manySmallCells) {
    const MeasureRows rows =
        of({TableKind::Median, "PERSON.SCORE", "PERSON.WEALTH", "FILTER PERSON.AGE < 1", {}});
    const auto all = expected(
        [](auto i) { return c().age[i] && *c().age[i] < 1 ? std::to_string(*c().wealth[i]) : ""; },
        scoreOf, false);
    EXPECT_EQ(rows.size(), all.size() + 2);
    EXPECT_EQ(number(rows.at("all")[0]), all.at("all").quantile(1, 2));
    EXPECT_EQ(number(rows.begin()->second[0]), all.at(rows.begin()->first).quantile(1, 2));
}

/// On one thread the callback is asked at the same points of every run: at each of them, during the
/// pass and while it is finished, a true answer is the last one that is asked for. When all is done
/// nothing is asked any more.
TEST_F(RandomMeasures, stopWhereverTheyAreAsked) {
    for (const TableKind kind : {TableKind::Median, TableKind::Gini, TableKind::Stats}) {
        const language::BoundProgram program =
            measureProgram(country_->dictionary, {kind, "PERSON.INCOME", "PERSON.SEX", {}, {}});
        int calls = 0;
        int stop = 0;
        execution::RunOptions options;
        options.threads = 1;
        options.progressInterval = {};
        options.progress = [&](int, int, int) { return ++calls == stop; };
        language::Messages messages;
        EXPECT_FALSE(execution::run(program, options, messages).cancelled);
        const int all = calls;
        EXPECT_GE(all, static_cast<int>(c().district.size() / 65536));
        for (const int last : {1, 2, all / 2, all - 20, all - 2, all - 1}) {
            calls = 0;
            stop = last;
            const execution::RunResult result = execution::run(program, options, messages);
            EXPECT_TRUE(result.cancelled) << last << " of " << all;
            EXPECT_TRUE(result.tables.empty());
            EXPECT_EQ(calls, last);
        }
    }
}

} // namespace
} // namespace kelx::test
