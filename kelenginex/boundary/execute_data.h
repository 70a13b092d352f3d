// SPDX-License-Identifier: Apache-2.0
// What a list of programs is run with.
#pragma once

#include "TKelDictionary.h"
#include "TKelExecute.h"
#include "TKelOutput.h"

#include "language/bound.h"
#include "language/execute_calls.h"
#include "language/messages.h"

#include <cstddef>
#include <memory>
#include <string>
#include <vector>

struct TKelExecute::Data {
    std::shared_ptr<TKelDictionary> dictionary; ///< kept: outputs point into it
    TKelSpcErrorsListener* listener = nullptr;
    TKelExecuteCallback callback;
    std::vector<std::unique_ptr<TKelOutput>> outputs;

    void execute(const std::string& text);

private:
    using Calls = std::vector<kelx::language::ExecuteCall>;

    void checkAll(const Calls& calls, kelx::language::Messages& messages);
    kelx::language::BoundProgram compile(const kelx::language::ExecuteCall& call,
                                         kelx::language::Messages& messages);
    /// False where the run is to stop.
    bool run(const Calls& calls, std::size_t current);
    void requireFree(const kelx::language::Messages& messages);
};
