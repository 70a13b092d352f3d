// SPDX-License-Identifier: Apache-2.0
#include "storage/folder_lock.h"

#include "storage/change_journal.h"
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

} // namespace

FolderLock::FolderLock(const std::filesystem::path& file, const Pulse& pulse) {
    const std::filesystem::path folder = folderOf(file);
    descriptor_ = openFolder(folder);
    try {
        wait(pulse);
        finishChange(folder);
        removeLeftovers(folder);
    } catch (...) {
        ::close(descriptor_);
        throw;
    }
}

FolderLock::~FolderLock() {
    ::close(descriptor_);
}

void FolderLock::wait(const Pulse& pulse) const {
    while (::flock(descriptor_, LOCK_EX | LOCK_NB) != 0 &&
           (errno == EWOULDBLOCK || errno == EINTR)) {
        if (pulse)
            pulse();
        std::this_thread::sleep_for(std::chrono::milliseconds(10));
    }
}

void awaitWholeFolderOf(const std::filesystem::path& file) {
    constexpr int mostWaits = 500;
    const std::filesystem::path folder = folderOf(file);
    for (int i = 0; hasJournal(folder) && i < mostWaits; ++i) {
        const int descriptor = openFolder(folder);
        const bool isBusy = ::flock(descriptor, LOCK_EX | LOCK_NB) != 0 && errno == EWOULDBLOCK;
        try {
            if (!isBusy)
                finishChange(folder);
        } catch (...) {
            ::close(descriptor);
            throw;
        }
        ::close(descriptor);
        if (isBusy)
            std::this_thread::sleep_for(std::chrono::milliseconds(10));
    }
}

} // namespace kelx::storage
