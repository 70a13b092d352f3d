// SPDX-License-Identifier: GPL-3.0-or-later
// The keys and clicks of the editor.
#include "editor/text/Editor.h"
#include "editor/text/EditorCompletion.h"
#include "editor/text/Indentation.h"
#include "editor/text/WaitCursor.h"

#include <QKeyEvent>

#include <optional>

namespace {

const QString& tabReplace() {
    static const QString blanks(4, u' ');
    return blanks;
}

bool isReturn(const QKeyEvent& event) {
    return event.key() == Qt::Key_Return || event.key() == Qt::Key_Enter;
}

bool isPlainTab(const QKeyEvent& event) {
    return event.key() == Qt::Key_Tab && event.modifiers() == Qt::NoModifier;
}

bool goesBack(const QKeyEvent& event) {
    return event.matches(QKeySequence::Undo) || event.matches(QKeySequence::Redo);
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
    const bool indents = isPlainTab(event) && textCursor().hasSelection();
    if (indents) {
        const WaitCursor wait;
        indentSelection(*this);
    }
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
        std::optional<WaitCursor> wait; // after a change of all lines this takes its time
        if (goesBack(*event))
            wait.emplace();
        // Shift would insert a separator that is no line end to the engine.
        if (isReturn(*event))
            insertTyped(QStringLiteral("\n"));
        else
            QPlainTextEdit::keyPressEvent(event);
    }
    completion_->afterKey(*event);
}

/// Keys that end here.
bool Editor::handleOwnKey(const QKeyEvent& event) {
    if (replaceTab_ && isPlainTab(event))
        insertTyped(tabReplace());
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
