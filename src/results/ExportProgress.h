// SPDX-License-Identifier: GPL-3.0-or-later
// Shows how far the writing of files has come, once it takes long, and lets the user cancel it.
#pragma once

#include "results/workbook/WriteOutcome.h"

#include <QCoreApplication>
#include <QProgressDialog>
#include <QString>

class ExportProgress {
    Q_DECLARE_TR_FUNCTIONS(ExportProgress)

public:
    /// files: how many there will be, one after the other.
    ExportProgress(qsizetype files, QWidget* parent);

    /// False where the user has cancelled.
    bool beginFile(const QString& path);
    /// For the writer of each file in turn. Valid as long as this object.
    WriteProgress progress();

private:
    QProgressDialog dialog_;
    qsizetype files_;
    qsizetype begun_ = 0;
};
