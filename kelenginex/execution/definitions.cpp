// SPDX-License-Identifier: Apache-2.0
#include "execution/definitions.h"

#include "execution/variable_maker.h"

#include <algorithm>

namespace kelx::execution {

void makeVariables(const language::BoundProgram& program, const RunOptions& options, double share,
                   plan::Selections& selections, Progress& progress) {
    const auto isUsed = [](const language::Definition& definition) { return definition.used; };
    const auto all = std::count_if(program.definitions.begin(), program.definitions.end(), isUsed);
    double done = 0;
    for (const language::Definition& definition : program.definitions) {
        if (!definition.used)
            continue;
        ++done;
        makeVariable(definition, options, share * done / static_cast<double>(all), selections,
                     progress);
    }
}

} // namespace kelx::execution
