// SPDX-License-Identifier: GPL-3.0-or-later
#include "editor/program/ProgramKeys.h"

#include "editor/program/ProgramActions.h"

#include <QAction>
#include <QKeyEvent>
#include <QWidget>

ProgramKeys::ProgramKeys(const ProgramActions& actions, QWidget& window)
    : QObject(&window), actions_(actions), window_(window) {
    window.installEventFilter(this);
}

void ProgramKeys::watchList(QWidget& popup) {
    popup.installEventFilter(this);
}

QAction* ProgramKeys::actionFor(const QKeyEvent& event) const {
    const QKeyCombination keys(event.modifiers() & ~Qt::KeypadModifier,
                               static_cast<Qt::Key>(event.key()));
    return actions_.forKeys(QKeySequence(keys));
}

/// Events of the window come here only after the widgets within it had no use for them.
bool ProgramKeys::eventFilter(QObject* object, QEvent* event) {
    const bool claims = event->type() == QEvent::ShortcutOverride && object == &window_;
    if (!claims && event->type() != QEvent::KeyPress)
        return false;
    QAction* action = actionFor(*static_cast<QKeyEvent*>(event));
    if (action == nullptr)
        return false;
    event->accept();
    if (claims)
        return true; // what was asked for first is in no doubt
    if (object != &window_)
        static_cast<QWidget*>(object)->hide();
    action->trigger();
    return true;
}
