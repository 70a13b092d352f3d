// SPDX-License-Identifier: GPL-3.0-or-later
#include "editor/text/Indentation.h"

#include <QPlainTextEdit>
#include <QTextBlock>

namespace {

constexpr int levelColumns = 4;

int leadingTabs(const QString& line) {
    int tabs = 0;
    while (tabs < line.size() && line[tabs] == u'\t')
        ++tabs;
    return tabs;
}

/// How many characters at the start of the line make up one level: a tab is one by itself.
int levelLength(const QString& line) {
    int length = 0;
    while (length < line.size() && length < levelColumns && line[length] == u' ')
        ++length;
    const bool tab = length < levelColumns && length < line.size() && line[length] == u'\t';
    return tab ? length + 1 : length;
}

/// A selection that ends at the start of a line does not touch that line.
QTextBlock lastTouched(const QTextDocument& document, const QTextCursor& cursor) {
    const QTextBlock last = document.findBlock(cursor.selectionEnd());
    const bool onlyItsStart = cursor.hasSelection() && last.position() == cursor.selectionEnd();
    return onlyItsStart ? last.previous() : last;
}

} // namespace

bool breakLine(QPlainTextEdit& editor, bool copyTabs) {
    QTextCursor cursor = editor.textCursor();
    if (cursor.position() == 0)
        return false;
    const int tabs = copyTabs ? leadingTabs(cursor.block().text()) : 0;
    cursor.insertText(u'\n' + QString(tabs, u'\t'));
    editor.setTextCursor(cursor);
    editor.ensureCursorVisible();
    return true;
}

void indentSelection(QPlainTextEdit& editor) {
    QTextCursor cursor = editor.textCursor();
    const int start = cursor.selectionStart();
    int end = cursor.selectionEnd();
    QTextCursor edit(editor.document());
    edit.beginEditBlock();
    // From below, so that the blocks above keep their positions; only the tabs are put in.
    for (QTextBlock block = editor.document()->findBlock(end - 1); block.position() > start;
         block = block.previous(), ++end) {
        edit.setPosition(block.position());
        edit.insertText(QStringLiteral("\t"));
    }
    edit.setPosition(start);
    edit.insertText(QStringLiteral("\t"));
    edit.endEditBlock();
    // Still selected, so that a second Tab indents once more.
    cursor.setPosition(start);
    cursor.setPosition(end + 1, QTextCursor::KeepAnchor);
    editor.setTextCursor(cursor);
    editor.ensureCursorVisible();
}

void unindentLines(QPlainTextEdit& editor) {
    const QTextCursor selection = editor.textCursor();
    const QTextDocument& document = *editor.document();
    const QTextBlock last = lastTouched(document, selection);
    QTextCursor edit(selection);
    edit.beginEditBlock();
    QTextBlock block = document.findBlock(selection.selectionStart());
    for (; block.isValid() && block.blockNumber() <= last.blockNumber(); block = block.next()) {
        edit.setPosition(block.position());
        edit.setPosition(block.position() + levelLength(block.text()), QTextCursor::KeepAnchor);
        edit.removeSelectedText();
    }
    edit.endEditBlock();
    editor.ensureCursorVisible();
}
