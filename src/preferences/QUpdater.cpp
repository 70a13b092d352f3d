// SPDX-License-Identifier: GPL-3.0-or-later
#include "preferences/QUpdater.h"

#include "app/messages/Messages.h"

#include <QCoreApplication>
#include <QFileInfo>
#include <QLoggingCategory>

#include <chrono>

namespace {

Q_LOGGING_CATEGORY(updateLog, "KelvoraX")

constexpr qsizetype longestOutput = 1024 * 1024; // bytes
constexpr std::chrono::milliseconds untilNextTry{1000};
constexpr int untilKilled = 2000; // milliseconds

} // namespace

QUpdater::QUpdater(QString tool, QObject* parent) : QObject(parent), tool_(std::move(tool)) {
    process_.setProgram(tool_);
    process_.setArguments({QStringLiteral("check-updates")});
    process_.setWorkingDirectory(QFileInfo(tool_).absolutePath());
    process_.setStandardInputFile(QProcess::nullDevice());
    process_.setStandardErrorFile(QProcess::nullDevice());
    connect(&process_, &QProcess::readyReadStandardOutput, this, &QUpdater::gather);
    connect(&process_, &QProcess::finished, this,
            [this](int, QProcess::ExitStatus status) { evaluate(status); });
    nextTry_.setSingleShot(true);
    connect(&nextTry_, &QTimer::timeout, this, &QUpdater::offer);
    quit_.setSingleShot(true);
    connect(&quit_, &QTimer::timeout, QCoreApplication::instance(), &QCoreApplication::quit);
}

QUpdater::~QUpdater() {
    process_.disconnect(this);
    if (process_.state() == QProcess::NotRunning)
        return;
    process_.kill();
    process_.waitForFinished(untilKilled);
}

QString QUpdater::installedTool() {
#ifdef Q_OS_WIN
    const QString suffix = QStringLiteral(".exe");
#else
    const QString suffix;
#endif
    return QCoreApplication::applicationDirPath() + QStringLiteral("/maintenancetool") + suffix;
}

void QUpdater::start() {
    const QFileInfo tool(tool_);
    if (!tool.isFile() || !tool.isExecutable() || process_.state() != QProcess::NotRunning)
        return;
    output_.clear();
    process_.start(QIODevice::ReadOnly);
}

/// The word that tells may come in two pieces, so all of it is kept, within reason.
void QUpdater::gather() {
    output_ += process_.readAllStandardOutput();
    output_.truncate(longestOutput);
}

void QUpdater::evaluate(QProcess::ExitStatus status) {
    if (status != QProcess::NormalExit) {
        qCWarning(updateLog) << "Error checking for updates";
        emit checked(false);
        return;
    }
    gather();
    qCDebug(updateLog).noquote() << QString::fromLocal8Bit(output_);
    const bool updateExists = output_.contains("<updates>");
    emit checked(updateExists);
    if (updateExists)
        offer();
}

void QUpdater::offer() {
    if (busy_ && busy_()) {
        nextTry_.start(untilNextTry);
        return;
    }
    const QString news = "<h3>" + tr("New version has been released!") + "</h3>";
    if (askYesNoRich(
            QCoreApplication::applicationName(), news,
            tr("Would you like to download the update now? Current application will be close")) &&
        QProcess::startDetached(tool_, {QStringLiteral("--start-updater")},
                                QFileInfo(tool_).absolutePath()))
        quit_.start(0);
}
