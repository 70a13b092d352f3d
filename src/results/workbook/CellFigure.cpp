// SPDX-License-Identifier: GPL-3.0-or-later
#include "results/workbook/CellFigure.h"

#include <charconv>
#include <cmath>
#include <cstdint>
#include <optional>

namespace {

constexpr std::int64_t exactLimit = std::int64_t{1} << 53;

std::string_view trimmed(std::string_view text) {
    constexpr std::string_view blanks = " \t\r\n\f\v";
    const std::size_t begin = text.find_first_not_of(blanks);
    if (begin == std::string_view::npos)
        return {};
    return text.substr(begin, text.find_last_not_of(blanks) - begin + 1);
}

template <typename Number>
std::optional<Number> parsed(std::string_view text) {
    Number number{};
    const char* const end = text.data() + text.size();
    const auto [stop, error] = std::from_chars(text.data(), end, number);
    if (error != std::errc() || stop != end)
        return {};
    return number;
}

bool isDigits(std::string_view text) {
    return text.find_first_not_of("-0123456789") == std::string_view::npos;
}

} // namespace

CellFigure::CellFigure(std::string_view raw) {
    const std::string_view text = trimmed(raw);
    if (text.empty()) {
        kind = Kind::Empty;
    } else if (const auto whole = parsed<std::int64_t>(text)) {
        if (*whole >= -exactLimit && *whole <= exactLimit) {
            kind = Kind::Whole;
            value = static_cast<double>(*whole);
        }
    } else if (const auto real = parsed<double>(text);
               real && std::isfinite(*real) && !isDigits(text)) {
        kind = Kind::Real;
        value = *real;
    }
}
