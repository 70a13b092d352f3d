// SPDX-License-Identifier: GPL-3.0-or-later
#include "results/workbook/WorkbookExports.h"

#include "results/tables/TableBase.h"
#include "results/workbook/BookFile.h"
#include "results/workbook/CellProgress.h"
#include "results/workbook/PlainSheet.h"
#include "results/workbook/ReportSheet.h"
#include "results/workbook/SheetNames.h"
#include "results/workbook/Workbook.h"
#include "results/workbook/WorkbookAppender.h"
#include "results/workbook/WorkbookError.h"

#include <QDebug>
#include <QFileInfo>

#include <functional>

namespace {

using Tables = QList<const TableBase*>;

WriteOutcome outcomeOf(const QString& path, const std::function<void()>& write) {
    WriteOutcome outcome;
    outcome.path = path;
    try {
        write();
    } catch (const WritingCancelled&) {
        outcome.cancelled = true;
    } catch (const WorkbookError& error) {
        outcome.fault = error.text();
    }
    return outcome;
}

QString withSuffix(const QString& path) {
    const bool hasIt =
        QFileInfo(path).suffix().compare(QLatin1String("xlsx"), Qt::CaseInsensitive) == 0;
    return hasIt ? path : path + QStringLiteral(".xlsx");
}

template <typename Rows>
qint64 cellsOf(const Tables& tables, Rows rowsOf) {
    qint64 cells = 0;
    for (const TableBase* table : tables) {
        const ResultRows& rows = rowsOf(*table);
        for (qsizetype row = 0; row < rows.size(); ++row)
            cells += rows.columns(row);
    }
    return cells;
}

void writePlain(const Tables& tables, const QString& path, CellProgress& progress) {
    SheetNames names;
    Workbook book(path, progress.total());
    for (const TableBase* table : tables) {
        book.addSheet(names.takeOrDefault(table->outputName()));
        plainsheet::write(book, *table, progress);
    }
    book.close([&] { return progress.mayGoOn(); });
}

/// The names of the sheets.
QStringList writeReports(const Tables& tables, const QStringList& taken, const QString& path,
                         CellProgress& progress) {
    SheetNames names(taken);
    QStringList written;
    Workbook book(path, progress.total());
    for (const TableBase* table : tables) {
        written += names.takeNumbered(table->tableName());
        book.addSheet(written.last());
        ReportSheet(*table).write(book, progress);
    }
    book.close([&] { return progress.mayGoOn(); });
    return written;
}

/// Reports as a new workbook, or added to the one that is there.
void makeReports(const Tables& tables, BookFile& file, bool isNew, CellProgress& progress) {
    const QString made = file.folder().filePath(QStringLiteral("new.xlsx"));
    if (isNew) {
        writeReports(tables, {}, made, progress);
        return file.take(made);
    }
    const QString book = file.copyOfExisting();
    WorkbookAppender appender(book);
    const QStringList names = writeReports(tables, appender.sheetNames(), made, progress);
    appender.append(made, names, file.folder(), [&] { return progress.mayGoOn(); });
    file.take(book);
}

} // namespace

WriteOutcome writePlainWorkbook(const QList<const TableBase*>& tables, const QString& path,
                                const WriteProgress& progress) {
    return outcomeOf(path, [&] {
        for (const TableBase* table : tables)
            plainsheet::checkSize(*table);
        BookFile file(path);
        const QString made = file.folder().filePath(QStringLiteral("new.xlsx"));
        CellProgress cells(progress, cellsOf(
                                         tables, [](const TableBase& table) -> const auto& {
                                             return table.cells();
                                         }));
        writePlain(tables, made, cells);
        file.take(made);
    });
}

WriteOutcome writeReportWorkbook(const QList<const TableBase*>& tables, const QString& path,
                                 bool overwrite, const WriteProgress& progress) {
    const QString target = withSuffix(path);
    const bool isNew = overwrite || !QFileInfo::exists(target);
    WriteOutcome outcome = outcomeOf(target, [&] {
        for (const TableBase* table : tables)
            ReportSheet(*table).checkSize();
        BookFile file(target);
        CellProgress cells(progress, cellsOf(
                                         tables, [](const TableBase& table) -> const auto& {
                                             return table.reportCells();
                                         }));
        if (isNew || !tables.isEmpty())
            makeReports(tables, file, isNew, cells);
    });
    if (!outcome.fault.isEmpty())
        qWarning().noquote() << "No se pudo guardar el archivo XLSX en" << target;
    return outcome;
}
