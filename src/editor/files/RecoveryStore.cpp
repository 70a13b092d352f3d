// SPDX-License-Identifier: GPL-3.0-or-later
#include "editor/files/RecoveryStore.h"

#include "app/settings/KelSystem.h"
#include "app/settings/WholeFile.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QJsonDocument>
#include <QJsonObject>
#include <QLockFile>
#include <QPromise>
#include <QRegularExpression>
#include <QSaveFile>
#include <QUuid>

#include <algorithm>

namespace {

constexpr qint64 largestCopy = 512LL * 1024 * 1024; // bytes
constexpr QFileDevice::Permissions ownerOnly = QFileDevice::ReadOwner | QFileDevice::WriteOwner;

const QRegularExpression& idPattern() {
    static const QRegularExpression pattern(QStringLiteral("\\A([0-9a-f]{32})-[0-9]{1,9}\\z"));
    return pattern;
}

QString ownerOf(const QString& id) {
    return idPattern().match(id).captured(1);
}

bool isId(const QString& id) {
    return idPattern().match(id).hasMatch();
}

QByteArray jsonOf(const RecoveryCopy& copy) {
    const QJsonObject object{
        {QStringLiteral("id"), copy.id},
        {QStringLiteral("path"), copy.filePath},
        {QStringLiteral("name"), copy.name},
        {QStringLiteral("mode"),
         copy.executeMode ? QStringLiteral("execute") : QStringLiteral("program")},
        {QStringLiteral("time"), copy.written.toUTC().toString(Qt::ISODateWithMs)},
        {QStringLiteral("basis"), QString::fromLatin1(copy.basis.toHex())},
        {QStringLiteral("text"), copy.text}};
    return QJsonDocument(object).toJson(QJsonDocument::Compact);
}

bool writeCopy(const QString& path, const RecoveryCopy& copy) {
    const QByteArray json = jsonOf(copy);
    QSaveFile file(path);
    return json.size() <= largestCopy && file.open(QIODevice::WriteOnly) &&
           file.setPermissions(ownerOnly) && writeThrough(file, json) && file.commit();
}

/// With what a write that was cut short has left beside it.
void removeCopy(const QString& path) {
    const QFileInfo info(path);
    const QDir folder = info.dir();
    const QStringList rests =
        folder.entryList({info.fileName() + QStringLiteral(".??????")}, QDir::Files);
    for (const QString& rest : rests)
        QFile::remove(folder.filePath(rest));
    QFile::remove(path);
}

/// Without an id where the file is none of ours, or not whole. What matters is the text: the rest
/// may be of any kind.
RecoveryCopy readCopy(const QString& path, const QString& id) {
    QFile file(path);
    if (file.size() > largestCopy || !file.open(QIODevice::ReadOnly))
        return {};
    const QJsonObject object = QJsonDocument::fromJson(file.read(largestCopy)).object();
    const QJsonValue text = object.value(QLatin1String("text"));
    if (!text.isString() || object.value(QLatin1String("id")).toString() != id)
        return {};
    const QString origin = object.value(QLatin1String("path")).toString();
    const QDateTime written =
        QDateTime::fromString(object.value(QLatin1String("time")).toString(), Qt::ISODateWithMs);
    return {id,
            QDir::isAbsolutePath(origin) ? origin : QString(),
            object.value(QLatin1String("name")).toString(),
            object.value(QLatin1String("mode")).toString() == QLatin1String("execute"),
            written.isValid() ? written : QFileInfo(path).lastModified(),
            text.toString(),
            QByteArray::fromHex(object.value(QLatin1String("basis")).toString().toLatin1())};
}

QFuture<bool> futureOf(bool result) {
    QPromise<bool> promise;
    promise.start();
    promise.addResult(result);
    promise.finish();
    return promise.future();
}

} // namespace

RecoveryStore::RecoveryStore(const QString& folder)
    : folder_(folder), owner_(QUuid::createUuid().toString(QUuid::Id128)) {
    pool_.setMaxThreadCount(1);
}

RecoveryStore::~RecoveryStore() {
    pool_.waitForDone();
}

RecoveryStore& RecoveryStore::instance() {
    static RecoveryStore store(
        QFileInfo(KelSystem::instance().filePath()).dir().filePath(QStringLiteral("recovery")));
    return store;
}

QString RecoveryStore::pathOf(const QString& name) const {
    return folder_ + '/' + name;
}

QString RecoveryStore::newId() {
    return owner_ + '-' + QString::number(++lastNumber_);
}

/// The lock of a program that has ended is taken over, so that two that start do not offer the same
/// copies. Age alone frees one that another machine left in a shared home; on the same machine the
/// system knows better whether its program lives.
bool RecoveryStore::claim(const QString& owner) {
    if (locks_.count(owner) > 0)
        return true;
    auto lock = std::make_unique<QLockFile>(pathOf(owner + QStringLiteral(".lock")));
    lock->setStaleLockTime(std::chrono::hours(30 * 24));
    if (!lock->tryLock(0))
        return false;
    locks_.emplace(owner, std::move(lock));
    return true;
}

/// Before the first copy, so that there is never one without a lock; and again where someone has
/// cleaned up the folder.
bool RecoveryStore::claimOwn() {
    if (!QFile::exists(pathOf(owner_ + QStringLiteral(".lock"))))
        locks_.erase(owner_);
    if (locks_.count(owner_) > 0)
        return true;
    return QDir().mkpath(folder_) &&
           QFile::setPermissions(folder_, ownerOnly | QFileDevice::ExeOwner) && claim(owner_);
}

bool RecoveryStore::keep(const RecoveryCopy& copy) {
    return keepSoon(copy).result();
}

QFuture<bool> RecoveryStore::keepSoon(const RecoveryCopy& copy) {
    take(copy.id);
    if (!isId(copy.id) || !claimOwn())
        return futureOf(false);
    const auto promise = std::make_shared<QPromise<bool>>();
    promise->start();
    pool_.start([promise, copy, path = pathOf(copy.id + QStringLiteral(".json"))] {
        promise->addResult(writeCopy(path, copy));
        promise->finish();
    });
    return promise->future();
}

void RecoveryStore::waitBriefly(std::chrono::milliseconds longest) {
    pool_.waitForDone(static_cast<int>(longest.count()));
}

void RecoveryStore::take(const QString& id) {
    own_ += id;
}

void RecoveryStore::drop(const QString& id) {
    own_ -= id;
    if (isId(id))
        pool_.start([path = pathOf(id + QStringLiteral(".json"))] { removeCopy(path); });
}

/// A lock without copies has an owner too.
QHash<QString, QStringList> RecoveryStore::idsByOwner() const {
    QHash<QString, QStringList> ids;
    const QFileInfoList files = QDir(folder_).entryInfoList(
        {QStringLiteral("*.json"), QStringLiteral("*.lock")}, QDir::Files | QDir::NoSymLinks);
    for (const QFileInfo& file : files) {
        const QString name = file.completeBaseName();
        if (file.suffix() == QLatin1String("json") && isId(name))
            ids[ownerOf(name)] += name;
        else if (isId(name + QStringLiteral("-0")))
            ids[name];
    }
    return ids;
}

QList<RecoveryCopy> RecoveryStore::abandoned() {
    pool_.waitForDone();
    QList<RecoveryCopy> copies;
    const QHash<QString, QStringList> owners = idsByOwner();
    for (auto owner = owners.begin(); owner != owners.end(); ++owner) {
        if (owner.key() == owner_ || !claim(owner.key()))
            continue;
        if (owner->isEmpty())
            locks_.erase(owner.key());
        for (const QString& id : *owner)
            if (!own_.contains(id))
                copies += readCopy(pathOf(id + QStringLiteral(".json")), id);
    }
    copies.removeIf([](const RecoveryCopy& copy) { return copy.id.isEmpty(); });
    std::sort(copies.begin(), copies.end(), [](const RecoveryCopy& one, const RecoveryCopy& other) {
        return one.written < other.written;
    });
    return copies;
}
