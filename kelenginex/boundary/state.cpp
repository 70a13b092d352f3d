// SPDX-License-Identifier: Apache-2.0
#include "boundary/state.h"

#include "catalog/names.h"
#include "catalog/type_names.h"

#include <algorithm>
#include <stdexcept>
#include <unordered_set>

namespace kelx::boundary {

DictionaryState::DictionaryState(TKelDictionary* owner_,
                                 std::unique_ptr<catalog::Dictionary> dictionary_)
    : owner(owner_), dictionary(std::move(dictionary_)) {
    noteFile(*dictionary);
    refresh();
}

DictionaryState::~DictionaryState() = default;

TKelEntity* DictionaryState::wrapperOf(const catalog::Entity* entity) const {
    const auto found = entities_.find(entity);
    return found == entities_.end() ? nullptr : found->second.get();
}

TKelVariable* DictionaryState::wrapperOf(const catalog::Variable* variable) const {
    const auto found = variables_.find(variable);
    return found == variables_.end() ? nullptr : found->second.get();
}

void DictionaryState::refresh() {
    if (dictionary->root != nullptr) {
        wrap(*dictionary->root, nullptr);
    }
    std::unordered_set<const catalog::Variable*> alive;
    for (const catalog::Entity* entity : dictionary->entities()) {
        for (const auto& variable : entity->variables) {
            alive.insert(variable.get());
        }
    }
    std::erase_if(variables_, [&](const auto& entry) { return !alive.contains(entry.first); });
}

void DictionaryState::wrap(catalog::Entity& entity, TKelEntity* parent) {
    auto& wrapper = entities_[&entity];
    if (wrapper == nullptr) {
        wrapper = std::make_unique<TKelEntity>(owner);
    }
    TKelEntity* const self = wrapper.get();
    auto& data = KelBoundaryAccess::data(*self);
    data.state = this;
    data.own.reset();
    data.entity = &entity;
    data.parent = parent;
    data.variables.clear();
    data.programVariables.clear();
    for (const auto& variable : entity.variables) {
        auto& shown = variables_[variable.get()];
        if (shown == nullptr) {
            shown = std::make_unique<TKelVariable>(self);
        }
        auto& inside = KelBoundaryAccess::data(*shown);
        inside.state = this;
        inside.own.reset();
        inside.variable = variable.get();
        (catalog::isStored(*variable) ? data.variables : data.programVariables)
            .push_back(shown.get());
    }
    data.children.clear();
    for (const auto& child : entity.children) {
        wrap(*child, self);
        data.children.push_back(wrapperOf(child.get()));
    }
    data.code = wrapperOf(entity.codeVar);
    data.label = wrapperOf(entity.labelVar);
    data.weight = wrapperOf(entity.weightVar);
}

void DictionaryState::remove(catalog::Variable& variable) {
    for (catalog::Entity* entity : dictionary->entities()) {
        for (catalog::Variable** role : {&entity->codeVar, &entity->labelVar, &entity->weightVar}) {
            *role = *role == &variable ? nullptr : *role;
        }
    }
    std::erase_if(variable.entity->variables,
                  [&](const auto& element) { return element.get() == &variable; });
    touch();
    refresh();
}

DictionaryState::Data DictionaryState::dataOf(const catalog::Variable& variable) {
    return {variable.fileName, variable.type, variable.size, variable.notapp, variable.missing};
}

DictionaryState::DataByName DictionaryState::dataOf(const catalog::Dictionary& dictionary) {
    DataByName known;
    for (const catalog::Entity* entity : dictionary.entities()) {
        for (const auto& variable : entity->variables) {
            known.insert_or_assign(
                {catalog::lowerCase(entity->name), catalog::lowerCase(variable->name)},
                dataOf(*variable));
        }
    }
    return known;
}

void DictionaryState::describe(catalog::Variable& variable, const catalog::Variable& asInFile) {
    variable.fileName = asInFile.fileName;
    variable.type = asInFile.type;
    variable.size = asInFile.size;
    variable.notapp = asInFile.notapp;
    variable.missing = asInFile.missing;
    variable.raw = asInFile.raw;
    variable.closeColumn();
}

void DictionaryState::takeFromFile(const catalog::Dictionary& asInFile) {
    for (const catalog::Entity* entity : asInFile.entities()) {
        catalog::Entity* const own = dictionary->findEntity(entity->name);
        for (const auto& variable : entity->variables) {
            const auto known = inFile_.find(
                {catalog::lowerCase(entity->name), catalog::lowerCase(variable->name)});
            const bool isNew = known == inFile_.end();
            if (own == nullptr || (!isNew && known->second == dataOf(*variable))) {
                continue;
            }
            catalog::Variable* place = own->findVariable(variable->name);
            if (place == nullptr && isNew) {
                place = own->addVariable(std::make_unique<catalog::Variable>());
                place->copyDescription(*variable);
            } else if (place != nullptr && !isNew) {
                describe(*place, *variable);
            }
        }
    }
    refresh();
}

void checkNewName(const std::string& kind, const std::string& name) {
    if (!catalog::isUsableName(name)) {
        throw std::invalid_argument("\"" + name + "\" cannot be the name of " + kind + ".");
    }
}

} // namespace kelx::boundary

void KelBoundaryAccess::adopt(TKelDictionary& dictionary,
                              std::unique_ptr<kelx::catalog::Dictionary> model) {
    dictionary.d->state =
        std::make_shared<kelx::boundary::DictionaryState>(&dictionary, std::move(model));
}
