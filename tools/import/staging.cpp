// SPDX-License-Identifier: Apache-2.0
#include "import/staging.h"

#include "import/values.h"
#include "storage/error.h"
#include "storage/posix_io.h"

#include <cerrno>
#include <csignal>
#include <fcntl.h>
#include <limits>
#include <optional>
#include <random>
#include <sys/file.h>
#include <unistd.h>

namespace kelx::tools {

namespace fs = std::filesystem;

namespace {

constexpr std::string_view prefix = ".kelx-";

/// The n of ".kelx-n-random".
std::optional<std::int64_t> processOf(const std::string& name) {
    const std::size_t end = name.rfind('-');
    if (!name.starts_with(prefix) || end <= prefix.size() ||
        !parseInteger(std::string_view(name).substr(end + 1)))
        return std::nullopt;
    return parseInteger(std::string_view(name).substr(prefix.size(), end - prefix.size()));
}

/// Opens a folder and takes its lock; -1 where another process has it or it cannot be had.
int lockFolder(const fs::path& folder) {
    const int descriptor = ::open(folder.c_str(), O_RDONLY | O_DIRECTORY | O_NOFOLLOW | O_CLOEXEC);
    if (descriptor >= 0 && ::flock(descriptor, LOCK_EX | LOCK_NB) != 0) {
        ::close(descriptor);
        return -1;
    }
    return descriptor;
}

bool isGone(std::int64_t process) {
    return process > 0 && process <= std::numeric_limits<pid_t>::max() &&
           ::kill(static_cast<pid_t>(process), 0) != 0 && errno == ESRCH;
}

/// The lock tells a live process of another machine or container, whose number means nothing here;
/// the number protects a folder that is made but not yet locked.
void removeStale(const fs::path& target) {
    std::error_code fault;
    std::vector<fs::path> stale;
    for (fs::directory_iterator at(target, fault), end; !fault && at != end; at.increment(fault)) {
        const auto process = processOf(at->path().filename().string());
        if (process && (*process == ::getpid() || isGone(*process)))
            stale.push_back(at->path());
    }
    for (const fs::path& folder : stale) {
        const int lock = lockFolder(folder);
        if (lock < 0)
            continue;
        fs::remove_all(folder, fault);
        ::close(lock);
    }
}

} // namespace

Staging::Staging(const fs::path& target, std::vector<std::string> fileNames, bool overwrite)
    : target_(fs::absolute(target).parent_path()), fileNames_(std::move(fileNames)) {
    std::error_code fault;
    madeTarget_ = fs::create_directories(target_, fault);
    if (fault)
        throw storage::FileError(target_, "the folder cannot be made: " + fault.message());
    if (!overwrite)
        requireNone(target);
    for (const std::string& name : fileNames_)
        storage::requireReplaceable(target_ / name);
    removeStale(target_);
    makeFolder();
}

void Staging::requireNone(const fs::path& target) const {
    std::error_code fault;
    if (fs::exists(target, fault))
        throw storage::FileError(target, "exists already; --overwrite replaces it");
    for (const std::string& name : fileNames_) {
        if (fs::exists(target_ / name, fault))
            throw storage::FileError(target, "its file " + name +
                                                 " exists already; --overwrite "
                                                 "replaces the files of a database");
    }
}

void Staging::makeFolder() {
    std::random_device random;
    folder_ = target_ /
              (std::string(prefix) + std::to_string(::getpid()) + "-" + std::to_string(random()));
    std::error_code fault;
    if (!fs::create_directory(folder_, fault))
        throw storage::FileError(folder_, "the folder cannot be made: " + fault.message());
    lock_ = lockFolder(folder_);
}

Staging::~Staging() {
    std::error_code ignored;
    fs::remove_all(folder_, ignored);
    if (lock_ >= 0)
        ::close(lock_);
    if (madeTarget_)
        fs::remove(target_, ignored); // only where nothing is in it
}

void Staging::publish() {
    for (const std::string& name : fileNames_) {
        std::error_code fault;
        fs::rename(folder_ / name, target_ / name, fault);
        if (fault)
            throw storage::FileError(target_ / name, "cannot be written: " + fault.message());
    }
    storage::syncFolderOf(target_ / fileNames_.back());
}

} // namespace kelx::tools
