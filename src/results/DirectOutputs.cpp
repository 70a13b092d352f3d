// SPDX-License-Identifier: GPL-3.0-or-later
#include "results/DirectOutputs.h"

#include "TKelOutput.h"
#include "results/TableMaker.h"

#include <utility>

DirectOutputs::DirectOutputs(const KelSystem& settings, TKelDictionary& dictionary,
                             QString databasePath)
    : settings_(&settings), dictionary_(&dictionary), databasePath_(std::move(databasePath)) {}

QStringList DirectOutputs::write(const std::vector<TKelOutput*>& outputs) const {
    const TableMaker maker(*settings_, *dictionary_, databasePath_);
    QStringList lines;
    for (TKelOutput* output : outputs)
        if (output->options().direct) {
            const QString style = QString::fromStdString(output->options().style.value_or(""));
            lines += maker.writeDirect(*maker.make(*output, style), *output);
        }
    return lines;
}
