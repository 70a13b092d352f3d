// SPDX-License-Identifier: GPL-3.0-or-later
#include "dictionary/mirror/DictionaryUtil.h"

#include "TKelEntity.h"
#include "dictionary/mirror/DicxWriter.h"
#include "dictionary/mirror/TKpEntity.h"
#include "dictionary/mirror/TKpVariable.h"

#include <QCoreApplication>
#include <QDir>
#include <QSaveFile>

#include <set>
#include <stdexcept>

namespace {

const std::vector<TKelEntity*>& childrenOf(TKelEntity& entity) {
    return entity.children();
}

const QList<TKpEntity*>& childrenOf(const TKpEntity& entity) {
    return entity.children;
}

QString nameOf(const TKelEntity& entity) {
    return QString::fromStdString(entity.name());
}

QString nameOf(const TKpEntity& entity) {
    return entity.name;
}

/// The tree in pre-order.
template <class Entity>
void walk(Entity* root, QList<Entity*>& entities) {
    if (root == nullptr)
        return;
    entities.append(root);
    for (Entity* child : childrenOf(*root))
        walk(child, entities);
}

template <class Entity>
QList<Entity*> treeOf(Entity* root) {
    QList<Entity*> entities;
    walk(root, entities);
    return entities;
}

template <class Entity>
Entity* find(Entity* root, const QString& name) {
    Entity* last = nullptr;
    for (Entity* entity : treeOf(root)) {
        last = entity;
        if (nameOf(*entity) == name)
            break;
    }
    return last;
}

template <class Entity>
QStringList namesOf(Entity* root) {
    QStringList names;
    for (const Entity* entity : treeOf(root))
        names.append(nameOf(*entity));
    return names;
}

/// Appends the chain from root down to entity; false where entity is not at or below root.
bool findPath(TKpEntity* root, const TKpEntity* entity, QList<TKpEntity*>& path) {
    bool found = root == entity;
    for (qsizetype i = 0; !found && i < root->children.size(); ++i)
        found = findPath(root->children[i], entity, path);
    if (found)
        path.prepend(root);
    return found;
}

} // namespace

TKpEntity* DictionaryUtil::findEntity(TKpEntity* root, const QString& name) const {
    return find(root, name);
}

TKelEntity* DictionaryUtil::findEngineEntity(TKelEntity* root, const QString& name) const {
    return find(root, name);
}

QList<TKpEntity*> DictionaryUtil::entities(TKpEntity* root) const {
    return treeOf(root);
}

QList<TKpEntity*> DictionaryUtil::selectableEntities(TKpEntity* root) const {
    QList<TKpEntity*> result;
    for (TKpEntity* entity : entities(root))
        if (entity->selectable)
            result.append(entity);
    return result;
}

QList<TKpEntity*> DictionaryUtil::pathToRoot(TKpEntity* root, TKpEntity* entity) const {
    QList<TKpEntity*> path;
    if (root != nullptr && entity != nullptr)
        findPath(root, entity, path);
    return path;
}

QStringList DictionaryUtil::engineNames(TKelEntity* root) const {
    return namesOf(root);
}

QStringList DictionaryUtil::names(TKpEntity* root) const {
    return namesOf(root);
}

int DictionaryUtil::codeSize(const TKpEntity& entity) const {
    return entity.selectable && !entity.variables.isEmpty() ? entity.variables.first()->size : 0;
}

QList<TKpVariable*> DictionaryUtil::allVariables(TKpEntity* root) const {
    QList<TKpVariable*> result;
    for (const TKpEntity* entity : entities(root))
        result += entity->variables;
    return result;
}

QStringList DictionaryUtil::variableNames(const TKelEntity& entity) const {
    QStringList result;
    for (const TKelVariable* variable : entity.variables()) {
        const QString name = QString::fromStdString(variable->name());
        result << name << nameOf(entity) + '.' + name;
    }
    return result;
}

QStringList DictionaryUtil::groups(const TKpEntity& entity) const {
    std::set<QString> groups;
    for (const TKpVariable* variable : entity.variables)
        groups.insert(variable->group);
    return {groups.begin(), groups.end()};
}

FileRelocation DictionaryUtil::relocateFiles(TKelDictionary& dictionary, TKpEntity& root,
                                             const QString& folder) const {
    return {dictionary, root, folder};
}

void DictionaryUtil::writeDicx(const QString& path, TKelDictionary& dictionary,
                               const TKpEntity& root) const {
    QSaveFile file(path);
    if (!file.open(QIODevice::WriteOnly) || !DicxWriter(&file).write(dictionary, root) ||
        !file.commit())
        throw std::runtime_error(
            QCoreApplication::translate("DictionaryUtil", "The file %1 cannot be written: %2")
                .arg(QDir::toNativeSeparators(path), file.errorString())
                .toStdString());
}
