// SPDX-License-Identifier: GPL-3.0-or-later
// Clauses that the language keeps under another word: programs that still have the old one run, and
// their writers are told.
#pragma once

#include <QString>
#include <QStringList>

struct RewrittenProgram {
    QString text;            ///< for the engine alone; its lines are those of the program
    QStringList suggestions; ///< a line for each kind of clause that was replaced
};

RewrittenProgram rewriteDeprecated(const QString& program);
