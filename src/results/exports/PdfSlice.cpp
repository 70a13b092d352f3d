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

PdfSlice::PdfSlice(const HtmlReport& html, const PdfLayout& layout, qsizetype first, qsizetype end)
    : first_(first), next_(end) {
    document_.setUndoRedoEnabled(false);
    document_.setDefaultFont(layout.font);
    document_.setDocumentMargin(0);
    document_.setUseDesignMetrics(true);
    QTextOption option = document_.defaultTextOption();
    option.setWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
    document_.setDefaultTextOption(option);
    document_.setHtml(html.slice(first, end));
    setColumns(layout, html.headerRows());
    document_.setPageSize(layout.page);
    pages_ = document_.pageCount();
    if (end < html.rows() && pages_ > 1)
        keepLastPage(html.headerRows());
}

QTextTable* PdfSlice::table() const {
    for (QTextFrame* frame : document_.rootFrame()->childFrames())
        if (auto* table = qobject_cast<QTextTable*>(frame))
            return table;
    return nullptr;
}

/// The header stands at the top of each page.
void PdfSlice::setColumns(const PdfLayout& layout, int headerRows) {
    QTextTable* const table = this->table();
    if (table == nullptr)
        return;
    QTextTableFormat format = table->format();
    QList<QTextLength> widths;
    for (const qreal width :
         layout.columns.first(std::min<qsizetype>(layout.columns.size(), table->columns())))
        widths += QTextLength(QTextLength::FixedLength, width);
    format.setColumnWidthConstraints(widths);
    format.setHeaderRowCount(std::min(headerRows, table->rows() - 1));
    // Borders that collapse take three times as long; drawing each line once looks the same.
    format.setBorderCollapse(false);
    format.setCellSpacing(0);
    table->setFormat(format);
    for (int row = 0; row < table->rows(); ++row)
        for (int column = 0; column < table->columns(); ++column)
            drawLinesOnce(*table, row, column);
}

/// Right and below; above and left as well at the edges of the table.
void PdfSlice::drawLinesOnce(QTextTable& table, int row, int column) {
    QTextTableCell cell = table.cellAt(row, column);
    if (cell.row() != row || cell.column() != column)
        return;
    QTextTableCellFormat format = cell.format().toTableCellFormat();
    if (row > 0)
        format.setTopBorderStyle(QTextFrameFormat::BorderStyle_None);
    if (column > 0)
        format.setLeftBorderStyle(QTextFrameFormat::BorderStyle_None);
    cell.setFormat(format);
}

int PdfSlice::pageOf(int row) const {
    const QTextBlock block = table()->cellAt(row, 0).firstCursorPosition().block();
    const qreal top = document_.documentLayout()->blockBoundingRect(block).top();
    return static_cast<int>(top / document_.pageSize().height());
}

bool PdfSlice::endsAbove(int row, qreal y) const {
    for (int column = 0; column < table()->columns(); ++column) {
        const QTextBlock block = table()->cellAt(row, column).lastCursorPosition().block();
        if (document_.documentLayout()->blockBoundingRect(block).bottom() > y)
            return false;
    }
    return true;
}

/// A row that runs over from the page before stays with it: then the last page is printed as it is.
void PdfSlice::keepLastPage(int headerRows) {
    int row = table()->rows();
    while (row - 1 > headerRows && pageOf(row - 1) >= pages_ - 1)
        --row;
    if (row == table()->rows() || !endsAbove(row - 1, document_.pageSize().height() * (pages_ - 1)))
        return;
    --pages_;
    next_ = first_ + row - headerRows;
}

void PdfSlice::draw(QPainter& painter, int page, const QSizeF& paper) const {
    const QSizeF sheet = document_.pageSize();
    const qreal needed = std::max(sheet.width(), document_.size().width());
    const QRectF view(0, page * sheet.height(), needed, sheet.height());
    QAbstractTextDocumentLayout::PaintContext context;
    context.palette.setColor(QPalette::Text, Qt::black);
    context.clip = view;
    painter.save();
    painter.scale(paper.width() / needed, paper.width() / needed);
    painter.translate(0, -view.top());
    painter.setClipRect(view);
    document_.documentLayout()->draw(&painter, context);
    painter.restore();
}
