// SPDX-License-Identifier: GPL-3.0-or-later
#include "results/workbook/BookFile.h"

#include "results/workbook/WorkbookError.h"

#include <QFile>
#include <QFileInfo>

namespace {

constexpr qint64 pieceSize = 1024 * 1024;

/// What the usual spreadsheets leave beside a workbook as long as they have it open.
QString lockFile(const QFileInfo& book) {
    for (const char* pattern : {".~lock.%1#", "~$%1"}) {
        QString name = QString::fromLatin1(pattern).arg(book.fileName());
        if (book.dir().exists(name))
            return name;
    }
    return {};
}

} // namespace

BookFile::BookFile(const QString& path) : file_(path) {
    if (!folder_.isValid())
        throw WorkbookError::notWritten(folder_.errorString());
    if (!file_.open(QIODevice::WriteOnly))
        throw WorkbookError::notWritten(file_.errorString());
}

QString BookFile::copyOfExisting() const {
    const QString locked = lockFile(QFileInfo(file_.fileName()));
    if (!locked.isEmpty())
        throw WorkbookError::inUse(locked);
    QString copy = folder().filePath(QStringLiteral("book.xlsx"));
    QFile existing(file_.fileName());
    if (!existing.copy(copy) || !QFile::setPermissions(copy, QFile::ReadOwner | QFile::WriteOwner))
        throw WorkbookError::notWritten(existing.errorString());
    return copy;
}

void BookFile::take(const QString& made) {
    QFile source(made);
    if (!source.open(QIODevice::ReadOnly))
        throw WorkbookError::notWritten(source.errorString());
    while (!source.atEnd()) {
        const QByteArray piece = source.read(pieceSize);
        if (piece.isEmpty())
            throw WorkbookError::notWritten(source.errorString());
        if (file_.write(piece) != piece.size())
            throw WorkbookError::notWritten(file_.errorString());
    }
    // What is left in the buffer must fit as well: commit() would not notice.
    if (!file_.flush() || !file_.commit())
        throw WorkbookError::notWritten(file_.errorString());
}
