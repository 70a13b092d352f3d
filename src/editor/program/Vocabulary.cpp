// SPDX-License-Identifier: GPL-3.0-or-later
#include "editor/program/Vocabulary.h"

#include "dictionary/mirror/DictionaryUtil.h"
#include "dictionary/mirror/TKpEntity.h"
#include "dictionary/mirror/TKpVariable.h"
#include "projects/TfrmProject.h"

namespace {

QList<TKpEntity*> openEntities() {
    TKpEntity* root = TfrmProject::instance().root();
    return root != nullptr ? DictionaryUtil().entities(root) : QList<TKpEntity*>();
}

} // namespace

Vocabulary Vocabulary::ofOpenDictionary() {
    Vocabulary words;
    for (const TKpEntity* entity : openEntities()) {
        words.entities += entity->name.toLower();
        for (const TKpVariable* variable : entity->variables)
            words.variables += variable->name.toLower();
    }
    words.variables.sort();
    words.variables.removeDuplicates();
    return words;
}

QStringList variablesOfEntity(const QString& name) {
    QStringList names;
    for (const TKpEntity* entity : openEntities())
        if (entity->name.compare(name, Qt::CaseInsensitive) == 0)
            for (const TKpVariable* variable : entity->variables)
                names += variable->name;
    return names;
}
