// SPDX-License-Identifier: GPL-3.0-or-later
// Reading .bin files whose bytes were put together by hand.
#include "storage/raw_column.h"
#include "storage_fixture.h"

#include <limits>

namespace kelx::testing {

using ::testing::HasSubstr;

class RawTest : public StorageTest {
protected:
    std::shared_ptr<const Column> open(const std::string& bytes, RawLayout layout,
                                       std::uint64_t records) {
        writeBytes(path("a.bin"), bytes);
        return openRawColumn(path("a.bin"), layout, records);
    }
    std::string faultOfOpening(const std::string& bytes, RawLayout layout, std::uint64_t records) {
        return faultOf([&] { open(bytes, layout, records); });
    }
};

namespace {

template <class T>
std::string packed(const std::vector<T>& values) {
    return {reinterpret_cast<const char*>(values.data()), values.size() * sizeof(T)};
}

} // namespace

TEST_F(RawTest, WholeNumbers) {
    const auto bytes = open("\x01\xfe\xff", {RawType::Byte, 1, 0, ValueType::Integer}, 3);
    EXPECT_EQ(readIntegers(*bytes), (Integers{1, 254, std::nullopt}));
    const auto small = open(packed<std::int16_t>({-5, 32767, -32768, 0}),
                            {RawType::Int, 2, 0, ValueType::Integer}, 4);
    EXPECT_EQ(readIntegers(*small), (Integers{-5, 32767, std::nullopt, 0}));
    const auto minusOne = open(packed<std::int16_t>({-1, 5}), {RawType::Int, 2}, 2);
    EXPECT_EQ(readIntegers(*minusOne), (Integers{-1, 5}));
    const auto large = open(packed<std::int32_t>({2147483647, -2147483647, -2147483647 - 1}),
                            {RawType::Lng, 4}, 3);
    EXPECT_EQ(readIntegers(*large), (Integers{2147483647, -2147483647, std::nullopt}));
    large->verify();
}

TEST_F(RawTest, NumbersWithoutNegativesAreReadInPlace) {
    const auto column = open(packed<std::int32_t>({7, 70000, 3}), {RawType::Lng, 4}, 3);
    EXPECT_EQ(column->info().physical, Physical::Code32);
    EXPECT_EQ(column->info().base, 0);
    EXPECT_EQ(column->info().minCode, 3u);
    EXPECT_EQ(column->info().maxCode, 70000u);
    EXPECT_EQ(readIntegers(*column), (Integers{7, 70000, 3}));
    EXPECT_EQ(column->zone(0).records, 3u);
    ColumnScratch scratch;
    EXPECT_THROW(column->read(2, 2, scratch), std::out_of_range);
}

TEST_F(RawTest, Reals) {
    const auto nan = std::numeric_limits<double>::quiet_NaN();
    const auto wide =
        open(packed<double>({1.25, nan, -3}), {RawType::Dbl, 8, 0, ValueType::Real}, 3);
    EXPECT_EQ(readReals(*wide), (Reals{1.25, std::nullopt, -3.0}));
    const auto narrow = open(packed<float>({0.5f, static_cast<float>(nan)}),
                             {RawType::Sng, 4, 0, ValueType::None}, 2);
    EXPECT_EQ(narrow->info().type, ValueType::Real);
    EXPECT_EQ(readReals(*narrow), (Reals{0.5, std::nullopt}));
    const auto whole = open(packed<double>({4, nan, -9e15}), {RawType::Dbl, 8}, 3);
    EXPECT_EQ(readIntegers(*whole), (Integers{4, std::nullopt, -9000000000000000}));
    for (const double broken : {1.5, 1e19, std::numeric_limits<double>::infinity()})
        EXPECT_THAT(faultOfOpening(packed<double>({4, broken}), {RawType::Dbl, 8}, 2),
                    HasSubstr("record 2 holds no whole number"));
}

TEST_F(RawTest, Bits) {
    // 5, 2, 7, 1 in three bits each: 101, 010, 111, 001 from the lowest bit on.
    const auto three = open(std::string("\xd5\x03", 2), {RawType::Bin, 3}, 4);
    EXPECT_EQ(readIntegers(*three), (Integers{5, 2, 7, 1}));
    const auto truths = open(std::string("\x0d", 1), {RawType::Bin, 1, 0, ValueType::Boolean}, 5);
    EXPECT_EQ(readIntegers(*truths), (Integers{1, 0, 1, 1, 0}));
    const auto wide = open(packed<std::uint64_t>({0x7fffffffffffffffu, 2}), {RawType::Bin, 64}, 2);
    EXPECT_EQ(readIntegers(*wide), (Integers{0x7fffffffffffffff, 2}));
    EXPECT_THAT(
        faultOfOpening(packed<std::uint64_t>({1, ~std::uint64_t{0}}), {RawType::Bin, 64}, 2),
        HasSubstr("record 2 holds a number above 63 bits"));
    EXPECT_THAT(faultOfOpening(std::string("\xd5\x03\x00", 3), {RawType::Bin, 3}, 4),
                HasSubstr("need 2"));
}

TEST_F(RawTest, PackedDecimals) {
    const std::string bytes("\x12\x3c\x04\x5d\xff\xff\x00\x7f", 8);
    const auto whole = open(bytes, {RawType::Pck, 3}, 4);
    EXPECT_EQ(readIntegers(*whole), (Integers{123, -45, std::nullopt, 7}));
    const auto scaled = open(bytes, {RawType::Pck, 3, 1, ValueType::Integer}, 4);
    EXPECT_EQ(scaled->info().type, ValueType::Real);
    EXPECT_EQ(readReals(*scaled), (Reals{12.3, -4.5, std::nullopt, 0.7}));
    EXPECT_THAT(faultOfOpening("\x12\x3c\x1a\x5d", {RawType::Pck, 3}, 2),
                HasSubstr("record 2 holds no packed number"));
    EXPECT_THAT(faultOfOpening("\x12\x34", {RawType::Pck, 3}, 1), HasSubstr("record 1"));
}

TEST_F(RawTest, CharacterFields) {
    const auto texts = open("ab    Züx y", {RawType::Chr, 3, 0, ValueType::String}, 4);
    EXPECT_EQ(readTexts(*texts), (Texts{"ab", std::nullopt, "Zü", "x y"}));
    const auto numbers = open(" 12 -3   +7 ", {RawType::Chr, 4, 0, ValueType::Integer}, 3);
    EXPECT_EQ(readIntegers(*numbers), (Integers{12, -3, 7}));
    const auto reals = open("1.5 250     ", {RawType::Chr, 4, 2, ValueType::Real}, 3);
    EXPECT_EQ(readReals(*reals), (Reals{1.5, 2.5, std::nullopt}));
    EXPECT_THAT(faultOfOpening("12 1x ", {RawType::Chr, 3}, 2),
                HasSubstr("record 2 holds \"1x\", which is no whole number"));
    EXPECT_THAT(faultOfOpening("nan", {RawType::Chr, 3, 0, ValueType::Real}, 1),
                HasSubstr("no number"));
    EXPECT_THAT(faultOfOpening("a\xe9 ", {RawType::Chr, 3, 0, ValueType::String}, 1),
                HasSubstr("not UTF-8"));
}

TEST_F(RawTest, WideCharacterFields) {
    const std::u16string units = u"Zü \xd83d\xde00   1";
    const std::string bytes(reinterpret_cast<const char*>(units.data()), units.size() * 2);
    const auto texts = open(bytes, {RawType::Uni, 3, 0, ValueType::None}, 3);
    EXPECT_EQ(readTexts(*texts), (Texts{"Zü", "😀", "  1"}));
    EXPECT_THAT(faultOfOpening(packed<std::uint16_t>({0xd83d, 0x20}),
                               {RawType::Uni, 2, 0, ValueType::String}, 1),
                HasSubstr("not UTF-16"));
}

TEST_F(RawTest, TruthValues) {
    const auto truths =
        open("\x01\xff" + std::string(1, '\0'), {RawType::Bool, 1, 0, ValueType::None}, 3);
    EXPECT_EQ(truths->info().type, ValueType::Boolean);
    EXPECT_EQ(readIntegers(*truths), (Integers{1, std::nullopt, 0}));
    EXPECT_THAT(faultOfOpening("\x01\x02", {RawType::Bool, 1, 0, ValueType::Boolean}, 2),
                HasSubstr("other than 0 and 1"));
}

TEST_F(RawTest, ContradictionsAreErrors) {
    EXPECT_THAT(faultOfOpening("123", {RawType::Int, 2}, 2), HasSubstr("3 bytes, but 2 records"));
    EXPECT_THAT(faultOfOpening("1234", {RawType::Int, 4}, 1), HasSubstr("INT with size 4"));
    EXPECT_THAT(faultOfOpening("1", {RawType::Byte, 1}, ~std::uint64_t{0}), HasSubstr("records"));
    EXPECT_THAT(faultOfOpening("1", {RawType::Byte, 1, 0, ValueType::String}, 1),
                HasSubstr("no texts"));
    EXPECT_THROW(open("1", {RawType::Pck, 19}, 1), FileError);
    EXPECT_THROW(open("", {RawType::Chr, 0}, 0), FileError);
    EXPECT_EQ(open("", {RawType::Chr, 5, 0, ValueType::String}, 0)->info().records, 0u);
}

TEST_F(RawTest, Names) {
    for (const char* name :
         {"CHR", "DBL", "BIN", "PCK", "LNG", "SNG", "BYTE", "UNI", "BOOL", "INT"}) {
        const auto type = rawTypeFromName(name);
        ASSERT_TRUE(type) << name;
        EXPECT_STREQ(rawTypeName(*type), name);
    }
    EXPECT_FALSE(rawTypeFromName("byte"));
    EXPECT_FALSE(rawTypeFromName(""));
}

TEST_F(RawTest, DescriptionsBelongToTheirFile) {
    writeBytes(path("a.bin"), "123456");
    EXPECT_EQ(readRawDescription(path("a.bin")), std::nullopt);
    writeRawDescription(path("a.bin"), {RawType::Chr, 2, 1, ValueType::Real}, 3);
    const auto layout = readRawDescription(path("a.bin"));
    ASSERT_TRUE(layout);
    EXPECT_EQ(layout->type, RawType::Chr);
    EXPECT_EQ(layout->size, 2);
    EXPECT_EQ(layout->decimals, 1);
    EXPECT_EQ(layout->valueType, ValueType::Real);
    EXPECT_THROW(writeRawDescription(path("a.bin"), {RawType::Chr, 2}, 4), FileError);
    writeBytes(path("a.bin"), "12345678");
    EXPECT_THAT(faultOf([&] { readRawDescription(path("a.bin")); }),
                HasSubstr("a.bin.desc: describes a file of 6 bytes, but its data file has 8"));
}

} // namespace kelx::testing
