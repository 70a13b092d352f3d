// SPDX-License-Identifier: GPL-3.0-or-later
#include "results/workbook/WorkbookError.h"

WorkbookError::WorkbookError(const QString& text)
    : std::runtime_error(text.toStdString()), text_(text) {}

WorkbookError WorkbookError::notWritten(const QString& reason) {
    return WorkbookError(tr("The workbook can't be written: %1.").arg(reason));
}

WorkbookError WorkbookError::cutOff() {
    return notWritten(tr("it did not reach the disk as a whole; is there enough space?"));
}

WorkbookError WorkbookError::tooManyRows(const QString& table, qint64 rows) {
    return WorkbookError(tr("%1 needs %2 rows, more than a sheet of a workbook has. Export it as "
                            "CSV.")
                             .arg(table)
                             .arg(rows));
}

WorkbookError WorkbookError::tooManyColumns(const QString& table, qint64 columns) {
    return WorkbookError(tr("%1 needs %2 columns, more than a sheet of a workbook has. Export it "
                            "as CSV.")
                             .arg(table)
                             .arg(columns));
}

WorkbookError WorkbookError::noWorkbook() {
    return WorkbookError(tr("The file that is there is no XLSX workbook. Choose another name, or "
                            "replace the file."));
}

WorkbookError WorkbookError::locked() {
    return WorkbookError(tr("The workbook that is there is protected by a password or in an older "
                            "format. Choose another name, or replace the file."));
}

WorkbookError WorkbookError::strict() {
    return WorkbookError(tr("The workbook that is there is kept as Strict Open XML. Save it as a "
                            "usual workbook first, or choose another name."));
}

WorkbookError WorkbookError::isSigned() {
    return WorkbookError(tr("The workbook that is there is signed; another sheet would break the "
                            "signature. Choose another name."));
}

WorkbookError WorkbookError::inUse(const QString& lockFile) {
    return WorkbookError(tr("The workbook is open in another program. Close it there first. (If it "
                            "is not, remove the file %1.)")
                             .arg(lockFile));
}

WorkbookError WorkbookError::damaged(const QString& part) {
    return WorkbookError(tr("The workbook that is there is damaged (%1). Choose another name, or "
                            "replace the file.")
                             .arg(part));
}

WorkbookError WorkbookError::tooLarge(const QString& part) {
    return WorkbookError(tr("The workbook that is there can't take more sheets (%1 is too large). "
                            "Choose another name.")
                             .arg(part));
}
