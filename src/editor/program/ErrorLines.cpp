// SPDX-License-Identifier: GPL-3.0-or-later
#include "editor/program/ErrorLines.h"

#include <QCoreApplication>
#include <QRegularExpression>
#include <QStringList>

#include <optional>

namespace {

/// A second field that is a number wins: it is the line where a message names something first.
std::optional<int> numberIn(const QString& row) {
    const QStringList fields = row.split(u':', Qt::SkipEmptyParts);
    for (const qsizetype index : {1, 0}) {
        bool isNumber = false;
        const int number = fields.value(index).toInt(&isNumber);
        if (isNumber)
            return number;
    }
    return std::nullopt;
}

bool isSuggestion(const QString& row) {
    static const QRegularExpression word(QStringLiteral("^(SUGGESTION|SUGERENCIA).*$"),
                                         QRegularExpression::CaseInsensitiveOption);
    return word.match(row).hasMatch() ||
           row.startsWith(QCoreApplication::translate("ProgramText", "SUGGESTION"));
}

} // namespace

ErrorLineTarget errorLineTarget(const QString& row, bool marked) {
    if (marked)
        return {0, true};
    // The engine numbers lines from 1: a smaller number stands for the program as a whole.
    if (const std::optional<int> number = numberIn(row))
        return *number > 0 ? ErrorLineTarget{*number, false} : ErrorLineTarget{0, true};
    return {0, isSuggestion(row)};
}
