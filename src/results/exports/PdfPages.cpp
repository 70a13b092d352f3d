// SPDX-License-Identifier: GPL-3.0-or-later
#include "results/exports/PdfPages.h"

#include <QPainter>
#include <QPrinter>

#include <algorithm>

PdfPages::PdfPages(QPrinter& printer, QPainter& painter, const QSizeF& paper)
    : printer_(&printer), painter_(&painter), paper_(paper) {}

void PdfPages::add(const PdfSlice& slice) {
    const QList<PdfBand>& bands = slice.bands();
    for (qsizetype number = 0; number < bands.size(); ++number) {
        // What is not a row stays with what follows it, so that no heading ends a page.
        qreal together = bands[number].height();
        if (!bands[number].ofRow && number + 1 < bands.size())
            together += bands[number + 1].height();
        place(slice, bands[number], together);
    }
    drawWaiting(slice);
}

void PdfPages::endPage() {
    if (y_ > 0)
        printer_->newPage();
    y_ = 0;
}

void PdfPages::place(const PdfSlice& slice, PdfBand band, qreal together) {
    if (together > room() && y_ + waiting_.height() > 0)
        beginPage(slice, band.ofRow);
    if (band.height() > room())
        return placeInPieces(slice, band);
    if (waiting_.height() <= 0)
        waiting_ = band;
    waiting_.bottom = band.bottom;
    waiting_.ofRow = band.ofRow;
}

/// Of what is higher than a page.
void PdfPages::placeInPieces(const PdfSlice& slice, PdfBand band) {
    drawWaiting(slice);
    while (band.height() > room() && room() > 0) {
        waiting_ = {band.top, band.top + room(), band.ofRow};
        band.top = waiting_.bottom;
        beginPage(slice, false);
    }
    waiting_ = band;
}

void PdfPages::beginPage(const PdfSlice& slice, bool withHeader) {
    drawWaiting(slice);
    printer_->newPage();
    y_ = 0;
    if (!withHeader || slice.header().height() > paper_.height() / 2)
        return;
    waiting_ = slice.header();
    drawWaiting(slice);
}

void PdfPages::drawWaiting(const PdfSlice& slice) {
    if (waiting_.height() > 0) {
        const qreal width = std::max(paper_.width(), slice.width());
        const qreal scale = printer_->pageRect(QPrinter::DevicePixel).width() / width;
        painter_->save();
        painter_->scale(scale, scale);
        painter_->translate(0, y_ * width / paper_.width());
        slice.draw(*painter_, waiting_);
        painter_->restore();
        y_ += waiting_.height();
    }
    waiting_ = {};
}
