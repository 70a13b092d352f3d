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

#include <csignal>

#include <sys/resource.h>

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

/// No file that this process writes grows past so many bytes.
class FileSizeLimit {
public:
    explicit FileSizeLimit(rlim_t bytes) {
        getrlimit(RLIMIT_FSIZE, &old_);
        const rlimit limit{bytes, old_.rlim_max};
        oldHandler_ = std::signal(SIGXFSZ, SIG_IGN);
        setrlimit(RLIMIT_FSIZE, &limit);
    }
    ~FileSizeLimit() {
        setrlimit(RLIMIT_FSIZE, &old_);
        std::signal(SIGXFSZ, oldHandler_);
    }
    FileSizeLimit(const FileSizeLimit&) = delete;
    FileSizeLimit& operator=(const FileSizeLimit&) = delete;

private:
    rlimit old_{};
    void (*oldHandler_)(int) = nullptr;
};
