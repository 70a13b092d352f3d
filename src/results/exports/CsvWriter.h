// SPDX-License-Identifier: GPL-3.0-or-later
// A result table as lines of text with separators, in UTF-8 behind a byte order mark.
#pragma once

#include "results/workbook/WriteOutcome.h"

#include <QString>
#include <QStringList>

class KelSystem;
class TableBase;

/// Each header and each cell has a separator behind it, the last of a line too; none is quoted.
class CsvWriter {
public:
    explicit CsvWriter(const KelSystem& settings) : settings_(&settings) {}

    /// ".csv" is added where the path lacks it.
    WriteOutcome write(const TableBase& table, const QString& path,
                       const WriteProgress& progress = {}) const;

private:
    /// Field names or labels of lists, as the preferences say; of other tables what is shown.
    QStringList headers(const TableBase& table) const;

    const KelSystem* settings_;
};
