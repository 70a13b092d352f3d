// SPDX-License-Identifier: GPL-3.0-or-later
#include "results/ResultFaults.h"

#include "results/workbook/WriteOutcome.h"

#include <QCoreApplication>
#include <QDir>

namespace {

QString translated(const char* text) {
    return QCoreApplication::translate("ResultFaults", text);
}

} // namespace

QString resultFault(const WriteOutcome& outcome) {
    const QString path = QDir::toNativeSeparators(outcome.path);
    if (outcome.cancelled)
        return translated(QT_TRANSLATE_NOOP("ResultFaults", "%1 was not written: cancelled"))
            .arg(path);
    return translated(QT_TRANSLATE_NOOP("ResultFaults", "%1 was not written: %2"))
        .arg(path, outcome.fault);
}
