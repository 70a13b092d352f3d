// SPDX-License-Identifier: Apache-2.0
// File names in programs.
#pragma once

#include <filesystem>
#include <string>

namespace kelx::language {

/// The file that a program names, against the folder that its names are relative to. Backslashes
/// count as separators: programs are also written elsewhere.
std::filesystem::path absoluteFile(std::string name, const std::filesystem::path& folder);

} // namespace kelx::language
