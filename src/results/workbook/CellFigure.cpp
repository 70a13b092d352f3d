// SPDX-License-Identifier: GPL-3.0-or-later
#include "results/workbook/CellFigure.h"

#include "results/tables/CellNumber.h"

namespace {

constexpr std::int64_t exactLimit = std::int64_t{1} << 53;

bool isExact(std::int64_t whole) {
    return whole >= -exactLimit && whole <= exactLimit;
}

bool isWrittenWhole(std::string_view text) {
    return text.find_first_not_of("+-0123456789") == std::string_view::npos;
}

} // namespace

CellFigure::CellFigure(std::string_view raw) {
    const std::string_view text = trimmedText(raw);
    const auto number = readNumber(text);
    if (text.empty()) {
        kind = Kind::Empty;
    } else if (number && (number->whole ? isExact(*number->whole) : !isWrittenWhole(text))) {
        kind = isWrittenWhole(text) ? Kind::Whole : Kind::Real;
        value = number->value;
    } else if (number) {
        kind = Kind::Digits;
    }
}
