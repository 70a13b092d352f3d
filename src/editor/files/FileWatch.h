// SPDX-License-Identifier: GPL-3.0-or-later
// Notices that another program has changed or removed a file that is open.
#pragma once

#include <QObject>
#include <QString>

/// Files that are replaced by rename are followed. What this program writes itself is announced
/// before and after, and not reported.
class FileWatch : public QObject {
    Q_OBJECT

public:
    explicit FileWatch(QObject* parent = nullptr);
    void watch(const QString& path);
    void unwatch(const QString& path);
    void beginWriting(const QString& path);
    void endWriting(const QString& path);

signals:
    void changed(QString path); ///< its contents differ from what was read or written last
    void removed(QString path);
};
