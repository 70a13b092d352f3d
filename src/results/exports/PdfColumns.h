// SPDX-License-Identifier: GPL-3.0-or-later
// How wide the columns of a printed table are: measured once for all of its rows, so that all pages
// agree.
#pragma once

#include "results/workbook/WriteOutcome.h"

#include <QFontMetricsF>
#include <QList>

class TableBase;

class PdfColumns {
public:
    /// Measures in units of the screen. widest: of a text that can be broken into lines. Asks
    /// progress now and then, with 0 cells done.
    PdfColumns(const TableBase& table, const QFont& font, qreal widest,
               const WriteProgress& progress);

    bool cancelled() const { return cancelled_; }
    qreal width() const; ///< of all, with their frames
    /// The inner widths when the table fills a width that is not less than its own.
    QList<qreal> filling(qreal width) const;

private:
    void measureHeader(const TableBase& table, const QFont& font);
    void measureCells(const TableBase& table, const WriteProgress& progress);
    void measure(qsizetype row, qsizetype column, const TableBase& table);
    qreal wordsWidth(const QFontMetricsF& metrics, const QString& text) const;
    void widen(qsizetype first, qsizetype count, qreal width);

    QFontMetricsF metrics_;
    qreal widest_;
    qreal digit_;
    QList<qreal> widths_; ///< of the texts
    bool cancelled_ = false;
};
