// SPDX-License-Identifier: GPL-3.0-or-later
#include "storage/raw_column.h"
#include "storage_fixture.h"

namespace kelx::testing {

using ::testing::HasSubstr;

class RawWriteTest : public StorageTest {
protected:
    /// Writes values as .kbf, that as .bin, and returns the latter's bytes.
    std::string written(const Integers& values, RawLayout layout) {
        writeIntegers(path("a.kbf"), values);
        return convert(layout);
    }
    std::string written(const Reals& values, RawLayout layout) {
        writeReals(path("a.kbf"), values);
        return convert(layout);
    }
    std::string written(const Texts& values, RawLayout layout) {
        writeTexts(path("a.kbf"), values);
        return convert(layout);
    }
    std::shared_ptr<const Column> reopened(RawLayout layout, std::uint64_t records) {
        return openRawColumn(path("a.bin"), layout, records);
    }

private:
    std::string convert(RawLayout layout) {
        writeRawColumn(path("a.bin"), *Column::open(path("a.kbf")), layout);
        return readBytes(path("a.bin"));
    }
};

TEST_F(RawWriteTest, GivesTheBytesOfItsType) {
    const Integers values{7, std::nullopt, 1};
    EXPECT_EQ(written(values, {RawType::Byte, 1}), "\x07\xff\x01");
    EXPECT_EQ(written(values, {RawType::Int, 2}), std::string("\x07\x00\x00\x80\x01\x00", 6));
    EXPECT_EQ(written(values, {RawType::Pck, 3}), std::string("\x00\x7c\xff\xff\x00\x1c", 6));
    EXPECT_EQ(written(values, {RawType::Chr, 3}), "  7     1");
    EXPECT_EQ(written(values, {RawType::Chr, 3, 1, ValueType::Real}), " 70    10");
    EXPECT_EQ(written(Integers{5, 2, 7, 1}, {RawType::Bin, 3}), std::string("\xd5\x03", 2));
    EXPECT_EQ(written(Texts{"ü", std::nullopt}, {RawType::Uni, 2, 0, ValueType::String}),
              std::string("\xfc\0 \0 \0 \0", 8));
    EXPECT_EQ(written(Reals{-1.25, 300.0}, {RawType::Chr, 6, 0, ValueType::Real}), " -1.25   300");
}

TEST_F(RawWriteTest, EveryTypeOfNumberComesBack) {
    Integers values;
    for (int i = 0; i < 70000; ++i)
        values.push_back(i % 13 == 0 ? std::nullopt : std::optional<std::int64_t>(i % 255));
    for (const RawLayout layout :
         {RawLayout{RawType::Byte, 1}, RawLayout{RawType::Int, 2}, RawLayout{RawType::Lng, 4},
          RawLayout{RawType::Sng, 4}, RawLayout{RawType::Dbl, 8}, RawLayout{RawType::Pck, 5},
          RawLayout{RawType::Chr, 3}, RawLayout{RawType::Uni, 3}}) {
        written(values, layout);
        EXPECT_EQ(readIntegers(*reopened(layout, 70000)), values) << rawTypeName(layout.type);
    }
    for (auto& value : values)
        value = value.value_or(300);
    for (const int bits : {9, 10, 13, 63, 64}) {
        const RawLayout layout{RawType::Bin, bits};
        written(values, layout);
        EXPECT_EQ(readIntegers(*reopened(layout, 70000)), values) << bits;
    }
}

TEST_F(RawWriteTest, NegativeAndScaledNumbersComeBack) {
    const Reals values{-12.34, std::nullopt, 0.01, 99.99, 0.0};
    for (const RawLayout layout : {RawLayout{RawType::Pck, 4, 2, ValueType::Real},
                                   RawLayout{RawType::Chr, 5, 2, ValueType::Real},
                                   RawLayout{RawType::Dbl, 8, 0, ValueType::Real},
                                   RawLayout{RawType::Uni, 7, 0, ValueType::Real}}) {
        written(values, layout);
        EXPECT_EQ(readReals(*reopened(layout, 5)), values) << rawTypeName(layout.type);
    }
    const Integers negatives{-32767, std::nullopt, 32767};
    written(negatives, {RawType::Int, 2});
    EXPECT_EQ(readIntegers(*reopened({RawType::Int, 2}, 3)), negatives);
}

TEST_F(RawWriteTest, TextsComeBack) {
    const Texts values{"Zürich", std::nullopt, " x", "日本", "Zürich"};
    for (const auto type : {RawType::Chr, RawType::Uni}) {
        const RawLayout layout{type, 7, 0, ValueType::String};
        written(values, layout);
        EXPECT_EQ(readTexts(*reopened(layout, 5)), values);
    }
}

TEST_F(RawWriteTest, RefusesWhatDoesNotFit) {
    writeBytes(path("a.bin"), "old");
    const auto fault = [&](const auto& values, RawLayout layout) {
        return faultOf([&] { written(values, layout); });
    };
    EXPECT_THAT(fault(Integers{1, 255}, {RawType::Byte, 1}),
                HasSubstr("record 2: 255 does not fit type BYTE"));
    EXPECT_THAT(fault(Integers{-1}, {RawType::Byte, 1}), HasSubstr("-1 does not fit"));
    EXPECT_THAT(fault(Integers{-32768}, {RawType::Int, 2}), HasSubstr("-32768"));
    EXPECT_THAT(fault(Integers{2147483648}, {RawType::Lng, 4}), HasSubstr("2147483648"));
    EXPECT_THAT(fault(Integers{16777217}, {RawType::Sng, 4}), HasSubstr("16777217"));
    EXPECT_THAT(fault(Integers{8}, {RawType::Bin, 3}), HasSubstr("8 does not fit"));
    EXPECT_THAT(fault(Integers{std::nullopt}, {RawType::Bin, 3}), HasSubstr("a blank"));
    EXPECT_THAT(fault(Integers{1000}, {RawType::Pck, 3}), HasSubstr("1000"));
    EXPECT_THAT(fault(Integers{1000000000000000000}, {RawType::Pck, 18, 3}), HasSubstr("fit"));
    EXPECT_THAT(fault(Integers{1000}, {RawType::Chr, 3}), HasSubstr("1000"));
    EXPECT_THAT(fault(Reals{1.5}, {RawType::Int, 2}), HasSubstr("1.5 does not fit"));
    EXPECT_THAT(fault(Reals{1e300}, {RawType::Sng, 4, 0, ValueType::Real}), HasSubstr("SNG"));
    EXPECT_THAT(fault(Texts{"Zürich"}, {RawType::Chr, 6, 0, ValueType::String}),
                HasSubstr("\"Zürich\" does not fit"));
    EXPECT_THAT(fault(Texts{"x "}, {RawType::Chr, 6, 0, ValueType::String}), HasSubstr("blank"));
    EXPECT_THAT(fault(Texts{"x"}, {RawType::Byte, 1}), HasSubstr("a text"));
    EXPECT_EQ(readBytes(path("a.bin")), "old");
}

} // namespace kelx::testing
