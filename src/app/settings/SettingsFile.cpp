// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/settings/SettingsFile.h"

#include "app/settings/JsonFile.h"
#include "app/settings/SetBasis.h"
#include "app/settings/WholeFile.h"

#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QLoggingCategory>
#include <QSettings>

namespace {

Q_LOGGING_CATEGORY(settingsLog, "KelvoraX.settings", QtInfoMsg)

const char* const organisation = "Ovantis/KelvoraX";
const char* const application = "KelProcess";
const char* const extension = "json";

/// What is being saved, and where: the write function of a format knows only its device.
struct Saving {
    QString path;
    const SettingsValues& values;
};

const Saving*& currentSaving() {
    static const Saving* saving = nullptr;
    return saving;
}

bool writeTree(QIODevice& device, const Saving& saving) {
    const QByteArray text = QJsonDocument(settingsTree(saving.values)).toJson();
    QFile test(saving.path);
    if (!test.open(QIODevice::ReadWrite | QIODevice::Text))
        return false;
    test.close();
    auto* target = qobject_cast<QFileDevice*>(&device);
    return target != nullptr && writeThrough(*target, text);
}

/// QSettings may come back to a write that failed; without values there is nothing to write.
bool writeSettings(QIODevice& device, const QSettings::SettingsMap&) {
    try {
        return currentSaving() != nullptr && writeTree(device, *currentSaving());
    } catch (const std::exception& fault) {
        qCWarning(settingsLog) << fault.what();
        return false;
    }
}

void takePreferences(const QJsonArray& preferences, QSettings::SettingsMap& map) {
    for (const QJsonValue entry : preferences) {
        const QJsonObject object = entry.toObject();
        for (auto member = object.begin(); member != object.end(); ++member)
            if (member->isBool() || member->isString())
                map.insert(member.key(), member->toVariant());
    }
}

/// A damaged file reads as an empty one: what it should hold is written anew.
bool readSettings(QIODevice& device, QSettings::SettingsMap& map) {
    if (device.size() > largestJsonFile)
        return true;
    const QByteArray text = QString::fromUtf8(device.readAll()).toUtf8();
    const QJsonObject document = QJsonDocument::fromJson(text).object();
    for (auto member = document.begin(); member != document.end(); ++member) {
        if (member.key() == QLatin1String("kelxAllModules_RCF"))
            continue;
        qCDebug(settingsLog) << "Key = " << member.key() << ", Value = " << *member;
        if (member.key() == QLatin1String("Preferences"))
            takePreferences(member->toArray(), map);
    }
    return true;
}

QSettings::Format jsonFormat() {
    static const QSettings::Format format =
        QSettings::registerFormat(QLatin1String(extension), readSettings, writeSettings);
    return format;
}

/// One QSettings for each save, whose status then tells of this save alone. Its construction may
/// write already: QSettings remembers what an earlier one could not get rid of.
bool setOff(const QString& base, const QString& group, const QString& key, const QVariant& value) {
    QSettings::setPath(jsonFormat(), QSettings::UserScope, base);
    QSettings settings(jsonFormat(), QSettings::UserScope, QLatin1String(organisation),
                       QLatin1String(application));
    settings.setFallbacksEnabled(false);
    settings.beginGroup(group);
    settings.setValue(key, value);
    settings.endGroup();
    settings.sync();
    return settings.status() == QSettings::NoError;
}

} // namespace

QString settingsFilePath(const QString& base) {
    return base + '/' + QLatin1String(organisation) + '/' + QLatin1String(application) + '.' +
           QLatin1String(extension);
}

bool writeSettingsFile(const QString& base, const SettingsValues& values, const QString& group,
                       const QString& key, const QVariant& value) {
    const Saving saving{settingsFilePath(base), values};
    currentSaving() = &saving;
    const bool saved = setOff(base, group, key, value);
    currentSaving() = nullptr;
    return saved;
}
