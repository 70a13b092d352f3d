// SPDX-License-Identifier: Apache-2.0
#include "import/values.h"

#include <algorithm>
#include <charconv>
#include <cmath>

namespace kelx::tools {

namespace {

template <typename Number>
std::optional<Number> parseWhole(std::string_view text) {
    Number value{};
    const char* end = text.data() + text.size();
    const auto [stop, fault] = std::from_chars(text.data(), end, value);
    if (fault != std::errc() || stop != end)
        return std::nullopt;
    return value;
}

} // namespace

std::optional<std::int64_t> parseInteger(std::string_view text) {
    return parseWhole<std::int64_t>(text);
}

std::optional<double> parseReal(std::string_view text) {
    const auto value = parseWhole<double>(text);
    return value && std::isfinite(*value) ? value : std::nullopt;
}

bool isBeyondReals(std::string_view text) {
    double value = 0;
    const char* end = text.data() + text.size();
    const auto [stop, fault] = std::from_chars(text.data(), end, value);
    return fault == std::errc::result_out_of_range && stop == end;
}

std::optional<bool> parseBoolean(std::string_view text) {
    const std::string upper = upperCase(text);
    if (upper == "1" || upper == "TRUE" || upper == "YES")
        return true;
    if (upper == "0" || upper == "FALSE" || upper == "NO")
        return false;
    return std::nullopt;
}

std::string integerText(std::int64_t value) {
    return std::to_string(value);
}

std::string upperCase(std::string_view text) {
    std::string upper(text);
    for (char& c : upper)
        c = c >= 'a' && c <= 'z' ? static_cast<char>(c - 'a' + 'A') : c;
    return upper;
}

bool isName(std::string_view text) {
    return !text.empty() && text.size() <= 100 && std::all_of(text.begin(), text.end(), [](char c) {
        return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || (c >= '0' && c <= '9') ||
               c == '_' || c == '-';
    });
}

} // namespace kelx::tools
