// SPDX-License-Identifier: GPL-3.0-or-later
// The gutter of an editor: the numbers of the lines that are seen.
#pragma once

#include <QColor>
#include <QWidget>

class Editor;
class QSyntaxStyle;

class LineNumberArea : public QWidget {
    Q_OBJECT

public:
    explicit LineNumberArea(Editor& editor);

    void setVisibility(bool gutter, bool numbers);
    void setSyntaxStyle(const QSyntaxStyle& style);
    void setCurrentLine(int line); ///< 1-based
    int widthHint() const;         ///< in pixels, for the document as it is
    /// The document was scrolled by dy pixels, or has to be drawn anew there.
    void follow(const QRect& rect, int dy);

    QSize sizeHint() const override { return {widthHint(), 0}; }

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    Editor& editor_;
    bool gutter_ = true;
    bool numbers_ = true;
    int currentLine_ = 1;
    QColor background_;
    QColor number_;
    QColor currentNumber_;
};
