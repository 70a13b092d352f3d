// SPDX-License-Identifier: Apache-2.0
// Area lists and views of a country small enough to look through.
#include "small_country.h"

#include <gtest/gtest.h>

namespace kelx::test {
namespace {

using execution::ListResult;
using execution::ListValue;
using execution::ListValues;
using language::TableKind;

class Lists : public testing::Test {
protected:
    /// Columns are the variables of a frequency.
    const ListResult& of(TableKind kind, const std::string& entity, const std::string& columns,
                         const std::string& clauses = {}, const std::string& settings = {}) {
        language::BoundProgram program =
            compiled(country_.dictionary, settings + "\nFREQ " + columns + " " + clauses);
        language::TableCommand& command = program.tables.at(0);
        command.kind = kind;
        command.countEntity = command.unit = country_.dictionary.findEntity(entity);
        for (const auto& dimension : command.dimensions)
            command.columns.push_back({dimension, {}, {}});
        command.dimensions.clear();
        const std::size_t first = results_.size();
        for (const unsigned threads : {2U, 1U}) {
            for (const std::size_t block : {std::size_t{1}, std::size_t{65536}}) {
                execution::RunOptions options;
                options.threads = threads;
                options.blockRecords = block;
                language::Messages messages;
                results_.push_back(execution::run(program, options, messages).tables.at(0).list);
                EXPECT_EQ(all(results_.back()->codes), all(results_[first]->codes));
            }
        }
        return *results_.back();
    }
    /// One value a row.
    static std::vector<ListValue> all(const ListValues& values) {
        if (values.numbers.empty())
            return values.values;
        std::vector<ListValue> result;
        for (const std::uint32_t number : values.numbers)
            result.push_back(values.values.at(number));
        return result;
    }
    using Row = std::vector<ListValue>;
    static std::vector<ListValue> texts(const std::vector<std::string>& values) {
        return {values.begin(), values.end()};
    }
    static ListValue whole(std::int64_t value) { return value; }

    SmallCountry country_;
    std::vector<std::shared_ptr<ListResult>> results_;
    const ListValue none_{};
};

TEST_F(Lists, haveCodesLabelsAndColumns) {
    const ListResult& list =
        of(TableKind::AreaList, "HOUSEHOLD", "HOUSEHOLD.TYPE BY PROVINCE.NAME BY HOUSEHOLD.WT");
    EXPECT_EQ(list.records, (std::vector<std::uint64_t>{0, 1, 2, 3, 4}));
    EXPECT_EQ(all(list.codes), texts({"011", "012", "021", "031", "032"}));
    EXPECT_TRUE(list.labels.values.empty());
    ASSERT_EQ(list.columns.size(), 3U);
    EXPECT_EQ(all(list.columns[0]), (Row{whole(1), whole(2), whole(1), none_, whole(2)}));
    EXPECT_EQ(all(list.columns[1]), texts({"North", "North", "South", "Sud-Oué", "Sud-Oué"}));
    EXPECT_EQ(all(list.columns[2]), (Row{1.5, 2.0, 0.5, 4.0, 1.0}));
    EXPECT_EQ(all(of(TableKind::AreaList, "PROVINCE", "PROVINCE.CODE").labels),
              texts({"North", "South", "Sud-Oué"}));
}

TEST_F(Lists, ofRecordsShowStoredCodes) {
    const ListResult& list =
        of(TableKind::View, "PERSON", "PERSON.AGE BY PERSON.JOB BY PERSON.INCOME BY PERSON.NAME");
    EXPECT_EQ(all(list.codes), (Row{whole(1), whole(2), whole(3), whole(4), whole(5), whole(6),
                                    whole(7), whole(8)}));
    EXPECT_EQ(all(list.columns[0]), (Row{whole(34), whole(99), whole(98), whole(7), whole(7),
                                         whole(70), none_, whole(15)}));
    EXPECT_EQ(all(list.columns[1]),
              (Row{whole(1), whole(0), none_, whole(0), whole(0), whole(1), whole(1), whole(0)}));
    EXPECT_EQ(all(list.columns[2]),
              (Row{100.5, 0.0, ListValue(), 0.0, ListValue(), 20.0, 100.5, -3.0}));
    EXPECT_EQ(all(list.columns[3]).at(5), none_);
    EXPECT_EQ(all(list.columns[3]).at(1), ListValue("Béa"));
    // In an area list the same codes are blank.
    EXPECT_EQ(all(of(TableKind::AreaList, "PERSON", "PERSON.AGE").columns[0]),
              (Row{whole(34), none_, none_, whole(7), whole(7), whole(70), none_, whole(15)}));
}

TEST_F(Lists, takeFiltersAndSelections) {
    EXPECT_EQ(of(TableKind::View, "PERSON", "PERSON.SEX", "FILTER PERSON.SEX = 1").records,
              (std::vector<std::uint64_t>{0, 3, 4, 7}));
    EXPECT_EQ(of(TableKind::View, "PERSON", "PERSON.SEX", {},
                 "RUNDEF r SELECTION INLINE PROVINCE \"01\" PROVINCE \"03\"")
                  .records,
              (std::vector<std::uint64_t>{0, 1, 2, 6, 7}));
    EXPECT_EQ(of(TableKind::AreaList, "PROVINCE", "PROVINCE.NAME", {},
                 "RUNDEF r FILTER HOUSEHOLD.TYPE = 2")
                  .records,
              (std::vector<std::uint64_t>{0, 2}));
    const ListResult& none = of(TableKind::View, "PERSON", "PERSON.SEX", "FILTER PERSON.SEX = 3");
    EXPECT_TRUE(none.records.empty());
    EXPECT_EQ(none.columns.size(), 1U);
}

TEST_F(Lists, keepFewValuesOnce) {
    TestDatabase large;
    constexpr std::size_t persons = 100000;
    large.entity("COUNTRY", "PERSON", {persons});
    TestDatabase::Integers sex;
    TestDatabase::Integers serial;
    for (std::size_t i = 0; i < persons; ++i) {
        sex.push_back(i % 3 == 2 ? std::nullopt : std::optional<std::int64_t>(i % 3));
        serial.push_back(static_cast<std::int64_t>(i) * 1000);
    }
    large.integers("PERSON", "SEX", sex);
    large.integers("PERSON", "SERIAL", serial);
    language::BoundProgram program =
        compiled(large.dictionary, "FREQ PERSON.SEX BY PERSON.SERIAL FILTER PERSON.SERIAL > 7000");
    language::TableCommand& command = program.tables.at(0);
    command.kind = TableKind::View;
    command.countEntity = command.unit;
    for (const auto& dimension : command.dimensions)
        command.columns.push_back({dimension, {}, {}});
    language::Messages messages;
    const auto list = execution::run(program, {}, messages).tables.at(0).list;
    ASSERT_EQ(list->records.size(), persons - 8);
    EXPECT_EQ(list->columns[0].values.size(), 3U);
    EXPECT_TRUE(list->columns[1].numbers.empty());
    for (std::size_t row = 0; row < list->records.size(); ++row) {
        const std::size_t i = row + 8;
        const ListValue expected = sex[i] ? ListValue(*sex[i]) : ListValue();
        ASSERT_EQ(list->columns[0].values[list->columns[0].numbers[row]], expected);
        ASSERT_EQ(list->columns[1].values[row], ListValue(*serial[i]));
        ASSERT_EQ(list->codes.values[row], ListValue(static_cast<std::int64_t>(i + 1)));
    }
}

} // namespace
} // namespace kelx::test
