// SPDX-License-Identifier: Apache-2.0
// A text that only calls programs: each of them can be run by itself.
#pragma once

#include "language/compile.h"

#include <filesystem>
#include <optional>
#include <string>
#include <utility>
#include <vector>

namespace kelx::language {

struct ExecuteCall {
    std::filesystem::path file; ///< absolute; the program's own names are relative to its folder
    std::string fileName;       ///< as written
    std::vector<std::pair<std::string, std::string>> values;
    Position position;                       ///< of the EXECUTE
    std::optional<std::string> tableStyle{}; ///< told before it; absolute
};

/// The EXECUTE commands of a text, which may hold nothing else but a style of tables, with or
/// without DEFINE before it; faults go to messages, a missing program too. Relative names are taken
/// from options.baseFolder.
std::vector<ExecuteCall> readExecuteCalls(const std::string& text, const CompileOptions& options,
                                          Messages& messages);

/// The program that is called, its values put in. Throws std::runtime_error with a line to show.
std::string programOf(const ExecuteCall& call);

} // namespace kelx::language
