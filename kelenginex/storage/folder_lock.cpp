// SPDX-License-Identifier: Apache-2.0
#include "storage/folder_lock.h"

#include "storage/change_journal.h"
#include "storage/error.h"
#include "storage/leftovers.h"
#include "storage/posix_io.h"

#include <cerrno>
#include <chrono>
#include <fcntl.h>
#include <sys/file.h>
#include <thread>
#include <unistd.h>

namespace kelx::storage {

namespace {

std::filesystem::path folderOf(const std::filesystem::path& file) {
    return std::filesystem::absolute(targetOf(file)).parent_path();
}

int openFolder(const std::filesystem::path& folder) {
    const int descriptor = ::open(folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    if (descriptor < 0)
        failWithErrno(folder, "cannot be opened");
    return descriptor;
}

constexpr std::chrono::milliseconds pauseOfWaits{10};

[[noreturn]] void throwBusy(const std::filesystem::path& folder) {
    throw FileError(folder, "is being changed by another program; try again when that has ended");
}

} // namespace

FolderLock::FolderLock(const std::filesystem::path& file, const Pulse& pulse) {
    const std::filesystem::path folder = folderOf(file);
    descriptor_ = openFolder(folder);
    try {
        if (wait(folder, pulse))
            finishChange(folder);
        else if (hasJournal(folder))
            throwBusy(folder);
        removeLeftovers(folder);
    } catch (...) {
        ::close(descriptor_);
        throw;
    }
}

FolderLock::~FolderLock() {
    ::close(descriptor_);
}

/// False where the file system knows no locks.
bool FolderLock::wait(const std::filesystem::path& folder, const Pulse& pulse) const {
    constexpr int mostWaits = 1000;
    for (int i = 0; ::flock(descriptor_, LOCK_EX | LOCK_NB) != 0; ++i) {
        if (errno != EWOULDBLOCK && errno != EINTR)
            return false;
        if (pulse)
            pulse();
        else if (i >= mostWaits)
            throwBusy(folder);
        std::this_thread::sleep_for(pauseOfWaits);
    }
    return true;
}

void awaitWholeFolderOf(const std::filesystem::path& file) {
    constexpr int mostWaits = 500;
    const std::filesystem::path folder = folderOf(file);
    for (int i = 0; hasJournal(folder); ++i) {
        if (i >= mostWaits)
            throwBusy(folder);
        const int descriptor = openFolder(folder);
        const bool isBusy = ::flock(descriptor, LOCK_EX | LOCK_NB) != 0;
        try {
            if (!isBusy)
                finishChange(folder);
        } catch (...) {
            ::close(descriptor);
            throw;
        }
        ::close(descriptor);
        if (isBusy)
            std::this_thread::sleep_for(pauseOfWaits);
    }
}

} // namespace kelx::storage
