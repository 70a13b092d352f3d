// SPDX-License-Identifier: Apache-2.0
// The system calls behind our files, complete or with a FileError.
#pragma once

#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <span>
#include <string>

namespace kelx::storage {

/// Throws a FileError with the system's own words for errno.
[[noreturn]] void failWithErrno(const std::filesystem::path& file, const std::string& what);

/// Where a file really is to be written: a link is followed, also to what is not there yet, so that
/// what it points to is replaced and not the link itself.
std::filesystem::path targetOf(const std::filesystem::path& file);

/// The one path that a file has under all its names: absolute, links followed as far as it is
/// there.
std::filesystem::path realFile(const std::filesystem::path& file);

/// Throws FileError where something stands there that is no regular file: a device, a pipe or a
/// folder is never replaced.
void requireReplaceable(const std::filesystem::path& file);

/// A new, empty file with a name of its own in the folder of file. The name has the number of the
/// process, which holds the file while the descriptor is open, so that what it leaves behind when
/// it is killed can be told from what is in use.
struct TemporaryFile {
    std::filesystem::path name;
    int descriptor = -1;
};
TemporaryFile createTemporaryBeside(const std::filesystem::path& file);

void writeFully(int descriptor, std::uint64_t offset, std::span<const std::byte> bytes,
                const std::filesystem::path& file);
void readFully(int descriptor, std::uint64_t offset, std::span<std::byte> bytes,
               const std::filesystem::path& file);
void syncFolderOf(const std::filesystem::path& file);

} // namespace kelx::storage
