// SPDX-License-Identifier: GPL-3.0-or-later
#include "editor/codeeditor/QFramedTextAttribute.h"

#include "editor/language/QSyntaxStyle.h"

#include <QPainter>
#include <QTextBlock>
#include <QTextEdit>

QFramedTextAttribute::QFramedTextAttribute(QObject* parent) : QObject(parent) {}

QSizeF QFramedTextAttribute::intrinsicSize(QTextDocument*, int, const QTextFormat&) {
    return {0, 0};
}

void QFramedTextAttribute::drawObject(QPainter* painter, const QRectF& rect, QTextDocument*, int,
                                      const QTextFormat& format) {
    if (style_ == nullptr || format.property(wordProperty()).toString().isEmpty())
        return;
    constexpr double radius = 4;
    const QColor color = style_->getFormat(QStringLiteral("Occurrences")).background().color();
    painter->save();
    painter->setRenderHint(QPainter::Antialiasing);
    painter->setPen(QPen(color, 2));
    painter->setBrush(Qt::NoBrush);
    painter->drawRoundedRect(rect.translated(0, -rect.height()).adjusted(0, 4, 0, 4), radius,
                             radius);
    painter->restore();
}

void QFramedTextAttribute::frame(const QTextCursor& occurrence) {
    frames_.append(occurrence);
}

void QFramedTextAttribute::paint(QPainter& painter, QTextEdit& editor) {
    const QRect view = editor.viewport()->rect();
    const int first = editor.cursorForPosition(view.topLeft()).block().position();
    const QTextBlock lastBlock = editor.cursorForPosition(view.bottomRight()).block();
    const int end = lastBlock.position() + lastBlock.length();
    for (const QTextCursor& word : frames_) {
        if (word.selectionStart() < first || word.selectionEnd() > end || !word.hasSelection())
            continue;
        QTextCursor edge = word;
        edge.setPosition(word.selectionStart());
        const QRectF from = editor.cursorRect(edge);
        edge.setPosition(word.selectionEnd());
        const QRectF to = editor.cursorRect(edge);
        QTextCharFormat format;
        format.setObjectType(objectType());
        format.setProperty(wordProperty(), word.selectedText());
        const QFontMetricsF metrics(editor.font());
        const QRectF text(from.left(), from.top() + metrics.ascent(), to.left() - from.left(),
                          metrics.height());
        drawObject(&painter, text, editor.document(), word.selectionStart(), format);
    }
}
