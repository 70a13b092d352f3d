// SPDX-License-Identifier: GPL-3.0-or-later
// Copies of unsaved program texts beside the settings, so that a crash loses nothing. The user's
// own files are never written.
#pragma once

#include <QDateTime>
#include <QList>
#include <QString>

struct RecoveryCopy {
    QString id;       ///< names the copy within the store
    QString filePath; ///< of the program; empty for an untitled one
    QString name;     ///< as its tab showed
    bool executeMode = false;
    QDateTime written;
    QString text;
};

/// One folder, shared by all programs that run: each keeps to its own copies, and only those of
/// programs that have ended are offered.
class RecoveryStore {
public:
    explicit RecoveryStore(const QString& folder);
    ~RecoveryStore();
    RecoveryStore(const RecoveryStore&) = delete;
    RecoveryStore& operator=(const RecoveryStore&) = delete;

    /// The store beside the settings file, one for the process.
    static RecoveryStore& instance();

    QString newId();
    bool keep(const RecoveryCopy& copy); ///< false where it could not be written
    void drop(const QString& id);
    /// Left behind by programs that have ended; damaged ones are skipped. They stay until drop().
    QList<RecoveryCopy> abandoned() const;

private:
    QString folder_;
};
