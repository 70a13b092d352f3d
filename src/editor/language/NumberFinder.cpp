// SPDX-License-Identifier: GPL-3.0-or-later
#include "editor/language/NumberFinder.h"

#include <algorithm>
#include <array>
#include <string_view>

namespace {

bool isDigit(QChar c) {
    return c >= u'0' && c <= u'9';
}

/// What a number may consist of, signs aside.
bool isNumberPart(QChar c) {
    static const auto table = [] {
        std::array<bool, 128> parts{};
        for (const char16_t part : std::u16string_view(u"0123456789abcdefABCDEFlLpPuUxX'."))
            parts[part] = true;
        return parts;
    }();
    return c.unicode() < table.size() && table[c.unicode()];
}

bool isExponentMark(QChar c) {
    return c == u'e' || c == u'E' || c == u'p' || c == u'P';
}

bool isWordPart(QChar c) {
    return isDigit(c) || (c >= u'a' && c <= u'z') || (c >= u'A' && c <= u'Z') || c == u'_';
}

/// The neighbour of a number; half of a character beyond the plane would be no text for the
/// expression.
QChar neighbour(QChar c) {
    return c.isSurrogate() ? QChar(u'?') : c;
}

} // namespace

QString NumberFinder::expression() {
    return QStringLiteral(
        R"((?<=\b|\s|^)(?i)(?:(?:(?:(?:(?:\d+(?:'\d+)*)?\.(?:\d+(?:'\d+)*))"
        R"((?:e[+-]?(?:\d+(?:'\d+)*))?)|(?:(?:\d+(?:'\d+)*)\.(?:e[+-]?(?:\d+(?:'\d+)*))?)|)"
        R"((?:(?:\d+(?:'\d+)*)(?:e[+-]?(?:\d+(?:'\d+)*)))|)"
        R"((?:0x(?:[0-9a-f]+(?:'[0-9a-f]+)*)?\.(?:[0-9a-f]+(?:'[0-9a-f]+)*))"
        R"((?:p[+-]?(?:\d+(?:'\d+)*)))|)"
        R"((?:0x(?:[0-9a-f]+(?:'[0-9a-f]+)*)\.?(?:p[+-]?(?:\d+(?:'\d+)*))))[lf]?)|)"
        R"((?:(?:(?:[1-9]\d*(?:'\d+)*)|(?:0[0-7]*(?:'[0-7]+)*)|)"
        R"((?:0x[0-9a-f]+(?:'[0-9a-f]+)*)|(?:0b[01]+(?:'[01]+)*))(?:u?l{0,2}|l{0,2}u?))))"
        R"((?=\b|\s|$))");
}

NumberFinder::NumberFinder() : expression_(expression()) {
    expression_.optimize();
}

void NumberFinder::find(QStringView line, const Found& found) {
    for (qsizetype i = 0; i < line.size(); ++i) {
        if (!isNumberPart(line[i]))
            continue;
        const qsizetype begin = i;
        bool digits = false;
        while (i < line.size() && (isNumberPart(line[i]) || ((line[i] == u'+' || line[i] == u'-') &&
                                                             isExponentMark(line[i - 1])))) {
            digits = digits || isDigit(line[i]);
            ++i;
        }
        if (digits && i - begin <= longest())
            findIn(line, begin, i, found);
    }
}

/// The characters from begin to end are all that a number there could consist of; only the one on
/// either side matters besides.
void NumberFinder::findIn(QStringView line, qsizetype begin, qsizetype end, const Found& found) {
    const bool plain =
        line[begin] != u'0' && std::all_of(line.begin() + begin, line.begin() + end, isDigit);
    if (plain) {
        if ((begin == 0 || !isWordPart(line[begin - 1])) &&
            (end == line.size() || !isWordPart(line[end])))
            found(begin, end - begin);
        return;
    }
    const qsizetype before = begin > 0 ? 1 : 0;
    window_.resize(0);
    if (before > 0)
        window_ += neighbour(line[begin - 1]);
    window_ += line.sliced(begin, end - begin);
    if (end < line.size())
        window_ += neighbour(line[end]);
    auto matches = expression_.globalMatch(window_);
    while (matches.hasNext()) {
        const QRegularExpressionMatch match = matches.next();
        found(begin - before + match.capturedStart(), match.capturedLength());
    }
}
