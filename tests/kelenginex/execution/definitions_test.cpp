// SPDX-License-Identifier: GPL-3.0-or-later
// Variables made by expressions, RECODE, SWITCH, NUMBER and SAMPLE. Expected values by hand.
#include "define_fixture.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <map>
#include <numeric>

namespace kelx::test {
namespace {

using Strings = std::vector<std::string>;

class Definitions : public testing::Test {
protected:
    const catalog::Variable& known(const std::string& entity, const std::string& name) {
        return *country_.dictionary.findEntity(entity)->findVariable(name);
    }
    Part person(const std::string& name) { return variable(known("PERSON", name)); }
    const catalog::Entity& entity(const std::string& name) {
        return *country_.dictionary.findEntity(name);
    }

    SmallCountry country_;
    DefineProgram program_{country_.dictionary};
};

// Ages 34, 99 (MV), 98 (NA), 7, 7, 70, blank, 15; incomes 100.5, 0, -, 0, -, 20, 100.5, -3.

TEST_F(Definitions, expressionsBecomeValuesOfTheTypeAsked) {
    const auto income = program_.number("PERSON.INCOME");
    EXPECT_EQ(program_.made(ValueType::Real, "PERSON", income),
              listed("100.5 0 . 0 . 20 100.5 -3"));
    EXPECT_EQ(program_.made(ValueType::Integer, "PERSON", income), listed("101 0 . 0 . 20 101 -3"));
    EXPECT_EQ(program_.made(ValueType::Integer, "PERSON", program_.number("-PERSON.INCOME")),
              listed("-101 0 . 0 . -20 -101 3"));
    EXPECT_EQ(program_.made(ValueType::String, "PERSON", income),
              listed("100.5 0 . 0 . 20 100.5 -3"));
    EXPECT_EQ(program_.made(ValueType::Boolean, "PERSON", income), listed("1 0 . 0 . 1 1 1"));
    const ExpressionPtr job = person("JOB");
    EXPECT_EQ(program_.made(ValueType::Integer, "PERSON", job), listed("1 0 . 0 0 1 1 0"));
    EXPECT_EQ(program_.made(ValueType::Real, "PERSON", job), listed("1 0 . 0 0 1 1 0"));
    EXPECT_EQ(program_.made(ValueType::String, "PERSON", job), listed("1 0 . 0 0 1 1 0"));
    const ExpressionPtr name = person("NAME");
    EXPECT_EQ(program_.made(ValueType::String, "PERSON", name),
              listed("Ana Béa Cid Dan Eva . Ana Zoë"));
    EXPECT_EQ(program_.made(ValueType::Integer, "PERSON", name), listed(". . . . . . . ."));
    EXPECT_EQ(program_.made(ValueType::Integer, "PROVINCE", variable(known("PROVINCE", "CODE"))),
              listed("1 2 3"));
}

TEST_F(Definitions, numbersThatFitNoIntegerAreMissing) {
    EXPECT_EQ(program_.made(ValueType::Integer, "PERSON",
                            program_.number("PERSON.INCOME * 100000000000000000")),
              listed(". 0 . 0 . 2000000000000000000 . -300000000000000000"));
    EXPECT_EQ(program_.made(ValueType::Real, "PERSON", program_.number("1 / PERSON.INCOME")),
              listed("0.009950248756218905 . . . . 0.05 0.009950248756218905 "
                     "-0.3333333333333333"));
}

TEST_F(Definitions, valuesFromAboveAndConstantsAreSpread) {
    EXPECT_EQ(program_.made(ValueType::Real, "PERSON", program_.number("HOUSEHOLD.WT * 2")),
              listed("3 3 4 1 1 1 2 2"));
    EXPECT_EQ(program_.made(ValueType::String, "HOUSEHOLD", variable(known("PROVINCE", "NAME"))),
              listed("North North South Sud-Oué Sud-Oué"));
    EXPECT_EQ(program_.made(ValueType::Integer, "PROVINCE", constant(std::int64_t{7})),
              listed("7 7 7"));
    EXPECT_EQ(program_.made(ValueType::String, "COUNTRY", constant(std::string("x"))), listed("x"));
    program_.bound.definitions.clear();
    program_.add("PROVINCE", "UP", ValueType::Integer, person("AGE"));
    EXPECT_THROW(program_.make(), std::runtime_error);
}

TEST_F(Definitions, missingAndNotApplicableStayApart) {
    const ExpressionPtr age = person("AGE");
    EXPECT_EQ(program_.made(ValueType::Integer, "PERSON", age), listed("34 . NA 7 7 70 . 15"));
    EXPECT_EQ(program_.made(ValueType::Real, "PERSON", age), listed("34 . NA 7 7 70 . 15"));
    EXPECT_EQ(program_.made(ValueType::String, "PERSON", age), listed("34 . NA 7 7 70 . 15"));
    EXPECT_EQ(program_.made(ValueType::Boolean, "PERSON", age), listed("1 . NA 1 1 1 . 1"));
    for (const ValueType type : {ValueType::Integer, ValueType::Real, ValueType::String}) {
        program_.bound.definitions.clear();
        auto& definition = program_.add("PERSON", "NEW", type, age);
        definition.variable->missing = -1;
        definition.variable->notapp = 999;
        program_.make();
        EXPECT_EQ(DefineProgram::valuesOf(*definition.variable), listed("34 -1 999 7 7 70 -1 15"));
    }
}

TEST_F(Definitions, tablesAndExpressionsSeeNotApplicable) {
    for (const ValueType type : {ValueType::Integer, ValueType::Real, ValueType::String}) {
        program_.bound.definitions.clear();
        const auto made = program_.add("PERSON", "NEW", type, person("AGE")).variable;
        const auto& later = program_.add(
            "PERSON", "LATER", ValueType::Boolean,
            ExpressionPtr(node(Operation::Function, ValueType::Boolean, parts(variable(*made)))));
        const_cast<Expression&>(*later.value).function = "NOTAPPLICABLE";
        language::Messages messages;
        const auto result =
            execution::run(program_.withFrequencyOf(*made), execution::RunOptions{}, messages);
        EXPECT_EQ(figures(result.tables.at(0)),
                  (Figures{{"34", 1}, {"7", 2}, {"70", 1}, {"15", 1}, {"MV", 2}, {"NA", 1}}));
        EXPECT_EQ(DefineProgram::valuesOf(*program_.bound.definitions[1].variable),
                  listed("0 0 1 0 0 0 0 0"));
    }
}

TEST_F(Definitions, comparisonsNeverFindNotApplicable) {
    const auto made = program_.add("PERSON", "NEW", ValueType::Integer, person("AGE")).variable;
    const auto compared = [&](Operation operation, std::int64_t with) {
        return ExpressionPtr(
            node(operation, ValueType::Boolean, parts(variable(*made), constant(with))));
    };
    program_.add("PERSON", "A", ValueType::Boolean, compared(Operation::GreaterEqual, 0));
    program_.add("PERSON", "B", ValueType::Boolean, compared(Operation::NotEqual, 7));
    program_.add("PERSON", "C", ValueType::Boolean, compared(Operation::Equal, 71));
    auto open = node(Operation::In, ValueType::Boolean, parts(variable(*made)));
    open->intervals = {{Constant(std::int64_t{15}), std::nullopt}};
    program_.add("PERSON", "D", ValueType::Boolean, ExpressionPtr(std::move(open)));
    program_.make();
    const auto values = [&](std::size_t i) {
        return DefineProgram::valuesOf(*program_.bound.definitions[i].variable);
    };
    EXPECT_EQ(values(1), listed("1 0 0 1 1 1 0 1"));
    EXPECT_EQ(values(2), listed("1 0 0 0 0 1 0 1"));
    EXPECT_EQ(values(3), listed("0 0 0 0 0 0 0 0"));
    EXPECT_EQ(values(4), listed("1 0 0 0 0 1 0 1"));
}

TEST_F(Definitions, filtersDefaultsAndRanges) {
    const auto age = program_.number("PERSON.AGE + 0");
    auto& definition = program_.add("PERSON", "NEW", ValueType::Integer, age);
    definition.filters = {program_.condition("PERSON.SEX = 2"),
                          program_.condition("HOUSEHOLD.TYPE = 2")};
    const auto values = [&] {
        program_.make();
        return DefineProgram::valuesOf(*definition.variable);
    };
    // Women 1, 2, 5, 6; households of type 2 hold the persons 2, 6, 7.
    EXPECT_EQ(values(), listed(". . NA . . . . ."));
    definition.otherwise = Constant(5.5);
    EXPECT_EQ(values(), listed("6 6 NA 6 6 6 . 6"));
    definition.filters.clear();
    definition.variable->ranges = {{4, 7, 15}, {9, 60, 0}};
    EXPECT_EQ(values(), listed(". . NA 7 7 70 . 15"));
    definition.variable->missing = 0;
    definition.filters = {program_.condition("PERSON.SEX = 1")};
    EXPECT_EQ(values(), listed("0 6 6 7 7 6 6 15"));
}

TEST_F(Definitions, codesForNoValueLieInNoRange) {
    auto& definition = program_.add("PERSON", "NEW", ValueType::Integer, nullptr);
    definition.value = ExpressionPtr(
        node(Operation::Switch, ValueType::Integer,
             parts(copyOf(*program_.condition("PERSON.AGE = 98")), constant(std::int64_t{8}),
                   copyOf(*program_.condition("PERSON.AGE = 7")), constant(std::int64_t{9}),
                   constant(std::int64_t{3}))));
    definition.variable->ranges = {{1, 0, 3}};
    definition.variable->notapp = 8;
    program_.make();
    EXPECT_EQ(DefineProgram::valuesOf(*definition.variable), listed(". . 8 . . . . ."));
    definition.variable->ranges = {{2, 0, 3}};
    program_.make();
    EXPECT_EQ(DefineProgram::valuesOf(*definition.variable), listed("3 3 8 . . 3 3 3"));
}

class Recoding : public Definitions {
protected:
    using Row = std::pair<language::Interval, Constant>;
    static Row row(std::optional<Constant> low, std::optional<Constant> high,
                   const Constant& code) {
        return {{std::move(low), std::move(high)}, code};
    }
    static ExpressionPtr recode(Part operand, const std::vector<Row>& rows,
                                std::optional<Constant> rest = {},
                                const catalog::Entity* at = nullptr) {
        std::vector<Part> all = parts(std::move(operand));
        for (const Row& row : rows)
            all.push_back(constant(row.second));
        if (rest)
            all.push_back(constant(*rest));
        Part made = node(Operation::Recode, ValueType::Integer, std::move(all), at);
        for (const Row& row : rows)
            made->intervals.push_back(row.first);
        return ExpressionPtr(std::move(made));
    }
    static Constant i(std::int64_t value) { return value; }
};

TEST_F(Recoding, takesTheFirstIntervalThatHoldsTheStoredCode) {
    const std::vector<Row> ages = {row({}, i(14), i(1)), row(i(15), i(64), i(2)),
                                   row(i(10), i(98), i(3)), row(i(99), i(99), i(9))};
    EXPECT_EQ(program_.made(ValueType::Integer, "PERSON", recode(person("AGE"), ages)),
              listed("2 9 3 1 1 3 . 2"));
    EXPECT_EQ(program_.made(ValueType::Integer, "PERSON", recode(person("AGE"), ages, i(7))),
              listed("2 9 3 1 1 3 7 2"));
    EXPECT_EQ(program_.made(ValueType::Integer, "PERSON",
                            recode(person("AGE"), {row(i(70), {}, i(1))}, i(0))),
              listed("0 1 1 0 0 1 0 0"));
    const std::vector<Row> incomes = {row({}, i(0), i(0)), row(i(20), Constant(100.4), i(1)),
                                      row(Constant(100.5), {}, i(-2))};
    EXPECT_EQ(program_.made(ValueType::Integer, "PERSON", recode(person("INCOME"), incomes)),
              listed("-2 0 . 0 . 1 -2 0"));
    const std::vector<Row> names = {
        row(Constant(std::string("A")), Constant(std::string("Cz")), i(1))};
    EXPECT_EQ(program_.made(ValueType::Integer, "PERSON", recode(person("NAME"), names, i(2))),
              listed("1 1 1 2 2 2 1 2"));
}

TEST_F(Recoding, givesOtherTypesAndValues) {
    const auto types = variable(known("HOUSEHOLD", "TYPE"));
    EXPECT_EQ(program_.made(ValueType::Integer, "PERSON",
                            recode(copyOf(*types), {row(i(1), i(1), i(300000))}, i(-5))),
              listed("300000 300000 -5 300000 300000 300000 -5 -5"));
    EXPECT_EQ(
        program_.made(ValueType::Integer, "PERSON",
                      recode(copyOf(*types), {row(i(1), i(1), i(3))}, i(5), &entity("PERSON"))),
        listed("3 3 5 3 3 3 5 5"));
    EXPECT_EQ(program_.made(ValueType::Real, "HOUSEHOLD",
                            recode(copyOf(*types), {row(i(1), i(1), i(3))}, Constant(0.25))),
              listed("3 0.25 3 0.25 0.25"));
    EXPECT_EQ(program_.made(ValueType::String, "HOUSEHOLD",
                            recode(copyOf(*types), {row(i(1), i(1), Constant(std::string("o")))},
                                   Constant(std::string("p")))),
              listed("o p o p p"));
    EXPECT_EQ(
        program_.made(ValueType::Boolean, "HOUSEHOLD",
                      recode(copyOf(*types), {row(i(2), i(9), Constant(true))}, Constant(false))),
        listed("0 1 0 1 1"));
}

TEST_F(Recoding, giveTheDefaultToWhatNothingTakes) {
    auto& definition = program_.add("PERSON", "NEW", ValueType::Integer,
                                    recode(person("AGE"), {row(i(7), i(34), i(1))}));
    definition.otherwise = Constant(std::int64_t{8});
    program_.make();
    EXPECT_EQ(DefineProgram::valuesOf(*definition.variable), listed("1 8 8 1 1 8 8 1"));
    // A case that gives MV has taken the record.
    definition.value =
        ExpressionPtr(node(Operation::Switch, ValueType::Integer,
                           parts(copyOf(*program_.condition("PERSON.SEX = 1")), person("AGE"))));
    program_.make();
    EXPECT_EQ(DefineProgram::valuesOf(*definition.variable), listed("34 8 8 7 7 8 8 15"));
    definition.value =
        ExpressionPtr(node(Operation::Switch, ValueType::Integer,
                           parts(copyOf(*program_.condition("PERSON.SEX = 2")), person("AGE"))));
    program_.make();
    EXPECT_EQ(DefineProgram::valuesOf(*definition.variable), listed("8 . NA 8 8 70 . 8"));
}

TEST_F(Definitions, switchTakesTheFirstTrueCase) {
    const auto chosen = ExpressionPtr(node(Operation::Switch, ValueType::Real,
                                           parts(person("JOB"), constant(std::int64_t{1}),
                                                 copyOf(*program_.condition("PERSON.AGE < 30")),
                                                 person("INCOME"), constant(std::int64_t{-1}))));
    // JOB: true, false, blank, false, false, true, true, false.
    EXPECT_EQ(program_.made(ValueType::Real, "PERSON", chosen), listed("1 -1 -1 0 . 1 1 -3"));
}

TEST_F(Definitions, placesOfRecords) {
    const auto place = [&](const char* ancestor, const char* at) {
        Part made = node(Operation::Number, ValueType::Integer, {}, &entity(at));
        made->codeEntity = &entity(ancestor);
        return ExpressionPtr(std::move(made));
    };
    const auto numbers = [&](const char* ancestor, const char* at) {
        return program_.made(ValueType::Integer, at, place(ancestor, at));
    };
    EXPECT_EQ(numbers("HOUSEHOLD", "PERSON"), listed("1 2 1 1 2 3 1 2"));
    EXPECT_EQ(numbers("PROVINCE", "PERSON"), listed("1 2 3 1 2 3 1 2"));
    EXPECT_EQ(numbers("COUNTRY", "PERSON"), listed("1 2 3 4 5 6 7 8"));
    EXPECT_EQ(numbers("PROVINCE", "HOUSEHOLD"), listed("1 2 1 1 2"));
    EXPECT_EQ(numbers("PROVINCE", "PROVINCE"), listed("1 1 1"));
    Part number = node(Operation::RecordNumber, ValueType::Integer, {}, &entity("HOUSEHOLD"));
    number->codeEntity = &entity("HOUSEHOLD");
    EXPECT_EQ(program_.made(ValueType::Integer, "PERSON", ExpressionPtr(std::move(number))),
              listed("0 0 1 2 2 2 4 4"));
}

/// One level of many records.
class Many : public testing::Test {
protected:
    static constexpr std::uint64_t records = 200000;
    Many() { db_.entity("COUNTRY", "PERSON", {records}); }

    ExpressionPtr sample(Operation operation, std::int64_t n) {
        return ExpressionPtr(node(operation, ValueType::Integer, parts(constant(n)),
                                  db_.dictionary.findEntity("PERSON")));
    }
    TestDatabase db_;
    DefineProgram program_{db_.dictionary};
};

TEST_F(Many, randomSamplesAreEvenAndIndependent) {
    const Strings tens =
        program_.made(ValueType::Integer, "PERSON", sample(Operation::SampleRandom, 10));
    const Strings threes =
        program_.made(ValueType::Integer, "PERSON", sample(Operation::SampleRandom, 3));
    std::map<std::string, int> single;
    std::map<std::string, int> pairs;
    for (std::size_t i = 0; i < records; ++i) {
        ++single[tens[i]];
        ++pairs[tens[i] + "/" + threes[i]];
    }
    ASSERT_EQ(single.size(), 10U);
    for (const auto& [value, count] : single)
        EXPECT_NEAR(count, 20000, 700) << value; // five standard deviations
    ASSERT_EQ(pairs.size(), 30U);
    for (const auto& [value, count] : pairs)
        EXPECT_NEAR(count, 6667, 410) << value;
    const Strings wide =
        program_.made(ValueType::Integer, "PERSON", sample(Operation::SampleRandom, 1LL << 40));
    double mean = 0;
    for (const std::string& value : wide)
        mean += std::stod(value) / records;
    EXPECT_NEAR(mean, 0x1p39, 0x1p40 * 0.004);
}

TEST_F(Many, systematicSamplesTakeEachNth) {
    const Strings values =
        program_.made(ValueType::Boolean, "PERSON", sample(Operation::SampleSystematic, 7));
    for (std::size_t i = 0; i < records; ++i)
        ASSERT_EQ(values[i], (i + 1) % 7 == 0 ? "1" : "0") << i;
    for (const std::int64_t n : {0, -1}) {
        program_.bound.definitions.clear();
        program_.add("PERSON", "NEW", ValueType::Boolean, sample(Operation::SampleSystematic, n));
        EXPECT_THROW(program_.make(), std::runtime_error);
    }
}

/// Values of all widths, blank and NA among them, over several blocks.
TEST_F(Many, columnsAreAsNarrowAsTheirValues) {
    struct Case {
        std::int64_t low, span;
        storage::Physical form;
    };
    const std::array<Case, 9> cases = {{{0, 3, storage::Physical::Code8},
                                        {0, 253, storage::Physical::Code8},
                                        {0, 255, storage::Physical::Code16},
                                        {-100, 150, storage::Physical::Code8},
                                        {1000000, 200, storage::Physical::Code8},
                                        {-5, 60000, storage::Physical::Code16},
                                        {5, 70000, storage::Physical::Code32},
                                        {-9000000000, 17999999999, storage::Physical::Code64},
                                        {INT64_MAX - 100, 100, storage::Physical::Code8}}};
    for (const Case& one : cases) {
        SCOPED_TRACE(std::to_string(one.low) + " + " + std::to_string(one.span));
        TestDatabase::Integers values;
        std::uint64_t random = 1;
        for (std::uint64_t i = 0; i < records; ++i) {
            random = random * 6364136223846793005U + 1442695040888963407U;
            const auto part = static_cast<std::uint64_t>(one.span) + 1;
            // Blocks differ in their bounds; the first one holds the lowest value alone.
            values.push_back(
                i < 65536 ? one.low : one.low + static_cast<std::int64_t>((random >> 20) % part));
        }
        values[70000] = one.low + one.span;
        values[100000] = std::nullopt;
        values[199999] = std::nullopt;
        TestDatabase db;
        db.entity("COUNTRY", "PERSON", {records});
        const catalog::Variable& source = db.integers("PERSON", "V", values);
        catalog::Variable& withNa = db.integers("PERSON", "W", values);
        withNa.notapp = static_cast<double>(one.low);
        DefineProgram program(db.dictionary);
        auto& definition =
            program.add("PERSON", "NEW", ValueType::Integer, ExpressionPtr(variable(source)));
        Strings expected;
        for (const auto& value : values)
            expected.push_back(value ? std::to_string(*value) : ".");
        program.make();
        EXPECT_EQ(DefineProgram::valuesOf(*definition.variable), expected);
        if (one.low > (std::int64_t{1} << 53))
            continue; // codes for NA are doubles
        auto& other =
            program.add("PERSON", "NA", ValueType::Integer, ExpressionPtr(variable(withNa)));
        program.make();
        for (auto& value : expected)
            value = value == std::to_string(one.low) ? "NA" : value;
        EXPECT_EQ(DefineProgram::valuesOf(*other.variable), expected);
        EXPECT_EQ(other.variable->column()->info().physical, one.form);
    }
}

TEST_F(Many, textsOfManyBlocks) {
    const ExpressionPtr number = sample(Operation::SampleRandom, 50000);
    const Strings numbers = program_.made(ValueType::Integer, "PERSON", number);
    EXPECT_EQ(program_.made(ValueType::String, "PERSON", number), numbers);
    const auto column = program_.bound.definitions[0].variable->column();
    EXPECT_EQ(column->info().physical, storage::Physical::Code16);
    for (std::uint64_t i = 1; i < column->textCount(); ++i)
        ASSERT_LT(column->text(i - 1), column->text(i));
}

TEST_F(Many, aVariableWithoutUseIsNotMade) {
    auto& definition =
        program_.add("PERSON", "NEW", ValueType::Integer, sample(Operation::SampleRandom, 2));
    definition.used = false;
    program_.makeOnce({});
    EXPECT_FALSE(definition.variable->fileFound());
}

TEST_F(Many, cancellingStopsTheMaking) {
    const auto made = [&] {
        return std::count_if(
            program_.bound.definitions.begin(), program_.bound.definitions.end(),
            [](const auto& definition) { return definition.variable->fileFound(); });
    };
    for (const unsigned threads : {1U, 2U}) {
        program_.bound.definitions.clear();
        for (int i = 0; i < 3000; ++i)
            program_.add("PERSON", "NEW", ValueType::Integer,
                         sample(Operation::SampleRandom, i + 2));
        execution::RunOptions options;
        options.threads = threads;
        options.progressInterval = {};
        int calls = 0;
        std::ptrdiff_t before = -1;
        options.progress = [&](int, int, int percent) {
            EXPECT_LE(percent, 50);
            before = made();
            return ++calls == 3;
        };
        language::Messages messages;
        EXPECT_TRUE(execution::run(program_.bound, options, messages).cancelled);
        EXPECT_EQ(calls, 3);
        EXPECT_EQ(made(), before);
    }
}

} // namespace
} // namespace kelx::test
