// SPDX-License-Identifier: GPL-3.0-or-later
// A label for long paths: shows what fits, the middle left out, and the whole in its tool tip.
#pragma once

#include <QLabel>

/// text() is the whole. Plain text; a single line.
class ElidedLabel : public QLabel {
    Q_OBJECT

public:
    explicit ElidedLabel(QWidget* parent = nullptr);

    void setFullText(const QString& text);
    QString shownText() const; ///< as it fits now

    QSize minimumSizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;
};
