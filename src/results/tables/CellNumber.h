// SPDX-License-Identifier: GPL-3.0-or-later
// Texts of cells as numbers, the same in every locale.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

struct CellNumber {
    /// Set where the text has no fraction, or one of zeros only, and 64 bits hold it.
    std::optional<std::int64_t> whole;
    double value = 0;
};

/// Without the blanks around it.
std::string_view trimmedText(std::string_view text);
/// Nothing where the whole text is no finite number; "nan" and "inf" are words. With
/// readsGrouped, a text that fails is read once more without the blanks, apostrophes and commas
/// that stand between its digits.
std::optional<CellNumber> readNumber(std::string_view text, bool readsGrouped = false);
bool isDigitsOnly(std::string_view text); ///< false for an empty text

/// So many decimals, at most 30; "inf", "-inf" or "nan" where there is no number.
std::string withDecimals(double value, int decimals);
/// A figure's text so; whole ones keep all their digits and have six zeros.
std::string withDecimals(std::string_view figure, int decimals);
/// Six decimals; "inf", "-inf" or "nan" where there is no number.
std::string sixDecimals(double value);
/// A figure's text with six decimals; whole ones keep all their digits.
std::string sixDecimals(std::string_view figure);
