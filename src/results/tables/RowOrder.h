// SPDX-License-Identifier: GPL-3.0-or-later
// How the categories of a crosstab follow one another: total first, then by code, markers last.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

/// Named in the order of their ranks.
enum class CategoryKind : std::uint8_t { Total, Valid, Missing, NotApplicable };

/// What a field of codes calls the kind: "tot", "mv", "na"; other words are of valid categories.
CategoryKind categoryKindOf(std::string_view word);

/// A value of a variable that spans a table. A marker has the code "0" and "__tot__", "__mv__" or
/// "__na__" as its label.
struct TableCategory {
    std::string code;
    std::string label;
    CategoryKind kind = CategoryKind::Valid;

    std::string rowText() const;    ///< "1. Male", the code alone where it is its own label
    std::string columnText() const; ///< "1. Male", whatever the label
};

/// The integer before the first "."; 0 where there is none, the nearest one beyond 64 bits.
std::int64_t sortingNumber(std::string_view code);

/// Numbers of the categories in their order: by kind, then by the code's number, then by text.
std::vector<std::uint32_t> sortedOrder(const std::vector<TableCategory>& categories);
