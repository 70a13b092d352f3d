// SPDX-License-Identifier: GPL-3.0-or-later
#include "editor/text/ErrorLine.h"

#include <QTextDocument>

void ErrorLine::mark(const QTextBlock& block) {
    span_ = QTextCursor(block);
    span_.movePosition(QTextCursor::EndOfBlock, QTextCursor::KeepAnchor);
    hadText_ = span_.hasSelection();
}

QTextBlock ErrorLine::block() const {
    if (span_.isNull() || (hadText_ && !span_.hasSelection()))
        return {};
    return span_.document()->findBlock(span_.selectionStart());
}

int ErrorLine::number() const {
    return block().blockNumber() + 1; // that of no block is -1
}
