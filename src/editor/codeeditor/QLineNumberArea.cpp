// SPDX-License-Identifier: GPL-3.0-or-later
#include "editor/codeeditor/QLineNumberArea.h"

#include "editor/codeeditor/QCodeEditor.h"
#include "editor/language/QSyntaxStyle.h"

#include <QAbstractTextDocumentLayout>
#include <QPaintEvent>
#include <QPainter>
#include <QScrollBar>
#include <QTextBlock>

namespace {

constexpr int marginWithoutGutter = 5;
constexpr int padding = 13;
constexpr int rightMargin = 5;

} // namespace

QLineNumberArea::QLineNumberArea(QCodeEditor* editor) : QWidget(editor), editor_(editor) {
    setObjectName(QStringLiteral("lineNumberArea"));
}

void QLineNumberArea::setSyntaxStyle(QSyntaxStyle* style) {
    style_ = style;
    update();
}

void QLineNumberArea::setGutter(bool visible, bool numbers) {
    visible_ = visible;
    numbers_ = numbers;
    update();
}

QSize QLineNumberArea::sizeHint() const {
    if (!visible_)
        return {marginWithoutGutter, 0};
    const auto digits = QString::number(editor_->document()->blockCount()).size();
    return {int(digits) * editor_->fontMetrics().horizontalAdvance(u'9') + padding, 0};
}

void QLineNumberArea::paintEvent(QPaintEvent* event) {
    QPainter painter(this);
    painter.fillRect(event->rect(), editor_->palette().color(QPalette::Base));
    if (visible_ && numbers_ && style_ != nullptr)
        paintNumbers(painter, event->rect());
}

void QLineNumberArea::paintNumbers(QPainter& painter, const QRect& strip) {
    const QColor plain = style_->getFormat(QStringLiteral("LineNumber")).foreground().color();
    const QColor current =
        style_->getFormat(QStringLiteral("CurrentLineNumber")).foreground().color();
    const QAbstractTextDocumentLayout& layout = *editor_->document()->documentLayout();
    const int scrolled = editor_->verticalScrollBar()->value();
    const int currentNumber = editor_->textCursor().blockNumber();
    painter.setFont(editor_->font());
    for (QTextBlock block = editor_->cursorForPosition({0, 0}).block(); block.isValid();
         block = block.next()) {
        const QRectF box = layout.blockBoundingRect(block).translated(0, -scrolled);
        if (box.top() > strip.bottom())
            return;
        painter.setPen(block.blockNumber() == currentNumber ? current : plain);
        painter.drawText(QRectF(-rightMargin, box.top(), width(), painter.fontMetrics().height()),
                         Qt::AlignRight | Qt::AlignVCenter,
                         QString::number(block.blockNumber() + 1));
    }
}
