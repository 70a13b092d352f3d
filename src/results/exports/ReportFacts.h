// SPDX-License-Identifier: GPL-3.0-or-later
// What the written reports say alike about a table.
#pragma once

#include "results/tables/TableMetadata.h"

#include <QList>
#include <QString>

/// As written, whatever the language of the interface.
inline QString sortWord(const TableSort& sort) {
    return sort.ascending ? QStringLiteral("Ascending") : QStringLiteral("Descending");
}

inline QString entityTitle(const TableMetadata& facts) {
    return facts.entityLabel.isEmpty() ? facts.entityName : facts.entityLabel;
}

/// Of the alignments of the grid, which hold for the report too.
inline bool isNumericColumn(const QList<int>& alignments, qsizetype column) {
    constexpr int horizontal = 31;
    return (alignments.value(column) & horizontal) == 2;
}
