// SPDX-License-Identifier: GPL-3.0-or-later
// The export commands: asks where the chosen tables are to go, writes them, and tells how it went.
#pragma once

#include "results/exports/ResultFileWriter.h"

#include <QCoreApplication>
#include <QList>
#include <QString>
#include <QStringList>

#include <functional>
#include <optional>

class ExportProgress;
class KelSystem;
class QWidget;
class TableBase;

/// One thing that is chosen in the tree: a table, or a process with all of its tables.
struct ExportEntry {
    QList<const TableBase*> tables;
    bool wholeProcess = false;
};

enum class ExportFormat { CsvLabelAsHeader, CsvNameAsHeader, Json, Xml, Pdf };

class ResultExports {
    Q_DECLARE_TR_FUNCTIONS(ResultExports)

public:
    using Tell = std::function<void(const QStringList& lines)>;

    /// tell: takes a line for each file of an export that failed or was cancelled.
    ResultExports(const KelSystem& settings, QWidget* parent, Tell tell);

    /// A single table into a file, all else into a folder. A table that is chosen twice is written
    /// once; nothing in the folder is overwritten.
    void write(ExportFormat format, const QList<ExportEntry>& chosen) const;
    /// All tables into one workbook: their reports, or their grids alone.
    void writeWorkbook(const QList<ExportEntry>& chosen, bool report) const;

private:
    struct File {
        const TableBase* table;
        QString path;
    };

    // Nothing where the user cancels.
    std::optional<QList<File>> askFile(ExportFormat format, const TableBase& table) const;
    std::optional<QList<File>> askFolder(ExportFormat format,
                                         const QList<ExportEntry>& chosen) const;
    // These are false where the user has cancelled.
    bool writeChosen(ExportFormat format, const QList<ExportEntry>& chosen) const;
    bool writeFiles(ExportFormat format, const QList<File>& files) const;
    bool writeTables(const QList<const TableBase*>& tables, bool report) const;
    WriteOutcome writeFile(ExportFormat format, const File& file, ExportProgress& progress) const;
    /// Tells of those that were not written.
    bool settle(const QList<WriteOutcome>& outcomes) const;

    ResultFileWriter writer_;
    QWidget* parent_;
    Tell tell_;
};
