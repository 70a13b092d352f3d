// SPDX-License-Identifier: GPL-3.0-or-later
// The columns of a crosstab: total, variables, MV and NA in the order that the user chose.
#pragma once

#include "results/tables/Pivot.h"
#include "results/tables/TableViewConfig.h"

#include <QString>

#include <vector>

struct CrossColumn {
    TableCategory category;
    std::uint32_t number = Pivot::none; ///< among the categories; none where it does not occur

    QString heading() const; ///< "1. Male"; "Total", "MV" or "NA"
    QString name() const;    ///< "1. Male"; "0. __tot__" and the like
    QString label() const;   ///< "Male"; "Total", "MV" or "NA"
};

/// Whether rows and columns of the kind are hidden; those of totals are told apart.
bool isHidden(CategoryKind kind, const TableViewConfig& options);

/// Without those that are hidden. A group that the order does not name is left out; an empty order
/// is the usual one.
std::vector<CrossColumn> arrangedColumns(const std::vector<TableCategory>& categories,
                                         const TableViewConfig& options);
/// The same. Where MV or NA occurs, both have a column.
std::vector<CrossColumn> crossColumns(const std::vector<TableCategory>& categories,
                                      const TableViewConfig& options);
