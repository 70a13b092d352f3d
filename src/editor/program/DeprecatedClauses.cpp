// SPDX-License-Identifier: GPL-3.0-or-later
#include "editor/program/DeprecatedClauses.h"

#include <QCoreApplication>
#include <QRegularExpression>

namespace {

QString translated(const char* word) {
    return QCoreApplication::translate("ProgramText", word);
}

QString suggestion() {
    return translated(QT_TRANSLATE_NOOP("ProgramText", "SUGGESTION")) + ": outfile json " +
           translated(QT_TRANSLATE_NOOP("ProgramText", "DEPRECATED")) + ", " +
           translated(QT_TRANSLATE_NOOP("ProgramText", "USE")) + ": save";
}

} // namespace

RewrittenProgram rewriteDeprecated(const QString& program) {
    // A line end between the words stays, so that messages give the lines that the user sees.
    static const QRegularExpression outfileJson(
        QStringLiteral("\\boutfile(?:([\\r\\n])|\\s)json\\b"),
        QRegularExpression::CaseInsensitiveOption);
    RewrittenProgram rewritten{program, {}};
    rewritten.text.replace(outfileJson, QStringLiteral("save\\1"));
    if (rewritten.text != program)
        rewritten.suggestions += suggestion();
    return rewritten;
}
