// SPDX-License-Identifier: GPL-3.0-or-later
// The places that Find all marks. A few are marked all; of many, those in view, as each mark is a
// cursor that every edit would have to move.
#pragma once

#include <QList>
#include <QTextEdit>

class QTextDocument;

class FoundMarks {
public:
    static constexpr qsizetype most = 1000; ///< that are marked all at a time

    /// starts: ascending positions of matches that are all of that length.
    void set(const QList<int>& starts, int length);
    void clear() { starts_.clear(); }
    bool isEmpty() const { return starts_.isEmpty(); }
    bool areMany() const { return starts_.size() > most; }
    /// Moves them with an edit; what it touches is no match any more.
    void follow(int position, int removed, int added);
    /// Where there are many, only those between the positions.
    QList<QTextEdit::ExtraSelection> selections(QTextDocument& document, int from, int end) const;

private:
    QList<int> starts_;
    int length_ = 0;
};
