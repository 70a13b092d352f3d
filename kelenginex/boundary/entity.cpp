// SPDX-License-Identifier: Apache-2.0
#include "TKelEntity.h"

#include "boundary/areas.h"
#include "boundary/state.h"
#include "catalog/names.h"
#include "storage/error.h"

#include <algorithm>
#include <limits>
#include <stdexcept>

namespace {

namespace catalog = kelx::catalog;

/// The dictionary's variable behind a wrapper; null for one that stands alone.
catalog::Variable* modelOf(const TKelVariable* variable) {
    if (variable == nullptr) {
        return nullptr;
    }
    const auto& data = KelBoundaryAccess::data(*variable);
    return data.state != nullptr ? data.variable : nullptr;
}

/// Characters that a code variable adds to compound codes.
int widthOf(const TKelVariable& code) {
    const catalog::Variable* model = modelOf(&code);
    return model != nullptr ? kelx::boundary::codeWidth(*model) : code.size();
}

void copyDescription(const catalog::Entity& from, catalog::Entity& to) {
    to.name = from.name;
    to.label = from.label;
    to.alias = from.alias;
    to.documentation = from.documentation;
    to.metadata = from.metadata;
    to.fileName = from.fileName;
    to.selectable = from.selectable;
    to.isVirtual = from.isVirtual;
    to.active = from.active;
    to.hidden = from.hidden;
    to.tag = from.tag;
    to.sensitive = from.sensitive;
}

} // namespace

TKelEntity::TKelEntity(TKelDictionary* dictionary) : d(std::make_unique<Data>()) {
    d->own = std::make_unique<catalog::Entity>();
    d->entity = d->own.get();
    d->dictionary = dictionary;
}

TKelEntity::~TKelEntity() = default;

TKelDictionary* TKelEntity::dictionary() const {
    return d->state != nullptr ? d->state->owner : d->dictionary;
}

TKelEntity* TKelEntity::parent() const {
    return d->parent;
}

void TKelEntity::setParent(TKelEntity* parent) {
    if (d->state != nullptr && parent != d->parent) {
        throw std::logic_error("the place of an entity in its dictionary cannot change");
    }
    d->parent = parent;
}

TKelVariable* TKelEntity::codeVar() const {
    return d->code;
}

void TKelEntity::setCodeVar(TKelVariable* variable) {
    d->code = variable;
    d->entity->codeVar = modelOf(variable);
    d->touch();
}

TKelVariable* TKelEntity::labelVar() const {
    return d->label;
}

void TKelEntity::setLabelVar(TKelVariable* variable) {
    d->label = variable;
    d->entity->labelVar = modelOf(variable);
    d->touch();
}

TKelVariable* TKelEntity::weightVar() const {
    return d->weight;
}

void TKelEntity::setWeightVar(TKelVariable* variable) {
    d->weight = variable;
    d->entity->weightVar = modelOf(variable);
    d->touch();
}

const std::string& TKelEntity::fileName() const {
    return d->entity->fileName;
}

void TKelEntity::setFileName(const std::string& fileName) {
    d->entity->fileName = fileName;
    d->entity->closePointers();
    d->touch();
}

const std::string& TKelEntity::name() const {
    return d->entity->name;
}

void TKelEntity::setName(const std::string& name) {
    if (d->state != nullptr) {
        kelx::boundary::checkNewName("an entity", name);
        for (const catalog::Entity* other : d->state->dictionary->entities()) {
            if (other != d->entity && catalog::sameName(other->name, name)) {
                throw std::invalid_argument("There is already an entity " + other->name + ".");
            }
        }
    }
    d->entity->name = name;
    d->touch();
}

const std::string& TKelEntity::label() const {
    return d->entity->label;
}

void TKelEntity::setLabel(const std::string& label) {
    d->entity->label = label;
    d->touch();
}

const std::string& TKelEntity::alias() const {
    return d->entity->alias;
}

void TKelEntity::setAlias(const std::string& alias) {
    d->entity->alias = alias;
    d->touch();
}

const std::string& TKelEntity::documentation() const {
    return d->entity->documentation;
}

void TKelEntity::setDocumentation(const std::string& documentation) {
    d->entity->documentation = documentation;
    d->touch();
}

bool TKelEntity::selectable() const {
    return d->entity->selectable;
}

void TKelEntity::setSelectable(const bool& selectable) {
    d->entity->selectable = selectable;
    d->touch();
}

bool TKelEntity::isVirtual() const {
    return d->entity->isVirtual;
}

bool TKelEntity::hidden() const {
    return d->entity->hidden;
}

const std::vector<TKelVariable*> TKelEntity::allVariables() {
    std::vector<TKelVariable*> all = d->variables;
    all.insert(all.end(), d->programVariables.begin(), d->programVariables.end());
    return all;
}

const std::vector<TKelVariable*> TKelEntity::virtualVariables() {
    return d->programVariables;
}

bool TKelEntity::active() const {
    return d->entity->active;
}

void TKelEntity::setActive(const bool& active) {
    d->entity->active = active;
    d->touch();
}

std::string TKelEntity::metadata() const {
    return d->entity->metadata;
}

void TKelEntity::setMetadata(const std::string& metadata) {
    d->entity->metadata = metadata;
    d->touch();
}

int TKelEntity::tag() const {
    return d->entity->tag;
}

void TKelEntity::setTag(int tag) {
    d->entity->tag = tag;
    d->touch();
}

std::optional<int> TKelEntity::sensitive() const {
    return d->entity->sensitive;
}

void TKelEntity::setSensitive(const std::optional<int>& cases) {
    d->entity->sensitive = cases;
    d->touch();
}

std::string TKelEntity::fullFileName() {
    return d->entity->filePath().string();
}

TKelEntity* TKelEntity::realEntity() {
    return this;
}

TKelVariable* TKelEntity::cmpCodeVar() {
    TKelVariable* above = d->parent != nullptr ? d->parent->cmpCodeVar() : nullptr;
    if (d->code == nullptr && above == nullptr) {
        return nullptr;
    }
    if (d->compoundCode == nullptr) {
        d->compoundCode = std::make_unique<TKelVariable>(this);
        d->compoundCode->setName("CMPCODE");
        d->compoundCode->setType(eVarType::STRING);
    }
    d->compoundCode->setLabel(label());
    d->compoundCode->setSize((above != nullptr ? above->size() : 0) +
                             (d->code != nullptr ? widthOf(*d->code) : 0));
    return d->compoundCode.get();
}

TKelVariable* TKelEntity::sdcVar() {
    return nullptr;
}

bool TKelEntity::isMyAncestor(TKelEntity* other, bool orSelf) {
    if (other == nullptr || (other == this && !orSelf)) {
        return false;
    }
    const TKelEntity* entity = this;
    while (entity != nullptr && entity != other) {
        entity = entity->parent();
    }
    return entity != nullptr;
}

bool TKelEntity::isSameBranch(TKelEntity* other) {
    return other != nullptr && (isMyAncestor(other, true) || other->isMyAncestor(this, true));
}

void TKelEntity::addChild(TKelEntity* child) {
    if (child == nullptr) {
        return;
    }
    if (d->state == nullptr) {
        d->children.push_back(child);
        child->setParent(this);
        return;
    }
    if (d->state->dictionary->findEntity(child->name()) != nullptr) {
        throw std::invalid_argument("There is already an entity " + child->name() + ".");
    }
    kelx::boundary::checkNewName("an entity", child->name());
    auto model = std::make_unique<catalog::Entity>();
    copyDescription(*child->d->entity, *model);
    catalog::Entity* added = d->entity->addChild(std::move(model));
    d->touch();
    d->state->refresh();
    TKelEntity* shown = d->state->wrapperOf(added);
    for (TKelVariable* variable : child->allVariables()) {
        shown->addVariable(variable);
    }
    for (TKelEntity* grandchild : child->children()) {
        shown->addChild(grandchild);
    }
}

void TKelEntity::addVariable(TKelVariable* variable) {
    if (variable == nullptr) {
        return;
    }
    if (d->state == nullptr) {
        d->variables.push_back(variable);
        return;
    }
    kelx::boundary::checkNewName("a variable", variable->name());
    for (const auto& other : d->entity->variables) {
        if (catalog::sameName(other->name, variable->name())) {
            throw std::invalid_argument(name() + " already has a variable " + other->name + ".");
        }
    }
    auto model = std::make_unique<catalog::Variable>();
    model->copyDescription(*KelBoundaryAccess::data(*variable).variable);
    d->entity->addVariable(std::move(model));
    d->touch();
    d->state->refresh();
}

bool TKelEntity::openData() {
    if (d->state == nullptr) {
        return false;
    }
    try {
        d->entity->pointers();
        d->open = true;
    } catch (const kelx::storage::FileError&) {
        d->open = false;
    }
    return d->open;
}

void TKelEntity::closeData() {
    d->open = false;
    d->entity->closePointers();
}

bool TKelEntity::isDataOpen() {
    return d->open;
}

std::int64_t TKelEntity::instanceCount(int /*reserved*/) {
    if (d->state == nullptr) {
        return 0;
    }
    try {
        return static_cast<std::int64_t>(d->entity->records());
    } catch (const kelx::storage::FileError&) {
        // A tree with missing files can still be shown; using them in a program tells the fault.
        return 0;
    }
}

std::int64_t TKelEntity::childRecord(std::int64_t parentRecord) {
    if (d->state == nullptr || d->parent == nullptr || parentRecord < 0) {
        return -1;
    }
    const auto pointers = d->entity->pointers();
    const auto parent = static_cast<std::uint64_t>(parentRecord);
    return parent < pointers->parents() ? static_cast<std::int64_t>(pointers->first(parent)) : -1;
}

std::vector<EntityAreaCount> TKelEntity::areaEntityCounts(const std::string& compoundCode) {
    if (d->state == nullptr) {
        return {};
    }
    return kelx::boundary::countBelow(*d->entity, compoundCode);
}

std::vector<AreaCodeRecord> TKelEntity::childAreaCodes(const std::string& parentCompoundCode,
                                                       const std::string& childEntityName) {
    if (d->state == nullptr) {
        return {};
    }
    const catalog::Entity* child = d->state->dictionary->findEntity(childEntityName);
    if (child == nullptr || child == d->entity || !d->entity->isAncestorOf(*child)) {
        throw std::invalid_argument("There is no entity " + childEntityName + " below " + name() +
                                    ".");
    }
    return kelx::boundary::codesBelow(*d->entity, parentCompoundCode, *child);
}

bool TKelEntity::isReadOnly() {
    return d->state != nullptr;
}

std::string TKelEntity::nameText() {
    return name();
}

const std::vector<TKelVariable*>& TKelEntity::variables() const {
    return d->variables;
}

const std::vector<TKelEntity*>& TKelEntity::children() const {
    return d->children;
}

TKelEntity* TKelEntity::findEntity(const std::string& name, bool exact) {
    if (exact ? this->name() == name : catalog::sameName(this->name(), name)) {
        return this;
    }
    for (TKelEntity* child : d->children) {
        if (TKelEntity* found = child->findEntity(name, exact)) {
            return found;
        }
    }
    return nullptr;
}
