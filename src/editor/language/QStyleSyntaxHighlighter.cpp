// SPDX-License-Identifier: GPL-3.0-or-later
#include "editor/language/QStyleSyntaxHighlighter.h"

#include "editor/language/QSyntaxStyle.h"

QStyleSyntaxHighlighter::QStyleSyntaxHighlighter(QTextDocument* document)
    : QSyntaxHighlighter(document), style_(QSyntaxStyle::defaultStyle()) {}

void QStyleSyntaxHighlighter::setSyntaxStyle(QSyntaxStyle* style) {
    style_ = style;
}
