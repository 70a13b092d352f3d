// SPDX-License-Identifier: GPL-3.0-or-later
#include "results/exports/ResultFileWriter.h"

#include "results/exports/CsvWriter.h"
#include "results/exports/ExportFile.h"
#include "results/exports/PdfWriter.h"
#include "results/exports/XmlWriter.h"
#include "results/tables/TableBase.h"
#include "results/workbook/WorkbookExports.h"

WriteOutcome ResultFileWriter::writeCsv(const TableBase& table, const QString& path,
                                        HeaderChoice /*choice*/,
                                        const WriteProgress& progress) const {
    return CsvWriter(*settings_).write(table, path, progress);
}

WriteOutcome ResultFileWriter::writeJson(const TableBase& table, const QString& path) const {
    ExportFile file(path, 0, {});
    file.write(table.asJson());
    return file.close();
}

WriteOutcome ResultFileWriter::writeXml(const TableBase& table, const QString& path,
                                        const WriteProgress& progress) const {
    return writeXmlReport(table, path, progress);
}

WriteOutcome ResultFileWriter::writePdf(const TableBase& table, const QString& path,
                                        const WriteProgress& progress) const {
    return writePdfReport(table, path, progress);
}

WriteOutcome ResultFileWriter::writeExcelPlain(const QList<const TableBase*>& tables,
                                               const QString& path,
                                               const WriteProgress& progress) const {
    return writePlainWorkbook(tables, path, progress);
}

WriteOutcome ResultFileWriter::writeExcelReport(const QList<const TableBase*>& tables,
                                                const QString& path, bool overwrite,
                                                const WriteProgress& progress) const {
    return writeReportWorkbook(tables, path, overwrite, progress);
}
