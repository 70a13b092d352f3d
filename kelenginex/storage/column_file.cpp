// SPDX-License-Identifier: Apache-2.0
#include "storage/column_file.h"

#include <algorithm>
#include <sodium.h>

namespace kelx::storage {

ColumnFileBuilder::ColumnFileBuilder(const std::filesystem::path& file, const Form& form,
                                     std::shared_ptr<const Secret> key)
    : out_(file), physical_(form.physical), key_(std::move(key)) {
    header_.valueType = static_cast<std::uint8_t>(form.type);
    header_.physical = static_cast<std::uint8_t>(form.physical);
    header_.decimals = form.decimals;
    header_.base = form.base;
    header_.dataOffset = sizeof(ColumnHeader);
    if (key_ != nullptr) {
        header_.flags = flagProtected;
        randombytes_buf(header_.id.data(), header_.id.size());
    }
    out_.write(bytesOf(header_));
}

void ColumnFileBuilder::addBlock(const void* values, std::size_t count) {
    const Zone zone = measureBlock(physical_, values, count);
    std::span<const std::byte> bytes{static_cast<const std::byte*>(values),
                                     count * physicalSize(physical_)};
    std::vector<std::byte> sealed;
    if (key_ != nullptr) {
        sealed = key_->seal(bytes, sealContext(header_, Section::Block, zones_.size()));
        bytes = sealed;
    }
    out_.write(bytes);
    zones_.push_back(storedZone(zone, physical_, hash64(bytes)));
    total_.add(zone);
    header_.dataLength += bytes.size();
}

void ColumnFileBuilder::beginSection(std::uint64_t& offset) {
    constexpr std::array<std::byte, sectionAlignment> zeros{};
    const auto over = static_cast<std::size_t>(out_.size() % sectionAlignment);
    if (over != 0)
        out_.write(std::span(zeros).first(sectionAlignment - over));
    offset = out_.size();
}

void ColumnFileBuilder::addTexts(const std::vector<std::string_view>& sorted) {
    addTexts(sorted.size(), [&](std::uint64_t i) { return sorted[static_cast<std::size_t>(i)]; },
             {});
}

void ColumnFileBuilder::addTexts(std::uint64_t count,
                                 const std::function<std::string_view(std::uint64_t)>& sorted,
                                 const Pulse& pulse) {
    const auto offsets = static_cast<std::size_t>(count + 1) * sizeof(std::uint64_t);
    std::uint64_t length = 0;
    forEachStep(count, pulse, [&](std::uint64_t i) { length += sorted(i).size(); });
    std::vector<std::byte> bytes(offsets + static_cast<std::size_t>(length));
    std::byte* place = bytes.data() + offsets;
    std::uint64_t end = 0;
    forEachStep(count, pulse, [&](std::uint64_t i) {
        const std::string_view text = sorted(i);
        if (!text.empty())
            std::memcpy(place + end, text.data(), text.size());
        end += text.size();
        store(bytes.data(), static_cast<std::size_t>(i) + 1, end);
    });
    if (key_ != nullptr)
        bytes = key_->seal(bytes, sealContext(header_, Section::Texts, 0));
    beginSection(header_.textsOffset);
    writeInParts(bytes, pulse);
    header_.textCount = count;
    header_.textsLength = bytes.size();
    header_.textsHash = hash64(bytes);
}

void ColumnFileBuilder::writeInParts(std::span<const std::byte> bytes, const Pulse& pulse) {
    constexpr std::size_t part = std::size_t{4} << 20;
    for (; !bytes.empty(); bytes = bytes.subspan(std::min(part, bytes.size()))) {
        out_.write(bytes.first(std::min(part, bytes.size())));
        if (pulse)
            pulse();
    }
}

void ColumnFileBuilder::addZones() {
    std::span<const std::byte> bytes = std::as_bytes(std::span(zones_));
    beginSection(header_.zonesOffset);
    header_.zonesLength = bytes.size() + (key_ != nullptr ? Secret::overhead : 0);
    // The sealed zones vouch for the header, so it is complete but for their own hash.
    sealHeader(header_, columnMagic, out_.size() + header_.zonesLength);
    std::vector<std::byte> sealed;
    if (key_ != nullptr) {
        sealed = key_->seal(bytes, zonesContext(header_));
        bytes = sealed;
    }
    header_.zonesHash = hash64(bytes);
    out_.write(bytes);
    sealHeader(header_, columnMagic, out_.size());
}

void ColumnFileBuilder::commit() {
    header_.records = total_.records;
    header_.blanks = total_.blanks;
    header_.minCode = total_.minCode;
    header_.maxCode = total_.maxCode;
    header_.minReal = total_.minReal;
    header_.maxReal = total_.maxReal;
    addZones();
    out_.writeAt(0, bytesOf(header_));
    out_.commit();
}

} // namespace kelx::storage
