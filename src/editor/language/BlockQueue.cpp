// SPDX-License-Identifier: GPL-3.0-or-later
#include "editor/language/BlockQueue.h"

void BlockQueue::add(const QTextBlock& block) {
    if (isEmpty() || block.position() < first_.position())
        setFirst(block);
    if (last_.isNull() || block.position() > last_.position())
        last_ = QTextCursor(block);
}

void BlockQueue::clear() {
    first_ = {};
    last_ = {};
}

bool BlockQueue::holds(const QTextBlock& block) const {
    return !isEmpty() && block.position() >= first().position() &&
           block.position() <= last_.position();
}

void BlockQueue::advanceTo(const QTextBlock& block) {
    if (!block.isValid()) {
        clear();
        return;
    }
    setFirst(block);
    add(block); // it may lie behind all that waited
}

void BlockQueue::setFirst(const QTextBlock& block) {
    first_ = QTextCursor(block);
    // Text put in before the first letter belongs to the stretch.
    first_.setKeepPositionOnInsert(true);
}
