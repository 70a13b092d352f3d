// SPDX-License-Identifier: Apache-2.0
#include "storage/column.h"

#include "storage/block_stats.h"
#include "storage/column_format.h"
#include "storage/mapped_file.h"
#include "storage/utf8.h"

#include <algorithm>
#include <atomic>
#include <string>

namespace kelx::storage {

namespace {

/// One bit a block, set once the block is known to be sound.
class BlockFlags {
public:
    explicit BlockFlags(std::size_t blocks)
        : words_(std::make_unique<std::atomic<std::uint64_t>[]>(blocks / 64 + 1)) {}
    bool isSet(std::size_t block) const {
        return (words_[block / 64].load(std::memory_order_relaxed) >> (block % 64) & 1) != 0;
    }
    void set(std::size_t block) {
        words_[block / 64].fetch_or(std::uint64_t{1} << (block % 64), std::memory_order_relaxed);
    }

private:
    std::unique_ptr<std::atomic<std::uint64_t>[]> words_;
};

/// A .kbf file. Plain data are read where they are mapped; sealed blocks go through the scratch.
class ColumnFileReader final : public Column {
public:
    ColumnFileReader(const std::filesystem::path& file, std::shared_ptr<const Secret> key);

    Zone zone(std::size_t block) const override { return zoneOf(zones_.at(block), info_.physical); }
    const void* read(std::uint64_t begin, std::size_t count, ColumnScratch& scratch) const override;
    std::uint64_t textCount() const override { return header_.textCount; }
    std::string_view text(std::uint64_t code) const override;

private:
    void openZones();
    void openTexts();
    void checkTexts() const;
    std::vector<std::byte> unseal(std::span<const std::byte> sealed,
                                  std::span<const std::byte> context) const;
    void checkBlock(std::size_t block) const;
    void checkValues(std::size_t block, const void* values) const;
    const std::byte* readSealed(std::uint64_t begin, std::size_t count,
                                ColumnScratch& scratch) const;
    void openBlock(std::size_t block, ColumnScratch& scratch) const;
    [[noreturn]] void damaged(const std::string& what) const {
        throw FileError(map_.file(), "is damaged: " + what);
    }

    MappedFile map_;
    ColumnHeader header_;
    std::shared_ptr<const Secret> key_;
    std::span<const std::byte> data_;
    std::vector<StoredZone> zones_;
    std::vector<std::byte> openedTexts_; ///< of protected files
    std::span<const std::byte> textOffsets_;
    std::string_view textBytes_;
    mutable std::unique_ptr<BlockFlags> sound_;
};

ColumnFileReader::ColumnFileReader(const std::filesystem::path& file,
                                   std::shared_ptr<const Secret> key)
    : map_(file), header_(readHeader<ColumnHeader>(map_, columnMagic, "column file")),
      key_(std::move(key)) {
    info_ = infoOf(header_, file);
    if (info_.isProtected && key_ == nullptr)
        throw FileError(file, "is protected, and its database has no password");
    data_ = map_.part(header_.dataOffset, header_.dataLength, "its data");
    openZones();
    if (info_.type == ValueType::String)
        openTexts();
    sound_ = std::make_unique<BlockFlags>(blockCount());
}

std::vector<std::byte> ColumnFileReader::unseal(std::span<const std::byte> sealed,
                                                std::span<const std::byte> context) const {
    std::vector<std::byte> plain(sealed.size() - Secret::overhead);
    if (!key_->open(sealed, context, plain))
        throw FileError(map_.file(), "cannot be decrypted with the password of its database");
    return plain;
}

void ColumnFileReader::openZones() {
    auto stored = map_.part(header_.zonesOffset, header_.zonesLength, "its zone map");
    if (hash64(stored) != header_.zonesHash)
        damaged("its zone map does not match its checksum");
    std::vector<std::byte> opened;
    if (info_.isProtected) {
        opened = unseal(stored, zonesContext(header_));
        stored = opened;
    }
    zones_.resize(blockCount());
    if (!zones_.empty())
        std::memcpy(zones_.data(), stored.data(), zones_.size() * sizeof(StoredZone));
    checkZones(info_, zones_, map_.file());
}

void ColumnFileReader::openTexts() {
    auto stored = map_.part(header_.textsOffset, header_.textsLength, "its texts");
    if (hash64(stored) != header_.textsHash)
        damaged("its texts do not match their checksum");
    if (info_.isProtected) {
        openedTexts_ = unseal(stored, sealContext(header_, Section::Texts, 0));
        stored = openedTexts_;
    }
    const auto offsetsSize =
        static_cast<std::size_t>(header_.textCount + 1) * sizeof(std::uint64_t);
    textOffsets_ = stored.first(offsetsSize);
    const auto bytes = stored.subspan(offsetsSize);
    textBytes_ = {reinterpret_cast<const char*>(bytes.data()), bytes.size()};
    checkTexts();
}

void ColumnFileReader::checkTexts() const {
    const auto offset = [&](std::uint64_t i) {
        return load<std::uint64_t>(textOffsets_.data(), static_cast<std::size_t>(i));
    };
    if (offset(0) != 0 || offset(header_.textCount) != textBytes_.size())
        damaged("its texts do not fill their place");
    std::uint64_t end = 0;
    for (std::uint64_t i = 1; i <= header_.textCount; ++i) {
        if (offset(i) < end || offset(i) > textBytes_.size())
            damaged("text " + std::to_string(i) + " has an impossible length");
        end = offset(i);
    }
    for (std::uint64_t i = 0; i < header_.textCount; ++i) {
        if (!isUtf8(text(i)))
            damaged("text " + std::to_string(i + 1) + " is not UTF-8");
        if (i > 0 && text(i - 1) >= text(i))
            damaged("text " + std::to_string(i + 1) + " is out of order");
    }
}

std::string_view ColumnFileReader::text(std::uint64_t code) const {
    if (code >= header_.textCount)
        return {};
    const auto i = static_cast<std::size_t>(code);
    const auto begin = load<std::uint64_t>(textOffsets_.data(), i);
    const auto end = load<std::uint64_t>(textOffsets_.data(), i + 1);
    return textBytes_.substr(begin, end - begin);
}

const void* ColumnFileReader::read(std::uint64_t begin, std::size_t count,
                                   ColumnScratch& scratch) const {
    if (begin > info_.records || count > info_.records - begin)
        throw FileError(map_.file(), "is asked for records beyond its end");
    if (info_.isProtected)
        return readSealed(begin, count, scratch);
    if (count > 0) {
        const auto last = static_cast<std::size_t>((begin + count - 1) / recordsPerBlock);
        for (auto block = static_cast<std::size_t>(begin / recordsPerBlock); block <= last; ++block)
            if (!sound_->isSet(block))
                checkBlock(block);
    }
    return data_.data() + static_cast<std::size_t>(begin) * physicalSize(info_.physical);
}

void ColumnFileReader::checkBlock(std::size_t block) const {
    const std::size_t size = physicalSize(info_.physical);
    const auto stored = data_.subspan(block * recordsPerBlock * size, zones_[block].records * size);
    if (hash64(stored) != zones_[block].hash)
        damaged("block " + std::to_string(block + 1) + " does not match its checksum");
    checkValues(block, stored.data());
}

void ColumnFileReader::checkValues(std::size_t block, const void* values) const {
    const auto& stored = zones_[block];
    if (!sameZone(measureBlock(info_.physical, values, stored.records),
                  zoneOf(stored, info_.physical)))
        damaged("block " + std::to_string(block + 1) + " holds values outside its bounds");
    sound_->set(block);
}

const std::byte* ColumnFileReader::readSealed(std::uint64_t begin, std::size_t count,
                                              ColumnScratch& scratch) const {
    const std::size_t size = physicalSize(info_.physical);
    const auto inBlock = static_cast<std::size_t>(begin % recordsPerBlock);
    if (count <= recordsPerBlock - inBlock) {
        if (count > 0)
            openBlock(static_cast<std::size_t>(begin / recordsPerBlock), scratch);
        return scratch.block.data() + (count > 0 ? inBlock * size : 0);
    }
    scratch.bytes.resize(count * size);
    for (std::size_t done = 0; done < count;) {
        const std::uint64_t at = begin + done;
        const auto skip = static_cast<std::size_t>(at % recordsPerBlock);
        const auto part = std::min<std::size_t>(count - done, recordsPerBlock - skip);
        openBlock(static_cast<std::size_t>(at / recordsPerBlock), scratch);
        std::memcpy(scratch.bytes.data() + done * size, scratch.block.data() + skip * size,
                    part * size);
        done += part;
    }
    return scratch.bytes.data();
}

void ColumnFileReader::openBlock(std::size_t block, ColumnScratch& scratch) const {
    if (scratch.cachedBlock == block)
        return;
    const std::size_t size = physicalSize(info_.physical);
    const std::size_t plainSize = zones_[block].records * size;
    const auto sealed = data_.subspan(block * (recordsPerBlock * size + Secret::overhead),
                                      plainSize + Secret::overhead);
    scratch.cachedBlock = std::numeric_limits<std::uint64_t>::max();
    if (!sound_->isSet(block) && hash64(sealed) != zones_[block].hash)
        damaged("block " + std::to_string(block + 1) + " does not match its checksum");
    scratch.block.resize(plainSize);
    if (!key_->open(sealed, sealContext(header_, Section::Block, block), scratch.block))
        damaged("block " + std::to_string(block + 1) + " cannot be decrypted");
    if (!sound_->isSet(block))
        checkValues(block, scratch.block.data());
    scratch.cachedBlock = block;
}

} // namespace

std::shared_ptr<const Column> Column::open(const std::filesystem::path& file,
                                           const std::shared_ptr<const Secret>& key) {
    return std::make_shared<const ColumnFileReader>(file, key);
}

void Column::verify() const {
    ColumnScratch scratch;
    for (std::size_t block = 0; block < blockCount(); ++block)
        read(std::uint64_t{block} * recordsPerBlock, zone(block).records, scratch);
}

} // namespace kelx::storage
