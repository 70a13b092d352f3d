// SPDX-License-Identifier: GPL-3.0-or-later
#include "editor/text/FoundMarks.h"

#include <QTextCursor>

#include <algorithm>

namespace {

constexpr int markLightness = 130; // per cent

/// Light in every scheme, so the words on it are dark in every scheme.
QTextCharFormat markFormat() {
    QTextCharFormat format;
    format.setBackground(QColor(61, 174, 233).lighter(markLightness));
    format.setForeground(Qt::black);
    return format;
}

} // namespace

void FoundMarks::set(const QList<int>& starts, int length) {
    starts_ = starts;
    length_ = length;
}

void FoundMarks::follow(int position, int removed, int added) {
    QList<int> kept;
    kept.reserve(starts_.size());
    for (const int start : starts_)
        if (start + length_ <= position)
            kept.append(start);
        else if (start >= position + removed)
            kept.append(start + added - removed);
    starts_ = kept;
}

QList<QTextEdit::ExtraSelection> FoundMarks::selections(QTextDocument& document, int from,
                                                        int end) const {
    auto first = starts_.cbegin();
    auto last = starts_.cend();
    if (areMany()) {
        first = std::lower_bound(first, last, from);
        last = std::upper_bound(first, last, end);
    }
    QList<QTextEdit::ExtraSelection> marks;
    const QTextCharFormat format = markFormat();
    for (; first != last; ++first) {
        QTextCursor match(&document);
        match.setPosition(*first);
        match.setPosition(*first + length_, QTextCursor::KeepAnchor);
        marks.append({match, format});
    }
    return marks;
}
