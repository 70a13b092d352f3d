// SPDX-License-Identifier: GPL-3.0-or-later
#include "editor/text/ShowPlace.h"

#include <QPlainTextEdit>
#include <QScrollBar>

void showPlace(QPlainTextEdit& editor, const QTextCursor& place) {
    const int before = editor.verticalScrollBar()->value();
    editor.setTextCursor(place);
    editor.ensureCursorVisible();
    if (editor.verticalScrollBar()->value() != before)
        editor.centerCursor();
}
