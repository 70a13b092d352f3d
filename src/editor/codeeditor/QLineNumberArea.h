// SPDX-License-Identifier: GPL-3.0-or-later
// The strip with the line numbers at the left of a code editor.
#pragma once

#include <QWidget>

class QCodeEditor;
class QSyntaxStyle;

class QLineNumberArea : public QWidget {
    Q_OBJECT

public:
    explicit QLineNumberArea(QCodeEditor* editor);

    void setSyntaxStyle(QSyntaxStyle* style);
    /// Without the strip a margin of 5 pixels stays; without the numbers it is an empty strip.
    void setGutter(bool visible, bool numbers);
    QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    void paintNumbers(QPainter& painter, const QRect& strip);

    QCodeEditor* editor_;
    QSyntaxStyle* style_ = nullptr;
    bool visible_ = true;
    bool numbers_ = true;
};
