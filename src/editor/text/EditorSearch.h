// SPDX-License-Identifier: GPL-3.0-or-later
// Finds and replaces in an editor, and knows when a search has come round to where it began.
#pragma once

#include <QHash>
#include <QList>
#include <QPair>
#include <QString>
#include <QTextDocument>
#include <QTextEdit>

class QPlainTextEdit;
class QTextCursor;

/// Queries must not be empty.
class EditorSearch {
public:
    enum class Outcome { Found, Nothing, CameRound };

    explicit EditorSearch(QPlainTextEdit& editor) : editor_(editor) {}

    /// Selects the next match, also from the start of the document. Otherwise the cursor stays
    /// (Nothing) or goes back to where the search began (CameRound).
    Outcome next(const QString& query, QTextDocument::FindFlags flags);
    /// Whether what is selected is a match.
    bool hasMatch(const QString& query, QTextDocument::FindFlags flags) const;
    /// Positions of all matches.
    QList<int> starts(const QString& query, QTextDocument::FindFlags flags) const;
    /// Marks for matches there; of very many, for the first ones.
    QList<QTextEdit::ExtraSelection> marks(const QList<int>& starts, int length) const;
    /// In the whole document, as one step to undo. How many.
    int replaceAll(const QString& what, const QString& with, QTextDocument::FindFlags flags);
    /// The next search begins a new round.
    void forget() { history_.clear(); }

private:
    bool select(const QString& query, QTextDocument::FindFlags flags);
    void replaceStretch(QTextCursor& edit, const QList<int>& starts, int length,
                        const QString& with);

    QPlainTextEdit& editor_;
    QTextDocument::FindFlags flags_; ///< of the searches in the history
    /// By query: the cursor before its first match, and the position of that match.
    QHash<QString, QPair<int, int>> history_;
};
