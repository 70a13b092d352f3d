// SPDX-License-Identifier: GPL-3.0-or-later
#include "results/exports/PrintedFile.h"

#include "results/exports/ExportFile.h"

#include <QCoreApplication>
#include <QFile>
#include <QSaveFile>

#include <algorithm>

namespace {

constexpr qint64 pieceSize = 1 << 18;

QString translated(const char* text) {
    return QCoreApplication::translate("PrintedFile", text);
}

} // namespace

PrintedFile::PrintedFile(const QString& target) : target_(target) {
    QSaveFile place(target);
    if (!place.open(QIODevice::WriteOnly))
        fault_ = place.errorString();
    else if (!folder_.isValid())
        fault_ = folder_.errorString();
    place.cancelWriting();
}

/// Its last lines say where the table of its objects begins, which fits only where nothing before
/// it got lost.
bool PrintedFile::isWhole() const {
    QFile file(printPath());
    if (!file.open(QIODevice::ReadOnly) || !file.seek(std::max<qint64>(0, file.size() - 64)))
        return false;
    const QByteArray tail = file.readAll();
    const qsizetype mark = tail.lastIndexOf("startxref");
    if (mark < 0 || !tail.trimmed().endsWith("%%EOF"))
        return false;
    const qint64 table = tail.mid(mark + 9).trimmed().split('\n').first().trimmed().toLongLong();
    return file.seek(table) && file.read(4) == "xref";
}

WriteOutcome PrintedFile::takePlace(bool printed) const {
    QFile file(printPath());
    if (!printed || !isWhole() || !file.open(QIODevice::ReadOnly))
        return exportFault(target_,
                           translated(QT_TRANSLATE_NOOP(
                               "PrintedFile", "The pages could not be written into the folder of "
                                              "temporary files. Its disk may be full.")));
    ExportFile target(target_, 0, {});
    while (target.goesOn() && !file.atEnd()) {
        const QByteArray piece = file.read(pieceSize);
        target.write(std::string_view(piece.constData(), static_cast<std::size_t>(piece.size())));
    }
    return target.close();
}
