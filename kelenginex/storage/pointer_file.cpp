// SPDX-License-Identifier: Apache-2.0
#include "storage/pointer_file.h"

#include "storage/atomic_file.h"
#include "storage/column_format.h"
#include "storage/mapped_file.h"
#include "storage/posix_io.h"

#include <algorithm>
#include <fcntl.h>
#include <string>
#include <vector>
#include <xxhash.h>

namespace kelx::storage {

namespace {

constexpr Magic pointerMagic = magicOf("KPT");
constexpr std::uint64_t narrowLimit = 0xffffffffu;
constexpr std::size_t batch = 32768; ///< offsets that are gathered before they are written

struct PointerHeader {
    Preamble preamble;
    std::uint32_t width = 4;
    std::uint32_t flags = 0;
    std::uint64_t parents = 0;
    std::uint64_t children = 0;
    std::uint64_t offsetsOffset = 0;
    std::uint64_t offsetsLength = 0;
    std::uint64_t offsetsHash = 0;
    std::array<std::uint8_t, 48> reserved{};
    std::uint64_t hash = 0;
};
static_assert(sizeof(PointerHeader) == 128);

template <class Offset>
bool ascends(const Offset* offsets, std::uint64_t count) {
    std::uint64_t falls = 0;
    for (std::uint64_t i = 1; i < count; ++i)
        falls += offsets[i] < offsets[i - 1] ? 1 : 0;
    return falls == 0;
}

class MappedPointers final : public PointerFile {
public:
    explicit MappedPointers(const std::filesystem::path& file)
        : map_(file), header_(readHeader<PointerHeader>(map_, pointerMagic, "pointer file")) {
        checkHeader();
        const auto offsets =
            map_.part(header_.offsetsOffset, header_.offsetsLength, "its list of offsets");
        if (hash64(offsets) != header_.offsetsHash)
            damaged("its offsets do not match their checksum");
        parents_ = header_.parents;
        children_ = header_.children;
        if (header_.width == 8)
            wide_ = reinterpret_cast<const std::uint64_t*>(offsets.data());
        else
            narrow_ = reinterpret_cast<const std::uint32_t*>(offsets.data());
        checkOrder();
    }
    std::optional<FileIdentity> identity() const override { return map_.identity(); }

private:
    void checkHeader() const {
        if ((header_.width != 4 && header_.width != 8) || header_.flags != 0)
            damaged("its width or flags are unknown");
        if (header_.parents > maximumRecords || header_.children > maximumRecords)
            damaged("its numbers of records are impossible");
        if (header_.offsetsLength != (header_.parents + 1) * header_.width ||
            header_.offsetsOffset % sectionAlignment != 0)
            damaged("its offsets have not the place that its records need");
    }
    void checkOrder() const {
        if (first(0) != 0 || first(parents_) != children_)
            damaged("its offsets do not reach from the first child to the last");
        if (!(isWide() ? ascends(wide_, parents_ + 1) : ascends(narrow_, parents_ + 1)))
            damaged("its offsets do not ascend");
    }
    [[noreturn]] void damaged(const char* what) const {
        throw FileError(map_.file(), std::string("is damaged: ") + what);
    }
    MappedFile map_;
    PointerHeader header_;
};

class SinglePointer final : public PointerFile {
public:
    explicit SinglePointer(std::uint64_t children) : offsets_{0, children} {
        parents_ = 1;
        children_ = children;
        wide_ = offsets_.data();
    }

private:
    std::array<std::uint64_t, 2> offsets_;
};

/// Parents have about as many children everywhere: so the search begins where the child would be
/// by its share, and goes on in steps that double, which stay in few pages of a large file.
template <class Offset>
std::uint64_t lastNotAbove(const Offset* offsets, std::uint64_t parents, std::uint64_t child) {
    const auto share = static_cast<double>(child) / static_cast<double>(offsets[parents]);
    const auto guess =
        std::min(static_cast<std::uint64_t>(share * static_cast<double>(parents)), parents - 1);
    std::uint64_t low = guess;
    std::uint64_t high = guess + 1;
    for (std::uint64_t step = 1; offsets[low] > child; step *= 2) {
        high = low;
        low -= std::min(step, low);
    }
    for (std::uint64_t step = 1; offsets[high] <= child; step *= 2) {
        low = high;
        high += std::min(step, parents - high);
    }
    const auto* above = std::upper_bound(offsets + low, offsets + high, child);
    return static_cast<std::uint64_t>(above - offsets) - 1;
}

} // namespace

std::shared_ptr<const PointerFile> PointerFile::open(const std::filesystem::path& file) {
    return std::make_shared<const MappedPointers>(file);
}

std::shared_ptr<const PointerFile> PointerFile::single(std::uint64_t children) {
    return std::make_shared<const SinglePointer>(children);
}

std::uint64_t PointerFile::parentOf(std::uint64_t child) const {
    if (child >= children_)
        throw std::out_of_range("a record beyond the last child has no parent");
    return isWide() ? lastNotAbove(wide_, parents_, child) : lastNotAbove(narrow_, parents_, child);
}

/// Offsets are written narrow until one does not fit; then the file is begun again, wide.
struct PointerWriter::Data {
    std::filesystem::path file;
    std::unique_ptr<AtomicFile> out;
    PointerHeader header;
    std::vector<std::uint64_t> pending{0};
    std::unique_ptr<XXH3_state_t, decltype(&XXH3_freeState)> hash{XXH3_createState(),
                                                                  &XXH3_freeState};

    explicit Data(const std::filesystem::path& name) : file(name) { begin(4); }

    void begin(std::uint32_t width) {
        out = std::make_unique<AtomicFile>(file);
        header.width = width;
        header.offsetsOffset = sizeof(PointerHeader);
        out->write(bytesOf(header));
        XXH3_64bits_reset(hash.get());
    }
    void write(std::span<const std::byte> bytes) {
        XXH3_64bits_update(hash.get(), bytes.data(), bytes.size());
        out->write(bytes);
    }
    void flush() {
        if (header.width == 8) {
            write(std::as_bytes(std::span(pending)));
        } else {
            const std::vector<std::uint32_t> narrow(pending.begin(), pending.end());
            write(std::as_bytes(std::span(narrow)));
        }
        pending.clear();
    }
    void widen();
};

void PointerWriter::Data::widen() {
    flush();
    out->flush();
    const auto old = std::move(out);
    const MappedFile map(old->temporaryName());
    begin(8);
    const auto bytes = map.bytes().subspan(sizeof(PointerHeader));
    for (std::size_t i = 0; i < bytes.size() / sizeof(std::uint32_t); ++i) {
        pending.push_back(load<std::uint32_t>(bytes.data(), i));
        if (pending.size() == batch)
            flush();
    }
}

PointerWriter::PointerWriter(const std::filesystem::path& file)
    : d_(std::make_unique<Data>(file)) {}

PointerWriter::~PointerWriter() = default;

void PointerWriter::addParent(std::uint64_t childCount) {
    auto& header = d_->header;
    if (childCount > maximumRecords - header.children || header.parents == maximumRecords)
        throw FileError(d_->file, "cannot hold so many records");
    header.children += childCount;
    ++header.parents;
    if (header.width == 4 && header.children > narrowLimit)
        d_->widen();
    d_->pending.push_back(header.children);
    if (d_->pending.size() >= batch)
        d_->flush();
}

void PointerWriter::commit() {
    d_->flush();
    auto& header = d_->header;
    header.offsetsLength = (header.parents + 1) * header.width;
    header.offsetsHash = XXH3_64bits_digest(d_->hash.get());
    sealHeader(header, pointerMagic, d_->out->size());
    d_->out->writeAt(0, bytesOf(header));
    d_->out->commit();
}

} // namespace kelx::storage
