// SPDX-License-Identifier: Apache-2.0
// Tells tables that earlier runs have written as JSON from all other files.
#pragma once

#include <filesystem>
#include <string_view>

namespace kelx::language {

/// Whether a file begins as tables do that the engine writes as JSON.
bool isTableJson(const std::filesystem::path& file);
/// The same of the beginning of a file.
bool beginsAsTableJson(std::string_view text);

} // namespace kelx::language
