// SPDX-License-Identifier: GPL-3.0-or-later
// A file in the making: texts go to it piece by piece, and it stands in its place only once it is
// whole.
#pragma once

#include "results/workbook/WriteOutcome.h"

#include <QByteArray>
#include <QSaveFile>
#include <QString>

#include <string_view>

class ExportFile {
public:
    /// cells: how many there will be; progress is asked after every few thousand of them.
    ExportFile(const QString& path, qint64 cells, const WriteProgress& progress);

    /// False once it cannot be written or was cancelled: all that follows is passed over.
    bool goesOn() const { return outcome_.written(); }
    void write(std::string_view utf8);
    void write(const char* utf8) { write(std::string_view(utf8)); }
    void write(const QString& text) { write(std::string_view(text.toStdString())); }
    void cellDone();

    /// Puts the file in its place. A file that was there before is as it was unless the outcome
    /// says that this one was written; the log has why not.
    WriteOutcome close();

private:
    void handOver();
    void fail();

    QSaveFile file_;
    QByteArray waiting_; ///< not yet handed to the system
    WriteProgress progress_;
    qint64 done_ = 0;
    qint64 cells_;
    WriteOutcome outcome_;
};

/// The path, with the suffix behind it unless it is there in small or capital letters.
QString withSuffix(const QString& path, const QString& suffix);

/// The outcome of a file that could not be written; a warning goes to the log.
WriteOutcome exportFault(const QString& path, const QString& fault);
