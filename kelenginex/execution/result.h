// SPDX-License-Identifier: Apache-2.0
// What a run leaves behind: cells and categories, not yet a table.
#pragma once

#include "execution/discard.h"
#include "execution/sum.h"
#include "language/bound.h"

#include <cstddef>
#include <cstdint>
#include <memory>
#include <span>
#include <string>
#include <variant>
#include <vector>

namespace kelx::execution {

/// A table may have so many rows, totals included, and no more cells.
constexpr std::size_t mostRows = 20'000'000;

/// A list may have so many values, which its rows and columns make.
constexpr std::size_t mostListValues = 100'000'000;

/// Throws std::runtime_error, naming the table that would have more.
[[noreturn]] void throwTooManyRows(const language::TableCommand& command,
                                   std::size_t most = mostRows);

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
    LargeVector<Category> categories;
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
    LargeVector<std::uint32_t> categories_;
    LargeVector<std::uint64_t> records_;
    LargeVector<Sum> sums_; ///< where weighted
};

/// A figure of a measure; blank where there is none.
using Figure = std::variant<std::monostate, std::int64_t, double>;

/// The rows of a table, each with the cells that it joins: row r has those from begins[r] to
/// begins[r + 1] - 1.
struct RowCells {
    LargeVector<std::uint32_t> cells;
    LargeVector<std::size_t> begins{0};

    std::size_t rows() const { return begins.size() - 1; }
    std::span<const std::uint32_t> of(std::size_t row) const {
        return std::span(cells).subspan(begins[row], begins[row + 1] - begins[row]);
    }
};

class Progress;

/// The measured values behind a table's cells, valid ones only.
class Measured {
public:
    virtual ~Measured() = default;
    /// Figures of one row: 1, for a quantile one less than the parts, for STATS 10 (cases, sum,
    /// mean, median, minimum, maximum, standard deviation, variance, coefficient of variation in
    /// percent, standard error).
    virtual std::size_t figures() const = 0;
    /// The figures of all rows, side by side. Cells are numbered as in the table's Cells. Called
    /// once. Throws Cancelled.
    virtual std::vector<Figure> work(const RowCells& rows, Progress& progress) = 0;
};

/// A value of a list; blank, MV and NA in area lists are std::monostate.
using ListValue = std::variant<std::monostate, std::int64_t, double, std::string>;

/// Values of a list's column: one a row, or each once with the number of its value for every row.
struct ListValues {
    LargeVector<ListValue> values;
    LargeVector<std::uint32_t> numbers; ///< empty: values are by row
};

/// The records of an area list or a view, in their order.
struct ListResult {
    std::vector<std::uint64_t> records; ///< of the listed entity
    ListValues codes;  ///< compound codes; record numbers from 1 where the entity has no code
    ListValues labels; ///< of the label variable; empty where the entity has none
    /// One for each column of the command; empty for those that are tables. Views show stored
    /// codes.
    std::vector<ListValues> columns;
};

/// A table of any number of dimensions, a count (no dimension, one cell), or a list.
struct TableResult {
    const language::TableCommand* command = nullptr;
    std::vector<Dimension> dimensions;
    /// Ascending by category indices. Of a measure, only records with a valid value are in it, and
    /// sums are of weights.
    Cells cells;
    bool exact = true;                  ///< sums are counts
    std::shared_ptr<Measured> measured; ///< of a measure
    std::shared_ptr<ListResult> list;   ///< of an area list or a view; then there are no cells
    double seconds = 0; ///< its share of the pass over the data, and its own finishing
};

} // namespace kelx::execution
