// SPDX-License-Identifier: Apache-2.0
// How a .kbf file is laid out; docs/format.md tells it in words.
#pragma once

#include "storage/column.h"
#include "storage/mapped_file.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <vector>

namespace kelx::storage {

constexpr Magic columnMagic = magicOf("KBF");
constexpr std::uint64_t maximumRecords = std::uint64_t{1} << 40;
constexpr std::uint8_t flagProtected = 1;
constexpr std::size_t sectionAlignment = 64;

struct ColumnHeader {
    Preamble preamble;
    std::uint8_t valueType = 0;
    std::uint8_t physical = 0;
    std::uint8_t decimals = 0;
    std::uint8_t flags = 0;
    std::uint32_t blockRecords = recordsPerBlock;
    std::uint64_t records = 0;
    std::uint64_t blanks = 0;
    std::int64_t base = 0;
    std::uint64_t minCode = 0;
    std::uint64_t maxCode = 0;
    double minReal = 0;
    double maxReal = 0;
    std::uint64_t dataOffset = 0;
    std::uint64_t dataLength = 0;
    std::uint64_t zonesOffset = 0;
    std::uint64_t zonesLength = 0;
    std::uint64_t textsOffset = 0;
    std::uint64_t textsLength = 0;
    std::uint64_t textCount = 0;
    std::uint64_t zonesHash = 0;
    std::uint64_t textsHash = 0;
    std::array<std::uint8_t, 16> id{}; ///< random in protected files, binds their parts together
    std::array<std::uint8_t, 72> reserved{};
    std::uint64_t hash = 0;
};
static_assert(sizeof(ColumnHeader) == 256);

/// A zone on disk. The bounds of reals are kept as their bits.
struct StoredZone {
    std::uint64_t lowest = 0;
    std::uint64_t highest = 0;
    std::uint32_t blanks = 0;
    std::uint32_t records = 0;
    std::uint64_t hash = 0; ///< of the block as it lies in the file
};
static_assert(sizeof(StoredZone) == 32);

StoredZone storedZone(const Zone& zone, Physical physical, std::uint64_t hash);
Zone zoneOf(const StoredZone& stored, Physical physical);

/// Checks what the header says of itself and returns what it tells. Throws FileError.
ColumnInfo infoOf(const ColumnHeader& header, const std::filesystem::path& file);
/// Checks the zones against each other and against the header. Throws FileError.
void checkZones(const ColumnInfo& info, const std::vector<StoredZone>& zones,
                const std::filesystem::path& file);

/// The narrowest form whose codes reach from 0 to span, the blank left free.
Physical physicalFor(std::uint64_t span);

/// Where integers from lowest to highest begin and how wide their codes are.
struct IntegerForm {
    std::int64_t base = 0;
    Physical physical = Physical::Code8;
};
/// Prefers base 0, where codes are the values themselves, if that costs no width.
IntegerForm integerForm(std::int64_t lowest, std::int64_t highest);

/// The context that a sealed block, or the texts, are bound to.
enum class Section : std::uint8_t { Block = 1, Texts = 2 };
std::vector<std::byte> sealContext(const ColumnHeader& header, Section section,
                                   std::uint64_t number);
/// The context of the sealed zones: the header itself, which is thereby authentic.
std::vector<std::byte> zonesContext(ColumnHeader header);

} // namespace kelx::storage
