// SPDX-License-Identifier: Apache-2.0
// Keeps processes that change a database apart.
#pragma once

#include "storage/pulse.h"

#include <filesystem>

namespace kelx::storage {

/// The folder of a file, held by one process at a time as long as this lives; nothing is left
/// behind. Where the file system knows no locks nothing is held.
class FolderLock {
public:
    /// Waits for others, with a pulse meanwhile. Throws FileError where there is no such folder.
    FolderLock(const std::filesystem::path& file, const Pulse& pulse);
    ~FolderLock();
    FolderLock(const FolderLock&) = delete;
    FolderLock& operator=(const FolderLock&) = delete;

private:
    void wait(const Pulse& pulse) const;
    int descriptor_ = -1;
};

} // namespace kelx::storage
