// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/widgets/ClosableQDockedWidget.h"

#include <QCloseEvent>
#include <QResizeEvent>

void ClosableQDockedWidget::resizeEvent(QResizeEvent* event) {
    QDockWidget::resizeEvent(event);
    emit resizeEventCall(event->size().width(), event->size().height());
}

void ClosableQDockedWidget::closeEvent(QCloseEvent* event) {
    // The base accepts the event, so it goes first: a refusal must be the last word.
    QDockWidget::closeEvent(event);
    emit closeEventCall(event);
}
