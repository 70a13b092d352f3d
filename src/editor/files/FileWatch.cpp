// SPDX-License-Identifier: GPL-3.0-or-later
#include "editor/files/FileWatch.h"

#include "editor/files/Fingerprint.h"

#include <QDir>
#include <QFileInfo>
#include <QGuiApplication>
#include <QSet>
#include <QStringList>

namespace {

constexpr int pauseLength = 200; // milliseconds
const QByteArray fingerprintOfNoFile = QByteArrayLiteral("?");

QString keyOf(const QString& path) {
    return QDir::cleanPath(QFileInfo(path).absoluteFilePath());
}

QString nearestFolder(const QString& path) {
    QString folder = QFileInfo(path).absolutePath();
    while (!QFileInfo(folder).isDir() && folder != QFileInfo(folder).absolutePath())
        folder = QFileInfo(folder).absolutePath();
    return folder;
}

/// Where news of a file may come from: itself, its folder, which may be moved away within the one
/// above, and the folder of what it is a link to.
QStringList sourcesOf(const QString& key) {
    const QString nearest = nearestFolder(key);
    QStringList sources{nearest, QFileInfo(nearest).absolutePath()};
    if (QFileInfo(key).isFile())
        sources += key;
    const QString target = QFileInfo(key).canonicalFilePath();
    if (!target.isEmpty() && target != key)
        sources += QFileInfo(target).absolutePath();
    return sources;
}

} // namespace

FileWatch::FileWatch(QObject* parent) : QObject(parent) {
    pause_.setSingleShot(true);
    pause_.setInterval(pauseLength);
    connect(&pause_, &QTimer::timeout, this, &FileWatch::checkAll);
    connect(&watcher_, &QFileSystemWatcher::fileChanged, this, &FileWatch::noticeFile);
    connect(&watcher_, &QFileSystemWatcher::directoryChanged, this, &FileWatch::notice);
    // Some file systems tell nothing: a user who comes back from another program may have changed
    // a file there.
    connect(qGuiApp, &QGuiApplication::applicationStateChanged, this,
            [this](Qt::ApplicationState state) {
                if (state == Qt::ApplicationActive)
                    notice();
            });
}

void FileWatch::watch(const QString& path, const QByteArray& fingerprint) {
    const QString key = keyOf(path);
    File& file = files_[key];
    file.path = path;
    settle(file, fingerprint.isEmpty() ? fingerprintOfFile(key) : fingerprint);
    watcher_.addPaths(sourcesOf(key));
    notice();
}

void FileWatch::unwatch(const QString& path) {
    if (files_.remove(keyOf(path)) > 0)
        followAll();
}

void FileWatch::beginWriting(const QString& path) {
    if (const auto file = files_.find(keyOf(path)); file != files_.end())
        file->beingWritten = true;
}

void FileWatch::endWriting(const QString& path, const QByteArray& fingerprint) {
    const auto file = files_.find(keyOf(path));
    if (file == files_.end())
        return;
    file->beingWritten = false;
    if (!fingerprint.isEmpty())
        settle(*file, fingerprint);
    notice();
}

void FileWatch::endWriting(const QString& path) {
    endWriting(path, fingerprintOfFile(path));
}

FileWatch::State FileWatch::stateOf(const QString& path) const {
    const QString key = keyOf(path);
    const auto file = files_.constFind(key);
    if (file == files_.cend())
        return State::Same;
    if (!QFileInfo(key).isFile())
        return file->known.isEmpty() ? State::Same : State::Removed;
    const QByteArray now = fingerprintOfFile(key);
    return now.isEmpty() || now == file->known ? State::Same : State::Changed;
}

void FileWatch::accept(const QString& path, const QByteArray& fingerprint) {
    const auto file = files_.find(keyOf(path));
    if (file == files_.end())
        return;
    settle(*file, fingerprint);
    notice();
}

void FileWatch::distrust(const QString& path, const QByteArray& fingerprint) {
    if (const auto file = files_.find(keyOf(path)); file != files_.end())
        file->known = fingerprint.isEmpty() ? fingerprintOfNoFile : fingerprint;
}

QByteArray FileWatch::knownOf(const QString& path) const {
    return files_.value(keyOf(path)).known;
}

void FileWatch::settle(File& file, const QByteArray& fingerprint) {
    file.known = fingerprint;
    file.told = fingerprint;
    file.modified = {};
}

void FileWatch::noticeFile(const QString& path) {
    // The system may tell of a change that leaves size and time as they were.
    if (const auto file = files_.find(path); file != files_.end())
        file->modified = {};
    notice();
}

/// Not begun anew with each piece of news: a log file beside a program never rests.
void FileWatch::notice() {
    if (!pause_.isActive())
        pause_.start();
}

void FileWatch::checkAll() {
    // A receiver may watch and unwatch.
    followAll();
    const QStringList keys = files_.keys();
    for (const QString& key : keys)
        if (const auto file = files_.find(key); file != files_.end() && !file->beingWritten)
            check(key, *file);
}

void FileWatch::check(const QString& key, File& file) {
    const QFileInfo info(key);
    const bool there = info.isFile();
    if (there && file.modified.isValid() && file.modified == info.lastModified() &&
        file.size == info.size())
        return;
    file.size = info.size();
    file.modified = info.lastModified();
    const QByteArray now = fingerprintOfFile(key);
    if (now == file.told || (there && now.isEmpty()))
        return;
    file.told = now;
    if (now == file.known)
        return;
    const QString path = file.path;
    if (there)
        emit changed(path);
    else
        emit removed(path);
}

/// All of it anew: the system forgets a file that is replaced and a folder that goes, and takes one
/// that was moved away for what came in its place.
void FileWatch::followAll() {
    const QStringList old = watcher_.files() + watcher_.directories();
    if (!old.isEmpty())
        watcher_.removePaths(old);
    QSet<QString> paths;
    for (auto key = files_.keyBegin(); key != files_.keyEnd(); ++key)
        for (const QString& source : sourcesOf(*key))
            paths += source;
    if (!paths.isEmpty())
        watcher_.addPaths(paths.values());
}
