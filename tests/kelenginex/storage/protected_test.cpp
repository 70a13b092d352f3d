// SPDX-License-Identifier: GPL-3.0-or-later
#include "storage_fixture.h"

namespace kelx::testing {

using ProtectedTest = StorageTest;
using ::testing::HasSubstr;
using ::testing::Not;

TEST_F(ProtectedTest, ColumnsComeBackWithTheirKey) {
    const auto key = cheapKey("secret");
    Integers values;
    for (int i = 0; i < 140000; ++i)
        values.push_back(i % 11 == 0 ? std::nullopt : std::optional<std::int64_t>(i));
    writeIntegers(path("a.kbf"), values, {ValueType::Integer, 0, {}, {}, key});
    const auto column = Column::open(path("a.kbf"), key);
    EXPECT_TRUE(column->info().isProtected);
    EXPECT_EQ(readIntegers(*column), values);
    column->verify();
    ColumnScratch scratch;
    const auto* back = static_cast<const std::uint32_t*>(column->read(65530, 70000, scratch));
    EXPECT_EQ(back[0], 65530u);
    EXPECT_EQ(back[69999], 135529u);
    EXPECT_EQ(static_cast<const std::uint32_t*>(column->read(65531, 3, scratch))[0], 65531u);
}

TEST_F(ProtectedTest, TextsAreNotReadableInTheFile) {
    const auto key = cheapKey("secret");
    const Texts values{"a rather long name", "another rather long name", std::nullopt};
    writeTexts(path("a.kbf"), values, key);
    EXPECT_THAT(readBytes(path("a.kbf")), Not(HasSubstr("rather")));
    EXPECT_EQ(readTexts(*Column::open(path("a.kbf"), key)), values);
    writeTexts(path("plain.kbf"), values);
    EXPECT_THAT(readBytes(path("plain.kbf")), HasSubstr("rather"));
}

TEST_F(ProtectedTest, WrongOrMissingKeyIsRefused) {
    writeIntegers(path("a.kbf"), {1, 2}, {ValueType::Integer, 0, {}, {}, cheapKey("secret")});
    EXPECT_THAT(faultOf([&] { Column::open(path("a.kbf"), cheapKey("secret")); }),
                HasSubstr("cannot be decrypted")); // same password, other salt
    EXPECT_THAT(faultOf([&] { Column::open(path("a.kbf")); }), HasSubstr("is protected"));
}

TEST_F(ProtectedTest, BlocksCannotChangePlaces) {
    const auto key = cheapKey("secret");
    Integers values(65536, 1);
    values.resize(131072, 1);
    writeIntegers(path("a.kbf"), values, {ValueType::Integer, 0, {}, {}, key});
    auto bytes = readBytes(path("a.kbf"));
    const std::size_t sealed = 65536 + 40;
    const auto first = bytes.substr(256, sealed);
    bytes.replace(256, sealed, bytes, 256 + sealed, sealed);
    bytes.replace(256 + sealed, sealed, first);
    writeBytes(path("b.kbf"), bytes);
    const auto column = Column::open(path("b.kbf"), key);
    EXPECT_THROW(column->verify(), FileError);
}

TEST_F(ProtectedTest, AlteredHeaderIsFoundEvenWithRightHashes) {
    const auto key = cheapKey("secret");
    writeIntegers(path("a.kbf"), {5, 6}, {ValueType::Integer, 0, 5, 6, key});
    auto bytes = readBytes(path("a.kbf"));
    bytes[48] = 100; // the base
    repairHeader(bytes);
    writeBytes(path("b.kbf"), bytes);
    EXPECT_THAT(faultOf([&] { Column::open(path("b.kbf"), key); }),
                HasSubstr("cannot be decrypted"));
}

TEST_F(ProtectedTest, SealedPartsOpenOnlyWithTheirContext) {
    const auto key = cheapKey("secret");
    const std::string plain = "plain", context = "context", other = "contexT";
    const auto bytes = [](const std::string& text) { return std::as_bytes(std::span(text)); };
    auto sealed = key->seal(bytes(plain), bytes(context));
    std::vector<std::byte> out(plain.size());
    ASSERT_EQ(sealed.size(), plain.size() + Secret::overhead);
    EXPECT_TRUE(key->open(sealed, bytes(context), out));
    EXPECT_EQ(std::memcmp(out.data(), plain.data(), plain.size()), 0);
    EXPECT_FALSE(key->open(sealed, bytes(other), out));
    EXPECT_FALSE(Secret::derive("Secret", key->recipe())->open(sealed, bytes(context), out));
    EXPECT_TRUE(Secret::derive("secret", key->recipe())->open(sealed, bytes(context), out));
    sealed.back() ^= std::byte{1};
    EXPECT_FALSE(key->open(sealed, bytes(context), out));
    EXPECT_FALSE(key->open(std::span(sealed).first(39), bytes(context), {}));
}

TEST_F(ProtectedTest, UnreasonableCostsAreRefused) {
    KeyRecipe recipe = Secret::newRecipe();
    recipe.memory = std::uint64_t{1} << 50;
    EXPECT_THROW(Secret::derive("x", recipe), std::runtime_error);
    recipe = Secret::newRecipe();
    recipe.operations = 1000000;
    EXPECT_THROW(Secret::derive("x", recipe), std::runtime_error);
    recipe.operations = 0;
    EXPECT_THROW(Secret::derive("x", recipe), std::runtime_error);
}

} // namespace kelx::testing
