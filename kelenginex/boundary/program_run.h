// SPDX-License-Identifier: Apache-2.0
// What running one program and running a list of them have in common.
#pragma once

#include "TKelOutput.h"
#include "TKelSession.h"
#include "TKelSpcErrorsListener.h"

#include "boundary/state.h"
#include "execution/run.h"
#include "language/bound.h"
#include "language/compile.h"
#include "language/messages.h"

#include <cstddef>
#include <memory>
#include <string>
#include <vector>

namespace kelx::boundary {

using Outputs = std::vector<std::unique_ptr<TKelOutput>>;

/// As the configuration says; relative names are taken from the dictionary's folder.
language::CompileOptions compileOptions(const catalog::Dictionary& dictionary);

/// Hands the messages to a listener, which may be null.
void report(const language::Messages& messages, TKelSpcErrorsListener* listener);
/// Throws "2 errors found"; where the configuration wants it, "1 warning found".
void throwUnlessFree(const language::Messages& messages);

/// Runs a program that is free of errors, with progress where the configuration wants it. What
/// it saves and its JSON files appear together; then the variables join the dictionary. A cancelled
/// run has no outputs.
struct ProgramRun {
    Outputs outputs;
    bool cancelled = false;
};
ProgramRun runProgram(const language::BoundProgram& program, DictionaryState& state,
                      execution::ProgressCallback progress, language::Messages& messages);

/// The settings that a program ends with.
std::shared_ptr<TKelRunDefinition> definitionOf(const language::BoundProgram& program);

} // namespace kelx::boundary
