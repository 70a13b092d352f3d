// SPDX-License-Identifier: GPL-3.0-or-later
#include "results/exports/PdfSlice.h"

#include "results/exports/HtmlReport.h"

#include <QAbstractTextDocumentLayout>
#include <QPainter>
#include <QTextBlock>
#include <QTextFrame>
#include <QTextOption>
#include <QTextTable>

#include <algorithm>

namespace {

constexpr qreal line = 1; ///< how thick the borders are

} // namespace

PdfSlice::PdfSlice(const HtmlReport& html, const PdfLayout& layout, qsizetype first,
                   qsizetype end) {
    document_.setUndoRedoEnabled(false);
    document_.setDefaultFont(layout.font);
    document_.setDocumentMargin(0);
    document_.setUseDesignMetrics(true);
    QTextOption option = document_.defaultTextOption();
    option.setWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
    document_.setDefaultTextOption(option);
    // The line above the next row closes the last one.
    document_.setHtml(html.slice(first, std::min(end + 1, html.rows()), layout.block));
    QTextTable* const table = this->table();
    if (table != nullptr)
        setColumns(*table, layout);
    document_.setTextWidth(layout.width);
    findParagraphs(0, table != nullptr ? table->firstPosition() - 1 : document_.characterCount());
    if (table == nullptr)
        return;
    findRows(*table, first == 0, html.headerRows(layout.block), static_cast<int>(end - first));
    if (end == html.rows())
        findParagraphs(table->lastPosition() + 1, document_.characterCount());
}

QTextTable* PdfSlice::table() const {
    for (QTextFrame* frame : document_.rootFrame()->childFrames())
        if (auto* table = qobject_cast<QTextTable*>(frame))
            return table;
    return nullptr;
}

void PdfSlice::setColumns(QTextTable& table, const PdfLayout& layout) {
    QTextTableFormat format = table.format();
    QList<QTextLength> widths;
    for (qsizetype column = 0; column < layout.columns.size() && column < table.columns(); ++column)
        widths += QTextLength(QTextLength::FixedLength, layout.columns[column]);
    format.setColumnWidthConstraints(widths);
    // Borders that collapse take three times as long; drawing each line once looks the same.
    format.setBorderCollapse(false);
    format.setCellSpacing(0);
    table.setFormat(format);
    for (int row = 0; row < table.rows(); ++row)
        for (int column = 0; column < table.columns(); ++column)
            drawLinesOnce(table, row, column);
}

/// Left and above, where the ground of no later cell covers them; right and below as well at the
/// edges of the table.
void PdfSlice::drawLinesOnce(QTextTable& table, int row, int column) {
    QTextTableCell cell = table.cellAt(row, column);
    if (cell.row() != row || cell.column() != column)
        return;
    QTextTableCellFormat format = cell.format().toTableCellFormat();
    if (row + cell.rowSpan() < table.rows()) {
        format.setBottomBorderStyle(QTextFrameFormat::BorderStyle_None);
        format.setBottomBorder(0);
    }
    if (column + cell.columnSpan() < table.columns()) {
        format.setRightBorderStyle(QTextFrameFormat::BorderStyle_None);
        format.setRightBorder(0);
    }
    cell.setFormat(format);
}

void PdfSlice::addBand(qreal bottom, bool ofRow) {
    bands_ += PdfBand{below_, bottom, ofRow};
    below_ = bottom;
}

/// The empty one that ends each document needs no room.
void PdfSlice::findParagraphs(int from, int to) {
    QTextBlock block = document_.findBlock(from);
    for (; block.isValid() && block.position() < to; block = block.next())
        if (block.length() > 1 || block.next().isValid())
            addBand(document_.documentLayout()->blockBoundingRect(block).bottom(), false);
}

qreal PdfSlice::topOf(const QTextTable& table, int row) const {
    const QTextTableCell cell = table.cellAt(row, 0);
    const QTextBlock block = cell.firstCursorPosition().block();
    return document_.documentLayout()->blockBoundingRect(block).top() -
           cell.format().toTableCellFormat().topPadding() - line;
}

void PdfSlice::findRows(const QTextTable& table, bool withHeader, int headerRows, int rows) {
    const QRectF frame =
        document_.documentLayout()->frameBoundingRect(const_cast<QTextTable*>(&table));
    const int header = std::min(headerRows, table.rows());
    const qreal body = header < table.rows() ? topOf(table, header) : frame.bottom();
    header_ = {topOf(table, 0), body, false};
    if (withHeader)
        addBand(body, false);
    below_ = body;
    for (int row = header + 1; row <= header + rows; ++row)
        addBand(row < table.rows() ? topOf(table, row) : frame.bottom(), true);
}

qreal PdfSlice::width() const {
    return std::max(document_.textWidth(), document_.size().width());
}

void PdfSlice::draw(QPainter& painter, const PdfBand& band) const {
    const QRectF view(0, band.top, width(), band.height() + (band.ofRow ? line : 0));
    QAbstractTextDocumentLayout::PaintContext context;
    context.palette.setColor(QPalette::Text, Qt::black);
    context.clip = view;
    painter.save();
    painter.translate(0, -band.top);
    painter.setClipRect(view);
    document_.documentLayout()->draw(&painter, context);
    painter.restore();
}
