// SPDX-License-Identifier: GPL-3.0-or-later
// What is done to a program text before it goes to the engine or to an assistant.
#pragma once

#include <QString>
#include <QStringList>

/// Relative paths are taken from that folder. Empty where all folders exist that the program writes
/// into, else the message for the user.
QString missingFolder(const QString& program, const QString& folder);

struct RewrittenProgram {
    QString text;            ///< for the engine alone
    QStringList suggestions; ///< a line for each clause that was replaced
};
/// Replaces clauses that the language keeps under another word.
RewrittenProgram rewriteDeprecated(const QString& program);

/// What an error line navigates to.
struct ErrorLineTarget {
    int line = 0;          ///< 1-based; 0 for none
    bool isNotice = false; ///< a line without a place that the window itself wrote
};
ErrorLineTarget errorLineTarget(const QString& row);

/// The start of a path as far as it fits, "...", and its last part; width: in the font, in pixels.
QString elidePath(const QString& nativePath, const QFont& font, int width);

enum class Assistant { Define, Rundef, Table, Execute };
/// The text for an assistant: white space as single blanks. False where there is text, but not
/// enough of a command.
bool simplifyForAssistant(Assistant assistant, QString& text);
