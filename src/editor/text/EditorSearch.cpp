// SPDX-License-Identifier: GPL-3.0-or-later
#include "editor/text/EditorSearch.h"

#include "editor/text/ShowPlace.h"

#include <QPlainTextEdit>
#include <QStringMatcher>
#include <QTextBlock>
#include <QTextCursor>

namespace {

QString withPlainBlanks(QString text) {
    return text.replace(QChar::Nbsp, u' ');
}

bool isWhole(QStringView line, qsizetype start, qsizetype end) {
    return (start == 0 || !line[start - 1].isLetterOrNumber()) &&
           (end == line.size() || !line[end].isLetterOrNumber());
}

/// Where the same matches are as QTextDocument::find() tells one by one; each of its answers is a
/// cursor, which the document would have to move in every edit.
class LineMatcher {
public:
    LineMatcher(const QString& query, QTextDocument::FindFlags flags)
        : matcher_(query, flags.testFlag(QTextDocument::FindCaseSensitively) ? Qt::CaseSensitive
                                                                             : Qt::CaseInsensitive),
          wholeWords_(flags.testFlag(QTextDocument::FindWholeWords)), length_(query.size()) {}

    void append(const QTextBlock& block, QList<int>& starts) const {
        const QString line = withPlainBlanks(block.text());
        qsizetype from = 0;
        while (from <= line.size()) {
            const qsizetype start = matcher_.indexIn(line, from);
            if (start < 0)
                return;
            const bool counts = !wholeWords_ || isWhole(line, start, start + length_);
            if (counts)
                starts.append(block.position() + static_cast<int>(start));
            from = start + length_ + (counts ? 0 : 1);
        }
    }

private:
    QStringMatcher matcher_;
    bool wholeWords_;
    qsizetype length_;
};

} // namespace

EditorSearch::Outcome EditorSearch::next(const QString& query, QTextDocument::FindFlags flags) {
    if (flags != flags_)
        forget();
    flags_ = flags;
    const QTextCursor match = locate(query, flags);
    if (match.isNull())
        return Outcome::Nothing;
    const Match place{match.selectionStart(), match.selectionEnd()};
    if (rounds_.takes(query, editor_.textCursor().position(), place)) {
        showPlace(editor_, match);
        return Outcome::Found;
    }
    QTextCursor cursor = editor_.textCursor();
    cursor.setPosition(rounds_.begin(query));
    showPlace(editor_, cursor);
    forget();
    return Outcome::CameRound;
}

QTextCursor EditorSearch::locate(const QString& query, QTextDocument::FindFlags flags) const {
    const QString plain = withPlainBlanks(query);
    const QTextDocument& document = *editor_.document();
    const QTextCursor match = document.find(plain, editor_.textCursor(), flags);
    return match.isNull() ? document.find(plain, 0, flags) : match;
}

void EditorSearch::replaceSelection(const QString& with) {
    QTextCursor cursor = editor_.textCursor();
    const int start = cursor.selectionStart();
    const int removed = cursor.selectionEnd() - start;
    cursor.beginEditBlock();
    cursor.insertText(with);
    cursor.endEditBlock();
    rounds_.follow(start, removed, cursor.position() - start);
    editor_.setTextCursor(cursor);
    editor_.ensureCursorVisible();
}

QList<int> EditorSearch::starts(const QString& query, QTextDocument::FindFlags flags) const {
    QList<int> starts;
    const LineMatcher matcher(withPlainBlanks(query), flags);
    for (QTextBlock block = editor_.document()->firstBlock(); block.isValid(); block = block.next())
        matcher.append(block, starts);
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
    for (auto start = found.crbegin(); start != found.crend(); ++start) {
        edit.setPosition(*start);
        edit.setPosition(*start + length, QTextCursor::KeepAnchor);
        edit.insertText(with);
    }
    edit.endEditBlock();
    return static_cast<int>(found.size());
}
