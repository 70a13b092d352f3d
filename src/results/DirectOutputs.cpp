// SPDX-License-Identifier: GPL-3.0-or-later
#include "results/DirectOutputs.h"

#include "TKelOutput.h"
#include "results/DirectWriter.h"
#include "results/TableMaker.h"

#include <utility>

DirectOutputs::DirectOutputs(const KelSystem& settings, TKelDictionary& dictionary,
                             QString databasePath)
    : settings_(&settings), dictionary_(&dictionary), databasePath_(std::move(databasePath)) {}

QStringList DirectOutputs::write(const std::vector<TKelOutput*>& outputs, QWidget* parent) const {
    const TableMaker maker(*settings_, *dictionary_, databasePath_);
    const QString style = styleOfRun(outputs);
    DirectWriter direct(*settings_, outputs, parent);
    for (TKelOutput* output : outputs)
        if (output->options().direct)
            direct.write(*maker.make(*output, style), *output);
    return direct.lines();
}
