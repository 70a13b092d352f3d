// SPDX-License-Identifier: Apache-2.0
#include "storage/folder_lock.h"

#include "storage/posix_io.h"

#include <cerrno>
#include <chrono>
#include <fcntl.h>
#include <sys/file.h>
#include <thread>
#include <unistd.h>

namespace kelx::storage {

FolderLock::FolderLock(const std::filesystem::path& file, const Pulse& pulse) {
    const std::filesystem::path folder = std::filesystem::absolute(targetOf(file)).parent_path();
    descriptor_ = ::open(folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    if (descriptor_ < 0)
        failWithErrno(folder, "cannot be opened");
    try {
        wait(pulse);
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

} // namespace kelx::storage
