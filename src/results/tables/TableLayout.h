// SPDX-License-Identifier: GPL-3.0-or-later
// What a layout makes of an output: headers and rows of texts, not yet formatted.
#pragma once

#include "results/tables/CellTexts.h"

#include <QList>
#include <QString>
#include <QStringList>

#include <optional>
#include <utility>
#include <vector>

/// Rows of header items; the four lists have the same shape.
struct HeaderRows {
    QList<QStringList> texts;
    QList<QStringList> colors;
    QList<QList<std::pair<int, int>>> spans;     ///< columns, rows
    QList<QList<std::pair<int, int>>> positions; ///< column, row

    /// In the last row begun, in the usual colour.
    void add(const QString& text, int column, int columnSpan = 1, int rowSpan = 1);
    void startRow();
};

struct TableLayout {
    QStringList columnHeaders; ///< one for each column, as shown
    QStringList columnNames;   ///< field names
    QStringList columnLabels;  ///< field labels
    HeaderRows header;
    CellTexts cells;
    std::optional<CellTexts> report; ///< nothing where the report has the same rows
    std::vector<bool> textColumns;   ///< of codes and labels, which are never figures
    QString note;                    ///< why there are headers only; empty where nothing is missing
};
