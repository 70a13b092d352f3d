// SPDX-License-Identifier: Apache-2.0
#include "catalog/names.h"

#include <algorithm>
#include <charconv>
#include <cmath>

namespace kelx::catalog {

namespace {

char lower(char c) {
    return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c;
}

/// Letters whose small forms lie at one distance, or, where there is none, beside them: capitals
/// have the even places then, or the odd ones.
struct Capitals {
    char32_t first, last;
    int distance;
    bool odd = false;
};

/// Latin, Greek and Cyrillic beyond ASCII, as simple case folding maps them. All of them and what
/// they become take two bytes.
constexpr Capitals capitals[] = {
    {0xc0, 0xd6, 32},        {0xd8, 0xde, 32},   {0x100, 0x12f, 0},    {0x132, 0x137, 0},
    {0x139, 0x148, 0, true}, {0x14a, 0x177, 0},  {0x178, 0x178, -121}, {0x179, 0x17e, 0, true},
    {0x386, 0x386, 38},      {0x388, 0x38a, 37}, {0x38c, 0x38c, 64},   {0x38e, 0x38f, 63},
    {0x391, 0x3a1, 32},      {0x3a3, 0x3ab, 32}, {0x3c2, 0x3c2, 1},    {0x400, 0x40f, 80},
    {0x410, 0x42f, 32},      {0x460, 0x481, 0},  {0x48a, 0x4bf, 0},    {0x4c0, 0x4c0, 15},
    {0x4c1, 0x4ce, 0, true}, {0x4d0, 0x52f, 0}};

char32_t lower(char32_t letter) {
    for (const Capitals& range : capitals) {
        if (letter > range.last)
            continue;
        if (letter < range.first)
            return letter;
        if (range.distance != 0)
            return static_cast<char32_t>(static_cast<int>(letter) + range.distance);
        return letter % 2 == (range.odd ? 1 : 0) ? letter + 1 : letter;
    }
    return letter;
}

/// The text with small letters, in as many bytes.
void fold(std::string& text) {
    for (std::size_t i = 0; i < text.size(); ++i) {
        const auto byte = static_cast<unsigned char>(text[i]);
        if (byte < 0x80) {
            text[i] = lower(text[i]);
            continue;
        }
        const bool two = byte >= 0xc2 && byte < 0xe0 && i + 1 < text.size();
        const auto next = two ? static_cast<unsigned char>(text[i + 1]) : 0U;
        if ((next & 0xc0U) != 0x80U)
            continue;
        const char32_t letter = lower(char32_t{(byte & 0x1fU) << 6 | (next & 0x3fU)});
        text[i] = static_cast<char>(0xc0U | letter >> 6);
        text[++i] = static_cast<char>(0x80U | (letter & 0x3fU));
    }
}

bool isAscii(std::string_view text) {
    return std::all_of(text.begin(), text.end(),
                       [](char c) { return static_cast<unsigned char>(c) < 0x80; });
}

std::string_view trimmed(std::string_view text) {
    constexpr std::string_view blanks = " \t\r\n";
    const auto begin = text.find_first_not_of(blanks);
    if (begin == std::string_view::npos) {
        return {};
    }
    return text.substr(begin, text.find_last_not_of(blanks) - begin + 1);
}

template <typename T>
std::optional<T> parseWhole(std::string_view text) {
    text = trimmed(text);
    if (text.size() > 1 && text[0] == '+' && text[1] != '-') {
        text.remove_prefix(1);
    }
    T value{};
    const char* end = text.data() + text.size();
    const auto result = std::from_chars(text.data(), end, value);
    if (text.empty() || result.ec != std::errc() || result.ptr != end) {
        return std::nullopt;
    }
    return value;
}

} // namespace

bool sameName(std::string_view a, std::string_view b) {
    if (a.size() != b.size())
        return false;
    if (!isAscii(a) && !isAscii(b))
        return lowerCase(a) == lowerCase(b);
    return std::equal(a.begin(), a.end(), b.begin(),
                      [](char x, char y) { return lower(x) == lower(y); });
}

std::string lowerCase(std::string_view text) {
    std::string result(text);
    fold(result);
    return result;
}

std::optional<double> parseNumber(std::string_view text) {
    const auto value = parseWhole<double>(text);
    return value && std::isfinite(*value) ? value : std::nullopt;
}

std::optional<long long> parseInteger(std::string_view text) {
    return parseWhole<long long>(text);
}

bool isUsableName(std::string_view name) {
    constexpr std::string_view separators = "\"'.,;:()[]{}<>=+*/&|!?%\\";
    return !name.empty() && std::all_of(name.begin(), name.end(), [&](char c) {
        const auto byte = static_cast<unsigned char>(c);
        return byte > ' ' && byte != 0x7f && separators.find(c) == std::string_view::npos;
    });
}

} // namespace kelx::catalog
