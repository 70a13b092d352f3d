// SPDX-License-Identifier: GPL-3.0-or-later
// The names of the open dictionary that programs are written with.
#pragma once

#include <QString>
#include <QStringList>

/// Both empty where no dictionary is open.
struct Vocabulary {
    QStringList entities;  ///< in lower case, in the dictionary's order
    QStringList variables; ///< of all entities, in lower case, sorted, each once

    static Vocabulary ofOpenDictionary();
};

/// In the dictionary's order and spelling; capitals of the entity's name do not count. Empty where
/// there is no such entity.
QStringList variablesOfEntity(const QString& entity);
