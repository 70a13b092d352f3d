// SPDX-License-Identifier: GPL-3.0-or-later
// The place of a workbook: it is made in a folder of its own and takes the place of the file that
// is there only once it is whole.
#pragma once

#include <QDir>
#include <QSaveFile>
#include <QString>
#include <QTemporaryDir>

/// Throws WorkbookError, at once where the place can't be written to.
class BookFile {
public:
    explicit BookFile(const QString& path);

    QDir folder() const { return QDir(folder_.path()); } ///< for files in between; goes with this
    /// A copy, to be changed, of the workbook that is there. Throws where it is open elsewhere.
    QString copyOfExisting() const;
    /// This file is the workbook now.
    void take(const QString& made);

private:
    QTemporaryDir folder_;
    QSaveFile file_;
};
