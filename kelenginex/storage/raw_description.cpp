// SPDX-License-Identifier: Apache-2.0
#include "storage/atomic_file.h"
#include "storage/mapped_file.h"
#include "storage/raw_format.h"

namespace kelx::storage {

namespace {

constexpr Magic descriptionMagic = magicOf("KBD");

struct DescriptionHeader {
    Preamble preamble;
    std::uint8_t type = 0;
    std::uint8_t valueType = 0;
    std::uint8_t decimals = 0;
    std::uint8_t unused = 0;
    std::uint32_t size = 0;
    std::uint64_t records = 0;
    std::uint64_t dataSize = 0;
    std::array<std::uint8_t, 8> reserved{};
    std::uint64_t hash = 0;
};
static_assert(sizeof(DescriptionHeader) == 64);

std::filesystem::path descriptionOf(const std::filesystem::path& binFile) {
    auto name = binFile;
    name += ".desc";
    return name;
}

std::uint64_t sizeOf(const std::filesystem::path& file) {
    std::error_code problem;
    const auto size = std::filesystem::file_size(file, problem);
    if (problem)
        throw FileError(file, "cannot be examined: " + problem.message());
    return size;
}

RawLayout layoutOf(const DescriptionHeader& header, const std::filesystem::path& file) {
    if (header.type > static_cast<std::uint8_t>(RawType::Int) ||
        header.valueType > static_cast<std::uint8_t>(ValueType::Boolean) || header.size > 65535)
        throw FileError(file, "is damaged: its types or its size are unknown");
    RawLayout layout{static_cast<RawType>(header.type), static_cast<int>(header.size),
                     header.decimals, static_cast<ValueType>(header.valueType)};
    checkRawLayout(layout, file);
    return layout;
}

} // namespace

std::optional<RawLayout> readRawDescription(const std::filesystem::path& binFile) {
    const auto file = descriptionOf(binFile);
    std::error_code ignored;
    if (std::filesystem::symlink_status(file, ignored).type() ==
        std::filesystem::file_type::not_found)
        return std::nullopt;
    const MappedFile map(file);
    const auto header =
        readHeader<DescriptionHeader>(map, descriptionMagic, "description of a data file");
    if (header.preamble.fileSize != sizeof(header))
        throw FileError(file, "is damaged: it has more than its header");
    const auto layout = layoutOf(header, file);
    const auto size = sizeOf(binFile);
    if (header.dataSize != size)
        throw FileError(file, "describes a file of " + std::to_string(header.dataSize) +
                                  " bytes, but its data file has " + std::to_string(size));
    checkRawSize(layout, header.records, size, binFile);
    return layout;
}

void writeRawDescription(const std::filesystem::path& binFile, const RawLayout& layout,
                         std::uint64_t records) {
    checkRawLayout(layout, binFile);
    DescriptionHeader header;
    header.type = static_cast<std::uint8_t>(layout.type);
    header.valueType = static_cast<std::uint8_t>(layout.valueType);
    header.decimals = static_cast<std::uint8_t>(layout.decimals);
    header.size = static_cast<std::uint32_t>(layout.size);
    header.records = records;
    header.dataSize = sizeOf(binFile);
    checkRawSize(layout, records, header.dataSize, binFile);
    sealHeader(header, descriptionMagic, sizeof(header));
    AtomicFile out(descriptionOf(binFile));
    out.write(bytesOf(header));
    out.commit();
}

} // namespace kelx::storage
