// SPDX-License-Identifier: GPL-3.0-or-later
#include "dictionary/loading/PathLocator.h"

#include "TKelDictionary.h"
#include "dictionary/mirror/DictionaryEdit.h"
#include "dictionary/mirror/DictionaryUtil.h"
#include "dictionary/mirror/TKpEntity.h"
#include "dictionary/mirror/TKpVariable.h"

#include <QDir>
#include <QFileInfo>
#include <QHash>

#include <algorithm>

namespace {

QString lastPart(QString path) {
    return path.replace('\\', '/').section('/', -1);
}

} // namespace

QString PathLocator::Item::name() const {
    return variable != nullptr ? variable->fullName : entity->name;
}

QString PathLocator::Item::path() const {
    return variable != nullptr ? variable->path : entity->fullPath;
}

QString PathLocator::Item::bareName() const {
    return lastPart(variable != nullptr ? variable->fileName : entity->fileName);
}

bool PathLocator::Item::isMissing() const {
    return variable != nullptr ? variable->isFileMissing() : entity->isFileMissing();
}

PathLocator::PathLocator(TKelDictionary& dictionary, TKpEntity& root)
    : dataFolder_(QString::fromStdString(dictionary.dataPath())) {
    for (TKpEntity* entity : DictionaryUtil().entities(&root)) {
        if (const Item own{entity}; !entity->isVirtual && own.isMissing())
            items_ += own;
        for (TKpVariable* variable : entity->variables)
            if (const Item item{entity, variable}; item.isMissing())
                items_ += item;
    }
}

int PathLocator::missingCount() const {
    return static_cast<int>(std::count_if(items_.begin(), items_.end(),
                                          [](const Item& item) { return item.isMissing(); }));
}

bool PathLocator::fits(const Item& item, const QString& file) {
    return item.bareName().compare(lastPart(file), Qt::CaseInsensitive) == 0;
}

bool PathLocator::relocate(const Item& item, const QString& file) {
    if (!fits(item, file) || !QFileInfo(file).isFile())
        return false;
    setFile(item, file);
    fitTheRest(QFileInfo(file).absolutePath());
    return true;
}

void PathLocator::fitTheRest(const QString& folder) {
    QHash<QString, QString> files; // by lower-case name, since one look at the folder is enough
    for (const QString& name : QDir(folder).entryList(QDir::Files | QDir::Hidden))
        files.insert(name.toLower(), name);
    for (const Item& item : items_) {
        const auto found = files.constFind(item.bareName().toLower());
        if (item.isMissing() && found != files.constEnd())
            setFile(item, QDir(folder).filePath(*found));
    }
}

void PathLocator::setFile(const Item& item, const QString& file) {
    const QString path = QDir::toNativeSeparators(QFileInfo(file).absoluteFilePath());
    const QString name = dataFolder_.isEmpty() ? path : QDir(dataFolder_).relativeFilePath(path);
    changed_ = true;
    if (item.variable != nullptr) {
        DictionaryEdit::setFile(*item.variable, name, path);
        return;
    }
    DictionaryEdit::setFile(*item.entity, name, path);
    showToVirtualChildren(*item.entity);
}

/// Their own names in the engine stay: they show the parent's records.
void PathLocator::showToVirtualChildren(TKpEntity& entity) {
    for (TKpEntity* child : entity.children) {
        if (!child->isVirtual)
            continue;
        child->fileName = entity.fileName;
        child->fullPath = entity.fullPath;
        child->fileExists = entity.fileExists;
    }
}
