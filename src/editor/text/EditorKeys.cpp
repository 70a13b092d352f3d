// SPDX-License-Identifier: GPL-3.0-or-later
// The keys and clicks of the editor.
#include "editor/text/Editor.h"
#include "editor/text/EditorCompletion.h"
#include "editor/text/Indentation.h"

#include <QKeyEvent>

namespace {

const QString& tabReplace() {
    static const QString blanks(4, u' ');
    return blanks;
}

bool isReturn(const QKeyEvent& event) {
    return event.key() == Qt::Key_Return || event.key() == Qt::Key_Enter;
}

} // namespace

bool Editor::eventFilter(QObject* watched, QEvent* event) {
    if (watched == this && event->type() == QEvent::KeyPress &&
        filterKey(*static_cast<QKeyEvent*>(event)))
        return true;
    return QPlainTextEdit::eventFilter(watched, event);
}

bool Editor::filterKey(QKeyEvent& event) {
    if (isReadOnly() || completion_->takes(event))
        return false;
    if (isReturn(event)) {
        completion_->offerReservedWords();
        return breakLine(*this, autoIndent_);
    }
    const bool indents = event.key() == Qt::Key_Tab && textCursor().hasSelection();
    if (indents)
        indentSelection(*this);
    return indents;
}

void Editor::keyPressEvent(QKeyEvent* event) {
    if (event->key() == Qt::Key_F6) {
        on_defineFrequency();
        return;
    }
    if (completion_->takes(*event)) {
        event->ignore(); // the list deals with it
        return;
    }
    if (handleOwnKey(*event))
        return;
    const bool asksForWords =
        event->key() == Qt::Key_Space && event->modifiers() == Qt::ControlModifier;
    if (!asksForWords) {
        completion_->beforeKey(*event);
        // Shift would insert a separator that is no line end to the engine.
        if (isReturn(*event))
            textCursor().insertBlock();
        else
            QPlainTextEdit::keyPressEvent(event);
    }
    completion_->afterKey(*event);
}

/// Keys that end here.
bool Editor::handleOwnKey(const QKeyEvent& event) {
    if (replaceTab_ && event.key() == Qt::Key_Tab && event.modifiers() == Qt::NoModifier)
        textCursor().insertText(tabReplace());
    else if (event.key() == Qt::Key_T && event.modifiers() == Qt::ControlModifier)
        on_toggleComment();
    else if (replaceTab_ && event.key() == Qt::Key_Backtab)
        unindentLines(*this);
    else
        return false;
    return true;
}

void Editor::mouseDoubleClickEvent(QMouseEvent* event) {
    if (highlightedLine() != 0)
        clearErrorLine();
    QTextCursor cursor = cursorForPosition(event->position().toPoint());
    cursor.select(QTextCursor::WordUnderCursor);
    setTextCursor(cursor);
}
