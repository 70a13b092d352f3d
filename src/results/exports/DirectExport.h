// SPDX-License-Identifier: GPL-3.0-or-later
// Writes the files that a program asked for with OUTFILE.
#pragma once

#include "results/exports/ResultFileWriter.h"

struct TKelOutputConfig;

class DirectExport {
public:
    explicit DirectExport(const KelSystem& settings) : writer_(settings), settings_(&settings) {}

    /// The table's own file in its own format, once its metadata and view are settled. A folder
    /// that is not there gives way to the folder of results; notes, if given, gets a line that says
    /// so.
    WriteOutcome write(const TableBase& table, const TKelOutputConfig& options,
                       QStringList* notes = nullptr, const WriteProgress& progress = {}) const;

private:
    /// Where the file goes; relative to the folder of results.
    QString goodPath(const QString& asked, QStringList* notes) const;

    ResultFileWriter writer_;
    const KelSystem* settings_;
};
