// SPDX-License-Identifier: Apache-2.0
// What stands behind the boundary's objects. Wrappers of a dictionary's entities and variables
// belong to its DictionaryState; all others hold a catalog object of their own.
#pragma once

#include "TKelDictionary.h"
#include "TKelEntity.h"
#include "TKelVariable.h"

#include "catalog/model.h"

#include <map>
#include <memory>
#include <optional>
#include <string>
#include <unordered_map>
#include <utility>
#include <vector>

namespace kelx::boundary {

/// A dictionary and the objects that show its parts.
class DictionaryState {
public:
    DictionaryState(TKelDictionary* owner, std::unique_ptr<catalog::Dictionary> dictionary);
    ~DictionaryState();

    TKelDictionary* owner; ///< null once the dictionary object is gone
    std::unique_ptr<catalog::Dictionary> dictionary;

    TKelEntity* root() const { return wrapperOf(dictionary->root.get()); }
    TKelEntity* wrapperOf(const catalog::Entity* entity) const;
    TKelVariable* wrapperOf(const catalog::Variable* variable) const;
    /// Makes the wrappers of what a program added to the dictionary, drops those of what it
    /// removed.
    void refresh();
    /// Takes a variable out of the dictionary; its wrapper ends with it.
    void remove(catalog::Variable& variable);
    void touch() { dictionary->dirty = true; }

    /// Remembers what the dictionary's file says of the data, as that dictionary was written or
    /// read.
    void noteFile(const catalog::Dictionary& asInFile) { inFile_ = dataOf(asInFile); }
    /// Takes over what others have written to the file since then: variables that they have saved,
    /// and how data are described that they have written anew. What was removed here stays away.
    void takeFromFile(const catalog::Dictionary& asInFile);

private:
    /// Where the values of a variable are, and how they are to be read.
    struct Data {
        std::string fileName;
        catalog::ValueType type;
        int size;
        std::optional<double> notapp, missing;
        bool operator==(const Data&) const = default;
    };
    using DataByName = std::map<std::pair<std::string, std::string>, Data>;
    static Data dataOf(const catalog::Variable& variable);
    static DataByName dataOf(const catalog::Dictionary& dictionary);
    static void describe(catalog::Variable& variable, const catalog::Variable& asInFile);

    void wrap(catalog::Entity& entity, TKelEntity* parent);

    DataByName inFile_;
    std::unordered_map<const catalog::Entity*, std::unique_ptr<TKelEntity>> entities_;
    std::unordered_map<const catalog::Variable*, std::unique_ptr<TKelVariable>> variables_;
};

/// Throws std::invalid_argument with a text for the user where a name cannot stand in a dictionary.
void checkNewName(const std::string& kind, const std::string& name);

} // namespace kelx::boundary

struct TKelEntity::Data {
    kelx::boundary::DictionaryState* state = nullptr; ///< null for one that stands alone
    std::unique_ptr<kelx::catalog::Entity> own;
    kelx::catalog::Entity* entity = nullptr; ///< own, or the dictionary's
    TKelDictionary* dictionary = nullptr;
    TKelEntity* parent = nullptr;
    TKelVariable* code = nullptr;
    TKelVariable* label = nullptr;
    TKelVariable* weight = nullptr;
    std::vector<TKelVariable*> variables;
    std::vector<TKelVariable*> programVariables; ///< made by a program and not saved
    std::vector<TKelEntity*> children;
    std::unique_ptr<TKelVariable> compoundCode;
    bool open = false;

    void touch() const {
        if (state != nullptr) {
            state->touch();
        }
    }
};

struct TKelVariable::Data {
    kelx::boundary::DictionaryState* state = nullptr; ///< null for one that stands alone
    std::unique_ptr<kelx::catalog::Variable> own;
    kelx::catalog::Variable* variable = nullptr; ///< own, or the dictionary's
    TKelEntity* entity = nullptr;
    eVarType type = eVarType::NONE; ///< what type() refers to
    std::vector<TKelRange> ranges;  ///< what ranges() refers to

    void touch() const {
        if (state != nullptr) {
            state->touch();
        }
    }
};

struct TKelDictionary::Data {
    std::shared_ptr<kelx::boundary::DictionaryState> state;
};

/// The inside of boundary objects, for the library's own use.
struct KelBoundaryAccess {
    /// What an object holds; the including file must know the object's Data.
    template <typename Object>
    static auto& data(const Object& object) {
        return *object.d;
    }
    static kelx::boundary::DictionaryState& state(const TKelDictionary& dictionary) {
        return *dictionary.d->state;
    }
    static void adopt(TKelDictionary& dictionary, std::unique_ptr<kelx::catalog::Dictionary> model);
};
