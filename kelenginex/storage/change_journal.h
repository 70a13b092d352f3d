// SPDX-License-Identifier: Apache-2.0
// What is left to do where several files of a database change their names together.
#pragma once

#include <filesystem>
#include <vector>

namespace kelx::storage {

/// A file that is complete under its staged name, beside the one that it is to have.
struct StagedMove {
    std::filesystem::path staged, file;
};

/// Writes down the moves, synced, in a folder that its caller has locked. Throws FileError.
void writeJournal(const std::filesystem::path& folder, const std::vector<StagedMove>& moves);
void removeJournal(const std::filesystem::path& folder);
bool hasJournal(const std::filesystem::path& folder);

/// Does what is left of a change whose process has ended, where there is one. The caller has locked
/// the folder. Throws FileError where that cannot be done. Where a staged file is gone and is not
/// what stands under its name, nothing is moved; else the journal stays, to be tried again.
void finishChange(const std::filesystem::path& folder);

} // namespace kelx::storage
