// SPDX-License-Identifier: GPL-3.0-or-later
// A settings file of a test's own, seen from outside the store, and the messages it gives.
#pragma once

#include "app/messages/Messages.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QJsonDocument>
#include <QJsonObject>
#include <QTemporaryDir>

/// New and empty; collects what message boxes would say until it goes.
class SettingsFolder {
public:
    SettingsFolder() {
        answerMessages([this](MessageKind kind, const QString& text) {
            (kind == MessageKind::Question ? questions : messages) += text;
            return answer;
        });
    }
    ~SettingsFolder() { answerMessages({}); }
    SettingsFolder(const SettingsFolder&) = delete;
    SettingsFolder& operator=(const SettingsFolder&) = delete;

    QString base() const { return folder_.path(); }
    QString path(const QString& name = QStringLiteral("KelProcess.json")) const {
        return base() + "/Ovantis/KelvoraX/" + name;
    }
    bool write(const QByteArray& text) const {
        QDir().mkpath(QFileInfo(path()).absolutePath());
        QFile file(path());
        return file.open(QIODevice::WriteOnly) && file.write(text) == text.size();
    }
    QByteArray read(const QString& name = QStringLiteral("KelProcess.json")) const {
        QFile file(path(name));
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }
    QJsonObject document() const { return QJsonDocument::fromJson(read()).object(); }
    /// By names with slashes.
    QJsonValue valueAt(const QString& keys) const {
        QJsonValue value = document();
        for (const QString& key : keys.split('/'))
            value = value.toObject().value(key);
        return value;
    }

    QStringList messages;
    QStringList questions;
    Choice answer = Choice::Yes;

private:
    QTemporaryDir folder_;
};
