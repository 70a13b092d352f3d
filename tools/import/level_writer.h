// SPDX-License-Identifier: Apache-2.0
// The second reading of a level's file: its data are written, in the right order.
#pragma once

#include "catalog/model.h"
#include "import/level_scan.h"

#include <filesystem>

namespace kelx::tools {

/// Writes the data files of a scanned level into a folder: one for each variable of the entity,
/// under its file name, and the pointer file where the entity names one. Variables stand in the
/// order of the file's columns, parent keys left out. Throws LocatedError and storage::FileError.
void writeLevel(const LevelScan& scan, const Codebook& book, const catalog::Entity& entity,
                const std::filesystem::path& folder,
                const std::shared_ptr<const storage::Secret>& key, const BytesRead& onRead);

} // namespace kelx::tools
