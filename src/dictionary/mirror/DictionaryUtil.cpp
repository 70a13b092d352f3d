// SPDX-License-Identifier: GPL-3.0-or-later
#include "dictionary/mirror/DictionaryUtil.h"

#include "TKelEntity.h"
#include "dictionary/mirror/TKpEntity.h"
#include "dictionary/mirror/TKpVariable.h"

#include <set>

namespace {

QList<TKelEntity*> engineEntities(TKelEntity* root) {
    QList<TKelEntity*> result;
    if (root == nullptr)
        return result;
    result.append(root);
    for (TKelEntity* child : root->children())
        result += engineEntities(child);
    return result;
}

QString engineName(const TKelEntity* entity) {
    return QString::fromStdString(entity->name());
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
    TKpEntity* last = nullptr;
    for (TKpEntity* entity : entities(root)) {
        last = entity;
        if (entity->name == name)
            break;
    }
    return last;
}

TKelEntity* DictionaryUtil::findEngineEntity(TKelEntity* root, const QString& name) const {
    TKelEntity* last = nullptr;
    for (TKelEntity* entity : engineEntities(root)) {
        last = entity;
        if (engineName(entity) == name)
            break;
    }
    return last;
}

QList<TKpEntity*> DictionaryUtil::entities(TKpEntity* root) const {
    QList<TKpEntity*> result;
    if (root == nullptr)
        return result;
    result.append(root);
    for (TKpEntity* child : root->children)
        result += entities(child);
    return result;
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
    QStringList result;
    for (const TKelEntity* entity : engineEntities(root))
        result.append(engineName(entity));
    return result;
}

QStringList DictionaryUtil::names(TKpEntity* root) const {
    QStringList result;
    for (const TKpEntity* entity : entities(root))
        result.append(entity->name);
    return result;
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
        result << name << engineName(&entity) + '.' + name;
    }
    return result;
}

QStringList DictionaryUtil::groups(const TKpEntity& entity) const {
    std::set<QString> groups;
    for (const TKpVariable* variable : entity.variables)
        groups.insert(variable->group);
    return {groups.begin(), groups.end()};
}
