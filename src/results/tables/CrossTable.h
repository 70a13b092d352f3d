// SPDX-License-Identifier: GPL-3.0-or-later
// What the layouts of crosstabs share: the pivot of an output, the rows and columns to be shown,
// their headings and figures.
#pragma once

#include "results/tables/CrossColumns.h"
#include "results/tables/Pivot.h"
#include "results/tables/TableLayout.h"

#include <QCoreApplication>

#include <cstdint>
#include <vector>

class TKelDataset;
class TKelOutput;

class CrossTable {
    Q_DECLARE_TR_FUNCTIONS(CrossTable)

public:
    /// More cells than these are not laid out: they could exhaust the memory.
    static constexpr std::int64_t mostCells = 50'000'000;

    /// At least two variables span the output.
    CrossTable(TKelOutput& output, const TableViewConfig& options,
               const TablePreferences& preferences);
    /// Whether an output can be laid out so: it has one figure for each combination.
    static bool suits(TKelOutput& output);

    const Pivot& pivot() const { return pivot_; }
    const std::vector<CrossColumn>& columns() const { return columns_; }
    /// The rows of the pivot that are not hidden.
    const std::vector<std::uint32_t>& rows() const { return rows_; }

    QString heading(std::size_t variable) const { return names_[variable].heading; }
    /// The rows' variable as a column that is no figure.
    void addRowVariable(std::size_t variable, TableLayout& layout) const;
    /// The figures of a row of the pivot, or as many empty cells for Pivot::none.
    void addFigures(std::uint32_t row, CellTexts& texts);

    static bool fits(std::int64_t rows, std::int64_t columns) {
        return columns == 0 || rows <= mostCells / columns;
    }
    /// Tells the user why a table of that size has no rows.
    static QString tooLargeNote(std::int64_t rows, std::int64_t columns);

private:
    std::vector<std::uint32_t> findShownRows(const TableViewConfig& options) const;

    TKelDataset* data_;
    struct Names {
        QString heading, path, title;
    };
    std::vector<Names> names_; ///< by variable
    Pivot pivot_;
    std::vector<CrossColumn> columns_;
    std::vector<std::uint32_t> rows_;
    std::vector<std::uint32_t> records_; ///< of the row at hand, by column of the pivot
};
