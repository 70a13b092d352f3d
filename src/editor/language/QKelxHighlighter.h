// SPDX-License-Identifier: GPL-3.0-or-later
// Colours the command language: reserved words, numbers, strings and comments.
#pragma once

#include "editor/language/QStyleSyntaxHighlighter.h"

#include <QRegularExpression>

class QKelxHighlighter : public QStyleSyntaxHighlighter {
    Q_OBJECT

public:
    explicit QKelxHighlighter(QTextDocument* document = nullptr);
    void setSyntaxStyle(QSyntaxStyle* style) override;

protected:
    void highlightBlock(const QString& text) override;
};
