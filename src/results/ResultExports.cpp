// SPDX-License-Identifier: GPL-3.0-or-later
#include "results/ResultExports.h"

#include "app/dialogs/KelvoraFileDialog.h"
#include "app/messages/Messages.h"
#include "engine/execution/RunGuard.h"
#include "results/ExportProgress.h"
#include "results/ResultFaults.h"
#include "results/exports/SafeFileNames.h"
#include "results/tables/TableBase.h"

#include <QDir>
#include <QFile>
#include <QSet>

#include <utility>

namespace {

/// What files of a format are called.
struct FormatWords {
    const char* filter;
    QString suffix;
    QString processSuffix; ///< of the tables of a whole process
    QString dialogSuffix;  ///< added to the name that the user gives
};

FormatWords wordsOf(ExportFormat format) {
    const auto word = [](const char* text) { return QString::fromLatin1(text); };
    switch (format) {
    case ExportFormat::Json:
        return {
            QT_TRANSLATE_NOOP("ResultExports", "JSON (*.json)"), word(".json"), word(".json"), {}};
    case ExportFormat::Xml:
        return {QT_TRANSLATE_NOOP("ResultExports", "XML (*.xml)"), word(".xml"), word(".xlm"), {}};
    case ExportFormat::Pdf:
        return {QT_TRANSLATE_NOOP("ResultExports", "PDF (*.pdf)"), word(".pdf"), word(".pdf"),
                word(".pdf")};
    default:
        return {QT_TRANSLATE_NOOP("ResultExports", "CSV (*.csv)"), word(".csv"), word(".csv"),
                word(".csv")};
    }
}

/// In the folder of results.
KelvoraFileDialog dialogOf(const QString& caption) {
    return {QStringLiteral("TABLE"), QString(), caption};
}

/// A name that no file of this export, and none in the folder, has.
QString freePath(SafeFileNames& names, const QDir& folder, const TableBase& table,
                 const QString& suffix) {
    QString path;
    do
        path = folder.filePath(names.take(table.tableName(), suffix));
    while (QFile::exists(path));
    return path;
}

} // namespace

ResultExports::ResultExports(const KelSystem& settings, QWidget* parent, Tell tell)
    : writer_(settings), parent_(parent), tell_(std::move(tell)) {}

void ResultExports::write(ExportFormat format, const QList<ExportEntry>& chosen) const {
    if (chosen.isEmpty()) {
        showError(tr("Select a table"));
        return;
    }
    if (writeChosen(format, chosen))
        showInformation(tr("Export completed"));
}

bool ResultExports::writeChosen(ExportFormat format, const QList<ExportEntry>& chosen) const {
    const RunGuard guard; // the tables stay from the question to the last file
    const bool single = chosen.size() == 1 && !chosen.front().wholeProcess;
    const auto files =
        single ? askFile(format, *chosen.front().tables.front()) : askFolder(format, chosen);
    return files && writeFiles(format, *files);
}

std::optional<QList<ResultExports::File>> ResultExports::askFile(ExportFormat format,
                                                                 const TableBase& table) const {
    const FormatWords words = wordsOf(format);
    const QString path = dialogOf(tr("Save File"))
                             .saveFile(tr(words.filter), words.dialogSuffix,
                                       SafeFileNames::safe(table.tableName()) + words.suffix);
    if (path.isEmpty())
        return std::nullopt;
    return QList<File>{{&table, path}};
}

std::optional<QList<ResultExports::File>>
ResultExports::askFolder(ExportFormat format, const QList<ExportEntry>& chosen) const {
    const QString folder = dialogOf(tr("Select Folder")).chooseFolder();
    if (folder.isEmpty())
        return std::nullopt;
    const FormatWords words = wordsOf(format);
    SafeFileNames names;
    QSet<const TableBase*> taken;
    QList<File> files;
    for (const ExportEntry& entry : chosen)
        for (const TableBase* table : entry.tables) {
            if (taken.contains(table))
                continue;
            taken += table;
            files += {table, freePath(names, folder, *table,
                                      entry.wholeProcess ? words.processSuffix : words.suffix)};
        }
    return files;
}

bool ResultExports::writeFiles(ExportFormat format, const QList<File>& files) const {
    ExportProgress progress(files.size(), parent_);
    QList<WriteOutcome> outcomes;
    for (const File& file : files)
        outcomes += writeFile(format, file, progress);
    return settle(outcomes);
}

WriteOutcome ResultExports::writeFile(ExportFormat format, const File& file,
                                      ExportProgress& progress) const {
    if (!progress.beginFile(file.path))
        return {true, file.path, {}};
    switch (format) {
    case ExportFormat::CsvLabelAsHeader:
        return writer_.writeCsv(*file.table, file.path, ResultFileWriter::HeaderChoice::Label,
                                progress.progress());
    case ExportFormat::CsvNameAsHeader:
        return writer_.writeCsv(*file.table, file.path, ResultFileWriter::HeaderChoice::Name,
                                progress.progress());
    case ExportFormat::Xml:
        return writer_.writeXml(*file.table, file.path, progress.progress());
    case ExportFormat::Pdf:
        return writer_.writePdf(*file.table, file.path, progress.progress());
    default:
        return writer_.writeJson(*file.table, file.path);
    }
}

bool ResultExports::settle(const QList<WriteOutcome>& outcomes) const {
    QStringList lines;
    bool cancelled = false;
    for (const WriteOutcome& outcome : outcomes) {
        cancelled = cancelled || outcome.cancelled;
        if (!outcome.written())
            lines += resultFault(outcome);
    }
    if (!lines.isEmpty())
        tell_(lines);
    return !cancelled;
}

void ResultExports::writeWorkbook(const QList<ExportEntry>& chosen, bool report) const {
    QList<const TableBase*> tables;
    for (const ExportEntry& entry : chosen)
        for (const TableBase* table : entry.tables)
            if (!tables.contains(table))
                tables += table;
    if (tables.isEmpty()) {
        showError(tr("Select a table"));
        return;
    }
    if (writeTables(tables, report))
        showInformation(tr("Export completed"));
}

bool ResultExports::writeTables(const QList<const TableBase*>& tables, bool report) const {
    const RunGuard guard;
    const QString suffix = QStringLiteral(".xlsx");
    const QString path = dialogOf(tr("Save File"))
                             .saveFile(tr("EXCEL (*.xlsx)"), suffix,
                                       SafeFileNames::safe(tables.front()->tableName()) + suffix);
    if (path.isEmpty())
        return false;
    ExportProgress progress(1, parent_);
    progress.beginFile(path);
    return settle({report ? writer_.writeExcelReport(tables, path, true, progress.progress())
                          : writer_.writeExcelPlain(tables, path, progress.progress())});
}
