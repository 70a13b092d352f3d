// SPDX-License-Identifier: GPL-3.0-or-later
#include "results/TableMaker.h"

#include "TKelOutput.h"
#include "app/settings/KelSystem.h"
#include "results/tables/TableFactory.h"

#include <utility>

TablePreferences tablePreferences(const KelSystem& settings) {
    return {settings.decimals(), TablePreferences::separatorOf(settings.tableSeparator()),
            settings.freqTitle()};
}

TableMaker::TableMaker(const KelSystem& settings, TKelDictionary& dictionary, QString databasePath)
    : dictionary_(&dictionary), databasePath_(std::move(databasePath)),
      preferences_(tablePreferences(settings)) {}

TableViewConfig TableMaker::viewConfig(const QString& stylePath) const {
    return stylePath.isEmpty() ? TableViewConfig(preferences_)
                               : TableViewConfig(stylePath, preferences_);
}

std::unique_ptr<TableBase> TableMaker::make(TKelOutput& output, const QString& stylePath) const {
    auto table = makeResultTable(
        {&output, preferences_, TableMetadata(output, *dictionary_, databasePath_)});
    table->applyViewConfig(viewConfig(stylePath));
    return table;
}
