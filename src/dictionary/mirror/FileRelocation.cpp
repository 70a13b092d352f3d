// SPDX-License-Identifier: GPL-3.0-or-later
#include "dictionary/mirror/FileRelocation.h"

#include "TKelDictionary.h"
#include "TKelEntity.h"
#include "TKelVariable.h"
#include "dictionary/mirror/PathResolver.h"
#include "dictionary/mirror/TKpEntity.h"
#include "dictionary/mirror/TKpVariable.h"

#include <QDir>
#include <QFileInfo>

#include <algorithm>

FileRelocation::FileRelocation(TKelDictionary& dictionary, TKpEntity& root, const QString& folder)
    : from_(QString::fromStdString(dictionary.dataPath())),
      to_(QFileInfo(folder).absoluteFilePath()) {
    if (from_.isEmpty())
        from_ = QFileInfo(QString::fromStdString(dictionary.fileName())).absolutePath();
    if (QDir::cleanPath(from_) == QDir::cleanPath(to_))
        return;
    // Undone last: the setters mark the dictionary as changed.
    undo_.emplace_back([&dictionary, folder = dictionary.dataPath(), dirty = dictionary.isDirty()] {
        dictionary.setDataPath(folder);
        dictionary.setDirty(dirty);
    });
    if (const auto engineRoot = dictionary.root())
        moveEngine(*engineRoot);
    moveMirror(root);
    dictionary.setDataPath(to_.toStdString());
}

FileRelocation::~FileRelocation() {
    std::for_each(undo_.rbegin(), undo_.rend(), [](const auto& step) { step(); });
}

QString FileRelocation::moved(const QString& name) const {
    QString unified = name;
    unified.replace('\\', '/');
    if (name.isEmpty() || QFileInfo(unified).isAbsolute())
        return name;
    return QDir(to_).relativeFilePath(resolvePath(unified, from_));
}

void FileRelocation::moveEngine(TKelEntity& entity) {
    const auto move = [this](auto& named) {
        const std::string before = named.fileName();
        const std::string after = moved(QString::fromStdString(before)).toStdString();
        if (after == before)
            return;
        undo_.emplace_back([&named, before] { named.setFileName(before); });
        named.setFileName(after);
    };
    move(entity);
    for (TKelVariable* variable : entity.allVariables())
        if (variable != nullptr)
            move(*variable);
    for (TKelEntity* child : entity.children())
        moveEngine(*child);
}

void FileRelocation::moveMirror(TKpEntity& entity) {
    move(entity.fileName);
    for (TKpVariable* variable : entity.variables)
        move(variable->fileName);
    for (TKpEntity* child : entity.children)
        moveMirror(*child);
}

void FileRelocation::move(QString& name) {
    undo_.emplace_back([&name, before = name] { name = before; });
    name = moved(name);
}
