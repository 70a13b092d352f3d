// SPDX-License-Identifier: GPL-3.0-or-later
#include "editor/text/CompletionPlace.h"

#include <algorithm>

namespace {

/// Unlike at the end of what is typed, "_" belongs to the names of variables.
bool belongsToWord(QChar c) {
    return c == u'_' || (!c.isSpace() && !endsWord(c));
}

} // namespace

bool endsWord(QChar c) {
    return QStringView(u"~!@#$%^&*()_+{}|:\"<>?,./;'[]\\-=").contains(c);
}

int wordStart(QStringView line, int column) {
    while (column > 0 && belongsToWord(line[column - 1]))
        --column;
    return column;
}

int wordEnd(QStringView line, int column) {
    while (column < line.size() && belongsToWord(line[column]))
        ++column;
    return column;
}

QString wordAround(QStringView line, int column) {
    const int inside = std::clamp(column, 0, static_cast<int>(line.size()));
    const int start = wordStart(line, inside);
    return line.sliced(start, wordEnd(line, inside) - start).toString();
}

bool isProse(QStringView line, int column, bool inComment) {
    const QStringView before = line.first(std::clamp<qsizetype>(column, 0, line.size()));
    bool inString = false;
    for (qsizetype i = 0; i < before.size(); ++i) {
        const QStringView pair = before.sliced(i, std::min<qsizetype>(2, before.size() - i));
        if (inComment) {
            inComment = pair != u"*/";
            i += inComment ? 0 : 1;
        } else if (before[i] == u'"') {
            inString = !inString;
        } else if (!inString && pair == u"//") {
            return true;
        } else if (!inString && pair == u"/*") {
            inComment = true;
            ++i;
        }
    }
    return inComment || inString;
}
