// SPDX-License-Identifier: GPL-3.0-or-later
// The white space that a line begins with.
#pragma once

#include <QString>

struct LineIndent {
    int columns = 0;    ///< as wide as so many blanks
    int characters = 0; ///< tabs and blanks
};

/// tabColumns: how many blanks a tab is wide.
LineIndent lineIndent(const QString& line, double tabColumns);
/// How many characters one level less takes away: a tab, or blanks up to that number.
int charactersOfLevel(const QString& line, int blanks);
