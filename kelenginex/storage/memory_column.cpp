// SPDX-License-Identifier: Apache-2.0
#include "storage/memory_column.h"

#include "storage/block_stats.h"

#include <algorithm>
#include <stdexcept>

namespace kelx::storage {

MemoryColumn::MemoryColumn(const ColumnInfo& info, std::vector<std::byte> values,
                           std::vector<std::string> texts)
    : values_(std::move(values)), texts_(std::move(texts)), data_(values_.data()) {
    info_ = info;
    measure();
}

MemoryColumn::MemoryColumn(const ColumnInfo& info, std::shared_ptr<const MappedFile> map)
    : map_(std::move(map)), data_(map_->bytes().data()) {
    info_ = info;
    measure();
}

MemoryColumn::MemoryColumn(const ColumnInfo& info, Values values, std::vector<Zone> zones,
                           std::vector<std::string> texts)
    : made_(std::move(values)), texts_(std::move(texts)), zones_(std::move(zones)),
      data_(made_.get()) {
    info_ = info;
    takeBounds();
}

void MemoryColumn::measure() {
    const std::size_t size = physicalSize(info_.physical);
    zones_.reserve(blockCount());
    for (std::uint64_t begin = 0; begin < info_.records; begin += recordsPerBlock) {
        const auto count = static_cast<std::size_t>(
            std::min<std::uint64_t>(info_.records - begin, recordsPerBlock));
        zones_.push_back(measureBlock(info_.physical, data_ + begin * size, count));
    }
    takeBounds();
}

void MemoryColumn::takeBounds() {
    ZoneTotal total;
    for (const Zone& zone : zones_)
        total.add(zone);
    info_.blanks = total.blanks;
    info_.minCode = total.minCode;
    info_.maxCode = total.maxCode;
    info_.minReal = total.minReal;
    info_.maxReal = total.maxReal;
}

const void* MemoryColumn::read(std::uint64_t begin, std::size_t count, ColumnScratch&) const {
    if (begin > info_.records || count > info_.records - begin)
        throw std::out_of_range("a column is asked for records beyond its end");
    return data_ + static_cast<std::size_t>(begin) * physicalSize(info_.physical);
}

std::string_view MemoryColumn::text(std::uint64_t code) const {
    return code < texts_.size() ? std::string_view(texts_[static_cast<std::size_t>(code)])
                                : std::string_view();
}

} // namespace kelx::storage
