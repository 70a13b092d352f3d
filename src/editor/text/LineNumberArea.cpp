// SPDX-License-Identifier: GPL-3.0-or-later
#include "editor/text/LineNumberArea.h"

#include "editor/language/QSyntaxStyle.h"
#include "editor/text/Editor.h"

#include <QPaintEvent>
#include <QPainter>

namespace {

constexpr int gutterPadding = 30; // pixels beside the digits
constexpr int widthWithoutGutter = 5;

/// The brush's colour, or the other one where the scheme names none.
QColor colorOf(const QBrush& brush, const QColor& otherwise) {
    return brush.style() == Qt::NoBrush ? otherwise : brush.color();
}

} // namespace

LineNumberArea::LineNumberArea(Editor& editor) : QWidget(&editor), editor_(editor) {
    setObjectName(QStringLiteral("lineNumberArea"));
}

void LineNumberArea::setVisibility(bool gutter, bool numbers) {
    gutter_ = gutter;
    numbers_ = numbers;
    update();
}

void LineNumberArea::setSyntaxStyle(const QSyntaxStyle& style) {
    const QPalette colors = editor_.palette();
    const auto foreground = [&](const char* name) {
        return colorOf(style.getFormat(QLatin1String(name)).foreground(),
                       colors.color(QPalette::Text));
    };
    background_ =
        colorOf(style.getFormat(QStringLiteral("Text")).background(), colors.color(QPalette::Base));
    number_ = foreground("LineNumber");
    currentNumber_ = foreground("CurrentLineNumber");
    update();
}

void LineNumberArea::setCurrentLine(int line) {
    if (line == currentLine_)
        return;
    currentLine_ = line;
    update();
}

int LineNumberArea::widthHint() const {
    if (!gutter_)
        return widthWithoutGutter;
    const auto digits = QString::number(editor_.blockCount()).size();
    return static_cast<int>(digits) * editor_.fontMetrics().horizontalAdvance(u'9') + gutterPadding;
}

void LineNumberArea::follow(const QRect& rect, int dy) {
    if (dy != 0)
        scroll(0, dy);
    else
        update(0, rect.y(), width(), rect.height());
}

void LineNumberArea::paintEvent(QPaintEvent* event) {
    QPainter painter(this);
    painter.fillRect(event->rect(), background_);
    if (!gutter_ || !numbers_)
        return;
    painter.setFont(editor_.font());
    const int height = editor_.fontMetrics().height();
    for (const VisibleLine& line : editor_.visibleLines(event->rect())) {
        painter.setPen(line.number == currentLine_ ? currentNumber_ : number_);
        painter.drawText(0, line.top, width(), height, Qt::AlignCenter,
                         QString::number(line.number));
    }
}
