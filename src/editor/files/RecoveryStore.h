// SPDX-License-Identifier: GPL-3.0-or-later
// Copies of unsaved program texts beside the settings, so that a crash loses nothing. The user's
// own files are never written.
#pragma once

#include <QDateTime>
#include <QFuture>
#include <QHash>
#include <QList>
#include <QSet>
#include <QString>
#include <QStringList>
#include <QThreadPool>

#include <chrono>
#include <map>
#include <memory>

class QLockFile;

struct RecoveryCopy {
    QString id;       ///< names the copy within the store
    QString filePath; ///< of the program; empty for an untitled one
    QString name;     ///< as its tab showed
    bool executeMode = false;
    QDateTime written;
    QString text;
    QByteArray basis = {}; ///< fingerprint of the file that the text stems from; empty: not known
};

/// One folder, shared by all programs that run: each keeps to its own copies, and only those of
/// programs that have ended are offered. However old, a copy stays until drop(). For one thread;
/// the files are written by another, in the order of the calls.
class RecoveryStore {
public:
    explicit RecoveryStore(const QString& folder);
    ~RecoveryStore(); ///< once everything is written
    RecoveryStore(const RecoveryStore&) = delete;
    RecoveryStore& operator=(const RecoveryStore&) = delete;

    /// The store beside the settings file, one for the process.
    static RecoveryStore& instance();

    QString newId();
    bool keep(const RecoveryCopy& copy);              ///< false where it could not be written
    QFuture<bool> keepSoon(const RecoveryCopy& copy); ///< the same without waiting for the disk
    void drop(const QString& id);                     ///< does not wait
    /// Until all is written, but no longer than that.
    void waitBriefly(std::chrono::milliseconds longest);
    /// Left behind by programs that have ended, oldest first; damaged ones are skipped. They stay
    /// until drop(). No other program offers them while this one runs.
    QList<RecoveryCopy> abandoned();
    /// This program goes on with an abandoned copy, which is not offered again.
    void take(const QString& id);

private:
    QString folder_;
    QString owner_; ///< begins the names of this program's files
    int lastNumber_ = 0;
    QSet<QString> own_; ///< copies of documents that are open here
    std::map<QString, std::unique_ptr<QLockFile>> locks_; ///< by owner: this program and ended ones
    QThreadPool pool_;                                    ///< one thread

    bool claim(const QString& owner);
    bool claimOwn();
    QString pathOf(const QString& name) const;
    QHash<QString, QStringList> idsByOwner() const;
};
