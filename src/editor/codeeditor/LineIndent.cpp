// SPDX-License-Identifier: GPL-3.0-or-later
#include "editor/codeeditor/LineIndent.h"

LineIndent lineIndent(const QString& line, double tabColumns) {
    double columns = 0;
    int characters = 0;
    for (const QChar c : line) {
        if (c != u' ' && c != u'\t')
            break;
        columns += c == u'\t' ? tabColumns : 1;
        ++characters;
    }
    return {int(columns), characters};
}

int charactersOfLevel(const QString& line, int blanks) {
    if (line.startsWith(u'\t'))
        return 1;
    int count = 0;
    while (count < blanks && count < line.size() && line[count] == u' ')
        ++count;
    return count;
}
