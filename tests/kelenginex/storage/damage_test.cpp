// SPDX-License-Identifier: GPL-3.0-or-later
// Files that are cut, altered or full of lies are refused with their name.
#include "storage/kxdb_file.h"
#include "storage/pointer_file.h"
#include "storage/raw_column.h"
#include "storage_fixture.h"

#include <functional>

namespace kelx::testing {

using ::testing::HasSubstr;

namespace {

struct Sample {
    std::string name;
    std::string bytes;
    std::size_t headerSize;
    std::function<bool(const std::filesystem::path&)> consume;
    std::function<void(std::string&)> repair;
};

} // namespace

class DamageTest : public StorageTest {
protected:
    /// One sound file of each kind.
    std::vector<Sample> samples() {
        const auto key = cheapKey("secret");
        writeIntegers(path("s"), {1, std::nullopt, 300});
        const auto integers = readBytes(path("s"));
        writeTexts(path("s"), {"one", "two", std::nullopt});
        const auto texts = readBytes(path("s"));
        writeTexts(path("s"), {"one", "two"}, key);
        const auto sealed = readBytes(path("s"));
        PointerWriter pointers(path("s"));
        pointers.addParent(2);
        pointers.addParent(5);
        pointers.commit();
        const auto offsets = readBytes(path("s"));
        writeKxdb(path("s"), {"a payload", key});
        const auto dictionary = readBytes(path("s"));
        const auto column = [](const auto& file) { return consumeColumn(file); };
        return {{"integers", integers, 256, column, repairColumn},
                {"texts", texts, 256, column, repairColumn},
                {"sealed", sealed, 256,
                 [key](const auto& file) { return consumeColumn(file, key); }, repairColumn},
                {"pointers", offsets, 128, [](const auto& file) { return consumePointers(file); },
                 repairPointers},
                {"dictionary", dictionary, 128,
                 [](const auto& file) { return consumeDictionary(file, "secret"); },
                 repairDictionary}};
    }
    bool accepts(const Sample& sample, const std::string& bytes) {
        writeBytes(path("damaged"), bytes);
        return sample.consume(path("damaged"));
    }
    /// The fault of a column of three integers with one number of its header replaced.
    std::string faultOfColumnWith(std::size_t offset, std::uint64_t number) {
        writeIntegers(path("a.kbf"), {1, std::nullopt, 300});
        auto bytes = readBytes(path("a.kbf"));
        std::memcpy(bytes.data() + offset, &number, 8);
        repairHeader(bytes);
        writeBytes(path("a.kbf"), bytes);
        return faultOf([&] { Column::open(path("a.kbf"))->verify(); });
    }
};

TEST_F(DamageTest, EveryLengthButTheWholeIsRefused) {
    for (const auto& sample : samples()) {
        ASSERT_TRUE(accepts(sample, sample.bytes)) << sample.name;
        for (std::size_t length = 0; length < sample.bytes.size(); ++length)
            ASSERT_FALSE(accepts(sample, sample.bytes.substr(0, length)))
                << sample.name << " cut to " << length;
        EXPECT_FALSE(accepts(sample, sample.bytes + "x")) << sample.name;
    }
}

TEST_F(DamageTest, EveryFlippedByteOfAHeaderIsFound) {
    for (const auto& sample : samples())
        for (std::size_t i = 0; i < sample.headerSize; ++i)
            for (const char flip : {'\x01', '\x80', '\xff'}) {
                auto bytes = sample.bytes;
                bytes[i] = static_cast<char>(bytes[i] ^ flip);
                ASSERT_FALSE(accepts(sample, bytes)) << sample.name << " byte " << i;
            }
}

TEST_F(DamageTest, EveryFlippedByteOfTheContentIsFound) {
    for (const auto& sample : samples())
        for (std::size_t i = sample.headerSize; i < sample.bytes.size(); ++i) {
            auto bytes = sample.bytes;
            bytes[i] = static_cast<char>(bytes[i] ^ 0x10);
            // Only the filling between sections may differ unseen.
            if (accepts(sample, bytes)) {
                ASSERT_EQ(sample.bytes[i], '\0') << sample.name << " byte " << i;
                ASSERT_EQ(sample.headerSize, 256u) << sample.name;
            }
        }
}

TEST_F(DamageTest, HugeClaimsWithRightHashesAreRefused) {
    for (const auto& sample : samples())
        for (std::size_t i = 24; i + 8 < sample.headerSize - 8; i += 8)
            for (const std::uint64_t claim :
                 {std::uint64_t{1} << 31, std::uint64_t{1} << 39, std::uint64_t{1} << 40,
                  std::uint64_t{1} << 63, ~std::uint64_t{0}, ~std::uint64_t{0} - 63}) {
                auto bytes = sample.bytes;
                std::memcpy(bytes.data() + i, &claim, 8);
                repairHeader(bytes);
                accepts(sample, bytes); // some fields may hold anything; none may do harm
            }
    EXPECT_THAT(faultOfColumnWith(32, std::uint64_t{1} << 39), HasSubstr("length"));
    EXPECT_THAT(faultOfColumnWith(32, std::uint64_t{1} << 41), HasSubstr("impossible"));
    EXPECT_THAT(faultOfColumnWith(104, std::uint64_t{1} << 40), HasSubstr("outside the file"));
    EXPECT_THAT(faultOfColumnWith(88, 100), HasSubstr("64-byte boundary"));
    EXPECT_THAT(faultOfColumnWith(64, 65535), HasSubstr("bounds are impossible"));
    EXPECT_THAT(faultOfColumnWith(64, 301), HasSubstr("disagree"));
    EXPECT_THAT(faultOfColumnWith(40, 2), HasSubstr("disagree"));
    EXPECT_THAT(faultOfColumnWith(48, 0x7fffffffffffffffu), HasSubstr("bounds are impossible"));
    EXPECT_THAT(faultOfColumnWith(144, 1), HasSubstr("zone map does not match"));
}

TEST_F(DamageTest, ValuesOutsideTheirZoneAreFoundAtTheFirstTouch) {
    Integers values(65536, 1);
    values.resize(65546, 2);
    writeIntegers(path("a.kbf"), values);
    auto bytes = readBytes(path("a.kbf"));
    bytes[256 + 65540] = 7;
    auto hashed = bytes;
    repairColumn(hashed);
    writeBytes(path("a.kbf"), bytes);
    writeBytes(path("b.kbf"), hashed);
    ColumnScratch scratch;
    for (const auto& [name, what] : {std::pair("a.kbf", "does not match its checksum"),
                                     std::pair("b.kbf", "outside its bounds")}) {
        const auto column = Column::open(path(name));
        EXPECT_NO_THROW(column->read(0, 65536, scratch));
        for (int i = 0; i < 2; ++i)
            EXPECT_THAT(faultOf([&] { column->read(65535, 2, scratch); }), HasSubstr(what));
        EXPECT_THAT(faultOf([&] { column->verify(); }), HasSubstr("block 2"));
    }
}

TEST_F(DamageTest, TextsOutOfOrderOrNotUtf8AreRefused) {
    writeTexts(path("a.kbf"), {"aa", "bb"});
    const auto good = readBytes(path("a.kbf"));
    const auto place = good.find("aabb");
    for (const auto& [texts, what] :
         {std::pair("bbaa", "out of order"), std::pair("aaaa", "out of order"),
          std::pair("aa\xff\xff", "not UTF-8")}) {
        auto bytes = good;
        bytes.replace(place, 4, texts);
        repairColumn(bytes);
        writeBytes(path("a.kbf"), bytes);
        EXPECT_THAT(faultOf([&] { Column::open(path("a.kbf")); }), HasSubstr(what));
    }
    auto bytes = good;
    bytes[place - 16] = 5; // the middle offset, beyond the end
    repairColumn(bytes);
    writeBytes(path("a.kbf"), bytes);
    EXPECT_THAT(faultOf([&] { Column::open(path("a.kbf")); }), HasSubstr("impossible length"));
}

TEST_F(DamageTest, DescendingPointersAreRefused) {
    PointerWriter writer(path("a.kpt"));
    for (const int count : {2, 3, 4})
        writer.addParent(static_cast<std::uint64_t>(count));
    writer.commit();
    auto bytes = readBytes(path("a.kpt"));
    bytes[128 + 4] = 6; // 0 6 5 9
    repairPointers(bytes);
    writeBytes(path("a.kpt"), bytes);
    EXPECT_THAT(faultOf([&] { PointerFile::open(path("a.kpt")); }), HasSubstr("do not ascend"));
}

TEST_F(DamageTest, OtherKindsAndVersionsAreNamed) {
    writeIntegers(path("a.kbf"), {1});
    EXPECT_THAT(faultOf([&] { PointerFile::open(path("a.kbf")); }),
                HasSubstr("a.kbf: is not a pointer file"));
    EXPECT_THAT(faultOf([&] { Column::open(path("none.kbf")); }),
                HasSubstr("none.kbf: cannot be opened"));
    EXPECT_THAT(faultOf([&] { Column::open(path(".")); }), HasSubstr("not a regular file"));
    auto bytes = readBytes(path("a.kbf"));
    bytes[8] = 2;
    repairHeader(bytes);
    writeBytes(path("a.kbf"), bytes);
    EXPECT_THAT(faultOf([&] { Column::open(path("a.kbf")); }),
                HasSubstr("format 2, which this version does not read"));
}

} // namespace kelx::testing
