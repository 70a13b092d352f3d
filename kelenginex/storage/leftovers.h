// SPDX-License-Identifier: Apache-2.0
// Temporary files of processes that were killed.
#pragma once

#include <filesystem>
#include <string_view>
#include <vector>

namespace kelx::storage {

/// Whether a file name is one that only temporary files of ours have.
bool isTemporaryName(std::string_view name);

/// Temporary files in a folder whose process is gone and that no other one holds.
std::vector<std::filesystem::path> leftoversIn(const std::filesystem::path& folder);
void removeLeftovers(const std::filesystem::path& folder);

} // namespace kelx::storage
