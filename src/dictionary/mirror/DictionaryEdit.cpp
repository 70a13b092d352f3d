// SPDX-License-Identifier: GPL-3.0-or-later
#include "dictionary/mirror/DictionaryEdit.h"

#include "dictionary/mirror/TKpEntity.h"
#include "dictionary/mirror/TKpVariable.h"

#include <QFileInfo>

#include <algorithm>
#include <functional>

namespace {

constexpr int largestTag = 9999;

using EntityText = void (TKelEntity::*)(const std::string&);
using VariableText = void (TKelVariable::*)(const std::string&);

/// The mirror is itself an engine object, detached: it is told too, so that both agree.
void change(TKpEntity& entity, QString TKpEntity::*field, const QString& text, EntityText setter) {
    if (entity.*field == text)
        return;
    entity.*field = text;
    (entity.*setter)(text.toStdString());
    if (entity.engineEntity != nullptr)
        (entity.engineEntity->*setter)(text.toStdString());
}

void change(TKpVariable& variable, QString TKpVariable::*field, const QString& text,
            VariableText setter) {
    if (variable.*field == text)
        return;
    TKelVariable* engine = DictionaryEdit::engineVariable(variable);
    variable.*field = text;
    (variable.*setter)(text.toStdString());
    if (engine != nullptr)
        (engine->*setter)(text.toStdString());
}

void follow(QString& reference, const QString& from, const QString& to) {
    if (reference == from)
        reference = to;
}

} // namespace

void DictionaryEdit::setAlias(TKpEntity& entity, const QString& alias) {
    change(entity, &TKpEntity::alias, alias, &TKelEntity::setAlias);
}

void DictionaryEdit::setLabel(TKpEntity& entity, const QString& label) {
    change(entity, &TKpEntity::label, label, &TKelEntity::setLabel);
}

void DictionaryEdit::setTag(TKpEntity& entity, int tag) {
    tag = std::min(tag, largestTag);
    if (entity.tag == tag)
        return;
    entity.tag = tag;
    if (entity.engineEntity != nullptr)
        entity.engineEntity->setTag(tag);
}

void DictionaryEdit::setDocumentation(TKpEntity& entity, const QString& documentation) {
    change(entity, &TKpEntity::documentation, documentation, &TKelEntity::setDocumentation);
}

void DictionaryEdit::setFile(TKpEntity& entity, const QString& fileName, const QString& fullPath) {
    change(entity, &TKpEntity::fileName, fileName, &TKelEntity::setFileName);
    entity.fullPath = fullPath;
    entity.fileExists = QFileInfo(fullPath).isFile();
}

void DictionaryEdit::setName(TKpVariable& variable, const QString& name) {
    const QString before = variable.name;
    change(variable, &TKpVariable::name, name, &TKelVariable::setName);
    variable.fullName = variable.entityName + '.' + name;
    if (TKpEntity* owner = variable.owner) {
        follow(owner->refCode, before, name);
        follow(owner->refLabel, before, name);
        follow(owner->weightVar, owner->name + '.' + before, owner->name + '.' + name);
    }
}

void DictionaryEdit::setAlias(TKpVariable& variable, const QString& alias) {
    change(variable, &TKpVariable::alias, alias, &TKelVariable::setAlias);
}

void DictionaryEdit::setGroup(TKpVariable& variable, const QString& group) {
    change(variable, &TKpVariable::group, group, &TKelVariable::setGroup);
}

void DictionaryEdit::setLabel(TKpVariable& variable, const QString& label) {
    change(variable, &TKpVariable::label, label, &TKelVariable::setLabel);
}

void DictionaryEdit::setTag(TKpVariable& variable, int tag) {
    tag = std::min(tag, largestTag);
    if (variable.tag == tag)
        return;
    variable.setTag(tag);
    if (TKelVariable* engine = engineVariable(variable))
        engine->setTag(tag);
}

void DictionaryEdit::setDocumentation(TKpVariable& variable, const QString& documentation) {
    change(variable, &TKpVariable::documentation, documentation, &TKelVariable::setDocumentation);
}

void DictionaryEdit::setHidden(TKpVariable& variable, bool hidden) {
    if (variable.hidden == hidden)
        return;
    variable.hidden = hidden;
    if (TKelVariable* engine = engineVariable(variable))
        engine->setHidden(hidden);
}

void DictionaryEdit::setValueLabels(TKpVariable& variable, const QList<ValueLabelElement>& labels) {
    if (variable.valueLabels && *variable.valueLabels == labels)
        return;
    variable.valueLabels = std::make_shared<QList<ValueLabelElement>>(labels);
    TKelValueLabels stored;
    for (const ValueLabelElement& element : labels)
        if (!element.value.isEmpty())
            stored.emplace(element.value.toStdString(), element.label.toStdString());
    if (TKelVariable* engine = engineVariable(variable))
        engine->setValueLabels(stored);
}

void DictionaryEdit::setFile(TKpVariable& variable, const QString& fileName, const QString& path) {
    change(variable, &TKpVariable::fileName, fileName, &TKelVariable::setFileName);
    variable.path = path;
    variable.fileExists = QFileInfo(path).isFile();
}

TKelVariable* DictionaryEdit::engineVariable(const TKpVariable& variable) {
    if (variable.engineEntity == nullptr)
        return nullptr;
    const std::string name = variable.name.toStdString();
    const std::vector<TKelVariable*>& all = variable.engineEntity->variables();
    const auto found = std::find_if(all.begin(), all.end(), [&](const TKelVariable* candidate) {
        return candidate != nullptr && candidate->name() == name;
    });
    return found != all.end() ? *found : nullptr;
}
