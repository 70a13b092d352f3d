// SPDX-License-Identifier: GPL-3.0-or-later
// A highlighter that takes its formats from a colour scheme.
#pragma once

#include <QSyntaxHighlighter>

class QSyntaxStyle;

class QStyleSyntaxHighlighter : public QSyntaxHighlighter {
    Q_OBJECT

public:
    explicit QStyleSyntaxHighlighter(QTextDocument* document = nullptr);

    virtual void setSyntaxStyle(QSyntaxStyle* style); ///< not owned; repaints nothing by itself
    QSyntaxStyle* syntaxStyle() const { return style_; }

private:
    QSyntaxStyle* style_;
};
