// SPDX-License-Identifier: Apache-2.0
// What a run leaves behind: cells and categories, not yet a table.
#pragma once

#include "language/bound.h"

#include <cstdint>
#include <string>
#include <variant>
#include <vector>

namespace kelx::execution {

enum class CategoryKind { Valid, Missing, NotApplicable };

/// A value that occurred in a dimension, or the marker MV or NA (all such values together).
struct Category {
    CategoryKind kind = CategoryKind::Valid;
    std::variant<std::int64_t, double, std::string> value; ///< of a valid category
    std::string code;                                      ///< the value as text
    std::string label;                                     ///< its label, else the code
};

/// The categories of one dimension: valid ones in ascending order, then MV, then NA where they
/// occur.
struct Dimension {
    const catalog::Variable* variable = nullptr; ///< null for an expression
    std::string name;                            ///< ENTITY.VARIABLE or the expression's text
    std::string label;
    std::vector<Category> categories;
};

/// A cell that at least one record fell into.
struct Cell {
    std::vector<std::uint32_t> categories; ///< one index for each dimension
    std::uint64_t records = 0;
    double sum = 0; ///< of weight times tally; equals records where there is neither
};

/// A frequency table of any number of dimensions, or a count (no dimension, one cell).
struct TableResult {
    const language::TableCommand* command = nullptr;
    std::vector<Dimension> dimensions;
    std::vector<Cell> cells; ///< ascending by category indices
    bool exact = true;       ///< sums are counts
    double seconds = 0;      ///< time of the command's execution
};

} // namespace kelx::execution
