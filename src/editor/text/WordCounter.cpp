// SPDX-License-Identifier: GPL-3.0-or-later
#include "editor/text/WordCounter.h"

#include <QTextBlock>
#include <QTextDocument>

#include <algorithm>
#include <numeric>

namespace {

bool makesWord(QChar c) {
    return (c >= u'0' && c <= u'9') || (c >= u'A' && c <= u'Z') || (c >= u'a' && c <= u'z');
}

} // namespace

int countWords(QStringView text) {
    int words = 0;
    bool inWord = false;
    for (const QChar c : text) {
        if (makesWord(c)) {
            words += inWord ? 0 : 1;
            inWord = true;
        } else if (c.isSpace()) {
            inWord = false;
        }
    }
    return words;
}

WordCounter::WordCounter(QTextDocument& document) : document_(document) {
    connect(&document, &QTextDocument::contentsChange, this, &WordCounter::recount);
    replaceCounts(0, 0, document.blockCount());
}

void WordCounter::recount(int position, int /*removed*/, int added) {
    const int end = document_.characterCount() - 1;
    const int first = document_.findBlock(std::clamp(position, 0, end)).blockNumber();
    const int last = document_.findBlock(std::clamp(position + added, 0, end)).blockNumber();
    // The lines below the change are those that stood below it before.
    const int below = document_.blockCount() - 1 - last;
    const int oldEnd = static_cast<int>(counts_.size()) - below;
    if (oldEnd > first)
        replaceCounts(first, oldEnd, last + 1);
    else
        replaceCounts(0, static_cast<int>(counts_.size()), document_.blockCount());
}

void WordCounter::replaceCounts(int first, int oldEnd, int newEnd) {
    const auto begin = counts_.begin() + first;
    total_ -= std::accumulate(begin, counts_.begin() + oldEnd, 0);
    if (newEnd < oldEnd)
        counts_.erase(counts_.begin() + newEnd, counts_.begin() + oldEnd);
    else
        counts_.insert(counts_.begin() + oldEnd, newEnd - oldEnd, 0);
    QTextBlock block = document_.findBlockByNumber(first);
    for (int line = first; line < newEnd; ++line, block = block.next()) {
        counts_[line] = countWords(block.text());
        total_ += counts_[line];
    }
}
