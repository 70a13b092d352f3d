// SPDX-License-Identifier: GPL-3.0-or-later
// What the completers of both editors have in common: how they look words up.
#pragma once

#include <QStringList>

class QCompleter;

/// Sorted as the lookup without regard to case needs it.
QStringList sortedWords(QStringList words);
/// Makes the words the completer's model; sorted: as sortedWords() gives them.
void setWordModel(QCompleter& completer, const QStringList& sorted);
