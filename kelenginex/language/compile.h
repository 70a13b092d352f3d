// SPDX-License-Identifier: Apache-2.0
// From a program text to a checked program.
#pragma once

#include "language/bound.h"
#include "language/messages.h"

#include <filesystem>
#include <optional>
#include <string>

namespace kelx::language {

/// What a compilation takes from its setting.
struct CompileOptions {
    bool autoWeight = true;            ///< weight variables apply unless a program says otherwise
    std::filesystem::path baseFolder;  ///< relative file names of the program resolve against it
    std::filesystem::path programFile; ///< where the program stands; empty for a mere text
    std::optional<std::string> tableStyle; ///< where the program names none; absolute
    bool showIntermediate = false;         ///< tables that others are made of are outputs too
    /// Files of OUTFILE go to a folder of results where their own is not there.
    bool hasResultsFolder = false;
};

/// Lexes, parses and checks a program (UTF-8). Faults go to messages; where there are errors the
/// result must not be run.
BoundProgram compile(const std::string& program, catalog::Dictionary& dictionary,
                     const CompileOptions& options, Messages& messages);

} // namespace kelx::language
