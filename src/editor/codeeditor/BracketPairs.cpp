// SPDX-License-Identifier: GPL-3.0-or-later
#include "editor/codeeditor/BracketPairs.h"

#include <QTextBlock>
#include <QTextDocument>

namespace {

using Match = std::optional<QPair<int, int>>;

/// step: 1 forward, -1 backward.
Match matchNested(const QTextDocument& document, int from, QChar here, QChar partner, int step) {
    const int end = document.characterCount() - 1;
    int depth = 1;
    for (int at = from + step; at >= 0 && at < end; at += step) {
        const QChar c = document.characterAt(at);
        if (c == here)
            ++depth;
        else if (c == partner && --depth == 0)
            return QPair<int, int>{from, at};
    }
    return {};
}

/// The first quote of a line opens, the second closes, and so on.
Match matchQuote(const QTextDocument& document, int at, QChar quote, bool opening) {
    const QTextBlock block = document.findBlock(at);
    const QString line = block.text();
    const int column = at - block.position();
    if ((line.left(column).count(quote) % 2 == 0) != opening)
        return {};
    const qsizetype partner =
        opening ? line.indexOf(quote, column + 1) : line.lastIndexOf(quote, column - 1);
    if (partner < 0)
        return {};
    return QPair<int, int>{at, block.position() + int(partner)};
}

Match matchFrom(const QTextDocument& document, int at, const BracketPair& pair, bool opening) {
    if (pair.open == pair.close)
        return matchQuote(document, at, pair.open, opening);
    return opening ? matchNested(document, at, pair.open, pair.close, 1)
                   : matchNested(document, at, pair.close, pair.open, -1);
}

} // namespace

Match matchBracket(const QTextDocument& document, int cursor) {
    const QChar behind = document.characterAt(cursor);
    const QChar before = cursor > 0 ? document.characterAt(cursor - 1) : QChar();
    for (const BracketPair& pair : bracketPairs) {
        if (behind == pair.open)
            if (const Match match = matchFrom(document, cursor, pair, true))
                return match;
        if (before == pair.close)
            if (const Match match = matchFrom(document, cursor - 1, pair, false))
                return match;
    }
    return {};
}
