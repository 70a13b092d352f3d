// SPDX-License-Identifier: GPL-3.0-or-later
// The pages of a printed table: filled from above, with the header of the table at the top of each
// that goes on with its rows.
#pragma once

#include "results/exports/PdfSlice.h"

#include <QSizeF>

class QPainter;
class QPrinter;

class PdfPages {
public:
    /// paper: of a page, in units of the screen.
    PdfPages(QPrinter& printer, QPainter& painter, const QSizeF& paper);

    void add(const PdfSlice& slice);
    /// What is added next begins a page.
    void endPage();

private:
    void place(const PdfSlice& slice, PdfBand band, qreal together);
    void placeInPieces(const PdfSlice& slice, PdfBand band);
    void beginPage(const PdfSlice& slice, bool withHeader);
    void drawWaiting(const PdfSlice& slice);
    qreal room() const { return paper_.height() - y_ - waiting_.height(); }

    QPrinter* printer_;
    QPainter* painter_;
    QSizeF paper_;
    qreal y_ = 0;     ///< how far the page is filled
    PdfBand waiting_; ///< placed below it, to be drawn in one piece
};
