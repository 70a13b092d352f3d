// SPDX-License-Identifier: GPL-3.0-or-later
#include "editor/files/Fingerprint.h"

#include <QCryptographicHash>
#include <QFile>
#include <QFileInfo>

QByteArray fingerprintOf(const QByteArray& bytes) {
    return QByteArray::number(bytes.size()) + ':' +
           QCryptographicHash::hash(bytes, QCryptographicHash::Sha1);
}

QByteArray fingerprintOfFile(const QString& path) {
    QFile file(path);
    if (!QFileInfo(path).isFile() || !file.open(QIODevice::ReadOnly))
        return {};
    if (file.size() > largestTextFile)
        return QByteArray::number(file.size());
    const QByteArray bytes = file.read(largestTextFile);
    return file.error() == QFileDevice::NoError ? fingerprintOf(bytes) : QByteArray();
}
