// SPDX-License-Identifier: GPL-3.0-or-later
// How wide the columns of a printed table are, measured once for all of its rows, so that all pages
// agree, and which of them stand side by side.
#pragma once

#include "results/exports/ColumnBlock.h"
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
    ColumnBlock all() const { return {0, 0, widths_.size()}; }
    /// Of these, with their frames.
    qreal width(const ColumnBlock& block) const;
    /// All of them where this width holds them; else in turn what it holds beside the labels of the
    /// rows. No column takes more than half of it from now on.
    QList<ColumnBlock> blocks(qreal widest);
    /// The inner widths when these columns fill a width.
    QList<qreal> filling(const ColumnBlock& block, qreal width) const;

private:
    void measureHeader(const TableBase& table, const QFont& font);
    void measureCells(const TableBase& table, const WriteProgress& progress);
    void measure(qsizetype row, qsizetype column, const TableBase& table);
    qreal wordsWidth(const QFontMetricsF& metrics, const QString& text) const;
    QList<qreal> widthsOf(const ColumnBlock& block) const;
    qsizetype repeated(qreal widest) const;

    /// A heading over several columns.
    struct Span {
        qsizetype first;
        qsizetype count;
        qreal width;
    };

    QFontMetricsF metrics_;
    qreal widest_;
    qreal digit_;
    QList<qreal> widths_; ///< of the texts
    QList<Span> spans_;
    qsizetype labels_ = 0; ///< number of first columns that say what a row is about
    bool cancelled_ = false;
};
