// SPDX-License-Identifier: GPL-3.0-or-later
#include "support/ModalAnswer.h"

#include <QApplication>
#include <QTimer>

void answerNextDialog(std::function<void(QDialog&)> act) {
    auto* timer = new QTimer(qApp);
    QObject::connect(timer, &QTimer::timeout, timer, [timer, act = std::move(act)] {
        auto* dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget());
        if (dialog == nullptr || !dialog->isVisible())
            return;
        timer->stop();
        timer->deleteLater();
        act(*dialog);
    });
    timer->start(10);
}
