// SPDX-License-Identifier: GPL-3.0-or-later
#include "editor/text/EditorSearch.h"

#include <QPlainTextEdit>
#include <QTextBlock>
#include <QTextCursor>

#include <algorithm>

namespace {

constexpr int markLightness = 130; // per cent

/// Light in every scheme, so the words on it are dark in every scheme.
QTextCharFormat markFormat() {
    QTextCharFormat format;
    format.setBackground(QColor(61, 174, 233).lighter(markLightness));
    format.setForeground(Qt::black);
    return format;
}

/// Each mark is a cursor, and each edit walks over all that the document ever had at a time.
constexpr qsizetype mostMarks = 5000;

/// More than that are replaced as one stretch of text.
constexpr int manyMatches = 2000;

void replaceAt(QTextCursor& edit, int start, int length, const QString& with) {
    edit.setPosition(start);
    edit.setPosition(start + length, QTextCursor::KeepAnchor);
    edit.insertText(with);
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

QList<QTextEdit::ExtraSelection> EditorSearch::marks(const QList<int>& starts, int length) const {
    QList<QTextEdit::ExtraSelection> marks;
    const QTextCharFormat format = markFormat();
    for (const int start : starts.first(std::min(starts.size(), mostMarks))) {
        QTextCursor match(editor_.document());
        match.setPosition(start);
        match.setPosition(start + length, QTextCursor::KeepAnchor);
        marks.append({match, format});
    }
    return marks;
}

QList<int> EditorSearch::starts(const QString& query, QTextDocument::FindFlags flags) const {
    QList<int> starts;
    QTextCursor match = editor_.document()->find(query, 0, flags);
    for (; !match.isNull(); match = editor_.document()->find(query, match, flags))
        starts.append(match.selectionStart());
    return starts;
}

int EditorSearch::replaceAll(const QString& what, const QString& with,
                             QTextDocument::FindFlags flags) {
    const QList<int> found = starts(what, flags);
    if (found.isEmpty())
        return 0;
    QTextCursor edit(editor_.document());
    edit.beginEditBlock();
    const int length = static_cast<int>(what.size());
    if (found.size() > manyMatches)
        replaceStretch(edit, found, length, with);
    else
        for (auto start = found.crbegin(); start != found.crend(); ++start)
            replaceAt(edit, *start, length, with);
    edit.endEditBlock();
    return static_cast<int>(found.size());
}

/// All at once from the first match to the last: so many edits would take minutes. Only the
/// cursor has to be brought back to its place then.
void EditorSearch::replaceStretch(QTextCursor& edit, const QList<int>& starts, int length,
                                  const QString& with) {
    const QString before = editor_.document()->toPlainText();
    const int line = editor_.textCursor().blockNumber();
    const int column = editor_.textCursor().positionInBlock();
    QString after;
    int end = starts.first();
    for (const int start : starts) {
        after += QStringView(before).sliced(end, start - end);
        after += with;
        end = start + length;
    }
    replaceAt(edit, starts.first(), end - starts.first(), after);
    const QTextBlock block = editor_.document()->findBlockByNumber(line);
    QTextCursor cursor(block);
    cursor.setPosition(block.position() + std::min(column, block.length() - 1));
    editor_.setTextCursor(cursor);
}
