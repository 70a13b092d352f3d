// SPDX-License-Identifier: GPL-3.0-or-later
// Makes the result tables of a run.
#pragma once

#include "results/tables/TableBase.h"

#include <QString>

#include <memory>

class KelSystem;
class TKelDictionary;

class TableMaker {
public:
    /// The dictionary that the outputs are about and the path of its file.
    TableMaker(const KelSystem& settings, TKelDictionary& dictionary, QString databasePath);

    /// With its metadata, laid out as the style file says, or as the preferences where the path is
    /// empty.
    std::unique_ptr<TableBase> make(TKelOutput& output, const QString& stylePath) const;

private:
    TableViewConfig viewConfig(const QString& stylePath) const;

    TKelDictionary* dictionary_;
    QString databasePath_;
    TablePreferences preferences_;
};

/// What the user prefers for tables.
TablePreferences tablePreferences(const KelSystem& settings);
