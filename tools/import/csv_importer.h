// SPDX-License-Identifier: Apache-2.0
// Makes a database from one CSV file for each level and a codebook.
#pragma once

#include "import/import_report.h"
#include "import/located_error.h"

#include <filesystem>
#include <string>
#include <utility>
#include <vector>

namespace kelx::tools {

/// What to import and how. Names of levels count in any case. The root may be one of the levels,
/// which then has a single record.
struct ImportRequest : ImportTarget {
    std::filesystem::path codebook;
    /// Levels and their files, from the top down; each lies under the one before.
    std::vector<std::pair<std::string, std::filesystem::path>> levels;
    std::vector<std::pair<std::string, std::string>> under; ///< level and its parent, otherwise
};

/// Checks everything before it writes anything: after a fault the folder is as before. Throws
/// LocatedError, storage::FileError, and std::runtime_error for a contradictory request.
ImportReport importCsv(const ImportRequest& request);

} // namespace kelx::tools
