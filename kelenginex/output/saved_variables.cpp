// SPDX-License-Identifier: Apache-2.0
#include "output/saved_variables.h"

#include "catalog/names.h"

#include <algorithm>
#include <memory>

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

} // namespace

std::size_t joinSavedVariables(const language::BoundProgram& program,
                               catalog::Dictionary& dictionary) {
    std::size_t joined = 0;
    for (const language::Definition& definition : program.definitions) {
        if (!definition.save)
            continue;
        const catalog::Variable& made = *definition.variable;
        catalog::Variable& variable = placeFor(made.name, *made.entity);
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

} // namespace kelx::output
