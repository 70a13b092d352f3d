// SPDX-License-Identifier: Apache-2.0
// A column over values that lie in memory, or in a mapped file that has no header of its own.
#pragma once

#include "storage/column.h"
#include "storage/mapped_file.h"

#include <memory>
#include <string>
#include <vector>

namespace kelx::storage {

class MemoryColumn final : public Column {
public:
    /// Type, physical, records, base and decimals are taken from info; bounds, blanks and zones
    /// are measured. Texts are sorted and distinct.
    MemoryColumn(const ColumnInfo& info, std::vector<std::byte> values,
                 std::vector<std::string> texts = {});
    /// The same over the bytes of a file, which must be as many as the records need.
    MemoryColumn(const ColumnInfo& info, std::shared_ptr<const MappedFile> map);
    using Values = std::unique_ptr<std::byte[]>;
    /// Takes values with zones that were measured while they were made.
    MemoryColumn(const ColumnInfo& info, Values values, std::vector<Zone> zones,
                 std::vector<std::string> texts = {});

    Zone zone(std::size_t block) const override { return zones_.at(block); }
    const void* read(std::uint64_t begin, std::size_t count, ColumnScratch& scratch) const override;
    std::uint64_t textCount() const override { return texts_.size(); }
    std::string_view text(std::uint64_t code) const override;

private:
    void measure();
    void takeBounds();

    std::shared_ptr<const MappedFile> map_;
    std::vector<std::byte> values_;
    Values made_;
    std::vector<std::string> texts_;
    std::vector<Zone> zones_;
    const std::byte* data_ = nullptr;
};

} // namespace kelx::storage
