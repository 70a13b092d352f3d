// SPDX-License-Identifier: GPL-3.0-or-later
// What keeps a workbook from being written, told to the user, and the end that the user asked for.
#pragma once

#include <QCoreApplication>
#include <QString>

#include <stdexcept>

class WorkbookError : public std::runtime_error {
    Q_DECLARE_TR_FUNCTIONS(WorkbookError)

public:
    explicit WorkbookError(const QString& text);
    const QString& text() const { return text_; }

    // Of the file that is written.
    static WorkbookError notWritten(const QString& reason);
    static WorkbookError cutOff();
    static WorkbookError tooManyRows(const QString& table, qint64 rows);
    static WorkbookError tooManyColumns(const QString& table, qint64 columns);
    // Of the workbook that sheets are to join.
    static WorkbookError noWorkbook();
    static WorkbookError locked();
    static WorkbookError strict();
    static WorkbookError isSigned();
    static WorkbookError inUse(const QString& lockFile);
    static WorkbookError damaged(const QString& part);
    static WorkbookError tooLarge(const QString& part);

private:
    QString text_;
};

/// Thrown where the user stops the writing.
struct WritingCancelled {};
