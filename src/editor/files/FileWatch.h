// SPDX-License-Identifier: GPL-3.0-or-later
// Notices that another program has changed or removed a file that is open.
#pragma once

#include <QDateTime>
#include <QFileSystemWatcher>
#include <QHash>
#include <QObject>
#include <QString>
#include <QTimer>

/// Files that are replaced by rename are followed, also through links, and into folders that come
/// back. What counts is what a file holds: touching it is no change. What this program writes
/// itself is announced before and after, and not reported.
class FileWatch : public QObject {
    Q_OBJECT

public:
    enum class State { Same, Changed, Removed };

    explicit FileWatch(QObject* parent = nullptr);
    /// fingerprint: of what was read (TextFileResult); without it, what the file holds now. To
    /// watch a path again tells that its contents were read anew.
    void watch(const QString& path, const QByteArray& fingerprint = {});
    void unwatch(const QString& path);
    void beginWriting(const QString& path);
    /// fingerprint: of what was written; empty where writing failed.
    void endWriting(const QString& path, const QByteArray& fingerprint);
    /// The same, with what the file holds now.
    void endWriting(const QString& path);

    /// Looks at the file itself: how it stands to what was read or written last, or accepted.
    /// Same for a path that is not watched and for a file that cannot be read just now.
    State stateOf(const QString& path) const;
    /// It was, and to write it would lose what another program wrote.
    bool changedSince(const QString& path) const { return stateOf(path) == State::Changed; }
    /// The user knows that the file holds this, or with an empty fingerprint that it is gone, and
    /// keeps his text.
    void accept(const QString& path, const QByteArray& fingerprint);
    /// The text at hand stems from what the file held once (empty: nobody knows what), and nobody
    /// has seen here what it holds now: that counts as changed, but is not reported.
    void distrust(const QString& path, const QByteArray& fingerprint);
    /// What stateOf() compares with; empty for a file that is gone or not watched.
    QByteArray knownOf(const QString& path) const;

signals:
    void changed(QString path); ///< its contents differ from what was read or written last
    void removed(QString path);

private:
    struct File {
        QString path;     ///< as it was given
        QByteArray known; ///< read or written last, or accepted; empty for a file that is gone
        QByteArray told;  ///< at the last signal
        // What stood there at the last look; without a time, it has to be read again.
        qint64 size = -1;
        QDateTime modified;
        bool beingWritten = false;
    };

    void noticeFile(const QString& path);
    void notice();
    void checkAll();
    void check(const QString& key, File& file);
    void followAll();
    static void settle(File& file, const QByteArray& fingerprint);

    QFileSystemWatcher watcher_;
    QTimer pause_;               ///< lets a series of changes end
    QHash<QString, File> files_; ///< by absolute path
};
