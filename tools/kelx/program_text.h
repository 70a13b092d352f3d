// SPDX-License-Identifier: Apache-2.0
// Programs as files, and what the compiler says of them.
#pragma once

#include "language/messages.h"

#include <filesystem>
#include <string>

namespace kelx::tool {

/// The text without a byte order mark. Throws storage::FileError.
std::string readProgram(const std::filesystem::path& file);
/// On standard error, as "name:line:column: error: text".
void printMessages(const language::Messages& messages, const std::string& name);

} // namespace kelx::tool
