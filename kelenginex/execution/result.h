// SPDX-License-Identifier: Apache-2.0
// What a run leaves behind: cells and categories, not yet a table.
#pragma once

#include "execution/sum.h"
#include "language/bound.h"

#include <cstddef>
#include <cstdint>
#include <span>
#include <string>
#include <variant>
#include <vector>

namespace kelx::execution {

/// A table may have so many rows, totals included, and no more cells.
constexpr std::size_t mostRows = 20'000'000;

/// Throws std::runtime_error, naming the table that would have more.
[[noreturn]] void throwTooManyRows(const language::TableCommand& command);

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

/// The cells that at least one record fell into.
class Cells {
public:
    struct Cell {
        std::span<const std::uint32_t> categories; ///< one index for each dimension
        std::uint64_t records = 0;
        Sum sum; ///< of weight times tally; equals records where there is neither
    };

    explicit Cells(std::size_t dimensions = 0, bool weighted = false)
        : dimensions_(dimensions), weighted_(weighted) {}

    std::size_t size() const { return records_.size(); }
    bool empty() const { return records_.empty(); }
    const std::uint32_t* categories(std::size_t cell) const {
        return categories_.data() + cell * dimensions_;
    }
    Cell operator[](std::size_t cell) const {
        return {{categories(cell), dimensions_}, records_[cell], sum(cell)};
    }
    void reserve(std::size_t cells);
    void add(const Cell& cell);
    /// Adds to the figures of the last cell.
    void join(const Cell& cell);

private:
    Sum sum(std::size_t cell) const {
        return weighted_ ? sums_[cell] : Sum{static_cast<double>(records_[cell]), 0};
    }

    std::size_t dimensions_;
    bool weighted_;
    std::vector<std::uint32_t> categories_;
    std::vector<std::uint64_t> records_;
    std::vector<Sum> sums_; ///< where weighted
};

/// A frequency table of any number of dimensions, or a count (no dimension, one cell).
struct TableResult {
    const language::TableCommand* command = nullptr;
    std::vector<Dimension> dimensions;
    Cells cells;        ///< ascending by category indices
    bool exact = true;  ///< sums are counts
    double seconds = 0; ///< its share of the pass over the data, and its own finishing
};

} // namespace kelx::execution
