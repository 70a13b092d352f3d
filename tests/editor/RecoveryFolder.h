// SPDX-License-Identifier: GPL-3.0-or-later
// A recovery folder of a test's own, seen from outside the store.
#pragma once

#include "editor/files/RecoveryStore.h"

#include <QDir>
#include <QFile>
#include <QJsonDocument>
#include <QJsonObject>
#include <QTemporaryDir>

class RecoveryFolder {
public:
    QString path() const { return folder_.filePath("settings/recovery"); }
    QString file(const QString& name) const { return folder_.filePath(name); }

    QStringList names() const { return QDir(path()).entryList({"*.json"}, QDir::Files); }
    QStringList locks() const { return QDir(path()).entryList({"*.lock"}, QDir::Files); }
    /// Of the only copy; empty where there is none, or several.
    QString text() const {
        if (names().size() != 1)
            return {};
        return QJsonDocument::fromJson(read(path() + '/' + names().constFirst()))
            .object()["text"]
            .toString();
    }

    QString write(const QString& name, const QByteArray& bytes) const {
        QFile out(file(name));
        return out.open(QIODevice::WriteOnly) && out.write(bytes) == bytes.size() ? out.fileName()
                                                                                  : QString();
    }
    static QByteArray read(const QString& path) {
        QFile in(path);
        return in.open(QIODevice::ReadOnly) ? in.readAll() : QByteArray();
    }

    /// As a program that ended at once leaves it behind.
    QString leaveBehind(const QString& text, const QString& filePath = {},
                        const QString& name = "Untitled document",
                        const QDateTime& written = QDateTime::currentDateTimeUtc()) const {
        RecoveryStore store(path());
        QString id = store.newId();
        store.keep({id, filePath, name, false, written, text});
        return id;
    }

private:
    QTemporaryDir folder_;
};
