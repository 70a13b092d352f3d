// SPDX-License-Identifier: Apache-2.0
#include "TKelDictionary.h"

#include "boundary/state.h"
#include "boundary/take_over.h"
#include "catalog/names.h"

#include <stdexcept>

TKelDictionary::TKelDictionary() : d(std::make_unique<Data>()) {
    KelBoundaryAccess::adopt(*this, std::make_unique<kelx::catalog::Dictionary>());
}

TKelDictionary::~TKelDictionary() {
    d->state->owner = nullptr;
}

std::shared_ptr<TKelEntity> TKelDictionary::root() {
    TKelEntity* root = d->state->root();
    // The tree stays as long as somebody holds its root.
    return root != nullptr ? std::shared_ptr<TKelEntity>(d->state, root) : nullptr;
}

void TKelDictionary::setDataPath(const std::string& folder) {
    auto& dictionary = *d->state->dictionary;
    if (dictionary.dataFolder == std::filesystem::path(folder)) {
        return;
    }
    dictionary.dataFolder = folder;
    for (kelx::catalog::Entity* entity : dictionary.entities()) {
        entity->closePointers();
        for (const auto& variable : entity->variables) {
            if (!variable->fileName.empty()) {
                variable->closeColumn();
            }
        }
    }
}

std::string TKelDictionary::dataPath() const {
    return d->state->dictionary->dataFolder.string();
}

std::string TKelDictionary::name() {
    return d->state->dictionary->name;
}

std::string TKelDictionary::label() {
    return d->state->dictionary->label;
}

std::string TKelDictionary::fileName() {
    return d->state->dictionary->file.string();
}

std::string TKelDictionary::typeType() {
    return d->state->dictionary->typeType;
}

std::string TKelDictionary::author() {
    return d->state->dictionary->author;
}

std::string TKelDictionary::created() {
    return d->state->dictionary->created;
}

std::string TKelDictionary::updated() {
    return d->state->dictionary->updated;
}

bool TKelDictionary::isDirty() {
    return d->state->dictionary->dirty;
}

void TKelDictionary::setDirty(bool dirty) {
    d->state->dictionary->dirty = dirty;
}

TKelEntity* TKelDictionary::findEntity(const std::string& name) {
    return d->state->wrapperOf(d->state->dictionary->findEntity(name));
}

void TKelDictionary::setRoot(const std::shared_ptr<TKelEntity>& root) {
    if (root == nullptr) {
        throw std::invalid_argument("A dictionary needs a root entity.");
    }
    if (d->state->root() == nullptr) {
        throw std::logic_error("the dictionary has not been read");
    }
    d->state->refresh();
    if (root.get() != d->state->root()) {
        kelx::boundary::takeOver(*root, *d->state);
    }
}
