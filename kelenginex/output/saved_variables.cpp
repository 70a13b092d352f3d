// SPDX-License-Identifier: Apache-2.0
#include "output/saved_variables.h"

#include "catalog/data_files.h"
#include "catalog/names.h"
#include "storage/error.h"
#include "storage/posix_io.h"

#include <algorithm>
#include <memory>
#include <string>

namespace kelx::output {
namespace {

/// The variable itself stays where others point to it.
catalog::Variable& placeFor(const std::string& name, catalog::Entity& entity) {
    const auto known =
        std::find_if(entity.variables.begin(), entity.variables.end(),
                     [&](const auto& variable) { return catalog::sameName(variable->name, name); });
    return known != entity.variables.end()
               ? **known
               : *entity.addVariable(std::make_unique<catalog::Variable>());
}

/// Whether the records of both are those of the same files. A copy of the file counts as another.
bool isSameHierarchy(const catalog::Entity* a, const catalog::Entity* b) {
    for (; a != nullptr && b != nullptr && a->parent != nullptr; a = a->parent, b = b->parent) {
        if (b->parent == nullptr || a->pointers()->identity() != b->pointers()->identity())
            return false;
    }
    return true;
}

/// Of the dictionary that is joined, which need not be the program's own.
catalog::Entity& entityFor(const catalog::Variable& made, const catalog::Dictionary& dictionary) {
    catalog::Entity* entity = dictionary.findEntity(made.entity->name);
    if (entity == nullptr)
        throw storage::FileError(dictionary.file,
                                 "has no entity " + made.entity->name + " any more");
    if (entity->records() != made.entity->records())
        throw storage::FileError(dictionary.file,
                                 "by now has " + std::to_string(entity->records()) +
                                     " records of " + entity->name + ", and not the " +
                                     std::to_string(made.entity->records()) +
                                     " that the program was run on; run it again");
    if (!isSameHierarchy(entity, made.entity))
        throw storage::FileError(dictionary.file,
                                 "was replaced while the program ran; run it again");
    return *entity;
}

void requireOwn(const language::Definition& definition, const catalog::Dictionary& dictionary,
                const catalog::FileOwners& owners) {
    const std::string name = definition.variable->fullName();
    for (const std::string& owner : owners.of(storage::realFile(definition.save->file))) {
        if (!catalog::sameName(owner, name))
            throw storage::FileError(dictionary.file, "by now has the data of " + owner + " in " +
                                                          definition.save->file.string());
    }
}

template <class Wanted>
std::size_t join(const language::BoundProgram& program, catalog::Dictionary& dictionary,
                 const Wanted& isWanted) {
    if (!savesVariables(program))
        return 0;
    const catalog::FileOwners owners(dictionary);
    std::size_t joined = 0;
    for (const language::Definition& definition : program.definitions) {
        if (!definition.save || !isWanted(definition))
            continue;
        const catalog::Variable& made = *definition.variable;
        requireOwn(definition, dictionary, owners);
        catalog::Variable& variable = placeFor(made.name, entityFor(made, dictionary));
        variable.copyDescription(made);
        variable.fileName = definition.save->fileName;
        variable.define = false;
        variable.local = true;
        variable.closeColumn();
        ++joined;
    }
    dictionary.dirty = dictionary.dirty || joined > 0;
    return joined;
}

} // namespace

bool savesVariables(const language::BoundProgram& program) {
    return std::any_of(program.definitions.begin(), program.definitions.end(),
                       [](const auto& definition) { return definition.save.has_value(); });
}

std::size_t joinSavedVariables(const language::BoundProgram& program,
                               catalog::Dictionary& dictionary) {
    return join(program, dictionary, [](const auto&) { return true; });
}

std::size_t joinReplacedVariables(const language::BoundProgram& program,
                                  catalog::Dictionary& dictionary) {
    const catalog::FileOwners owners(dictionary);
    return join(program, dictionary, [&](const language::Definition& definition) {
        return !owners.of(storage::realFile(definition.save->file)).empty();
    });
}

} // namespace kelx::output
