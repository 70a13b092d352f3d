// SPDX-License-Identifier: GPL-3.0-or-later
// Remembers the line that a run found faulty and follows it while the text around it is edited.
#pragma once

#include <QColor>
#include <QTextBlock>
#include <QTextCursor>

/// The document knows nothing of it: no undo step, not modified. A line that loses its text is no
/// longer the faulty one.
class ErrorLine {
public:
    void mark(const QTextBlock& block);
    void clear() { span_ = {}; }
    QTextBlock block() const; ///< not valid where none is marked
    int number() const;       ///< 1-based; 0 for none

    static QColor color() { return {255, 128, 128, 128}; }

private:
    QTextCursor span_; ///< over the text of the line
    bool hadText_ = false;
};
