// SPDX-License-Identifier: GPL-3.0-or-later
// The editor's side of the search page and of going to a line.
#include "editor/text/Editor.h"
#include "editor/text/ShowPlace.h"
#include "editor/text/WaitCursor.h"

#include <QScopedValueRollback>
#include <QTextBlock>

namespace {

QTextDocument::FindFlags flagsOf(bool caseSensitive, bool wholeWords) {
    QTextDocument::FindFlags flags;
    flags.setFlag(QTextDocument::FindCaseSensitively, caseSensitive);
    flags.setFlag(QTextDocument::FindWholeWords, wholeWords);
    return flags;
}

} // namespace

bool Editor::find(const QString& query, bool caseSensitive, bool wholeWords) {
    return find(query, caseSensitive, wholeWords, false);
}

bool Editor::find(const QString& query, bool caseSensitive, bool wholeWords, bool replace) {
    if (query.isEmpty())
        return false;
    if (!replace)
        clearMarks();
    const EditorSearch::Outcome outcome = search_.next(query, flagsOf(caseSensitive, wholeWords));
    if (outcome == EditorSearch::Outcome::Nothing)
        emit findResultReady(tr("No results found."));
    else if (outcome == EditorSearch::Outcome::CameRound)
        emit findResultReady(tr("No more results found."));
    return outcome == EditorSearch::Outcome::Found;
}

bool Editor::findAll(const QString& query, bool caseSensitive, bool wholeWords) {
    if (query.isEmpty())
        return true;
    const WaitCursor wait;
    const QList<int> starts = search_.starts(query, flagsOf(caseSensitive, wholeWords));
    found_.set(starts, static_cast<int>(query.size()));
    showMarks();
    if (starts.isEmpty())
        emit findResultReady(tr("No results found."));
    else
        emit findAllResult(tr("Found %1 coincidences").arg(starts.size()));
    return true;
}

void Editor::replace(const QString& what, const QString& with, bool caseSensitive,
                     bool wholeWords) {
    if (what.isEmpty())
        return;
    {
        const QScopedValueRollback<bool> quiet(replacing_, true);
        if (!find(what, caseSensitive, wholeWords, true))
            return;
        const int start = textCursor().selectionStart();
        const int removed = textCursor().selectionEnd() - start;
        search_.replaceSelection(with);
        found_.follow(start, removed, textCursor().position() - start);
        showMarks();
    }
    // Not on_textChanged(): the round of the search goes on.
    tellMetrics();
    emit fileContentsChanged();
}

void Editor::replaceAll(const QString& what, const QString& with, bool caseSensitive,
                        bool wholeWords) {
    if (what.isEmpty())
        return;
    const WaitCursor wait;
    clearMarks();
    int count = 0;
    {
        const QScopedValueRollback<bool> quiet(replacing_, true);
        count = search_.replaceAll(what, with, flagsOf(caseSensitive, wholeWords));
    }
    emit findResultReady(count == 0 ? tr("No results found.")
                                    : tr("Document searched. Replaced ") + QString::number(count) +
                                          tr(" instances."));
    on_cursorPositionChanged();
    on_textChanged();
}

void Editor::goTo(int line) {
    if (line < 1 || line > blockCount()) {
        emit gotoResultReady(tr("Invalid line number."));
        return;
    }
    showPlace(*this, QTextCursor(document()->findBlockByNumber(line - 1)));
    emit gotoClose(line);
}
