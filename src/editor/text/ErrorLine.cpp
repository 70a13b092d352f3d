// SPDX-License-Identifier: GPL-3.0-or-later
#include "editor/text/ErrorLine.h"

#include <QTextDocument>

#include <cmath>

namespace {

double luminance(const QColor& color) {
    const auto linear = [](double part) {
        return part <= 0.03928 ? part / 12.92 : std::pow((part + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * linear(color.redF()) + 0.7152 * linear(color.greenF()) +
           0.0722 * linear(color.blueF());
}

} // namespace

void ErrorLine::mark(const QTextBlock& block) {
    span_ = QTextCursor(block);
    span_.movePosition(QTextCursor::EndOfBlock, QTextCursor::KeepAnchor);
    hadText_ = span_.hasSelection();
}

QTextBlock ErrorLine::block() const {
    if (span_.isNull() || (hadText_ && !span_.hasSelection()))
        return {};
    return span_.document()->findBlock(span_.selectionStart());
}

int ErrorLine::number() const {
    return block().blockNumber() + 1; // that of no block is -1
}

QColor ErrorLine::colorOn(const QColor& ground) {
    const QColor over = color();
    const auto mixed = [&](int above, int below) {
        return (above * over.alpha() + below * (255 - over.alpha())) / 255;
    };
    return {mixed(over.red(), ground.red()), mixed(over.green(), ground.green()),
            mixed(over.blue(), ground.blue())};
}

QColor ErrorLine::wordsColorOn(const QColor& ground) {
    // Where the contrast with white is as strong as that with black.
    constexpr double middle = 0.179;
    return luminance(colorOn(ground)) > middle ? Qt::black : Qt::white;
}

QList<QTextEdit::ExtraSelection> ErrorLine::words(const QColor& ground) const {
    const QTextBlock faulty = block();
    if (!faulty.isValid())
        return {};
    QTextCursor cursor(faulty);
    cursor.movePosition(QTextCursor::EndOfBlock, QTextCursor::KeepAnchor);
    QTextCharFormat format;
    format.setForeground(wordsColorOn(ground));
    return {{cursor, format}};
}
