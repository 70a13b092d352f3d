// SPDX-License-Identifier: Apache-2.0
// Integers kept on disk, narrow, until their range is known.
#pragma once

#include "storage/column.h"

#include <cstdint>
#include <filesystem>
#include <vector>

namespace kelx::storage {

/// Values in order, blanks among them. Goes to an unnamed temporary file beside the file that it
/// is for, chunk by chunk; few values never leave memory. Throws FileError.
class Spool {
public:
    static constexpr std::size_t chunkSize = 8192;

    explicit Spool(const std::filesystem::path& file);
    ~Spool();
    Spool(const Spool&) = delete;
    Spool& operator=(const Spool&) = delete;

    void add(std::int64_t value) {
        values_[fill_] = value;
        blank_[fill_] = 0;
        advance();
    }
    void addBlank() {
        values_[fill_] = 0;
        blank_[fill_] = 1;
        advance();
    }
    std::uint64_t records() const { return chunks_.size() * std::uint64_t{chunkSize} + fill_; }

    /// No more values come: the bounds over all of them are known from now on.
    void finish() { measure(fill_); }
    bool hasValues() const { return hasValues_; }
    std::int64_t lowest() const { return lowest_; }
    std::int64_t highest() const { return highest_; }

    /// Calls take(values, blank, count) for each chunk in order, after finish().
    template <class Take>
    void replay(Take take) {
        const std::size_t rest = fill_;
        const std::vector<std::int64_t> values = values_;
        const std::vector<std::uint8_t> blank = blank_;
        std::uint64_t offset = 0;
        for (const Chunk& chunk : chunks_) {
            offset += readChunk(chunk, offset);
            take(values_.data(), blank_.data(), chunkSize);
        }
        take(values.data(), blank.data(), rest);
    }

private:
    struct Chunk {
        std::int64_t base = 0;
        Physical physical = Physical::Code8;
    };
    struct Bounds {
        std::int64_t lowest = 0;
        std::int64_t highest = 0;
        bool any = false;
    };
    void advance() {
        if (++fill_ == chunkSize)
            writeChunk();
    }
    Bounds measure(std::size_t count);
    void writeChunk();
    std::size_t readChunk(const Chunk& chunk, std::uint64_t offset);

    std::filesystem::path file_;
    int descriptor_ = -1;
    std::uint64_t size_ = 0;
    std::vector<Chunk> chunks_;
    std::vector<std::int64_t> values_;
    std::vector<std::uint8_t> blank_;
    std::vector<std::byte> bytes_;
    std::size_t fill_ = 0;
    bool hasValues_ = false;
    std::int64_t lowest_ = 0;
    std::int64_t highest_ = 0;
};

} // namespace kelx::storage
