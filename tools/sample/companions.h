// SPDX-License-Identifier: Apache-2.0
// What lies beside the sample's database: programs, a selection and a project.
#pragma once

#include "sample/country.h"

#include <filesystem>
#include <string>
#include <utility>
#include <vector>

namespace kelx::tools {

/// File names and contents; the project names the files in the folder, which is absolute.
std::vector<std::pair<std::string, std::string>>
sampleCompanions(const Country& country, const std::filesystem::path& folder);

/// Writes a text file atomically. Throws storage::FileError.
void writeText(const std::filesystem::path& file, const std::string& text);

} // namespace kelx::tools
