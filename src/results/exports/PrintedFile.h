// SPDX-License-Identifier: GPL-3.0-or-later
// A PDF that the printer makes elsewhere, for it tells of no fault, and that takes its place once
// it is found whole.
#pragma once

#include "results/workbook/WriteOutcome.h"

#include <QString>
#include <QTemporaryDir>

class PrintedFile {
public:
    explicit PrintedFile(const QString& target);

    QString fault() const { return fault_; } ///< why it can't be written; known before printing
    QString printPath() const { return folder_.filePath(QStringLiteral("report.pdf")); }
    /// printed: what the printer says.
    WriteOutcome takePlace(bool printed) const;

private:
    bool isWhole() const;

    QString target_;
    QTemporaryDir folder_;
    QString fault_;
};
