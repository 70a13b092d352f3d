// SPDX-License-Identifier: Apache-2.0
#include "language/names.h"

#include "language/text.h"

#include <algorithm>
#include <utility>

namespace kelx::language {

namespace {

using catalog::Entity;
using catalog::Variable;

std::vector<std::string> namesOf(const std::vector<const Variable*>& variables) {
    std::vector<std::string> result;
    for (const Variable* variable : variables) {
        result.push_back(variable->name);
        if (!variable->alias.empty())
            result.push_back(variable->alias);
    }
    return result;
}

} // namespace

std::string didYouMean(const std::string& suggestion) {
    return suggestion.empty() ? "" : " Did you mean " + suggestion + "?";
}

Names::Names(const catalog::Dictionary& dictionary) {
    const std::vector<Entity*> all =
        dictionary.root == nullptr ? std::vector<Entity*>() : dictionary.entities();
    for (const Entity* entity : all) {
        entities_.emplace(lowerCase(entity->name), entity);
        oddNames_.add(entity->name);
        auto& own = byEntity_[entity];
        for (const auto& variable : entity->variables) {
            append(*variable);
            own.emplace(lowerCase(variable->name), variable.get());
            byName_[lowerCase(variable->name)].push_back(variable.get());
            oddNames_.add(variable->name);
        }
    }
    // Names win over aliases.
    for (const Entity* entity : all) {
        if (!entity->alias.empty())
            entities_.emplace(lowerCase(entity->alias), entity);
        oddNames_.add(entity->alias);
        for (const auto& variable : entity->variables) {
            if (variable->alias.empty())
                continue;
            byEntity_[entity].emplace(lowerCase(variable->alias), variable.get());
            byAlias_[lowerCase(variable->alias)].push_back(variable.get());
            oddNames_.add(variable->alias);
        }
    }
}

void Names::append(const Variable& variable) {
    std::vector<const Variable*>& list = lists_[variable.entity];
    places_[&variable] = list.size();
    list.push_back(&variable);
}

const std::vector<const Variable*>& Names::variablesOf(const Entity& entity) const {
    static const std::vector<const Variable*> none;
    const auto found = lists_.find(&entity);
    return found == lists_.end() ? none : found->second;
}

void Names::define(const Variable& variable) {
    const std::string key = lowerCase(variable.name);
    const Variable*& holder = byEntity_[variable.entity][key];
    const bool isNew = holder == nullptr || lowerCase(holder->name) != key;
    std::vector<const Variable*>& same = byName_[key];
    if (isNew) {
        append(variable);
        same.push_back(&variable);
    } else {
        const std::size_t place = places_.at(holder);
        lists_[variable.entity][place] = &variable;
        places_[&variable] = place;
        std::replace(same.begin(), same.end(), std::as_const(holder), &variable);
    }
    holder = &variable;
    oddNames_.add(variable.name);
    if (!variable.alias.empty())
        defineAlias(variable);
}

/// The newest alias holds, but no alias hides a name.
void Names::defineAlias(const Variable& variable) {
    const std::string key = lowerCase(variable.alias);
    const Variable*& holder = byEntity_[variable.entity][key];
    if (holder == nullptr || lowerCase(holder->name) != key)
        holder = &variable;
    std::vector<const Variable*>& all = byAlias_[key];
    std::erase_if(all, [&](const Variable* v) { return v->entity == variable.entity; });
    all.push_back(&variable);
    oddNames_.add(variable.alias);
}

const Entity* Names::entity(std::string_view name) const {
    const auto found = entities_.find(lowerCase(name));
    return found == entities_.end() ? nullptr : found->second;
}

const Variable* Names::variable(const Entity& entity, std::string_view name) const {
    const auto& own = byEntity_.at(&entity);
    const auto found = own.find(lowerCase(name));
    return found == own.end() ? nullptr : found->second;
}

const std::vector<const Variable*>& Names::variables(std::string_view name) const {
    static const std::vector<const Variable*> none;
    const std::string key = lowerCase(name);
    for (const Variables* index : {&byName_, &byAlias_}) {
        const auto found = index->find(key);
        if (found != index->end())
            return found->second;
    }
    return none;
}

std::string Names::similarEntity(std::string_view name) const {
    std::vector<std::string> candidates;
    for (const auto& [key, entity] : entities_)
        candidates.push_back(entity->name);
    std::sort(candidates.begin(), candidates.end());
    return didYouMean(nearest(name, candidates));
}

/// A variable of that very name elsewhere is a better guess than a similar name here.
std::string Names::similarVariable(const Entity& entity, std::string_view name) const {
    const auto& same = variables(name);
    if (!same.empty())
        return didYouMean(same.front()->fullName());
    constexpr std::size_t mostCandidates = 10000;
    if (variablesOf(entity).size() > mostCandidates)
        return "";
    const std::string near = nearest(name, namesOf(variablesOf(entity)));
    return didYouMean(near.empty() ? near : entity.name + "." + near);
}

std::string Names::similarVariable(std::string_view name) const {
    constexpr std::size_t mostCandidates = 10000; // a hint is not worth seconds
    if (places_.size() > mostCandidates)
        return "";
    std::vector<std::string> candidates;
    for (const auto& [entity, own] : byEntity_) {
        const std::vector<std::string> more = namesOf(variablesOf(*entity));
        candidates.insert(candidates.end(), more.begin(), more.end());
        candidates.push_back(entity->name);
    }
    std::sort(candidates.begin(), candidates.end());
    return didYouMean(nearest(name, candidates));
}

} // namespace kelx::language
