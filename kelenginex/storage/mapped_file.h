// SPDX-License-Identifier: Apache-2.0
// A file seen as memory, and the head that our binary files share.
#pragma once

#include "storage/bytes.h"
#include "storage/error.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <span>

namespace kelx::storage {

/// What tells a file from another one that has its name later.
struct FileIdentity {
    std::uint64_t device = 0, number = 0;
    std::int64_t changedSeconds = 0, changedNanoseconds = 0;
    bool operator==(const FileIdentity&) const = default;
};

/// A whole regular file mapped for reading. Throws FileError.
class MappedFile {
public:
    explicit MappedFile(const std::filesystem::path& file);
    ~MappedFile();
    MappedFile(const MappedFile&) = delete;
    MappedFile& operator=(const MappedFile&) = delete;

    std::span<const std::byte> bytes() const { return {data_, size_}; }
    /// A part of it; throws FileError naming what is asked for where it leaves the file.
    std::span<const std::byte> part(std::uint64_t offset, std::uint64_t length,
                                    const char* what) const;
    const std::filesystem::path& file() const { return file_; }
    const FileIdentity& identity() const { return identity_; }

private:
    std::filesystem::path file_;
    const std::byte* data_ = nullptr;
    std::size_t size_ = 0;
    FileIdentity identity_;
};

/// The first 24 bytes of every binary file of ours. The last 8 of its header hold its hash.
struct Preamble {
    std::array<char, 8> magic{};
    std::uint16_t major = 1;
    std::uint16_t minor = 0;
    std::uint32_t headerSize = 0;
    std::uint64_t fileSize = 0;
};
static_assert(sizeof(Preamble) == 24);

using Magic = std::array<char, 8>;
/// The PNG way: a first byte beyond ASCII and both line ends show transfers as text.
constexpr Magic magicOf(const char (&name)[4]) {
    return {'\x89', name[0], name[1], name[2], '\r', '\n', '\x1a', '\n'};
}

/// Checks magic, version, size of the file and hash of the header.
void checkPreamble(const MappedFile& map, const Magic& magic, std::size_t headerSize,
                   const char* kind);
/// The hash that belongs into the last 8 bytes of a header.
std::uint64_t headerHash(std::span<const std::byte> header);

/// The checked header of a mapped file; Header begins with a Preamble and ends with its hash.
template <class Header>
Header readHeader(const MappedFile& map, const Magic& magic, const char* kind) {
    checkPreamble(map, magic, sizeof(Header), kind);
    return load<Header>(map.bytes().data());
}

/// Completes the ends of a header: magic, sizes and hash.
template <class Header>
void sealHeader(Header& header, const Magic& magic, std::uint64_t fileSize) {
    header.preamble = {magic, 1, 0, sizeof(Header), fileSize};
    header.hash = headerHash(bytesOf(header));
}

} // namespace kelx::storage
