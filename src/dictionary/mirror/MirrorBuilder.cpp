// SPDX-License-Identifier: GPL-3.0-or-later
#include "dictionary/mirror/MirrorBuilder.h"

#include "TKelDictionary.h"
#include "TKelEntity.h"
#include "dictionary/mirror/PathResolver.h"
#include "dictionary/mirror/TKpEntity.h"
#include "dictionary/mirror/TKpVariable.h"

#include <QDir>
#include <QFileInfo>

#include <algorithm>
#include <limits>

namespace {

QString text(const std::string& value) {
    return QString::fromStdString(value);
}

QString variableName(const TKelVariable* variable) {
    return variable != nullptr ? text(variable->name()) : QString();
}

/// The folder that the engine resolves file names against.
QString dataFolder(TKelDictionary& dictionary) {
    const QString told = text(dictionary.dataPath());
    return QDir::toNativeSeparators(
        told.isEmpty() ? QFileInfo(text(dictionary.fileName())).absolutePath() : told);
}

/// A code as the interface holds it: without fraction, 0 where there is none.
int codeValue(const std::optional<double>& code) {
    if (!code ||
        !(*code >= std::numeric_limits<int>::min() && *code <= std::numeric_limits<int>::max()))
        return 0;
    return static_cast<int>(*code);
}

QString typeName(eVarType type) {
    switch (type) {
    case eVarType::NONE:
        return QStringLiteral("NONE");
    case eVarType::INTEGER:
        return QStringLiteral("INTEGER");
    case eVarType::REAL:
        return QStringLiteral("REAL");
    case eVarType::STRING:
        return QStringLiteral("STRING");
    case eVarType::BOOLEAN:
        return QStringLiteral("BOOLEAN");
    }
    return {};
}

void copyValueLabels(const TKelVariable& source, TKpVariable& mirror) {
    mirror.valueLabels = std::make_shared<QList<ValueLabelElement>>();
    for (const auto& [value, label] : source.valueLabels())
        mirror.addValueLabel(value, label);
    if (source.type() == eVarType::INTEGER)
        std::stable_sort(mirror.valueLabels->begin(), mirror.valueLabels->end(),
                         [](const ValueLabelElement& a, const ValueLabelElement& b) {
                             return a.value.toLongLong() < b.value.toLongLong();
                         });
}

void resolveFile(const QString& folder, TKpVariable& mirror) {
    mirror.path = QFileInfo(mirror.fileName).isAbsolute() ? mirror.fileName
                                                          : resolvePath(mirror.fileName, folder);
    mirror.fileExists = QFileInfo(mirror.path).isFile();
}

void copyVariable(const TKelVariable& source, TKpVariable& mirror) {
    if (!source.alias().empty())
        mirror.alias = text(source.alias());
    mirror.name = text(source.name());
    mirror.label = text(source.label());
    mirror.group = text(source.group());
    mirror.fileName = text(source.fileName());
    mirror.local = source.local();
    mirror.typeName = typeName(source.type());
    mirror.tag = source.tag();
    mirror.documentation = text(source.documentation());
    mirror.stateFlag = static_cast<int>(source.state());
    mirror.notApp = codeValue(source.notapp());
    mirror.missing = codeValue(source.missing());
    copyValueLabels(source, mirror);
    mirror.size = source.size();
    mirror.decimals = source.decimals().value_or(0);
    mirror.hidden = source.hidden();
    mirror.ranges =
        std::make_shared<QList<TKelRange>>(source.ranges().begin(), source.ranges().end());
}

void buildVariables(const QString& folder, TKpEntity& mirror) {
    const QString entityName = text(mirror.engineEntity->name());
    for (const TKelVariable* source : mirror.engineEntity->variables()) {
        if (source == nullptr)
            continue;
        auto* variable = new TKpVariable(*source);
        mirror.variables.append(variable);
        variable->engineEntity = mirror.engineEntity;
        copyVariable(*source, *variable);
        variable->fullName = entityName + '.' + variable->name;
        variable->entityName = entityName;
        variable->owner = &mirror;
        variable->position = static_cast<int>(mirror.variables.size()) - 1;
        resolveFile(folder, *variable);
        mirror.sensitive = mirror.sensitive || source->sensitive().has_value();
    }
}

void copyEntity(TKelEntity& source, TKpEntity& mirror) {
    mirror.alias = text(source.alias());
    mirror.label = text(source.label());
    mirror.name = text(source.name());
    mirror.fileName = text(source.fileName());
    mirror.setSelectable(source.selectable());
    mirror.isVirtual = source.isVirtual();
    if (const TKelEntity* parent = source.parent()) {
        if (mirror.isVirtual)
            mirror.fileName = text(parent->fileName());
        mirror.parentName = text(parent->name());
    }
    mirror.tag = source.tag();
    mirror.sensitive = source.sensitive().has_value();
    mirror.documentation = text(source.documentation());
    mirror.refCode = variableName(source.codeVar());
    mirror.refLabel = variableName(source.labelVar());
    if (const TKelVariable* weight = source.weightVar())
        mirror.weightVar = mirror.name + '.' + text(weight->name());
    mirror.instanceCount = source.instanceCount(0);
}

} // namespace

void buildEntity(TKelDictionary& dictionary, TKelEntity& engineEntity, TKpEntity& mirror,
                 int level) {
    mirror.engineEntity = &engineEntity;
    mirror.level = level;
    copyEntity(engineEntity, mirror);
    const QString folder = dataFolder(dictionary);
    mirror.fullPath = QDir::toNativeSeparators(resolvePath(mirror.fileName, folder));
    mirror.fileExists = QFileInfo(mirror.fullPath).isFile();
    buildVariables(folder, mirror);
    for (TKelEntity* engineChild : engineEntity.children()) {
        auto* child = new TKpEntity(nullptr);
        mirror.children.append(child);
        buildEntity(dictionary, *engineChild, *child, level + 1);
    }
}

std::shared_ptr<TKpEntity> buildMirror(TKelDictionary& dictionary) {
    const std::shared_ptr<TKelEntity> root = dictionary.root();
    if (!root)
        return nullptr;
    auto mirror = std::make_shared<TKpEntity>(nullptr);
    buildEntity(dictionary, *root, *mirror, 1);
    return mirror;
}
