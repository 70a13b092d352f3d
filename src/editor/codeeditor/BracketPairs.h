// SPDX-License-Identifier: GPL-3.0-or-later
// Brackets and quotes that belong together.
#pragma once

#include <QChar>
#include <QPair>

#include <array>
#include <optional>

class QTextDocument;

struct BracketPair {
    QChar open;
    QChar close;
};

constexpr std::array<BracketPair, 5> bracketPairs{
    {{u'(', u')'}, {u'{', u'}'}, {u'[', u']'}, {u'"', u'"'}, {u'\'', u'\''}}};

/// Positions of the character at the cursor and of its partner, if there is one. Each pair in turn:
/// an opening bracket behind the cursor, else a closing one before it. Quotes pair up within their
/// line.
std::optional<QPair<int, int>> matchBracket(const QTextDocument& document, int cursor);
