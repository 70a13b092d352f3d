// SPDX-License-Identifier: GPL-3.0-or-later
// How a result table is laid out and shown; each table has a copy.
#pragma once

#include "results/tables/TablePreferences.h"

#include <QString>
#include <QStringList>

namespace columnkeys {
inline const QString total = QStringLiteral("__tot__");
inline const QString variables = QStringLiteral("Variables");
inline const QString missing = QStringLiteral("__mv__");
inline const QString notApplicable = QStringLiteral("__na__");
} // namespace columnkeys

struct TableViewConfig {
    enum RowsOrder { Default = 0, Ascending = 1, Descending = 2 };

    TableViewConfig() = default;
    /// Decimals and separator from the preferences, the rest as it stands below.
    explicit TableViewConfig(const TablePreferences& preferences);
    /// From a style file. What it lacks, and all where it cannot be read (a warning in the log
    /// tells why), is as the preferences have it.
    explicit TableViewConfig(const QString& path, const TablePreferences& preferences = {});

    bool hideNa = false;
    bool hideMv = false;
    bool hideTotal = false;
    bool showTotalsRow = false;
    bool showPercent = true;      ///< kept; no layout uses it
    bool showCumulPercent = true; ///< kept; no layout uses it
    bool showNaOneVariable = true;
    bool showMvOneVariable = true;
    bool showNaSeveralVariables = true;
    bool showMvSeveralVariables = true;
    QString threeVarLayout = QStringLiteral("default"); ///< or "matrixByFirstVar"
    int rowsOrder = Default;
    int sortColumn = -1; ///< reserved
    QStringList columnOrder{columnkeys::total, columnkeys::variables, columnkeys::missing,
                            columnkeys::notApplicable};
    QStringList columnGroupLabels{QStringLiteral("Total"), QStringLiteral("Variables"),
                                  QStringLiteral("MV"), QStringLiteral("NA")};
    int decimals = 2;
    QString thousandSep = QStringLiteral(",");
};
