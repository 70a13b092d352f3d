// SPDX-License-Identifier: GPL-3.0-or-later
// Walks over the trees of entities, the engine's and the interface's. Holds no state.
#pragma once

#include "dictionary/mirror/FileRelocation.h"

#include <QList>
#include <QString>
#include <QStringList>

class TKelDictionary;
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

    /// Writes the .dicx form of a mirror, whole or not at all. Throws std::runtime_error with a
    /// text for the user where the file cannot be written.
    void writeDicx(const QString& path, TKelDictionary& dictionary, const TKpEntity& root) const;
    /// Rewrites the relative file names, the engine's and the mirror's, so that they find the same
    /// data from another folder, which becomes the folder of the data. Taken back where the result
    /// goes out of scope without keep().
    [[nodiscard]] FileRelocation relocateFiles(TKelDictionary& dictionary, TKpEntity& root,
                                               const QString& folder) const;
};
