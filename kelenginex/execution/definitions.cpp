// SPDX-License-Identifier: Apache-2.0
#include "execution/definitions.h"

#include <algorithm>
#include <stdexcept>

namespace kelx::execution {

void makeVariables(const language::BoundProgram& program, const RunOptions& /*options*/,
                   double /*share*/, Progress& /*progress*/) {
    for (const language::Definition& definition : program.definitions) {
        if (definition.used)
            throw std::runtime_error("DEFINE is not supported yet");
    }
}

void saveVariables(const language::BoundProgram& /*program*/, Progress& /*progress*/) {}

} // namespace kelx::execution
