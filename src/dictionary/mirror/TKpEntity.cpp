// SPDX-License-Identifier: GPL-3.0-or-later
#include "dictionary/mirror/TKpEntity.h"

#include "dictionary/mirror/TKpVariable.h"

namespace {

/// What the engine knows the entity as; null where it knows none.
TKelEntity* engineSide(TKelEntity* entity) {
    const auto* mirror = dynamic_cast<const TKpEntity*>(entity);
    return mirror != nullptr ? mirror->engineEntity : entity;
}

} // namespace

TKpEntity::TKpEntity(TKelDictionary* dictionary) : TKelEntity(dictionary) {}

TKpEntity::~TKpEntity() {
    qDeleteAll(variables);
    qDeleteAll(children);
}

void TKpEntity::setSelectable(const bool& value) {
    selectable = value;
    TKelEntity::setSelectable(value);
}

TKelVariable* TKpEntity::cmpCodeVar() {
    return engineEntity != nullptr ? engineEntity->cmpCodeVar() : nullptr;
}

TKelVariable* TKpEntity::sdcVar() {
    return engineEntity != nullptr ? engineEntity->sdcVar() : nullptr;
}

bool TKpEntity::isMyAncestor(TKelEntity* other, bool orSelf) {
    TKelEntity* otherSide = engineSide(other);
    return engineEntity != nullptr && otherSide != nullptr &&
           engineEntity->isMyAncestor(otherSide, orSelf);
}

bool TKpEntity::isSameBranch(TKelEntity* other) {
    TKelEntity* otherSide = engineSide(other);
    return engineEntity != nullptr && otherSide != nullptr && engineEntity->isSameBranch(otherSide);
}

std::vector<EntityAreaCount> TKpEntity::areaEntityCounts(const std::string& compoundCode) {
    return engineEntity != nullptr ? engineEntity->areaEntityCounts(compoundCode)
                                   : std::vector<EntityAreaCount>();
}

bool TKpEntity::isReadOnly() {
    return false;
}

std::vector<AreaCodeRecord> TKpEntity::childAreaCodes(const std::string& parentCompoundCode,
                                                      const std::string& childEntityName) {
    return engineEntity != nullptr
               ? engineEntity->childAreaCodes(parentCompoundCode, childEntityName)
               : std::vector<AreaCodeRecord>();
}

std::string TKpEntity::nameText() {
    return name.toStdString();
}
