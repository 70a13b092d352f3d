// SPDX-License-Identifier: Apache-2.0
// What a session holds between its calls.
#pragma once

#include "TKelDictionary.h"
#include "TKelOutput.h"
#include "TKelSession.h"
#include "TKelSpcErrorsListener.h"

#include "language/bound.h"
#include "language/messages.h"

#include <memory>
#include <string>
#include <vector>

struct TKelSession::Data {
    std::shared_ptr<TKelDictionary> dictionary; ///< kept: outputs point into it
    TKelSpcErrorsListener* listener = nullptr;
    TKelTimerCallback timer;
    kelx::language::BoundProgram program;
    std::vector<std::unique_ptr<TKelOutput>> outputs;
    std::shared_ptr<TKelRunDefinition> definition;

    /// Drops what an earlier run left.
    void forget();
    /// Throws where the program must not run, its messages reported.
    void compile(const std::string& text, kelx::language::Messages& messages);
    void run(kelx::language::Messages& messages);
    /// Compiles and runs a program and keeps its outputs, none where it was cancelled.
    void execute(const std::string& text);
};
