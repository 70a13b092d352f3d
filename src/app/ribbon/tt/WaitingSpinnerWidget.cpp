// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/ribbon/tt/WaitingSpinnerWidget.h"

#include <QPainter>

#include <algorithm>

namespace {

constexpr int spokes = 12;
constexpr int millisecondsPerTurn = 1200;

} // namespace

WaitingSpinnerWidget::WaitingSpinnerWidget(QWidget* parent) : QWidget(parent) {
    setAccessibleName(tr("Busy"));
    setAttribute(Qt::WA_TransparentForMouseEvents);
    QSizePolicy policy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    policy.setRetainSizeWhenHidden(true);
    setSizePolicy(policy);
    timer_.setInterval(millisecondsPerTurn / spokes);
    connect(&timer_, &QTimer::timeout, this, &WaitingSpinnerWidget::rotate);
    hide();
}

QSize WaitingSpinnerWidget::sizeHint() const {
    return {fontMetrics().height(), fontMetrics().height()};
}

void WaitingSpinnerWidget::start() {
    leading_ = 0;
    timer_.start();
    show();
}

void WaitingSpinnerWidget::stop() {
    timer_.stop();
    hide();
}

void WaitingSpinnerWidget::rotate() {
    leading_ = (leading_ + 1) % spokes;
    update();
}

void WaitingSpinnerWidget::paintEvent(QPaintEvent*) {
    const double radius = std::min(width(), height()) / 2.0;
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.translate(width() / 2.0, height() / 2.0);
    QColor color = palette().color(QPalette::WindowText);
    for (int i = 0; i < spokes; ++i) {
        const int behind = (leading_ - i + spokes) % spokes;
        color.setAlphaF(1.0F - 0.9F * static_cast<float>(behind) / spokes);
        painter.setPen(QPen(color, radius / 5, Qt::SolidLine, Qt::RoundCap));
        painter.save();
        painter.rotate(360.0 * i / spokes);
        painter.drawLine(QPointF(0, -radius * 0.5), QPointF(0, -radius * 0.85));
        painter.restore();
    }
}
