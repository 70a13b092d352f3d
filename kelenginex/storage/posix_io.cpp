// SPDX-License-Identifier: Apache-2.0
#include "storage/posix_io.h"

#include "storage/error.h"

#include <cerrno>
#include <fcntl.h>
#include <random>
#include <sys/file.h>
#include <system_error>
#include <unistd.h>

namespace kelx::storage {

namespace {

/// As many as the system itself follows.
constexpr int mostLinks = 40;

std::filesystem::path folderOf(const std::filesystem::path& file) {
    const auto folder = file.parent_path();
    return folder.empty() ? std::filesystem::path(".") : folder;
}

std::string randomName() {
    static constexpr char letters[] = "abcdefghijklmnopqrstuvwxyz0123456789";
    thread_local std::random_device device;
    std::uniform_int_distribution<std::size_t> any(0, sizeof(letters) - 2);
    std::string name = ".kelx-" + std::to_string(::getpid()) + "-";
    for (int i = 0; i < 12; ++i)
        name += letters[any(device)];
    return name + ".tmp";
}

} // namespace

void failWithErrno(const std::filesystem::path& file, const std::string& what) {
    throw FileError(file, what + ": " + std::generic_category().message(errno));
}

std::filesystem::path targetOf(const std::filesystem::path& file) {
    std::filesystem::path target = file;
    std::error_code fault;
    for (int i = 0; i < mostLinks && std::filesystem::is_symlink(target, fault); ++i) {
        const auto next = std::filesystem::read_symlink(target, fault);
        if (fault)
            return file;
        target = target.parent_path() / next;
    }
    return target;
}

std::filesystem::path realFile(const std::filesystem::path& file) {
    std::error_code fault;
    const auto target = std::filesystem::absolute(targetOf(file), fault);
    const auto folder = std::filesystem::weakly_canonical(target.parent_path(), fault);
    if (fault || target.filename().empty())
        return std::filesystem::absolute(file, fault).lexically_normal();
    return (folder / target.filename()).lexically_normal();
}

void requireReplaceable(const std::filesystem::path& file) {
    std::error_code ignored;
    const auto status = std::filesystem::status(file, ignored);
    if (std::filesystem::is_directory(status))
        throw FileError(file, "cannot be written: it is a folder");
    if (std::filesystem::exists(status) && !std::filesystem::is_regular_file(status))
        throw FileError(file, "cannot be written: it is no regular file");
}

TemporaryFile createTemporaryBeside(const std::filesystem::path& file) {
    for (int attempt = 0; attempt < 100; ++attempt) {
        TemporaryFile created{folderOf(file) / randomName(), -1};
        created.descriptor =
            ::open(created.name.c_str(), O_RDWR | O_CREAT | O_EXCL | O_CLOEXEC, 0666);
        if (created.descriptor >= 0) {
            static_cast<void>(::flock(created.descriptor, LOCK_EX | LOCK_NB)); // see leftovers.h
            return created;
        }
        if (errno != EEXIST)
            break;
    }
    failWithErrno(file, "cannot be created");
}

void writeFully(int descriptor, std::uint64_t offset, std::span<const std::byte> bytes,
                const std::filesystem::path& file) {
    while (!bytes.empty()) {
        const auto done =
            ::pwrite(descriptor, bytes.data(), bytes.size(), static_cast<off_t>(offset));
        if (done < 0 && errno == EINTR)
            continue;
        if (done <= 0)
            failWithErrno(file, "cannot be written");
        bytes = bytes.subspan(static_cast<std::size_t>(done));
        offset += static_cast<std::uint64_t>(done);
    }
}

void readFully(int descriptor, std::uint64_t offset, std::span<std::byte> bytes,
               const std::filesystem::path& file) {
    while (!bytes.empty()) {
        const auto done =
            ::pread(descriptor, bytes.data(), bytes.size(), static_cast<off_t>(offset));
        if (done < 0 && errno == EINTR)
            continue;
        if (done < 0)
            failWithErrno(file, "cannot be read");
        if (done == 0)
            throw FileError(file, "ends too early");
        bytes = bytes.subspan(static_cast<std::size_t>(done));
        offset += static_cast<std::uint64_t>(done);
    }
}

void syncFolderOf(const std::filesystem::path& file) {
    const int folder = ::open(folderOf(file).c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    if (folder < 0)
        failWithErrno(file, "its folder cannot be synced");
    const bool synced = ::fsync(folder) == 0 || errno == EINVAL; // some file systems know no sync
    ::close(folder);
    if (!synced)
        failWithErrno(file, "its folder cannot be synced");
}

} // namespace kelx::storage
