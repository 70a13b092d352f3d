// SPDX-License-Identifier: Apache-2.0
#include "execution/definitions.h"

#include <stdexcept>

namespace kelx::execution {

void saveVariables(const language::BoundProgram& program, Progress& /*progress*/) {
    for (const language::Definition& definition : program.definitions) {
        if (definition.save)
            throw std::runtime_error("SAVE is not supported yet");
    }
}

} // namespace kelx::execution
