// SPDX-License-Identifier: GPL-3.0-or-later
#include "results/tables/CellNumber.h"

#include <algorithm>
#include <charconv>
#include <cmath>

namespace {

constexpr int six = 6;
constexpr int mostDecimals = 30; // that a cell shows
constexpr std::string_view blanks = " \t\r\n\v\f";

bool isDigit(char c) {
    return c >= '0' && c <= '9';
}

bool isSeparator(char c) {
    return c == ' ' || c == '\'' || c == ',';
}

/// The whole part of a text whose fraction, if it has one, is of zeros only.
std::optional<std::int64_t> readWhole(std::string_view text) {
    std::int64_t whole = 0;
    const char* const end = text.data() + text.size();
    const auto [next, error] = std::from_chars(text.data(), end, whole);
    if (error != std::errc())
        return std::nullopt;
    const bool isWhole =
        next == end ||
        (*next == '.' && std::all_of(next + 1, end, [](char c) { return c == '0'; }));
    return isWhole ? std::optional(whole) : std::nullopt;
}

/// Numbers begin with a digit or point behind their sign; "inf" and "nan" do not.
bool beginsAsNumber(std::string_view text) {
    const std::size_t first = text.starts_with('-') ? 1 : 0;
    return first < text.size() && (isDigit(text[first]) || text[first] == '.');
}

std::optional<CellNumber> readPlain(std::string_view text) {
    if (text.starts_with('+') && !text.substr(1).starts_with('-'))
        text.remove_prefix(1);
    if (!beginsAsNumber(text))
        return std::nullopt;
    if (const auto whole = readWhole(text))
        return CellNumber{whole, static_cast<double>(*whole)};
    double value = 0;
    const char* const end = text.data() + text.size();
    const auto [next, error] = std::from_chars(text.data(), end, value);
    if (error != std::errc() || next != end)
        return std::nullopt;
    return CellNumber{std::nullopt, value};
}

/// A separator elsewhere, as in "1. 1900", tells of a text.
std::string withoutSeparators(std::string_view text) {
    std::string digits;
    for (std::size_t i = 0; i < text.size(); ++i) {
        const bool isBetweenDigits = i > 0 && i + 1 < text.size() && isSeparator(text[i]) &&
                                     isDigit(text[i - 1]) && isDigit(text[i + 1]);
        if (!isBetweenDigits)
            digits += text[i];
    }
    return digits;
}

} // namespace

std::string_view trimmedText(std::string_view text) {
    const std::size_t first = text.find_first_not_of(blanks);
    if (first == std::string_view::npos)
        return {};
    return text.substr(first, text.find_last_not_of(blanks) - first + 1);
}

std::optional<CellNumber> readNumber(std::string_view text, bool readsGrouped) {
    const std::string_view trimmed = trimmedText(text);
    const auto number = readPlain(trimmed);
    if (number || !readsGrouped || !std::any_of(trimmed.begin(), trimmed.end(), isSeparator))
        return number;
    return readPlain(withoutSeparators(trimmed));
}

bool isDigitsOnly(std::string_view text) {
    return !text.empty() && std::all_of(text.begin(), text.end(), isDigit);
}

std::string withDecimals(double value, int decimals) {
    if (std::isnan(value))
        return "nan";
    char buffer[400]; // the largest number has 309 digits
    const auto end = std::to_chars(buffer, buffer + sizeof buffer, value, std::chars_format::fixed,
                                   std::clamp(decimals, 0, mostDecimals));
    return {buffer, end.ptr};
}

std::string withDecimals(std::string_view figure, int decimals) {
    const auto number = readNumber(figure);
    if (!number)
        return std::string(figure);
    return number->whole ? std::to_string(*number->whole) + ".000000"
                         : withDecimals(number->value, decimals);
}

std::string sixDecimals(double value) {
    return withDecimals(value, six);
}

std::string sixDecimals(std::string_view figure) {
    return withDecimals(figure, six);
}
