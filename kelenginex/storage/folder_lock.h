// SPDX-License-Identifier: Apache-2.0
// Keeps processes that change a database apart.
#pragma once

#include "storage/pulse.h"

#include <filesystem>

namespace kelx::storage {

/// The folder of a file, held by one process at a time as long as this lives; nothing is left
/// behind. Where the file system knows no locks nothing is held, and no change of another process
/// finished. Who gets the folder finishes a change that a killed process has begun there, and
/// removes its temporary files.
class FolderLock {
public:
    /// Waits for others, with a pulse meanwhile, or ten seconds at most without one. Throws
    /// FileError where there is no such folder, where others do not come to their end, and where a
    /// change cannot be finished.
    FolderLock(const std::filesystem::path& file, const Pulse& pulse);
    ~FolderLock();
    FolderLock(const FolderLock&) = delete;
    FolderLock& operator=(const FolderLock&) = delete;

private:
    bool wait(const std::filesystem::path& folder, const Pulse& pulse) const;
    int descriptor_ = -1;
};

/// Before files of a folder are read: lets a change that is going on there come to its end, and
/// finishes one whose process was killed. Throws FileError where that cannot be done, or the
/// change does not end within five seconds.
void awaitWholeFolderOf(const std::filesystem::path& file);

} // namespace kelx::storage
