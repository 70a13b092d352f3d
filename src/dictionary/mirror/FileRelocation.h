// SPDX-License-Identifier: GPL-3.0-or-later
// Moves the file names of a dictionary to another folder, for as long as that is wanted: a save
// that fails must leave the names as they were.
#pragma once

#include <QString>

#include <functional>
#include <string>
#include <utility>
#include <vector>

class TKelDictionary;
class TKelEntity;
class TKpEntity;

/// Neither the dictionary nor its mirror may go away before keep() or the end of the object.
class FileRelocation {
public:
    /// Absolute names stay; all others lead to the same files from the folder, which becomes the
    /// engine's data folder.
    FileRelocation(TKelDictionary& dictionary, TKpEntity& root, const QString& folder);
    ~FileRelocation();
    FileRelocation(const FileRelocation&) = delete;
    FileRelocation& operator=(const FileRelocation&) = delete;

    void keep() { undo_.clear(); }

private:
    QString moved(const QString& name) const;
    void moveEngine(TKelEntity& entity);
    void moveMirror(TKpEntity& entity);
    void move(QString& name);

    QString from_;
    QString to_;
    std::vector<std::function<void()>> undo_;
};
