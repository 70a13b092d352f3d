// SPDX-License-Identifier: GPL-3.0-or-later
// Finds and replaces in an editor, and knows when a search has come round to where it began.
#pragma once

#include "editor/text/SearchRounds.h"

#include <QList>
#include <QString>
#include <QTextDocument>

class QPlainTextEdit;
class QTextCursor;

/// Queries must not be empty. A hard blank counts as a blank.
class EditorSearch {
public:
    enum class Outcome { Found, Nothing, CameRound };

    explicit EditorSearch(QPlainTextEdit& editor) : editor_(editor) {}

    /// Selects the next match, also from the start of the document. Otherwise the cursor stays
    /// (Nothing) or goes back to where the search began (CameRound).
    Outcome next(const QString& query, QTextDocument::FindFlags flags);
    /// Puts the text in the place of the selection, within the round of the search.
    void replaceSelection(const QString& with);
    /// Positions of all matches, none within another one.
    QList<int> starts(const QString& query, QTextDocument::FindFlags flags) const;
    /// In the whole document, as one step to undo. How many.
    int replaceAll(const QString& what, const QString& with, QTextDocument::FindFlags flags);
    /// The next search begins a new round.
    void forget() { rounds_.forget(); }

private:
    QTextCursor locate(const QString& query, QTextDocument::FindFlags flags) const;

    QPlainTextEdit& editor_;
    QTextDocument::FindFlags flags_; ///< of the searches that are under way
    SearchRounds rounds_;
};
