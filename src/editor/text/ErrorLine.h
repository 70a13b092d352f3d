// SPDX-License-Identifier: GPL-3.0-or-later
// Remembers the line that a run found faulty and follows it while the text around it is edited.
#pragma once

#include <QColor>
#include <QTextBlock>
#include <QTextCursor>
#include <QTextEdit>

/// The document knows nothing of it: no undo step, not modified. A line that loses its text is no
/// longer the faulty one.
class ErrorLine {
public:
    void mark(const QTextBlock& block);
    void clear() { span_ = {}; }
    QTextBlock block() const; ///< not valid where none is marked
    int number() const;       ///< 1-based; 0 for none

    /// Laid over the ground of the editor.
    static QColor color() { return {255, 128, 128, 128}; }
    /// What that makes of a ground.
    static QColor colorOn(const QColor& ground);
    /// Black or white, whichever is easier to read there. The colours of a scheme are chosen for
    /// its own ground, not for this one.
    static QColor wordsColorOn(const QColor& ground);
    /// Draws all words of the line in that colour; none where no line is marked.
    QList<QTextEdit::ExtraSelection> words(const QColor& ground) const;

private:
    QTextCursor span_; ///< over the text of the line
    bool hadText_ = false;
};
