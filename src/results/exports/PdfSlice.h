// SPDX-License-Identifier: GPL-3.0-or-later
// Some rows of a printed table, laid out in pages. A document of all rows of a large table would
// need more memory than there is.
#pragma once

#include <QFont>
#include <QList>
#include <QSizeF>
#include <QTextDocument>

class HtmlReport;
class QPainter;
class QTextTable;

/// In units of the screen.
struct PdfLayout {
    QFont font;
    QSizeF page;
    QList<qreal> columns; ///< widths
};

class PdfSlice {
public:
    /// Rows from first up to end; those that end up on a last page with room left are kept for the
    /// next slice, unless they are the table's last.
    PdfSlice(const HtmlReport& html, const PdfLayout& layout, qsizetype first, qsizetype end);

    int pages() const { return pages_; }
    qsizetype next() const { return next_; } ///< the first row that is on none of the pages
    /// Fills the paper, whose size is in units of the painter.
    void draw(QPainter& painter, int page, const QSizeF& paper) const;

private:
    QTextTable* table() const;
    void setColumns(const PdfLayout& layout, int headerRows);
    static void drawLinesOnce(QTextTable& table, int row, int column);
    void keepLastPage(int headerRows);
    int pageOf(int row) const;
    bool endsAbove(int row, qreal y) const;

    QTextDocument document_;
    int pages_ = 0;
    qsizetype first_;
    qsizetype next_;
};
