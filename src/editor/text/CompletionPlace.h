// SPDX-License-Identifier: GPL-3.0-or-later
// Looks at the line around a cursor for the words that completion goes by.
#pragma once

#include <QString>
#include <QStringView>

/// Characters that end a word while it is typed.
bool endsWord(QChar c);

/// The word that the column (0-based) lies in or touches; empty between two separators.
QString wordAround(QStringView line, int column);
int wordStart(QStringView line, int column); ///< column where that word begins
int wordEnd(QStringView line, int column);   ///< column behind that word

/// Whether what is typed at the column is no command: text of a comment or a string that has begun.
/// inComment: of the lines before.
bool isProse(QStringView line, int column, bool inComment);
