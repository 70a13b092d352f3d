// SPDX-License-Identifier: GPL-3.0-or-later
// The program text that an assistant is opened with.
#pragma once

#include <QString>

enum class Assistant { Define, Rundef, Table, Execute };

/// Makes white space, line ends included, single blanks. False where there is text, but not the
/// assistant's command with something behind it.
bool simplifyForAssistant(Assistant assistant, QString& text);
/// What the user is told where simplifyForAssistant() gives false.
QString incompleteCodeMessage(Assistant assistant);
