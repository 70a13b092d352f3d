// SPDX-License-Identifier: GPL-3.0-or-later
#include "storage/number_text.h"
#include "storage/utf8.h"

#include <gtest/gtest.h>

#include <charconv>
#include <cmath>
#include <limits>
#include <random>

using namespace kelx::storage;

TEST(NumberText, IsFixedAndTheShortest) {
    EXPECT_EQ(numberText(0.00001), "0.00001");
    EXPECT_EQ(numberText(1e20), "100000000000000000000");
    EXPECT_EQ(numberText(-1234.5), "-1234.5");
    EXPECT_EQ(numberText(0.1), "0.1");
    EXPECT_EQ(numberText(-0.0), "0");
    EXPECT_EQ(numberText(std::nan("")), "");
    EXPECT_EQ(numberText(-std::numeric_limits<double>::infinity()), "");
}

TEST(NumberText, ReadsBackTheSame) {
    std::mt19937_64 random(7);
    std::vector<double> values = {
        std::numeric_limits<double>::max(), std::numeric_limits<double>::lowest(),
        std::numeric_limits<double>::min(), std::numeric_limits<double>::denorm_min(),
        2.2250738585072014e-308};
    for (int i = 0; i < 10000; ++i)
        values.push_back(
            std::ldexp(static_cast<double>(random()), static_cast<int>(random() % 2000) - 1060));
    for (const double value : values) {
        if (!std::isfinite(value))
            continue;
        const std::string text = numberText(value);
        EXPECT_EQ(text.find_first_not_of("-.0123456789"), std::string::npos) << text;
        double back = 0;
        std::from_chars(text.data(), text.data() + text.size(), back);
        EXPECT_EQ(back, value) << text;
    }
}

// Figures of few digits are written in a way of their own.
TEST(NumberText, IsTheSameForFewDigits) {
    std::mt19937_64 random(11);
    std::vector<double> values = {
        1e9, 999999999.999999, 999999999.9999999, -0.000001, 0.0000001,  4.35,
        0.3, 0.1 + 0.2,        1.0 / 3,           1e15,      -1e9 - 0.5, 123456789.125};
    for (int i = 0; i < 100000; ++i) {
        const double whole = static_cast<double>(random() % 2000000000000000) - 1e15;
        const double decimal = std::trunc(whole / std::pow(10, random() % 16)) /
                               std::pow(10, static_cast<double>(random() % 9));
        for (const double value : {decimal, std::nextafter(decimal, 0), decimal * 3})
            values.push_back(value);
    }
    for (const double value : values) {
        char buffer[400];
        const auto end =
            std::to_chars(buffer, buffer + sizeof buffer, value, std::chars_format::fixed).ptr;
        const std::string expected(buffer, end);
        ASSERT_EQ(numberText(value), expected == "-0" ? "0" : expected);
    }
}

TEST(Utf8, TellsTheFirstByteThatIsNone) {
    EXPECT_EQ(firstInvalidUtf8(""), std::nullopt);
    EXPECT_EQ(firstInvalidUtf8("Región \xf0\x9f\x98\x80 €, and more behind it"), std::nullopt);
    EXPECT_EQ(firstInvalidUtf8("eight by\xe9"), 8u); // Latin-1 behind plain letters
    EXPECT_EQ(firstInvalidUtf8("seven b\xe9 and the rest"), 7u);
    EXPECT_EQ(firstInvalidUtf8("ü\xc0\xaf"), 2u);         // overlong
    EXPECT_EQ(firstInvalidUtf8("\xe0\x9f\xbf"), 0u);      // overlong in three bytes
    EXPECT_EQ(firstInvalidUtf8("\xf0\x8f\xbf\xbf"), 0u);  // and in four
    EXPECT_EQ(firstInvalidUtf8("a\xed\xa0\x80"), 1u);     // surrogate
    EXPECT_EQ(firstInvalidUtf8("a\xf4\x90\x80\x80"), 1u); // beyond the last character
    EXPECT_EQ(firstInvalidUtf8("abc\xe2\x82"), 3u);       // cut off
    EXPECT_EQ(firstInvalidUtf8("\x80"), 0u);
}

TEST(Utf8, CountsCharacters) {
    EXPECT_EQ(characterCount(""), 0u);
    EXPECT_EQ(characterCount("plain"), 5u);
    EXPECT_EQ(characterCount("ünï€\xf0\x9f\x98\x80"), 5u);
}
