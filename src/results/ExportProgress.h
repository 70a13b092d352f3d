// SPDX-License-Identifier: GPL-3.0-or-later
// Shows how far the writing of files has come, once it takes long, and lets the user cancel it.
// No program runs and nothing is closed meanwhile.
#pragma once

#include "engine/execution/RunGuard.h"
#include "results/workbook/WriteOutcome.h"

#include <QCoreApplication>
#include <QPointer>
#include <QProgressDialog>
#include <QString>

class ExportProgress {
    Q_DECLARE_TR_FUNCTIONS(ExportProgress)

public:
    /// files: how many there will be, one after the other.
    ExportProgress(qsizetype files, QWidget* parent);
    ~ExportProgress();
    ExportProgress(const ExportProgress&) = delete;
    ExportProgress& operator=(const ExportProgress&) = delete;

    /// False where the user has cancelled.
    bool beginFile(const QString& path);
    /// For the writer of each file in turn. Valid as long as this object.
    WriteProgress progress();

private:
    RunGuard guard_;
    QPointer<QProgressDialog> dialog_; ///< null once its parent has gone, which cancels too
    qsizetype files_;
    qsizetype begun_ = 0;
};
