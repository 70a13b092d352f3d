// SPDX-License-Identifier: Apache-2.0
// Puts a .kbf file together from whole blocks. Used by the writers of columns.
#pragma once

#include "storage/atomic_file.h"
#include "storage/block_stats.h"
#include "storage/column_format.h"
#include "storage/pulse.h"

#include <functional>
#include <memory>
#include <string_view>
#include <vector>

namespace kelx::storage {

class ColumnFileBuilder {
public:
    struct Form {
        ValueType type = ValueType::Integer;
        Physical physical = Physical::Code8;
        std::int64_t base = 0;
        std::uint8_t decimals = 0;
    };
    ColumnFileBuilder(const std::filesystem::path& file, const Form& form,
                      std::shared_ptr<const Secret> key);

    /// All blocks but the last hold recordsPerBlock values.
    void addBlock(const void* values, std::size_t count);
    /// The sorted texts of a text column; may be called once, after the blocks.
    void addTexts(const std::vector<std::string_view>& sorted);
    void addTexts(std::uint64_t count, const std::function<std::string_view(std::uint64_t)>& sorted,
                  const Pulse& pulse);
    /// Zones, header and renaming.
    void commit();

private:
    void beginSection(std::uint64_t& offset);
    void writeInParts(std::span<const std::byte> bytes, const Pulse& pulse);
    void addZones();

    AtomicFile out_;
    ColumnHeader header_;
    Physical physical_;
    std::shared_ptr<const Secret> key_;
    std::vector<StoredZone> zones_;
    ZoneTotal total_;
};

} // namespace kelx::storage
