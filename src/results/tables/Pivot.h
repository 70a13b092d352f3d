// SPDX-License-Identifier: GPL-3.0-or-later
// The records of a table of several variables by row and column: the last variable spans the
// columns, the others the rows. Takes a few bytes for each record, however sparse the table is.
#pragma once

#include "results/tables/RowOrder.h"

#include <cstddef>
#include <cstdint>
#include <limits>
#include <vector>

class TKelDataset;

class Pivot {
public:
    /// Stands for a combination that has no record.
    static constexpr std::uint32_t none = std::numeric_limits<std::uint32_t>::max();

    /// For each of the variables, at least two, the data have the fields code, label and kind; the
    /// figure is their last field. Without data there are no rows and columns.
    Pivot(TKelDataset* data, std::size_t variables);

    std::size_t rowVariables() const { return rowVariables_; }
    /// Those that occur, in their order.
    const std::vector<TableCategory>& categories(std::size_t variable) const {
        return categories_[variable];
    }
    /// Of the last variable.
    const std::vector<TableCategory>& columns() const { return categories_.back(); }

    /// Combinations of the row variables, in the order of their categories; no two are equal.
    std::size_t rows() const { return rowStarts_.size(); }
    /// The number of a row's category.
    std::uint32_t categoryOf(std::size_t row, std::size_t rowVariable) const;
    const TableCategory& rowCategory(std::size_t row, std::size_t rowVariable) const {
        return categories_[rowVariable][categoryOf(row, rowVariable)];
    }
    /// The record of the row in each column, or none.
    void findRecords(std::size_t row, std::vector<std::uint32_t>& byColumn) const;

private:
    void read(TKelDataset& data);
    void startStretch(const std::vector<std::uint32_t>& key);
    void sortCategories();
    void renumber(std::size_t variable, const std::vector<std::uint32_t>& numbers);
    void sortStretches();
    void joinStretches();
    bool haveSameKey(std::uint32_t a, std::uint32_t b) const;

    std::size_t rowVariables_;
    std::vector<std::vector<TableCategory>> categories_; ///< by variable
    std::vector<std::uint32_t> columnOf_;                ///< by record
    // Stretches: records that follow one another and stand in the same row.
    std::vector<std::uint32_t> firsts_;    ///< first record of each stretch
    std::vector<std::uint32_t> keys_;      ///< categories of each stretch
    std::vector<std::uint32_t> order_;     ///< of stretches by their rows
    std::vector<std::uint32_t> rowStarts_; ///< place in the order of each row's first stretch
};
