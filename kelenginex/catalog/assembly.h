// SPDX-License-Identifier: Apache-2.0
// What both forms of a dictionary need after their text has been read: names checked, references
// between entities and variables resolved.
#pragma once

#include "catalog/model.h"

#include <cstddef>
#include <filesystem>
#include <string>
#include <vector>

namespace kelx::catalog {

/// Bounds that no honest dictionary reaches and a hostile one must not pass.
struct Limits {
    static constexpr std::size_t fileBytes = std::size_t{256} << 20;
    static constexpr int depth = 64; ///< levels of entities
    static constexpr std::size_t nameBytes = 255;
    static constexpr std::size_t entities = 10'000;
    static constexpr std::size_t variables = 1'000'000;
};

/// Variables that an entity refers to, as written: VARIABLE or ENTITY.VARIABLE, empty for none.
struct References {
    Entity* entity = nullptr;
    std::string code, label, weight;
};

/// Puts entities and variables together while a dictionary is read. Every fault is a
/// storage::FileError of the dictionary file.
class Assembly {
public:
    explicit Assembly(const std::filesystem::path& file);

    Dictionary& dictionary() { return *dictionary_; }
    /// A new entity below parent (null: the root), at that depth. The name is checked.
    Entity* addEntity(Entity* parent, const std::string& name, int depth);
    Variable* addVariable(Entity& entity, const std::string& name);
    void refer(References references) { references_.push_back(std::move(references)); }
    /// Resolves the references and checks what remains to be checked.
    std::unique_ptr<Dictionary> finish();

    [[noreturn]] void fail(const std::string& problem) const;

private:
    void checkName(const std::string& kind, const std::string& name) const;
    void checkUnique() const;
    void checkTexts() const;
    Variable* find(const Entity& entity, const std::string& reference, const char* role) const;

    std::filesystem::path file_;
    std::unique_ptr<Dictionary> dictionary_;
    std::vector<References> references_;
    std::size_t entities_ = 0;
    std::size_t variables_ = 0;
};

} // namespace kelx::catalog
