// SPDX-License-Identifier: GPL-3.0-or-later
// Walks over the trees of entities, the engine's and the interface's. Holds no state.
#pragma once

#include <QList>
#include <QString>
#include <QStringList>

class TKelEntity;
class TKpEntity;
class TKpVariable;

class DictionaryUtil {
public:
    /// Depth-first, by exact name. Where nothing matches, the last entity visited: compare the name
    /// of the result. Null only for a null root.
    TKpEntity* findEntity(TKpEntity* root, const QString& name) const;
    TKelEntity* findEngineEntity(TKelEntity* root, const QString& name) const;

    QList<TKpEntity*> entities(TKpEntity* root) const;           ///< pre-order
    QList<TKpEntity*> selectableEntities(TKpEntity* root) const; ///< pre-order
    /// From the root of the mirror down to the entity, both included.
    QList<TKpEntity*> pathToRoot(TKpEntity* root, TKpEntity* entity) const;
    QStringList engineNames(TKelEntity* root) const; ///< pre-order
    QStringList names(TKpEntity* root) const;        ///< pre-order
    /// Width of the entity's code: that of its first variable, 0 where it is not selectable.
    int codeSize(const TKpEntity& entity) const;
    QList<TKpVariable*> allVariables(TKpEntity* root) const; ///< entity by entity, pre-order
    /// For each variable of the entity its name, then ENTITY.VARIABLE.
    QStringList variableNames(const TKelEntity& entity) const;
    QStringList groups(const TKpEntity& entity) const; ///< sorted, each once
};
