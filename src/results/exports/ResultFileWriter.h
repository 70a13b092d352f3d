// SPDX-License-Identifier: GPL-3.0-or-later
// Writes result tables to files: CSV, JSON, XML, PDF and workbooks.
#pragma once

#include "results/workbook/WriteOutcome.h"

#include <QList>
#include <QString>
#include <QStringList>

class KelSystem;
class TableBase;

/// A file that cannot be written is no exception: the outcome says why, the log has it too.
class ResultFileWriter {
public:
    /// The headers that a command of the window asked for. The preferences decide: both write the
    /// same file.
    enum class HeaderChoice { Label, Name };

    explicit ResultFileWriter(const KelSystem& settings) : settings_(&settings) {}

    WriteOutcome writeCsv(const TableBase& table, const QString& path, HeaderChoice choice,
                          const WriteProgress& progress = {}) const;
    /// What the engine gives, as it stands.
    WriteOutcome writeJson(const TableBase& table, const QString& path) const;
    WriteOutcome writeXml(const TableBase& table, const QString& path,
                          const WriteProgress& progress = {}) const;
    WriteOutcome writePdf(const TableBase& table, const QString& path,
                          const WriteProgress& progress = {}) const;
    WriteOutcome writeExcelPlain(const QList<const TableBase*>& tables, const QString& path,
                                 const WriteProgress& progress = {}) const;
    WriteOutcome writeExcelReport(const QList<const TableBase*>& tables, const QString& path,
                                  bool overwrite, const WriteProgress& progress = {}) const;

private:
    const KelSystem* settings_;
};
