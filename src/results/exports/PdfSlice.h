// SPDX-License-Identifier: GPL-3.0-or-later
// Some rows of a printed table, laid out without pages. A document of all rows of a large table
// would need more memory than there is.
#pragma once

#include "results/exports/ColumnBlock.h"

#include <QFont>
#include <QList>
#include <QTextDocument>

class HtmlReport;
class QPainter;
class QTextTable;

/// In units of the screen.
struct PdfLayout {
    QFont font;
    qreal width = 0;
    ColumnBlock block;
    QList<qreal> columns; ///< widths of those of the block
};

/// What stands together on a page: a paragraph, the header of the table, a row.
struct PdfBand {
    qreal top = 0;
    qreal bottom = 0;
    bool ofRow = false; ///< needs the header above it and a line below

    qreal height() const { return bottom - top; }
};

class PdfSlice {
public:
    PdfSlice(const HtmlReport& html, const PdfLayout& layout, qsizetype first, qsizetype end);

    /// From above, each below the one before. The header is among them in the first slice of a
    /// block only.
    const QList<PdfBand>& bands() const { return bands_; }
    const PdfBand& header() const { return header_; }
    qreal width() const; ///< what is needed so that nothing is cut off
    /// With its upper left corner at the painter's origin.
    void draw(QPainter& painter, const PdfBand& band) const;

private:
    QTextTable* table() const;
    void setColumns(QTextTable& table, const PdfLayout& layout);
    static void drawLinesOnce(QTextTable& table, int row, int column);
    void findParagraphs(int from, int to);
    void findRows(const QTextTable& table, bool withHeader, int headerRows, int rows);
    qreal topOf(const QTextTable& table, int row) const;
    void addBand(qreal bottom, bool ofRow);

    QTextDocument document_;
    QList<PdfBand> bands_;
    PdfBand header_;
    qreal below_ = 0; ///< where the next band begins
};
