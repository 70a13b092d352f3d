// SPDX-License-Identifier: GPL-3.0-or-later
// Entries of a context menu.
#pragma once

#include <QAction>
#include <QKeySequence>
#include <QMenu>

/// Adds an entry with an object name to find it by. The key is shown only: the view that opens the
/// menu has it.
inline QAction* addMenuEntry(QMenu& menu, const QString& name, const QString& text,
                             const QKeySequence& key = {}) {
    QAction* action = menu.addAction(text);
    action->setObjectName(name);
    action->setShortcut(key);
    action->setShortcutVisibleInContextMenu(true);
    return action;
}
