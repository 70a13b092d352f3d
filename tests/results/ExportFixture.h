// SPDX-License-Identifier: GPL-3.0-or-later
// A folder for the files of exports, and preferences of a test's own.
#pragma once

#include "app/settings/KelSystem.h"
#include "results/exports/ResultFileWriter.h"
#include "support/OwnSettings.h"

#include <QDir>
#include <QFile>
#include <QProcess>
#include <QTemporaryDir>

class ExportFixture {
public:
    ExportFixture() : settings(takeOwnSettings()), writer(settings) {}

    QString path(const QString& name) const { return folder.filePath(name); }
    QByteArray read(const QString& name) const {
        QFile file(path(name));
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("(no file)");
    }
    void put(const QString& name, const QByteArray& content) const {
        QFile file(path(name));
        if (file.open(QIODevice::WriteOnly))
            file.write(content);
    }
    /// All that stands in the folder.
    QStringList files() const { return QDir(folder.path()).entryList(QDir::Files | QDir::Hidden); }

    /// What another program prints; its complaints where it fails.
    static QByteArray said(const QString& program, const QStringList& arguments) {
        QProcess process;
        process.start(program, arguments);
        process.waitForFinished(60000);
        return process.exitStatus() == QProcess::NormalExit && process.exitCode() == 0
                   ? process.readAllStandardOutput()
                   : "failed: " + process.readAllStandardError();
    }

    QTemporaryDir folder;
    KelSystem settings;
    ResultFileWriter writer;
};
