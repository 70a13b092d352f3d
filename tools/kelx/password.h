// SPDX-License-Identifier: Apache-2.0
// Where passwords come from: a file or the terminal, never the command line or the environment,
// which other users of the machine may see.
#pragma once

#include "catalog/reader.h"

#include <filesystem>
#include <string>

namespace CLI {
class App;
}

namespace kelx::tool {

/// The option --password-file of a command that opens a database.
void addPasswordFile(CLI::App& command, std::string& file);
/// The first line of the file. Throws std::runtime_error.
std::string passwordFromFile(const std::filesystem::path& file);
/// Asks on the terminal, without echo. Throws std::runtime_error where there is none.
std::string passwordFromTerminal(const std::string& prompt);

/// Opens a database; asks for a password where it needs one and the file is not given.
std::unique_ptr<catalog::Dictionary> openDatabase(const std::filesystem::path& database,
                                                  const std::string& passwordFile);

} // namespace kelx::tool
