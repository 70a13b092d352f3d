// SPDX-License-Identifier: Apache-2.0
#include "boundary/take_over.h"

#include "catalog/names.h"

#include <algorithm>

namespace kelx::boundary {

namespace {

const TKelVariable* findVariable(const std::vector<TKelVariable*>& variables,
                                 const std::string& name) {
    const auto found = std::find_if(variables.begin(), variables.end(), [&](const auto* variable) {
        return variable != nullptr && catalog::sameName(variable->name(), name);
    });
    return found == variables.end() ? nullptr : *found;
}

TKelVariable* named(TKelEntity& entity, const TKelVariable* variable) {
    if (variable == nullptr) {
        return nullptr;
    }
    const auto own = entity.allVariables();
    return const_cast<TKelVariable*>(findVariable(own, variable->name()));
}

void takeVariable(const TKelVariable& from, TKelVariable& to) {
    catalog::Variable& model = *KelBoundaryAccess::data(to).variable;
    const catalog::Variable& source = *KelBoundaryAccess::data(from).variable;
    const bool moved = model.fileName != source.fileName;
    const auto raw = model.raw;
    model.copyDescription(source);
    model.raw = source.raw ? source.raw : raw;
    if (moved) {
        model.closeColumn();
    }
}

void takeVariables(TKelEntity& from, TKelEntity& to, DictionaryState& state) {
    const auto theirs = from.allVariables();
    if (theirs.empty()) {
        return;
    }
    for (TKelVariable* variable : to.allVariables()) {
        if (const TKelVariable* source = findVariable(theirs, variable->name())) {
            takeVariable(*source, *variable);
        } else if (variable->local()) {
            state.remove(*KelBoundaryAccess::data(*variable).variable);
        }
    }
    for (TKelVariable* variable : theirs) {
        if (variable != nullptr && named(to, variable) == nullptr) {
            to.addVariable(variable);
        }
    }
}

void takeEntity(TKelEntity& from, TKelEntity& to, DictionaryState& state) {
    to.setLabel(from.label());
    to.setAlias(from.alias());
    to.setDocumentation(from.documentation());
    to.setMetadata(from.metadata());
    to.setSelectable(from.selectable());
    to.setActive(from.active());
    if (from.fileName() != to.fileName()) {
        to.setFileName(from.fileName());
    }
    takeVariables(from, to, state);
    to.setCodeVar(named(to, from.codeVar()));
    to.setLabelVar(named(to, from.labelVar()));
    TKelVariable* weight = named(to, from.weightVar());
    if (weight != nullptr || from.weightVar() == nullptr) {
        to.setWeightVar(weight);
    }
    for (TKelEntity* child : from.children()) {
        if (TKelEntity* own = to.findEntity(child->name(), false)) {
            takeEntity(*child, *own, state);
        } else {
            to.addChild(child);
        }
    }
}

} // namespace

void takeOver(TKelEntity& copyRoot, DictionaryState& state) {
    if (copyRoot.name().empty()) {
        return; // it was never given a description
    }
    TKelEntity& root = *state.root();
    if (copyRoot.name() != root.name()) {
        root.setName(copyRoot.name());
    }
    takeEntity(copyRoot, root, state);
    state.touch();
}

} // namespace kelx::boundary
