// SPDX-License-Identifier: GPL-3.0-or-later
#include "results/exports/DirectExport.h"

#include "TKelOutput.h"
#include "app/settings/KelSystem.h"
#include "results/exports/ExportFile.h"
#include "results/tables/TableBase.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QLoggingCategory>

namespace {

Q_LOGGING_CATEGORY(directLog, "KelvoraX")

constexpr int xlsxFormat = 3;
constexpr int pdfFormat = 10;
constexpr int appending = 2;

QString translated(const char* text) {
    return QCoreApplication::translate("DirectExport", text);
}

} // namespace

QString DirectExport::goodPath(const QString& asked, QStringList* notes) const {
    const QString results = settings_->directoryFor(QStringLiteral("TABLE"));
    QString path = QDir::cleanPath(QDir(results).absoluteFilePath(asked));
    const QFileInfo file(path);
    if (file.dir().exists())
        return path;
    qCWarning(directLog).noquote() << file.path() << "does not exist.";
    qCWarning(directLog).noquote() << "Using default directory" << results;
    QDir().mkpath(results);
    QString instead = QDir(results).filePath(file.fileName());
    if (notes != nullptr)
        *notes += translated(QT_TRANSLATE_NOOP("DirectExport",
                                               "The folder %1 does not exist. %2 is written into "
                                               "the folder of results, %3."))
                      .arg(QDir::toNativeSeparators(file.path()), file.fileName(),
                           QDir::toNativeSeparators(results));
    return instead;
}

WriteOutcome DirectExport::write(const TableBase& table, const TKelOutputConfig& options,
                                 QStringList* notes, const WriteProgress& progress) const {
    const QString asked = QString::fromStdString(options.outputFile);
    if (asked.isEmpty())
        return exportFault(asked, translated(QT_TRANSLATE_NOOP(
                                      "DirectExport", "The program gives no name of a file.")));
    const QString path = goodPath(asked, notes);
    if (options.format == xlsxFormat)
        return writer_.writeExcelReport({&table}, path, options.formatFlavour != appending,
                                        progress);
    if (options.format == pdfFormat)
        return writer_.writePdf(table, path, progress);
    return writer_.writeCsv(table, path, ResultFileWriter::HeaderChoice::Name, progress);
}
