// SPDX-License-Identifier: GPL-3.0-or-later
#include "results/exports/CsvWriter.h"

#include "app/settings/KelSystem.h"
#include "results/exports/ExportFile.h"
#include "results/tables/TableBase.h"

namespace {

constexpr std::string_view byteOrderMark = "\xEF\xBB\xBF";

void writeRow(ExportFile& file, const ResultRows& cells, qsizetype row,
              std::string_view separator) {
    for (qsizetype column = 0; column < cells.width() && file.goesOn(); ++column) {
        file.write(cells.text(row, column));
        file.write(separator);
        file.cellDone();
    }
    file.write("\n");
}

} // namespace

QStringList CsvWriter::headers(const TableBase& table) const {
    const QString name = QStringLiteral("Name");
    QString what;
    if (table.metadata().kind == tablekind::areaList)
        what = settings_->csvArealistHeaderVariable();
    else if (table.metadata().kind == tablekind::tablist)
        what = settings_->csvTablistHeaderVariable();
    else
        return table.columnHeaders();
    return what == name ? table.columnNames() : table.columnLabels();
}

WriteOutcome CsvWriter::write(const TableBase& table, const QString& path,
                              const WriteProgress& progress) const {
    const ResultRows& cells = table.cells();
    const std::string separator = settings_->csvDelimiter().toStdString();
    ExportFile file(withSuffix(path, QStringLiteral("csv")), cells.size() * cells.width(),
                    progress);
    file.write(byteOrderMark);
    if (settings_->csvShowHeader()) {
        for (const QString& header : headers(table))
            file.write(header.toStdString() + separator);
        file.write("\n");
    }
    for (qsizetype row = 0; row < cells.size() && file.goesOn(); ++row)
        writeRow(file, cells, row, separator);
    return file.close();
}
