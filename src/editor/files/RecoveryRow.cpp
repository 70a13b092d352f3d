// SPDX-License-Identifier: GPL-3.0-or-later
#include "editor/files/RecoveryRow.h"

#include "editor/files/RecoveryStore.h"
#include "editor/files/TextFile.h"

#include <QCoreApplication>
#include <QFileInfo>

namespace {

constexpr qsizetype longestPreview = 80; // characters

QString translated(const char* text) {
    return QCoreApplication::translate("RecoveryRow", text);
}

} // namespace

RecoveryOrigin originOf(const RecoveryCopy& copy) {
    if (copy.filePath.isEmpty())
        return RecoveryOrigin::Untitled;
    const QFileInfo info(copy.filePath);
    if (!info.exists())
        return RecoveryOrigin::Gone;
    const TextFileResult file = readTextFile(copy.filePath);
    if (!file.succeeded)
        return RecoveryOrigin::Unreadable;
    if (file.text == copy.text)
        return RecoveryOrigin::Same;
    const bool newer =
        copy.basis.isEmpty() ? info.lastModified() > copy.written : file.fingerprint != copy.basis;
    return newer ? RecoveryOrigin::Newer : RecoveryOrigin::Older;
}

QString originText(RecoveryOrigin origin) {
    switch (origin) {
    case RecoveryOrigin::Untitled:
        return translated(QT_TRANSLATE_NOOP("RecoveryRow", "Was never saved"));
    case RecoveryOrigin::Gone:
        return translated(QT_TRANSLATE_NOOP("RecoveryRow", "The file is no longer there"));
    case RecoveryOrigin::Unreadable:
        return translated(QT_TRANSLATE_NOOP("RecoveryRow", "The file cannot be read"));
    case RecoveryOrigin::Same:
        return translated(QT_TRANSLATE_NOOP("RecoveryRow", "The file holds the same text"));
    case RecoveryOrigin::Older:
        return translated(QT_TRANSLATE_NOOP("RecoveryRow", "Differs from the file"));
    case RecoveryOrigin::Newer:
        return translated(QT_TRANSLATE_NOOP("RecoveryRow", "Differs; the file was changed later"));
    }
    return {};
}

QString previewOf(const QString& text) {
    qsizetype begin = 0;
    while (begin < text.size() && text.at(begin).isSpace())
        ++begin;
    const QString line =
        text.mid(begin, longestPreview + 1).section(QLatin1Char('\n'), 0, 0).simplified();
    return line.size() <= longestPreview ? line : line.left(longestPreview) + QChar(0x2026);
}
