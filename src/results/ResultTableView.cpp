// SPDX-License-Identifier: GPL-3.0-or-later
#include "results/ResultTableView.h"

#include "results/ColumnWidths.h"
#include "results/ResultModel.h"
#include "results/WideCellDelegate.h"

#include <QHeaderView>
#include <QPaintEvent>
#include <QPainter>
#include <QScrollBar>

#include <algorithm>

namespace {

const QString headerSheet = QStringLiteral(
    "QHeaderView::section {\n\tfont-weight:600;\n\tcolor: #FFFFFF;\n\tbackground-color: "
    "#3399FF;\n\tpadding: 4px;\n\tfont-size: 10pt;\n\tborder-style: none;\n\tborder-bottom: 1px "
    "solid #fffff8;\n\tborder-right: 1px solid #fffff8;\n}\nQHeaderView::section:horizontal "
    "{\n\tborder-top: 1px solid #fffff8;\n}\nQHeaderView::section:vertical {\n\tborder-left: 1px "
    "solid #fffff8;\n}\nQTableWidget::item {\n\tbackground-color: #99CCFF;\n}\n");

} // namespace

ResultTableView::ResultTableView(ResultModel* model, const QString& objectName, int rowHeight)
    : model_(model) {
    setObjectName(objectName);
    model->setParent(this);
    setModel(model);
    setItemDelegate(new WideCellDelegate(this));
    // What is drawn in the seen part of a wide cell moves with that part.
    connect(horizontalScrollBar(), &QScrollBar::valueChanged, viewport(),
            qOverload<>(&QWidget::update));
    setStyleSheet(headerSheet);
    setEditTriggers(NoEditTriggers);
    setSelectionMode(ExtendedSelection);
    setSelectionBehavior(SelectItems);
    setContextMenuPolicy(Qt::CustomContextMenu);
    setHorizontalScrollMode(ScrollPerPixel);
    setWordWrap(false);
    setTabKeyNavigation(false);
    verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    verticalHeader()->setDefaultSectionSize(std::max(rowHeight, fontMetrics().height() + 8));
    horizontalHeader()->setHighlightSections(false);
    horizontalHeader()->setMinimumSectionSize(1);
}

void ResultTableView::setPaper(int margin) {
    margin_ = margin;
}

void ResultTableView::paintEvent(QPaintEvent* event) {
    // The style sheet undoes a palette of the view's own.
    if (margin_ > 0)
        QPainter(viewport()).fillRect(event->rect(), Qt::white);
    QTableView::paintEvent(event);
}

void ResultTableView::fit() {
    clearSpans();
    for (const CellSpan& span : model_->spans())
        if (span.isWide() && span.row + span.rows <= model_->rowCount() &&
            span.column + span.columns <= model_->columnCount())
            setSpan(span.row, span.column, span.rows, span.columns);
    const int height = std::max(headerRowHeight, verticalHeader()->defaultSectionSize());
    for (int row = model_->firstHeaderRow(); row < model_->firstCellRow(); ++row)
        setRowHeight(row, height);
    fitColumns();
    scrollToTop();
}

void ResultTableView::fitColumns() {
    setUpdatesEnabled(false);
    const ColumnWidths widths(*model_, font(), 3 * fontMetrics().averageCharWidth());
    const int columns = model_->columnCount();
    for (int column = 0; column < columns; ++column) {
        const bool isMargin = margin_ > 0 && (column == 0 || column == columns - 1);
        setColumnWidth(column, isMargin ? margin_ : widths.of(column));
    }
    setUpdatesEnabled(true);
}

QRect ResultTableView::selectedBounds() const {
    QRect bounds;
    for (const QItemSelectionRange& range : selectionModel()->selection())
        bounds |= QRect(QPoint(range.left(), range.top()), QPoint(range.right(), range.bottom()));
    return bounds;
}

void ResultTableView::selectionChanged(const QItemSelection& selected,
                                       const QItemSelection& deselected) {
    QTableView::selectionChanged(selected, deselected);
    emit itemSelectionChanged();
}
