// SPDX-License-Identifier: GPL-3.0-or-later
#include "storage_fixture.h"

#include <limits>
#include <random>
#include <thread>

namespace kelx::testing {

using ColumnTest = StorageTest;
using ::testing::HasSubstr;

namespace {

constexpr auto least = std::numeric_limits<std::int64_t>::min();
constexpr auto greatest = std::numeric_limits<std::int64_t>::max();

struct FormCase {
    std::int64_t lowest;
    std::int64_t highest;
    Physical physical;
    std::int64_t base;
};

} // namespace

TEST_F(ColumnTest, TakesTheNarrowestFormWithRoomForABlank) {
    const FormCase cases[] = {
        {0, 0, Physical::Code8, 0},
        {1, 254, Physical::Code8, 0},
        {0, 255, Physical::Code16, 0},
        {1, 255, Physical::Code8, 1},
        {-100, 154, Physical::Code8, -100},
        {-100, 155, Physical::Code16, -100},
        {0, 65534, Physical::Code16, 0},
        {0, 65535, Physical::Code32, 0},
        {1000000, 1065534, Physical::Code16, 1000000},
        {0, 4294967294, Physical::Code32, 0},
        {0, 4294967295, Physical::Code64, 0},
        {least, least + 9, Physical::Code8, least},
        {greatest - 9, greatest, Physical::Code8, greatest - 9},
        {least, greatest - 1, Physical::Code64, least},
        {least + 1, greatest, Physical::Code64, least + 1},
        {-1, greatest, Physical::Code64, -1},
    };
    for (const auto& c : cases) {
        const Integers values{c.highest, std::nullopt, c.lowest, c.highest};
        for (const bool announced : {false, true}) {
            ColumnPlan plan;
            if (announced) {
                plan.lowest = c.lowest;
                plan.highest = c.highest;
            }
            writeIntegers(path("a.kbf"), values, plan);
            const auto column = Column::open(path("a.kbf"));
            EXPECT_EQ(column->info().physical, c.physical) << c.lowest << " to " << c.highest;
            EXPECT_EQ(column->info().base, c.base);
            EXPECT_EQ(column->info().blanks, 1u);
            EXPECT_EQ(readIntegers(*column), values);
            column->verify();
        }
    }
}

TEST_F(ColumnTest, RefusesWhatItsFormCannotHold) {
    EXPECT_THAT(faultOf([&] {
                    writeIntegers(path("a"), {least, greatest});
                }),
                HasSubstr("64-bit number"));
    EXPECT_THAT(faultOf([&] {
                    ColumnPlan plan;
                    plan.lowest = 0;
                    plan.highest = 10;
                    writeIntegers(path("a"), {10, 11}, plan);
                }),
                HasSubstr("cannot hold 11, which lies outside 0 to 10"));
    EXPECT_THROW(writeIntegers(path("a"), {2}, {ValueType::Boolean, 0, {}, {}, {}}), FileError);
    EXPECT_THROW(ColumnWriter::create(path("a"), {ValueType::None, 0, {}, {}, {}}), FileError);
    EXPECT_THROW(ColumnWriter::create(path("a"), {})->addText("x"), FileError);
    EXPECT_THROW(ColumnWriter::create(path("a"), {})->addReal(1), FileError);
    EXPECT_TRUE(names().empty());
}

TEST_F(ColumnTest, ManyRecordsKeepOrderBlanksAndZones) {
    std::mt19937_64 random(11);
    Integers values;
    for (int i = 0; i < 200000; ++i) {
        const bool blank = random() % 10 == 0;
        const auto spread = i < 70000 ? 50 : 3000000; // chunks of different widths
        values.push_back(
            blank ? std::nullopt
                  : std::optional<std::int64_t>(static_cast<int>(random() % spread) - 20));
    }
    writeIntegers(path("a.kbf"), values);
    const auto column = Column::open(path("a.kbf"));
    EXPECT_EQ(readIntegers(*column), values);
    ASSERT_EQ(column->blockCount(), 4u);
    std::uint64_t blanks = 0;
    for (std::size_t block = 0; block < 4; ++block) {
        const auto zone = column->zone(block);
        std::uint32_t counted = 0;
        std::int64_t lowest = greatest;
        std::int64_t highest = least;
        for (std::size_t i = block * 65536;
             i < std::min<std::size_t>(block * 65536 + 65536, 200000); ++i) {
            counted += values[i] ? 0 : 1;
            lowest = std::min(lowest, values[i].value_or(greatest));
            highest = std::max(highest, values[i].value_or(least));
        }
        EXPECT_EQ(zone.records, block < 3 ? 65536u : 3392u);
        EXPECT_EQ(zone.blanks, counted);
        EXPECT_EQ(column->info().base + static_cast<std::int64_t>(zone.minCode), lowest);
        EXPECT_EQ(column->info().base + static_cast<std::int64_t>(zone.maxCode), highest);
        blanks += counted;
    }
    EXPECT_EQ(column->info().blanks, blanks);
}

TEST_F(ColumnTest, EmptyAndBlankColumns) {
    for (const auto type :
         {ValueType::Integer, ValueType::Real, ValueType::String, ValueType::Boolean}) {
        for (const int records : {0, 1, 70000}) {
            const auto writer = ColumnWriter::create(path("a.kbf"), {type, 3, {}, {}, {}});
            for (int i = 0; i < records; ++i)
                writer->addBlank();
            writer->commit();
            const auto column = Column::open(path("a.kbf"));
            column->verify();
            EXPECT_EQ(column->info().type, type);
            EXPECT_EQ(column->info().decimals, 3);
            EXPECT_EQ(column->info().records, static_cast<std::uint64_t>(records));
            EXPECT_EQ(column->info().blanks, static_cast<std::uint64_t>(records));
            EXPECT_EQ(column->info().maxCode, 0u);
            EXPECT_EQ(column->textCount(), 0u);
        }
    }
}

TEST_F(ColumnTest, RealsWithBlanksInfinitiesAndExtremes) {
    const auto infinity = std::numeric_limits<double>::infinity();
    const Reals values{1.5,    std::nullopt, -0.0, 1e308,       -1e308,
                       5e-324, -infinity,    0.1,  std::nullopt};
    writeReals(path("a.kbf"), values);
    const auto column = Column::open(path("a.kbf"));
    column->verify();
    EXPECT_EQ(readReals(*column), values);
    EXPECT_EQ(column->info().minReal, -infinity);
    EXPECT_EQ(column->info().maxReal, 1e308);
    EXPECT_EQ(column->info().blanks, 2u);
    writeReals(path("b.kbf"), {std::numeric_limits<double>::quiet_NaN(), 2.0});
    EXPECT_EQ(Column::open(path("b.kbf"))->info().blanks, 1u);
}

TEST_F(ColumnTest, TextsAreSortedDistinctAndKnowTheEmptyOne) {
    const Texts values{"Zürich", "", std::nullopt, "Ålesund", "abc", "日本", "abc", "😀", "ab"};
    writeTexts(path("a.kbf"), values);
    const auto column = Column::open(path("a.kbf"));
    EXPECT_EQ(readTexts(*column), values);
    const std::vector<std::string> sorted{"", "Zürich", "ab", "abc", "Ålesund", "日本", "😀"};
    ASSERT_EQ(column->textCount(), sorted.size());
    for (std::size_t i = 0; i < sorted.size(); ++i)
        EXPECT_EQ(column->text(i), sorted[i]);
    EXPECT_EQ(column->text(sorted.size()), "");
    for (const char* wrong : {"\xff", "\xc0\x80", "\xed\xa0\x80", "\xf4\x90\x80\x80", "a\xc3"})
        EXPECT_THAT(faultOf([&] {
                        writeTexts(path("b.kbf"), {"ok", wrong});
                    }),
                    HasSubstr("not UTF-8"));
    EXPECT_THAT(names(), ::testing::ElementsAre("a.kbf"));
}

TEST_F(ColumnTest, TextCodesWidenWithTheNumberOfTexts) {
    const std::pair<int, Physical> cases[] = {{255, Physical::Code8},
                                              {256, Physical::Code16},
                                              {65535, Physical::Code16},
                                              {65536, Physical::Code32}};
    for (const auto& [count, physical] : cases) {
        Texts values{std::nullopt};
        for (int i = 0; i < count; ++i)
            values.push_back("name " + std::to_string(i * 7919 % count));
        writeTexts(path("a.kbf"), values);
        const auto column = Column::open(path("a.kbf"));
        EXPECT_EQ(column->info().physical, physical) << count;
        EXPECT_EQ(column->textCount(), static_cast<std::uint64_t>(count));
        EXPECT_EQ(readTexts(*column), values);
    }
}

TEST_F(ColumnTest, ReadsInPlaceAndRefusesRecordsBeyondTheEnd) {
    writeIntegers(path("a.kbf"), Integers(150000, 9));
    const auto column = Column::open(path("a.kbf"));
    ColumnScratch scratch;
    const auto* first = static_cast<const std::uint8_t*>(column->read(0, 150000, scratch));
    EXPECT_EQ(static_cast<const std::uint8_t*>(column->read(70000, 5, scratch)), first + 70000);
    EXPECT_EQ(reinterpret_cast<std::uintptr_t>(first) % 64, 0u);
    EXPECT_TRUE(scratch.bytes.empty());
    EXPECT_NO_THROW(column->read(150000, 0, scratch));
    EXPECT_THROW(column->read(149999, 2, scratch), FileError);
    EXPECT_THROW(column->read(~std::uint64_t{0}, 2, scratch), FileError);
}

TEST_F(ColumnTest, ManyThreadsReadOneColumn) {
    Integers values;
    for (int i = 0; i < 500000; ++i)
        values.emplace_back(i % 1000);
    writeIntegers(path("a.kbf"), values);
    const auto column = Column::open(path("a.kbf"));
    std::vector<std::uint64_t> sums(4);
    std::vector<std::thread> threads;
    for (auto& sum : sums)
        threads.emplace_back([&] {
            forCodes(*column, [&](std::uint64_t, std::uint64_t code, bool) { sum += code; });
        });
    for (auto& thread : threads)
        thread.join();
    for (const auto sum : sums)
        EXPECT_EQ(sum, 500u * 499500u); // 500 times 0 + 1 + ... + 999
}

} // namespace kelx::testing
