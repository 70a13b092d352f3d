// SPDX-License-Identifier: Apache-2.0
// A file that appears complete or not at all.
#pragma once

#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <span>
#include <string>
#include <string_view>

namespace kelx::storage {

/// Writes to a temporary name in the same folder; commit() syncs and renames. All functions throw
/// FileError. Without commit() the temporary file is removed.
class AtomicFile {
public:
    explicit AtomicFile(const std::filesystem::path& file);
    ~AtomicFile();
    AtomicFile(const AtomicFile&) = delete;
    AtomicFile& operator=(const AtomicFile&) = delete;

    void write(std::span<const std::byte> bytes); ///< buffered, at the end
    void write(std::string_view text);
    void writeAt(std::uint64_t offset, std::span<const std::byte> bytes); ///< over earlier bytes
    void flush();
    std::uint64_t size() const; ///< bytes written so far
    const std::filesystem::path& temporaryName() const;
    void commit();

private:
    std::filesystem::path file_, temporary_;
    int descriptor_ = -1;
    std::uint64_t size_ = 0;
    std::string buffer_;
};

} // namespace kelx::storage
