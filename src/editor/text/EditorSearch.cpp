// SPDX-License-Identifier: GPL-3.0-or-later
#include "editor/text/EditorSearch.h"

#include <QPlainTextEdit>
#include <QTextCursor>

namespace {

constexpr int markLightness = 130; // per cent

/// Light in every scheme, so the words on it are dark in every scheme.
QTextCharFormat markFormat() {
    QTextCharFormat format;
    format.setBackground(QColor(61, 174, 233).lighter(markLightness));
    format.setForeground(Qt::black);
    return format;
}

} // namespace

EditorSearch::Outcome EditorSearch::next(const QString& query, QTextDocument::FindFlags flags) {
    if (flags != flags_)
        forget();
    flags_ = flags;
    const int start = editor_.textCursor().position();
    if (!select(query, flags))
        return Outcome::Nothing;
    const int match = editor_.textCursor().position();
    const auto first = history_.constFind(query);
    if (first == history_.constEnd()) {
        history_.insert(query, {start, match});
        return Outcome::Found;
    }
    if (match != first->second)
        return Outcome::Found;
    QTextCursor cursor = editor_.textCursor();
    cursor.setPosition(first->first);
    editor_.setTextCursor(cursor);
    forget();
    return Outcome::CameRound;
}

bool EditorSearch::select(const QString& query, QTextDocument::FindFlags flags) {
    QTextDocument& document = *editor_.document();
    QTextCursor match = document.find(query, editor_.textCursor(), flags);
    if (match.isNull())
        match = document.find(query, 0, flags);
    if (!match.isNull())
        editor_.setTextCursor(match);
    return !match.isNull();
}

bool EditorSearch::hasMatch(const QString& query, QTextDocument::FindFlags flags) const {
    const QTextCursor cursor = editor_.textCursor();
    const int start = cursor.selectionStart();
    const QTextCursor match = editor_.document()->find(query, start, flags);
    return cursor.hasSelection() && !match.isNull() && match.selectionStart() == start &&
           match.selectionEnd() == cursor.selectionEnd();
}

QList<QTextEdit::ExtraSelection> EditorSearch::marks(const QString& query,
                                                     QTextDocument::FindFlags flags) const {
    QList<QTextEdit::ExtraSelection> marks;
    const QTextCharFormat format = markFormat();
    QTextCursor match = editor_.document()->find(query, 0, flags);
    while (!match.isNull()) {
        marks.append({match, format});
        match = editor_.document()->find(query, match, flags);
    }
    return marks;
}

int EditorSearch::replaceAll(const QString& what, const QString& with,
                             QTextDocument::FindFlags flags) {
    QTextDocument& document = *editor_.document();
    QTextCursor match = document.find(what, 0, flags);
    if (match.isNull())
        return 0;
    QTextCursor edit(&document);
    edit.beginEditBlock();
    int count = 0;
    for (; !match.isNull(); ++count) {
        edit.setPosition(match.selectionStart());
        edit.setPosition(match.selectionEnd(), QTextCursor::KeepAnchor);
        edit.insertText(with);
        match = document.find(what, edit, flags); // behind what was inserted
    }
    edit.endEditBlock();
    return count;
}
