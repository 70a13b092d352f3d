// SPDX-License-Identifier: GPL-3.0-or-later
// A turning wheel of spokes that tells that something goes on whose length nobody knows.
#pragma once

#include <QTimer>
#include <QWidget>

/// As high as a line of text, in the text's colour. Hidden, with its place kept, while it stands.
class WaitingSpinnerWidget : public QWidget {
    Q_OBJECT

public:
    explicit WaitingSpinnerWidget(QWidget* parent = nullptr);

    bool isSpinning() const { return timer_.isActive(); }
    QSize sizeHint() const override;

public slots:
    void start();
    void stop();
    void rotate(); ///< by one spoke

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    QTimer timer_;
    int leading_ = 0; ///< the darkest spoke
};
