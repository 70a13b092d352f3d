// SPDX-License-Identifier: Apache-2.0
// The subcommands. Each adds itself to the command line and to what is run afterwards.
#pragma once

#include "storage/column.h"

#include <cstdint>
#include <filesystem>
#include <functional>
#include <string>
#include <vector>

namespace CLI {
class App;
}

namespace kelx::tool {

/// Throws CLI::ValidationError unless the file's name ends in one of the extensions, in any case.
void requireExtension(const std::string& option, const std::filesystem::path& file,
                      const std::vector<std::string>& extensions);
bool hasExtension(const std::filesystem::path& file, const std::string& extension);
/// integer, real, string, boolean, none
std::string valueTypeName(storage::ValueType type);

/// "1 record", "2 records".
std::string counted(std::uint64_t count, const std::string& one);

/// A subcommand's work; returns the exit status.
using Action = std::function<int()>;

constexpr int success = 0;
constexpr int failure = 1; ///< a fault of a program or of data
constexpr int misuse = 2;  ///< a fault of the command line

void addSample(CLI::App& app, Action& action);
void addInfo(CLI::App& app, Action& action);
void addRun(CLI::App& app, Action& action);
void addCheck(CLI::App& app, Action& action);
void addImport(CLI::App& app, Action& action);
void addConvert(CLI::App& app, Action& action);
void addMessages(CLI::App& app, Action& action);

} // namespace kelx::tool
