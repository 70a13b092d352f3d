// SPDX-License-Identifier: GPL-3.0-or-later
// The stretch of a document whose blocks still wait for their colours. It keeps to its text while
// that is edited.
#pragma once

#include <QTextBlock>
#include <QTextCursor>

class BlockQueue {
public:
    void add(const QTextBlock& block); ///< and all between it and those that wait already
    void clear();
    bool isEmpty() const { return first_.isNull(); }
    bool holds(const QTextBlock& block) const;
    QTextBlock first() const { return first_.block(); }
    /// The blocks before this one have been done; all of them, where it is invalid.
    void advanceTo(const QTextBlock& block);

private:
    void setFirst(const QTextBlock& block);

    QTextCursor first_; ///< null where nothing waits
    QTextCursor last_;
};
