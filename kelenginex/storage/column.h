// SPDX-License-Identifier: Apache-2.0
// A variable's values on disk, read in place. Numbers, truth values and texts are stored as
// unsigned codes; reals as doubles.
#pragma once

#include "storage/secret.h"

#include <cstdint>
#include <filesystem>
#include <limits>
#include <memory>
#include <optional>
#include <string_view>
#include <vector>

namespace kelx::storage {

/// Type of values; the numbers stand in files.
enum class ValueType : std::uint8_t { None = 0, Integer = 1, Real = 2, String = 3, Boolean = 4 };

/// How one value lies in memory. Codes are unsigned, little-endian; their largest value is blank.
enum class Physical : std::uint8_t { Code8 = 1, Code16 = 2, Code32 = 3, Code64 = 4, Real64 = 5 };

constexpr std::size_t physicalSize(Physical p) {
    constexpr std::size_t sizes[] = {0, 1, 2, 4, 8, 8};
    return sizes[static_cast<std::size_t>(p)];
}

/// The code that stands for a blank. Reals: every NaN is a blank.
constexpr std::uint64_t blankCode(Physical p) {
    switch (p) {
    case Physical::Code8:
        return 0xff;
    case Physical::Code16:
        return 0xffff;
    case Physical::Code32:
        return 0xffffffffu;
    default:
        return std::numeric_limits<std::uint64_t>::max();
    }
}

/// The bits of the NaN that stands for "not applicable" among reals, where a column has such.
constexpr std::uint64_t naRealBits = 0x7ff80000'00004e41;

constexpr std::uint32_t recordsPerBlock = 65536;

/// What a column says of itself.
struct ColumnInfo {
    ValueType type = ValueType::Integer;
    Physical physical = Physical::Code8;
    std::uint64_t records = 0;
    std::uint64_t blanks = 0;
    /// Integer value of code 0: value = base + code. 0 for booleans; texts index the heap.
    std::int64_t base = 0;
    std::uint64_t minCode = 0; ///< over the values that are not blank; 0 where there are none
    std::uint64_t maxCode = 0;
    double minReal = 0; ///< the same for reals
    double maxReal = 0;
    std::uint8_t decimals = 0;
    bool isProtected = false;
    /// A second kind of blank, "not applicable"; only columns in memory may have one. Of coded
    /// columns it is above the code of every value, and bounds take it in like a code; of reals
    /// it is naRealBits, and blanks take it in.
    std::optional<std::uint64_t> naCode;
};

/// The same for one block, to rule it out unread.
struct Zone {
    std::uint64_t minCode = 0;
    std::uint64_t maxCode = 0;
    double minReal = 0;
    double maxReal = 0;
    std::uint32_t blanks = 0;
    std::uint32_t records = 0;
};

/// Where read() may put values that cannot be scanned in place. One for each thread and column.
struct ColumnScratch {
    std::vector<std::byte> bytes;
    std::uint64_t cachedBlock = std::numeric_limits<std::uint64_t>::max();
    std::vector<std::byte> block;
};

/// Read-only and safe to use from several threads.
class Column {
public:
    virtual ~Column() = default;

    /// Opens a .kbf file. Throws FileError. The key is null for an unprotected file.
    static std::shared_ptr<const Column> open(const std::filesystem::path& file,
                                              const std::shared_ptr<const Secret>& key = {});

    const ColumnInfo& info() const { return info_; }
    std::size_t blockCount() const {
        return static_cast<std::size_t>((info_.records + recordsPerBlock - 1) / recordsPerBlock);
    }
    /// Zones speak of blocks of recordsPerBlock records.
    virtual Zone zone(std::size_t block) const = 0;

    /// count values from record begin on, contiguous: in place, or in the scratch. Every block is
    /// checked (checksum, codes within minCode to maxCode or blank) when it is first touched.
    /// Throws FileError on damage; begin + count must not pass the end.
    virtual const void* read(std::uint64_t begin, std::size_t count,
                             ColumnScratch& scratch) const = 0;

    /// The heap of a text column, ascending by bytes. Code i is text(i).
    virtual std::uint64_t textCount() const { return 0; }
    virtual std::string_view text(std::uint64_t /*code*/) const { return {}; }

    /// Compares every block with its checksum and zone; throws FileError at the first fault.
    void verify() const;

protected:
    ColumnInfo info_;
};

} // namespace kelx::storage
