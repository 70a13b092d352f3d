// SPDX-License-Identifier: GPL-3.0-or-later
#include "editor/codeeditor/QTabbedEditor.h"

#include <QKeyEvent>

QTabbedEditor::QTabbedEditor(QWidget* parent) : QTabWidget(parent) {
    installEventFilter(this);
}

bool QTabbedEditor::eventFilter(QObject* watched, QEvent* event) {
    if (watched == this && event->type() == QEvent::KeyPress) {
        const auto* key = static_cast<QKeyEvent*>(event);
        if (key->modifiers() == Qt::ControlModifier && goTo(key->key()))
            return true;
    }
    return QTabWidget::eventFilter(watched, event);
}

bool QTabbedEditor::goTo(int key) {
    if (key >= Qt::Key_1 && key <= Qt::Key_9)
        setCurrentIndex(key - Qt::Key_1); // which ignores one that there is not
    else if (key == Qt::Key_T && count() > 0)
        setCurrentIndex((currentIndex() + 1) % count());
    else
        return false;
    return true;
}
