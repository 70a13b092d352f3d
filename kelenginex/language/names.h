// SPDX-License-Identifier: Apache-2.0
// Looks up the names of a dictionary, in any case, and finds what a wrong name may mean.
#pragma once

#include "catalog/model.h"
#include "language/lexer.h"

#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

namespace kelx::language {

class Names {
public:
    explicit Names(const catalog::Dictionary& dictionary);

    const catalog::Entity* entity(std::string_view name) const; ///< by name or alias, else null
    const catalog::Variable* variable(const catalog::Entity& entity, std::string_view name) const;
    /// All variables with that name or, where there are none, with that alias.
    const std::vector<const catalog::Variable*>& variables(std::string_view name) const;
    /// All of an entity: in the dictionary's order, then what was defined.
    const std::vector<const catalog::Variable*>& variablesOf(const catalog::Entity& entity) const;
    /// A variable that the program makes, in place of one of the same name. It must live on.
    void define(const catalog::Variable& variable);
    /// A table that the program makes.
    void noteTable(const std::string& name) { oddNames_.add(name); }
    const OddNames& oddNames() const { return oddNames_; }

    // Hints for a message: empty, or " Did you mean X?".
    std::string similarEntity(std::string_view name) const;
    std::string similarVariable(const catalog::Entity& entity, std::string_view name) const;
    std::string similarVariable(std::string_view name) const; ///< of any entity, and entities

private:
    using Variables = std::unordered_map<std::string, std::vector<const catalog::Variable*>>;

    void append(const catalog::Variable& variable);
    void defineAlias(const catalog::Variable& variable);

    std::unordered_map<std::string, const catalog::Entity*> entities_;
    std::unordered_map<const catalog::Entity*,
                       std::unordered_map<std::string, const catalog::Variable*>>
        byEntity_;
    std::unordered_map<const catalog::Entity*, std::vector<const catalog::Variable*>> lists_;
    std::unordered_map<const catalog::Variable*, std::size_t> places_; ///< in its entity's list
    Variables byName_, byAlias_;
    OddNames oddNames_;
};

/// " Did you mean X?", empty for an empty text.
std::string didYouMean(const std::string& suggestion);

} // namespace kelx::language
