// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/settings/JsonFile.h"

#include "app/messages/Messages.h"
#include "app/settings/WholeFile.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QJsonDocument>
#include <QSaveFile>

namespace {

QString translated(const char* text) {
    return QCoreApplication::translate("JsonFile", text);
}

bool isTooLarge(const QString& path) {
    return QFileInfo(path).size() > largestJsonFile;
}

/// Devices and pipes, which may never end, read as empty.
QByteArray contentOf(const QString& path) {
    QFile file(path);
    if (!QFileInfo(path).isFile() || !file.open(QIODevice::ReadOnly))
        return {};
    return file.read(largestJsonFile);
}

QString faultOf(const QJsonDocument& document) {
    if (document.isNull())
        return translated(QT_TRANSLATE_NOOP("JsonFile", "Failed to create JSON doc."));
    if (!document.isObject())
        return translated(QT_TRANSLATE_NOOP("JsonFile", "JSON is not an object."));
    if (document.object().isEmpty())
        return translated(QT_TRANSLATE_NOOP("JsonFile", "JSON object is empty."));
    return {};
}

} // namespace

JsonReading parseJsonFile(const QString& path) {
    if (isTooLarge(path))
        return {{},
                translated(QT_TRANSLATE_NOOP("JsonFile", "The file %1 is too large to be read."))
                    .arg(QDir::toNativeSeparators(path)),
                true};
    const QByteArray content = contentOf(path);
    // By way of text, which drops a byte order mark and replaces what is no UTF-8.
    const QJsonDocument document = QJsonDocument::fromJson(QString::fromUtf8(content).toUtf8());
    return {document.object(), faultOf(document), !content.isEmpty() && !document.isObject()};
}

QJsonObject readJsonFile(const QString& path) {
    const JsonReading reading = parseJsonFile(path);
    if (!reading.fault.isEmpty())
        showError(reading.fault);
    return reading.object;
}

bool writeJsonFile(const QString& path, const QJsonObject& object) {
    const QByteArray text = QJsonDocument(object).toJson(QJsonDocument::Indented);
    QSaveFile file(path);
    if (file.open(QIODevice::WriteOnly) && writeThrough(file, text) && file.commit())
        return true;
    showError(translated(QT_TRANSLATE_NOOP("JsonFile", "Error %s sending event"))
                  .replace(QStringLiteral("%s"), file.errorString()));
    return false;
}
