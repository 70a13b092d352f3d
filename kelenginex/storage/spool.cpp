// SPDX-License-Identifier: Apache-2.0
#include "storage/spool.h"

#include "storage/bytes.h"
#include "storage/coding.h"
#include "storage/column_format.h"
#include "storage/posix_io.h"

#include <algorithm>
#include <unistd.h>

namespace kelx::storage {

Spool::Spool(const std::filesystem::path& file)
    : file_(file), values_(chunkSize), blank_(chunkSize) {}

Spool::~Spool() {
    if (descriptor_ >= 0)
        ::close(descriptor_);
}

Spool::Bounds Spool::measure(std::size_t count) {
    Bounds bounds;
    for (std::size_t i = 0; i < count; ++i) {
        if (blank_[i] != 0)
            continue;
        bounds.lowest = bounds.any ? std::min(bounds.lowest, values_[i]) : values_[i];
        bounds.highest = bounds.any ? std::max(bounds.highest, values_[i]) : values_[i];
        bounds.any = true;
    }
    if (bounds.any) {
        lowest_ = hasValues_ ? std::min(lowest_, bounds.lowest) : bounds.lowest;
        highest_ = hasValues_ ? std::max(highest_, bounds.highest) : bounds.highest;
        hasValues_ = true;
        requireCodes(lowest_, highest_, file_);
    }
    return bounds;
}

void Spool::writeChunk() {
    const Bounds bounds = measure(chunkSize);
    const auto form = integerForm(bounds.lowest, bounds.highest);
    if (descriptor_ < 0) {
        const auto created = createTemporaryBeside(file_);
        descriptor_ = created.descriptor;
        ::unlink(created.name.c_str());
    }
    bytes_.resize(chunkSize * physicalSize(form.physical));
    withCode(form.physical, [&]<class Code>(Code) {
        encode(values_.data(), blank_.data(), chunkSize, form.base,
               reinterpret_cast<Code*>(bytes_.data()));
    });
    writeFully(descriptor_, size_, bytes_, file_);
    size_ += bytes_.size();
    chunks_.push_back({form.base, form.physical});
    fill_ = 0;
}

std::size_t Spool::readChunk(const Chunk& chunk, std::uint64_t offset) {
    bytes_.resize(chunkSize * physicalSize(chunk.physical));
    readFully(descriptor_, offset, bytes_, file_);
    withCode(chunk.physical, [&]<class Code>(Code) {
        const auto* codes = reinterpret_cast<const Code*>(bytes_.data());
        for (std::size_t i = 0; i < chunkSize; ++i) {
            blank_[i] = codes[i] == std::numeric_limits<Code>::max() ? 1 : 0;
            values_[i] = decodeValue(chunk.base, codes[i]);
        }
    });
    return bytes_.size();
}

} // namespace kelx::storage
