// SPDX-License-Identifier: Apache-2.0
// Writes a database as CSV files and the codebook that imports them again.
#pragma once

#include "catalog/model.h"
#include "import/progress.h"

#include <cstdint>
#include <filesystem>
#include <string>
#include <utility>
#include <vector>

namespace kelx::tools {

/// Files and their records, as written.
using ExportReport = std::vector<std::pair<std::string, std::uint64_t>>;

/// One file LEVEL.csv for each entity (the root only where it has variables) and codebook.csv.
/// Every row tells the keys of all levels above. An entity without a code variable gets a key of
/// running numbers where others lie under it. Throws storage::FileError.
/// Progress is told in records of all levels.
ExportReport exportCsv(const catalog::Dictionary& dictionary, const std::filesystem::path& folder,
                       bool overwrite, const Progress& progress = {});

} // namespace kelx::tools
