// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/settings/KelSystem.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QJsonDocument>
#include <QLibraryInfo>
#include <QLocale>
#include <QSaveFile>
#include <QStandardPaths>

namespace {

const QString systemGroup = QStringLiteral("kelSystem");
const QString foldersKey = QStringLiteral("lastDirectories");

/// The key of a folder kind in the file; empty for an unknown kind.
QString folderKey(const QString& kind) {
    static const QHash<QString, QString> keys = {
        {QStringLiteral("PROJECT"), QStringLiteral("project")},
        {QStringLiteral("MAP"), QStringLiteral("map")},
        {QStringLiteral("GRAPH"), QStringLiteral("outputGraph")},
        {QStringLiteral("TABLE"), QStringLiteral("outputTable")},
        {QStringLiteral("PROGRAM"), QStringLiteral("program")},
        {QStringLiteral("SELECTION"), QStringLiteral("selection")},
        {QStringLiteral("DICTIONARY"), QStringLiteral("dictionary")},
        {QStringLiteral("DATADICTIONARY"), QStringLiteral("datadictionary")}};
    return keys.value(kind);
}

QString makeDefaultFolder() {
    const QString documents = QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation);
    const QString folder = documents + QStringLiteral("/kelx");
    return QDir().mkpath(folder) ? folder : documents;
}

QJsonObject readDocument(const QString& path) {
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return {};
    return QJsonDocument::fromJson(file.readAll()).object();
}

} // namespace

KelSystem& KelSystem::instance() {
    static KelSystem system;
    return system;
}

KelSystem::KelSystem()
    : language_(QStringLiteral("Process_en")), defaultFolder_(makeDefaultFolder()) {
    firstUse_ = readValue(QStringLiteral("ftu"), systemGroup, true).toBool();
    if (!firstUse_)
        load();
}

void KelSystem::load() {
    language_ = readValue(QStringLiteral("language"), systemGroup, language_).toString();
    loadLast_ = readValue(QStringLiteral("loadLast"), systemGroup, true).toBool();
    lastOpened_ = readValue(QStringLiteral("lastOpened"), systemGroup, QString()).toString();
    const QVariantMap folders = readValue(foldersKey, systemGroup, QVariantMap()).toMap();
    for (auto folder = folders.begin(); folder != folders.end(); ++folder)
        folders_.insert(folder.key(), folder.value().toString());
}

QString KelSystem::filePath() const {
    // The folder of a program without a name, so that every edition shares one file.
    return QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation) +
           QStringLiteral("/Ovantis/KelvoraX/KelProcess.json");
}

QVariant KelSystem::readValue(const QString& key, const QString& group,
                              const QVariant& defaultValue) const {
    const QJsonObject values = readDocument(filePath()).value(group).toObject();
    return values.contains(key) ? values.value(key).toVariant() : defaultValue;
}

bool KelSystem::save() const {
    QJsonObject folders{{QStringLiteral("default"), defaultFolder_}};
    for (auto folder = folders_.begin(); folder != folders_.end(); ++folder)
        folders.insert(folder.key(), folder.value());
    const QJsonObject values{{QStringLiteral("lastOpened"), lastOpened_},
                             {QStringLiteral("loadLast"), loadLast_},
                             {QStringLiteral("ftu"), firstUse_},
                             {QStringLiteral("language"), language_},
                             {foldersKey, folders}};
    QDir().mkpath(QFileInfo(filePath()).absolutePath());
    QSaveFile file(filePath());
    return file.open(QIODevice::WriteOnly) &&
           file.write(QJsonDocument(QJsonObject{{systemGroup, values}}).toJson()) > 0 &&
           file.commit();
}

void KelSystem::setFirstUse(bool firstUse) {
    firstUse_ = firstUse;
    save();
}

void KelSystem::selectLanguage(const std::function<QString()>& ask) {
    language_ = ask();
    save();
    installTranslator(language_);
}

bool KelSystem::installTranslator(const QString& language) {
    QCoreApplication::removeTranslator(&translator_);
    QCoreApplication::removeTranslator(&toolkitTranslator_);
    if (!translator_.load(QStringLiteral(":/i18n/") + language, QStringLiteral(".")))
        return false;
    language_ = language;
    const QLocale locale(language.section('_', 1));
    QLocale::setDefault(locale);
    if (toolkitTranslator_.load(locale, QStringLiteral("qtbase"), QStringLiteral("_"),
                                QLibraryInfo::path(QLibraryInfo::TranslationsPath)))
        QCoreApplication::installTranslator(&toolkitTranslator_);
    return QCoreApplication::installTranslator(&translator_);
}

void KelSystem::setLastOpened(const QString& path) {
    lastOpened_ = QDir::fromNativeSeparators(path);
    save();
}

QString KelSystem::directoryFor(const QString& kind) const {
    return folders_.value(folderKey(kind), defaultFolder_);
}

void KelSystem::setDirectoryFor(const QString& kind, const QString& folder) {
    const QString key = folderKey(kind);
    if (!key.isEmpty())
        folders_.insert(key, folder);
}
