// SPDX-License-Identifier: GPL-3.0-or-later
#include "editor/program/AssistantText.h"

#include <QCoreApplication>
#include <QRegularExpression>

namespace {

QString commandOf(Assistant assistant) {
    switch (assistant) {
    case Assistant::Define:
        return QStringLiteral("define");
    case Assistant::Rundef:
        return QStringLiteral("rundef");
    case Assistant::Table:
        return QStringLiteral("table");
    case Assistant::Execute:
        break;
    }
    return QStringLiteral("execute");
}

} // namespace

bool simplifyForAssistant(Assistant assistant, QString& text) {
    text = text.simplified();
    const QRegularExpression command("\\b" + commandOf(assistant) + "\\b",
                                     QRegularExpression::CaseInsensitiveOption);
    const qsizetype at = text.indexOf(command);
    return text.isEmpty() || (at >= 0 && text.indexOf(u' ', at) >= 0);
}

QString incompleteCodeMessage(Assistant assistant) {
    return QCoreApplication::translate("ProgramText",
                                       "The typed code is incomplete to show a %1 assistant window")
        .arg(commandOf(assistant));
}
