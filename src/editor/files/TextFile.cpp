// SPDX-License-Identifier: GPL-3.0-or-later
#include "editor/files/TextFile.h"

#include "app/settings/WholeFile.h"
#include "editor/files/Fingerprint.h"

#include <QCoreApplication>
#include <QFile>
#include <QFileInfo>
#include <QSaveFile>
#include <QTextDocument>

namespace {

QString translated(const char* text) {
    return QCoreApplication::translate("TextFile", text);
}

TextFileResult failure(const QString& error) {
    TextFileResult result;
    result.error = error;
    return result;
}

/// Pipes and devices may never end; writing would put a file in their place. Where nothing is
/// allowed, nothing is known either, and the system says so.
bool isSpecial(const QString& path) {
    const QFileInfo info(path);
    return info.exists() && !info.isFile() && !info.isDir() &&
           (info.isReadable() || info.isWritable());
}

QString specialFault() {
    return translated(QT_TRANSLATE_NOOP("TextFile", "This is a device or a pipe, not a file."));
}

int firstLineThat(const QByteArray& bytes, bool (*fits)(QByteArrayView)) {
    const QList<QByteArray> lines = bytes.split('\n');
    for (int line = 0; line < lines.size(); ++line)
        if (fits(lines.at(line)))
            return line + 1;
    return 0;
}

bool isNoUtf8(QByteArrayView bytes) {
    return !bytes.isValidUtf8();
}

bool hasNull(QByteArrayView bytes) {
    return bytes.contains('\0');
}

/// What keeps the bytes from being a program text; empty where nothing does.
QString faultOf(const QByteArray& bytes) {
    if (hasNull(bytes))
        return translated(QT_TRANSLATE_NOOP("TextFile",
                                            "This is not a text file: line %1 has a null byte."))
            .arg(firstLineThat(bytes, hasNull));
    if (isNoUtf8(bytes))
        return translated(QT_TRANSLATE_NOOP("TextFile",
                                            "The file is not encoded in UTF-8: line %1 has other "
                                            "bytes. Convert it to UTF-8 to open it here."))
            .arg(firstLineThat(bytes, isNoUtf8));
    return {};
}

/// The system may find a fault only once all of it is read.
TextFileResult readAll(QFile& file) {
    const QByteArray bytes = file.read(largestTextFile + 1);
    if (bytes.size() > largestTextFile)
        return failure(translated(
            QT_TRANSLATE_NOOP("TextFile", "The file is too large to be read (beyond 256 MB).")));
    if (file.error() != QFileDevice::NoError)
        return failure(file.errorString());
    if (const QString fault = faultOf(bytes); !fault.isEmpty())
        return failure(fault);
    TextFileResult result{true, QString::fromUtf8(bytes), {}, fingerprintOf(bytes)};
    result.text.replace(QLatin1String("\r\n"), QLatin1String("\n"));
    return result;
}

} // namespace

TextFileResult readTextFile(const QString& path) {
    if (isSpecial(path))
        return failure(specialFault());
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return failure(file.errorString());
    if (file.size() > largestTextFile)
        return failure(translated(
            QT_TRANSLATE_NOOP("TextFile", "The file is too large to be read (beyond 256 MB).")));
    return readAll(file);
}

TextFileResult writeTextFile(const QString& path, const QString& text) {
    if (isSpecial(path))
        return failure(specialFault());
    const QByteArray bytes = text.toUtf8();
    QSaveFile file(path);
    if (!file.open(QIODevice::WriteOnly) || !writeThrough(file, bytes) || !file.commit())
        return failure(file.errorString());
    return {true, {}, {}, fingerprintOf(bytes)};
}

QString textOf(const QTextDocument& document) {
    QString text = document.toRawText();
    text.replace(QChar::ParagraphSeparator, QLatin1Char('\n'));
    return text;
}
