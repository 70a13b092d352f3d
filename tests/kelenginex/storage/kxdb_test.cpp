// SPDX-License-Identifier: GPL-3.0-or-later
#include "storage/kxdb_file.h"
#include "storage_fixture.h"

#include <zstd.h>

namespace kelx::testing {

using KxdbTest = StorageTest;
using ::testing::HasSubstr;

namespace {

std::string samplePayload() {
    std::string payload;
    for (int i = 0; i < 50000; ++i)
        payload += "{\"name\": \"variable " + std::to_string(i) + "\"}\n";
    return payload;
}

} // namespace

TEST_F(KxdbTest, PlainPayloadComesBackWithoutAPrompt) {
    for (const auto& payload : {std::string(), std::string("{}"), samplePayload()}) {
        writeKxdb(path("a.kxdb"), {payload, nullptr});
        const auto back = readKxdb(path("a.kxdb"), [&]() -> std::string {
            throw std::logic_error("asked for a password");
        });
        EXPECT_EQ(back.payload, payload);
        EXPECT_EQ(back.key, nullptr);
    }
    EXPECT_LT(std::filesystem::file_size(path("a.kxdb")), samplePayload().size() / 4);
}

TEST_F(KxdbTest, ProtectedPayloadNeedsItsPassword) {
    writeKxdb(path("a.kxdb"), {samplePayload(), cheapKey("secret")});
    const auto back = readKxdb(path("a.kxdb"), [] { return std::string("secret"); });
    EXPECT_EQ(back.payload, samplePayload());
    ASSERT_NE(back.key, nullptr);
    // The key that comes back opens what the first one sealed.
    writeIntegers(path("a.kbf"), {1, 2}, {ValueType::Integer, 0, {}, {}, back.key});
    const auto again = readKxdb(path("a.kxdb"), [] { return std::string("secret"); });
    EXPECT_EQ(readIntegers(*Column::open(path("a.kbf"), again.key)), (Integers{1, 2}));
    for (const char* wrong : {"", "Secret", "secret "}) {
        try {
            readKxdb(path("a.kxdb"), [&] { return std::string(wrong); });
            ADD_FAILURE() << "opened";
        } catch (const FileError&) {
            ADD_FAILURE() << "taken for damage";
        } catch (const std::runtime_error& error) {
            EXPECT_STREQ(error.what(), "Wrong password.");
        }
    }
    EXPECT_THROW(readKxdb(path("a.kxdb"), {}), FileError);
    EXPECT_THROW(readKxdb(path("a.kxdb"), []() -> std::string { throw std::logic_error("no"); }),
                 std::logic_error);
}

TEST_F(KxdbTest, DamageIsFoundBeforeThePasswordIsAsked) {
    writeKxdb(path("a.kxdb"), {samplePayload(), cheapKey("secret")});
    auto bytes = readBytes(path("a.kxdb"));
    bytes[bytes.size() / 2] ^= 1;
    writeBytes(path("a.kxdb"), bytes);
    EXPECT_THAT(faultOf([&] {
                    readKxdb(path("a.kxdb"), []() -> std::string {
                        throw std::logic_error("asked for a password");
                    });
                }),
                HasSubstr("does not match its checksum"));
}

TEST_F(KxdbTest, ClaimsOfHugeContentAreNotBelieved) {
    writeKxdb(path("a.kxdb"), {"short", nullptr});
    const auto good = readBytes(path("a.kxdb"));
    for (const std::uint64_t claim : {std::uint64_t{4}, std::uint64_t{6}, std::uint64_t{1} << 28,
                                      std::uint64_t{1} << 29, ~std::uint64_t{0}}) {
        auto bytes = good;
        std::memcpy(bytes.data() + 32, &claim, 8);
        repairDictionary(bytes);
        writeBytes(path("b.kxdb"), bytes);
        EXPECT_THROW(readKxdb(path("b.kxdb"), {}), FileError) << claim;
    }
    // A frame that unpacks to much more than the header announces.
    std::string zeros;
    zeros.resize(50000000);
    std::string frame(ZSTD_compressBound(zeros.size()), '\0');
    frame.resize(ZSTD_compress(frame.data(), frame.size(), zeros.data(), zeros.size(), 1));
    auto bytes = good.substr(0, 128) + frame;
    repairDictionary(bytes);
    writeBytes(path("b.kxdb"), bytes);
    EXPECT_THAT(faultOf([&] { readKxdb(path("b.kxdb"), {}); }), HasSubstr("another length"));
    auto longer = good + "x";
    repairDictionary(longer);
    writeBytes(path("b.kxdb"), longer);
    EXPECT_THAT(faultOf([&] { readKxdb(path("b.kxdb"), {}); }), HasSubstr("another length"));
}

} // namespace kelx::testing
