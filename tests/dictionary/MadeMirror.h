// SPDX-License-Identifier: GPL-3.0-or-later
// A small tree of entities made by hand, for tests that need no engine.
//
// COUNTRY > HOUSEHOLD (alias HH) > PERSON, EMIGRANT. PERSON: SEX (alias GENDER), AGE, WAGE, CODE,
// and NEW, which a program made.
#pragma once

#include "dictionary/mirror/TKpEntity.h"
#include "dictionary/mirror/TKpVariable.h"

#include <memory>

inline TKpEntity* addEntity(TKpEntity* parent, const QString& name, int records) {
    auto* entity = new TKpEntity(nullptr);
    entity->name = name;
    entity->instanceCount = records;
    entity->level = parent == nullptr ? 1 : parent->level + 1;
    if (parent != nullptr)
        parent->children.append(entity);
    return entity;
}

inline TKpVariable* addVariable(TKpEntity* entity, const QString& name, const QString& alias,
                                const QString& group, const QString& label, int tag) {
    auto* variable = new TKpVariable(static_cast<TKelEntity*>(nullptr));
    variable->name = name;
    variable->alias = alias;
    variable->group = group;
    variable->label = label;
    variable->tag = tag;
    variable->entityName = entity->name;
    variable->fullName = entity->name + '.' + name;
    variable->typeName = QStringLiteral("INTEGER");
    variable->owner = entity;
    variable->position = static_cast<int>(entity->variables.size());
    entity->variables.append(variable);
    return variable;
}

struct MadeMirror {
    std::shared_ptr<TKpEntity> root{addEntity(nullptr, "COUNTRY", 1)};
    TKpEntity* household = addEntity(root.get(), "HOUSEHOLD", 3);
    TKpEntity* person = addEntity(household, "PERSON", 1234);
    TKpEntity* emigrant = addEntity(household, "EMIGRANT", 0);
    TKpVariable* sex = addVariable(person, "SEX", "GENDER", "Demography", "Sex", 1);
    TKpVariable* age = addVariable(person, "AGE", "", "Demography", "Age in years", 10);
    TKpVariable* wage = addVariable(person, "WAGE", "", "Work", "Income (net)", -1);
    TKpVariable* code = addVariable(person, "CODE", "", "", "Code of the person", 2);
    TKpVariable* made = addVariable(person, "NEW", "", "Work", "From a program", 9999);

    MadeMirror() {
        household->alias = "HH";
        person->label = "Person";
        code->typeName = "STRING";
        made->local = true;
        addVariable(household, "ROOMS", "", "Dwelling", "Rooms", -1);
    }
};
