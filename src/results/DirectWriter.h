// SPDX-License-Identifier: GPL-3.0-or-later
// Writes the tables of a run that go straight to files, one after the other under one progress.
#pragma once

#include "results/workbook/WriteOutcome.h"

#include <QStringList>

#include <memory>
#include <vector>

class ExportProgress;
class KelSystem;
class QWidget;
class TableBase;
class TKelOutput;

/// No program runs and nothing is closed while one lives that has files to write.
class DirectWriter {
public:
    /// Of all the outputs; those that are not direct are passed over.
    DirectWriter(const KelSystem& settings, const std::vector<TKelOutput*>& outputs,
                 QWidget* parent);
    ~DirectWriter();
    DirectWriter(const DirectWriter&) = delete;
    DirectWriter& operator=(const DirectWriter&) = delete;

    /// The file of a direct output. Once the user has cancelled, none is written any more.
    WriteOutcome write(const TableBase& table, TKelOutput& output);
    /// What is to be told of files that were not written, or elsewhere than the program says.
    const QStringList& lines() const { return lines_; }

private:
    const KelSystem* settings_;
    std::unique_ptr<ExportProgress> progress_; ///< null where there is nothing to write
    QStringList lines_;
};

/// The table style of a run: the first that one of its outputs names; empty where none does.
QString styleOfRun(const std::vector<TKelOutput*>& outputs);
