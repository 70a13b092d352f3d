// SPDX-License-Identifier: GPL-3.0-or-later
#include "results/ResultLog.h"

#include "TKelDataset.h"
#include "TKelOutput.h"
#include "TKelVariable.h"

#include <QStringList>

// A dump of millions of cells takes long: it is off until somebody asks for it.
Q_LOGGING_CATEGORY(resultLog, "KelvoraX.results", QtInfoMsg)

namespace {

const QString rule = QStringLiteral("============================");

void say(const QString& line) {
    qCDebug(resultLog, "%s", qUtf8Printable(line));
}

void dumpRows(TKelDataset& dataset) {
    for (std::int64_t row = 0; row < dataset.recCount(); ++row) {
        QStringList cells;
        for (int column = 0; column < dataset.numFields(); ++column)
            cells += QString::fromStdString(dataset.stringValue(row, column));
        say("  row" + QString::number(row) + ':' + cells.join(u','));
    }
}

} // namespace

void dumpOutput(TKelOutput& output) {
    if (!resultLog().isDebugEnabled())
        return;
    TKelDataset* dataset = output.dataset();
    QStringList variables;
    for (const TKelVariable* variable : output.variables())
        variables += QString::fromStdString(variable->name());
    say(rule);
    say("[Proc::dataset dump]");
    say("  NAME      :" + QString::fromStdString(output.name()));
    say("  TYPE      :" + QString::fromStdString(output.typeName()));
    say("  METHOD    :" + QString::fromStdString(output.methodName()));
    say("  DIMENSION :" + QString::number(output.dimension()));
    say("  recCount  :" + QString::number(dataset != nullptr ? dataset->recCount() : -1));
    say("  numFields :" + QString::number(dataset != nullptr ? dataset->numFields() : -1));
    say("  VARIABLES :" + variables.join(u','));
    say("  --- dataset rows ---");
    if (dataset != nullptr)
        dumpRows(*dataset);
    say(rule);
}
