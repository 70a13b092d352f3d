// SPDX-License-Identifier: GPL-3.0-or-later
// Puts cells of results on the clipboard, for spreadsheets and for editors of text.
#pragma once

#include <QRect>
#include <QString>

class QAbstractItemModel;
class QMimeData;
class TableBase;

/// Text with tabs, and HTML that says which cells are figures, so that codes keep their zeros. Of a
/// very large number of cells the text alone.
class ResultClipboard {
public:
    /// The cells of a model of results, in full precision; a line feed ends the last row too.
    static bool copy(const QAbstractItemModel& model, const QRect& cells);
    /// The column headers and all rows.
    static bool copy(const TableBase& table);

    /// More are not copied: copy() is false then, and the clipboard as it was.
    static constexpr qint64 mostCells = 20'000'000;
    /// More go as text alone.
    static constexpr qint64 mostHtmlCells = 200'000;
};
