// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/settings/KelSystem.h"

#include "app/messages/Messages.h"
#include "app/settings/FontJson.h"
#include "app/settings/JsonFile.h"
#include "app/settings/SettingsFile.h"
#include "app/settings/SettingsKeys.h"
#include "app/settings/XmlSettings.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QJsonArray>
#include <QLibraryInfo>
#include <QLocale>
#include <QStandardPaths>

namespace {

using Folder = QString SettingsValues::*;

/// The field of a folder kind; null for an unknown kind.
Folder folderOf(const QString& kind) {
    static const QHash<QString, Folder> folders = {
        {QStringLiteral("PROJECT"), &SettingsValues::projectFolder},
        {QStringLiteral("MAP"), &SettingsValues::mapFolder},
        {QStringLiteral("GRAPH"), &SettingsValues::graphFolder},
        {QStringLiteral("TABLE"), &SettingsValues::tableFolder},
        {QStringLiteral("PROGRAM"), &SettingsValues::programFolder},
        {QStringLiteral("SELECTION"), &SettingsValues::selectionFolder},
        {QStringLiteral("DICTIONARY"), &SettingsValues::dictionaryFolder},
        {QStringLiteral("DATADICTIONARY"), &SettingsValues::dataDictionaryFolder}};
    return folders.value(kind, nullptr);
}

QString makeDefaultFolder() {
    const QString documents = QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation);
    const QString folder = documents + QStringLiteral("/kelx");
    return QDir().mkpath(folder) ? folder : documents;
}

/// Of a program without a name, so that every edition shares one file.
QString userBase() {
    return QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation);
}

QString forwardSlashes(const QString& path) {
    return QString(path).replace('\\', '/');
}

QStringList existing(const QStringList& paths, int most) {
    QStringList found;
    for (const QString& path : paths)
        if (found.size() < most && QFileInfo::exists(path))
            found += path;
    return found;
}

} // namespace

KelSystem& KelSystem::instance() {
    static KelSystem system(userBase());
    return system;
}

KelSystem::KelSystem(const QString& base) : base_(base), values_(makeDefaultFolder()) {
    xmlSettingsFormat();
    load();
}

void KelSystem::load() {
    const QJsonObject document = readDocument();
    SettingsValues read = values_;
    readSettings(document, read);
    if (read.firstUse)
        return;
    values_ = read;
    values_.recentDictionaries = existing(read.recentDictionaries, read.maxLastFiles);
}

QString KelSystem::filePath() const {
    return settingsFilePath(base_);
}

/// Neither an absent file nor one without a byte has anything to complain about.
QJsonObject KelSystem::readDocument() const {
    const QFileInfo file(filePath());
    if (!file.exists() || (file.isFile() && file.size() == 0))
        return {};
    const JsonReading reading = parseJsonFile(filePath());
    if (!reading.fault.isEmpty() && !faultTold_) {
        faultTold_ = true;
        if (reading.damaged)
            keepDamagedFile();
        showError(reading.fault);
    }
    return reading.object;
}

/// The next save writes over the file; what it held may still be of use to someone.
void KelSystem::keepDamagedFile() const {
    const QString copy = filePath() + QStringLiteral(".broken");
    QString free = copy;
    for (int number = 2; QFileInfo::exists(free); ++number)
        free = copy + QString::number(number);
    QFile::copy(filePath(), free);
}

QJsonObject KelSystem::groupOf(const QString& group) const {
    QJsonObject object = readDocument();
    for (const QStringView name : QStringView(group).split('/'))
        object = object.value(name).toObject();
    return object;
}

void KelSystem::readValue(QVariant& out, const QString& key, const QString& group,
                          const QVariant& defaultValue) const {
    const QJsonObject values = groupOf(group);
    out = values.contains(key) ? values.value(key).toVariant() : defaultValue;
}

void KelSystem::readList(QStringList& out, const QString& key, const QString& arrayName,
                         const QString& group) const {
    out.clear();
    const QJsonArray array = groupOf(group).value(arrayName).toArray();
    for (const QJsonValue entry : array)
        if (entry.toObject().contains(key))
            out += entry.toObject().value(key).toString();
}

void KelSystem::readFont(QFont& out, const QString& key, const QString& group,
                         const QFont& defaultFont) const {
    out = fontFromJson(groupOf(group).value(key).toObject(), defaultFont);
}

bool KelSystem::writeValue(const QString& key, const QVariant& value, const QString& group) const {
    return writeSettingsFile(base_, values_, group, key, value);
}

bool KelSystem::save() const {
    return writeValue(QStringLiteral("ftu"), QStringLiteral("0"), QStringLiteral("kelSystem"));
}

void KelSystem::resetToDefaults() {
    values_ = SettingsValues(values_.defaultFolder);
    values_.firstUse = false;
    values_.fixedFont = QFont(QStringLiteral("Courier New"), 10);
    values_.printFont = QFont(QStringLiteral("Arial"), 12);
}

void KelSystem::setFirstUse(bool firstUse) {
    values_.firstUse = firstUse;
    writeValue(QStringLiteral("ftu"), QVariant(firstUse).toString(), QStringLiteral("Preferences"));
}

QString KelSystem::shortLanguage() const {
    const QString code = values_.language.section('_', 1);
    const bool known =
        values_.language.startsWith(QLatin1String("Process_")) &&
        QStringList({QStringLiteral("es"), QStringLiteral("pt"), QStringLiteral("fr")})
            .contains(code);
    return known ? code : QStringLiteral("en");
}

void KelSystem::selectLanguage(const std::function<QString()>& ask) {
    values_.language = ask();
    save();
    installTranslator(values_.language);
}

bool KelSystem::installTranslator(const QString& language) {
    QCoreApplication::removeTranslator(&translator_);
    QCoreApplication::removeTranslator(&toolkitTranslator_);
    const bool loaded = translator_.load(QStringLiteral(":/i18n/") + language, QStringLiteral("."));
    if (loaded)
        values_.language = language;
    const QLocale locale(loaded ? language.section('_', 1) : QStringLiteral("en"));
    QLocale::setDefault(locale);
    if (toolkitTranslator_.load(locale, QStringLiteral("qtbase"), QStringLiteral("_"),
                                QLibraryInfo::path(QLibraryInfo::TranslationsPath)))
        QCoreApplication::installTranslator(&toolkitTranslator_);
    return loaded && QCoreApplication::installTranslator(&translator_);
}

QStringList KelSystem::recentDictionaries() const {
    return values_.recentDictionaries.mid(0, values_.maxLastFiles);
}

QStringList KelSystem::recentProjects() const {
    return values_.recentProjects.mid(0, values_.maxLastFiles);
}

void KelSystem::updateRecentList(QStringList& list, const QString& path) const {
    const QString upper = path.toUpper();
    list.removeIf([&upper](const QString& entry) { return entry.toUpper() == upper; });
    list.prepend(path);
    list = list.mid(0, values_.maxLastFiles);
}

void KelSystem::addRecentDictionary(const QString& path) {
    values_.dictionaryFolder = QFileInfo(path).absolutePath();
    updateRecentList(values_.recentDictionaries, path);
    save();
}

void KelSystem::addRecentProject(const QString& path) {
    values_.projectFolder = QFileInfo(path).absolutePath();
    updateRecentList(values_.recentProjects, path);
    save();
}

void KelSystem::removeRecentDictionary(const QString& path) {
    values_.recentDictionaries.removeAll(path);
    save();
}

void KelSystem::removeRecentProject(const QString& path) {
    const QString plain = forwardSlashes(path);
    values_.recentProjects.removeIf(
        [&plain](const QString& entry) { return forwardSlashes(entry) == plain; });
    save();
}

QStringList KelSystem::recentPrograms(bool execute) const {
    return existing(execute ? values_.recentExecutes : values_.recentPrograms,
                    values_.maxLastFiles);
}

void KelSystem::addRecentProgram(const QString& path, bool execute) {
    updateRecentList(execute ? values_.recentExecutes : values_.recentPrograms, path);
    save();
}

void KelSystem::setLastOpened(const QString& path) {
    values_.lastOpened = QDir::fromNativeSeparators(path);
    save();
}

QString KelSystem::directoryFor(const QString& kind) const {
    const Folder folder = folderOf(kind);
    if (folder == nullptr || (values_.*folder).isEmpty())
        return values_.defaultFolder;
    return values_.*folder;
}

void KelSystem::setDirectoryFor(const QString& kind, const QString& folder) {
    if (const Folder field = folderOf(kind))
        values_.*field = folder;
}
