// SPDX-License-Identifier: GPL-3.0-or-later
// Files have the bytes that docs/format.md gives, at the places that it gives.
#include "storage/kxdb_file.h"
#include "storage/pointer_file.h"
#include "storage/raw_column.h"
#include "storage_fixture.h"

#include <xxhash.h>

namespace kelx::testing {

using FormatTest = StorageTest;

namespace {

template <class T>
T at(const std::string& bytes, std::size_t offset) {
    T value{};
    EXPECT_LE(offset + sizeof(T), bytes.size());
    std::memcpy(&value, bytes.data() + offset, sizeof(T));
    return value;
}

void expectHead(const std::string& bytes, const std::string& letters, std::uint32_t size) {
    EXPECT_EQ(bytes.substr(0, 8), "\x89" + letters + "\r\n\x1a\n");
    EXPECT_EQ(at<std::uint16_t>(bytes, 8), 1);
    EXPECT_EQ(at<std::uint16_t>(bytes, 10), 0);
    EXPECT_EQ(at<std::uint32_t>(bytes, 12), size);
    EXPECT_EQ(at<std::uint64_t>(bytes, 16), bytes.size());
    EXPECT_EQ(at<std::uint64_t>(bytes, size - 8), XXH3_64bits(bytes.data(), size - 8));
}

} // namespace

TEST_F(FormatTest, IntegerColumn) {
    writeIntegers(path("a.kbf"), {-3, std::nullopt, 200, 0});
    const auto bytes = readBytes(path("a.kbf"));
    expectHead(bytes, "KBF", 256);
    EXPECT_EQ(bytes[24], 1);
    EXPECT_EQ(bytes[25], 1);
    EXPECT_EQ(bytes[27], 0);
    EXPECT_EQ(at<std::uint32_t>(bytes, 28), 65536u);
    EXPECT_EQ(at<std::uint64_t>(bytes, 32), 4u);
    EXPECT_EQ(at<std::uint64_t>(bytes, 40), 1u);
    EXPECT_EQ(at<std::int64_t>(bytes, 48), -3);
    EXPECT_EQ(at<std::uint64_t>(bytes, 56), 0u);
    EXPECT_EQ(at<std::uint64_t>(bytes, 64), 203u);
    EXPECT_EQ(at<std::uint64_t>(bytes, 88), 256u);
    EXPECT_EQ(at<std::uint64_t>(bytes, 96), 4u);
    EXPECT_EQ(bytes.substr(256, 4), std::string("\x00\xff\xcb\x03", 4));
    const auto zones = at<std::uint64_t>(bytes, 104);
    EXPECT_EQ(zones, 320u);
    EXPECT_EQ(at<std::uint64_t>(bytes, 112), 32u);
    EXPECT_EQ(at<std::uint64_t>(bytes, zones + 8), 203u);
    EXPECT_EQ(at<std::uint32_t>(bytes, zones + 16), 1u);
    EXPECT_EQ(at<std::uint32_t>(bytes, zones + 20), 4u);
    EXPECT_EQ(at<std::uint64_t>(bytes, zones + 24), XXH3_64bits(bytes.data() + 256, 4));
    EXPECT_EQ(at<std::uint64_t>(bytes, 144), XXH3_64bits(bytes.data() + zones, 32));
}

TEST_F(FormatTest, TextColumn) {
    writeTexts(path("a.kbf"), {"bc", "a", std::nullopt});
    const auto bytes = readBytes(path("a.kbf"));
    expectHead(bytes, "KBF", 256);
    EXPECT_EQ(bytes.substr(256, 3), "\x01" + std::string(1, '\0') + "\xff");
    const auto texts = at<std::uint64_t>(bytes, 120);
    EXPECT_EQ(at<std::uint64_t>(bytes, 128), 27u);
    EXPECT_EQ(at<std::uint64_t>(bytes, 136), 2u);
    EXPECT_EQ(at<std::uint64_t>(bytes, texts), 0u);
    EXPECT_EQ(at<std::uint64_t>(bytes, texts + 8), 1u);
    EXPECT_EQ(at<std::uint64_t>(bytes, texts + 16), 3u);
    EXPECT_EQ(bytes.substr(texts + 24, 3), "abc");
    EXPECT_EQ(at<std::uint64_t>(bytes, 152), XXH3_64bits(bytes.data() + texts, 27));
}

TEST_F(FormatTest, RealColumn) {
    writeReals(path("a.kbf"), {0.5, -2.25});
    const auto bytes = readBytes(path("a.kbf"));
    EXPECT_EQ(bytes[24], 2);
    EXPECT_EQ(bytes[25], 5);
    EXPECT_EQ(at<double>(bytes, 72), -2.25);
    EXPECT_EQ(at<double>(bytes, 80), 0.5);
    EXPECT_EQ(at<double>(bytes, 264), -2.25);
}

TEST_F(FormatTest, PointersDictionaryAndDescription) {
    PointerWriter writer(path("a.kpt"));
    writer.addParent(2);
    writer.addParent(3);
    writer.commit();
    const auto pointers = readBytes(path("a.kpt"));
    expectHead(pointers, "KPT", 128);
    EXPECT_EQ(pointers.size(), 140u);
    EXPECT_EQ(at<std::uint32_t>(pointers, 24), 4u);
    EXPECT_EQ(at<std::uint64_t>(pointers, 32), 2u);
    EXPECT_EQ(at<std::uint64_t>(pointers, 40), 5u);
    EXPECT_EQ(at<std::uint32_t>(pointers, 132), 2u);
    EXPECT_EQ(at<std::uint32_t>(pointers, 136), 5u);

    writeKxdb(path("a.kxdb"), {"{}", nullptr});
    const auto dictionary = readBytes(path("a.kxdb"));
    expectHead(dictionary, "KXD", 128);
    EXPECT_EQ(at<std::uint64_t>(dictionary, 32), 2u);
    EXPECT_EQ(at<std::uint32_t>(dictionary, 128), 0xfd2fb528u); // the magic of zstd

    writeBytes(path("a.bin"), "1234");
    writeRawDescription(path("a.bin"), {RawType::Int, 2, 0, ValueType::Integer}, 2);
    const auto description = readBytes(path("a.bin.desc"));
    expectHead(description, "KBD", 64);
    EXPECT_EQ(description[24], 9);
    EXPECT_EQ(at<std::uint32_t>(description, 28), 2u);
    EXPECT_EQ(at<std::uint64_t>(description, 40), 4u);
}

TEST_F(FormatTest, SameValuesGiveTheSameBytes) {
    for (const char* name : {"a.kbf", "b.kbf"})
        writeTexts(path(name), {"x", "y", std::nullopt, "x"});
    EXPECT_EQ(readBytes(path("a.kbf")), readBytes(path("b.kbf")));
}

} // namespace kelx::testing
