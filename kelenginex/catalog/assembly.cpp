// SPDX-License-Identifier: Apache-2.0
#include "catalog/assembly.h"

#include "catalog/names.h"
#include "storage/error.h"
#include "storage/utf8.h"

#include <unordered_set>

namespace kelx::catalog {

namespace {

using storage::isUtf8;

bool allUtf8(std::initializer_list<const std::string*> texts) {
    for (const std::string* text : texts) {
        if (!isUtf8(*text)) {
            return false;
        }
    }
    return true;
}

bool hasCleanTexts(const Variable& v) {
    for (const auto& [value, label] : v.valueLabels) {
        if (!isUtf8(value) || !isUtf8(label)) {
            return false;
        }
    }
    return allUtf8(
        {&v.name, &v.label, &v.alias, &v.group, &v.documentation, &v.metadata, &v.fileName});
}

} // namespace

Assembly::Assembly(const std::filesystem::path& file)
    : file_(file), dictionary_(std::make_unique<Dictionary>()) {
    dictionary_->file = file;
    dictionary_->dataFolder = file.parent_path();
}

void Assembly::fail(const std::string& problem) const {
    throw storage::FileError(file_, problem);
}

void Assembly::checkName(const std::string& kind, const std::string& name) const {
    if (name.empty()) {
        fail(kind + " without a name");
    }
    if (name.size() > Limits::nameBytes) {
        fail(kind + " with a name of more than " + std::to_string(Limits::nameBytes) + " bytes");
    }
    if (!isUtf8(name)) {
        fail(kind + " with a name that is no UTF-8 text");
    }
    if (!isUsableName(name)) {
        fail(kind + " with the invalid name \"" + name + "\"");
    }
}

Entity* Assembly::addEntity(Entity* parent, const std::string& name, int depth) {
    checkName("an entity", name);
    if (depth > Limits::depth) {
        fail("entities are nested more than " + std::to_string(Limits::depth) + " levels deep");
    }
    if (++entities_ > Limits::entities) {
        fail("more than " + std::to_string(Limits::entities) + " entities");
    }
    auto entity = std::make_unique<Entity>();
    entity->name = name;
    entity->dictionary = dictionary_.get();
    if (parent != nullptr) {
        return parent->addChild(std::move(entity));
    }
    dictionary_->root = std::move(entity);
    return dictionary_->root.get();
}

Variable* Assembly::addVariable(Entity& entity, const std::string& name) {
    checkName("entity " + entity.name + ": a variable", name);
    if (++variables_ > Limits::variables) {
        fail("more than " + std::to_string(Limits::variables) + " variables");
    }
    auto variable = std::make_unique<Variable>();
    variable->name = name;
    return entity.addVariable(std::move(variable));
}

std::unique_ptr<Dictionary> Assembly::finish() {
    if (dictionary_->root == nullptr) {
        fail("no root entity");
    }
    checkTexts();
    checkUnique();
    for (const References& reference : references_) {
        Entity& entity = *reference.entity;
        entity.codeVar = find(entity, reference.code, "code");
        entity.labelVar = find(entity, reference.label, "label");
        entity.weightVar = find(entity, reference.weight, "weight");
    }
    return std::move(dictionary_);
}

void Assembly::checkUnique() const {
    std::unordered_set<std::string> entityNames;
    for (const Entity* entity : dictionary_->entities()) {
        if (!entityNames.insert(lowerCase(entity->name)).second) {
            fail("two entities with the name " + entity->name);
        }
        std::unordered_set<std::string> names;
        for (const auto& variable : entity->variables) {
            if (!names.insert(lowerCase(variable->name)).second) {
                fail("two variables with the name " + variable->fullName());
            }
        }
    }
}

void Assembly::checkTexts() const {
    const Dictionary& d = *dictionary_;
    if (!allUtf8({&d.name, &d.label, &d.author, &d.created, &d.updated, &d.typeType})) {
        fail("a text of its general part is no UTF-8");
    }
    for (const Entity* e : d.entities()) {
        if (!allUtf8({&e->label, &e->alias, &e->documentation, &e->metadata, &e->fileName})) {
            fail("entity " + e->name + ": a text is no UTF-8");
        }
        for (const auto& variable : e->variables) {
            if (!hasCleanTexts(*variable)) {
                fail("variable " + variable->fullName() + ": a text is no UTF-8");
            }
        }
    }
}

Variable* Assembly::find(const Entity& entity, const std::string& reference,
                         const char* role) const {
    if (reference.empty()) {
        return nullptr;
    }
    const auto dot = reference.find('.');
    const Entity* at = &entity;
    if (dot != std::string::npos) {
        at = dictionary_->findEntity(reference.substr(0, dot));
    }
    const std::string name = dot == std::string::npos ? reference : reference.substr(dot + 1);
    // A weight may stand higher up, and some writers then name the entity that uses it.
    for (; at != nullptr && at->isAncestorOf(entity); at = at->parent) {
        if (Variable* variable = at->findVariable(name)) {
            return variable;
        }
    }
    fail("entity " + entity.name + " names " + reference + " as its " + role +
         " variable, but there is no such variable");
}

} // namespace kelx::catalog
