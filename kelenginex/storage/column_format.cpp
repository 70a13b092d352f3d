// SPDX-License-Identifier: Apache-2.0
#include "storage/column_format.h"

#include "storage/block_stats.h"

#include <algorithm>
#include <bit>
#include <limits>
#include <string>

namespace kelx::storage {

namespace {

[[noreturn]] void damaged(const std::filesystem::path& file, const char* what) {
    throw FileError(file, std::string("is damaged: ") + what);
}

bool belongTogether(ValueType type, Physical physical) {
    switch (type) {
    case ValueType::Integer:
        return physical >= Physical::Code8 && physical <= Physical::Code64;
    case ValueType::Real:
        return physical == Physical::Real64;
    case ValueType::String:
        return physical >= Physical::Code8 && physical <= Physical::Code32;
    case ValueType::Boolean:
        return physical == Physical::Code8;
    case ValueType::None:
        break;
    }
    return false;
}

/// Codes stay below the blank, and base + code within what 64 bits hold.
bool codesFit(const ColumnHeader& header, const ColumnInfo& info) {
    if (info.minCode > info.maxCode || info.maxCode >= blankCode(info.physical))
        return false;
    const bool hasValues = info.blanks < info.records;
    if (!hasValues && info.maxCode != 0)
        return false;
    switch (info.type) {
    case ValueType::Integer: {
        const auto room = static_cast<std::uint64_t>(std::numeric_limits<std::int64_t>::max()) -
                          static_cast<std::uint64_t>(info.base);
        return info.maxCode <= room;
    }
    case ValueType::String:
        return info.base == 0 && (!hasValues || info.maxCode < header.textCount);
    case ValueType::Boolean:
        return info.base == 0 && info.maxCode <= 1;
    default:
        return info.base == 0 && info.maxCode == 0;
    }
}

bool realsFit(const ColumnInfo& info) {
    const bool mayHaveBounds = info.type == ValueType::Real && info.blanks < info.records;
    return mayHaveBounds ? info.minReal <= info.maxReal : info.minReal == 0 && info.maxReal == 0;
}

void checkLengths(const ColumnHeader& header, const ColumnInfo& info,
                  const std::filesystem::path& file) {
    const std::uint64_t blocks = (info.records + recordsPerBlock - 1) / recordsPerBlock;
    const std::uint64_t seal = info.isProtected ? Secret::overhead : 0;
    if (header.dataLength != info.records * physicalSize(info.physical) + blocks * seal)
        damaged(file, "its data have not the length that its records need");
    if (header.zonesLength != blocks * sizeof(StoredZone) + seal)
        damaged(file, "its zone map has not the length that its records need");
    if (info.type != ValueType::String && (header.textCount != 0 || header.textsLength != 0))
        damaged(file, "it has texts and should have none");
    if (info.type == ValueType::String &&
        (header.textCount >= blankCode(Physical::Code32) ||
         header.textsLength < (header.textCount + 1) * sizeof(std::uint64_t) + seal))
        damaged(file, "its texts have not the length that their number needs");
    for (const auto offset : {header.dataOffset, header.zonesOffset, header.textsOffset})
        if (offset % sectionAlignment != 0)
            damaged(file, "a section does not begin on a 64-byte boundary");
}

bool zoneFits(const ColumnInfo& info, const Zone& zone) {
    if (zone.blanks > zone.records)
        return false;
    if (zone.blanks == zone.records)
        return sameZone(zone, Zone{0, 0, 0, 0, zone.blanks, zone.records});
    if (info.physical == Physical::Real64)
        return zone.minReal <= zone.maxReal;
    return zone.minCode <= zone.maxCode && zone.minCode >= info.minCode &&
           zone.maxCode <= info.maxCode;
}

} // namespace

StoredZone storedZone(const Zone& zone, Physical physical, std::uint64_t hash) {
    const bool real = physical == Physical::Real64;
    return {real ? std::bit_cast<std::uint64_t>(zone.minReal) : zone.minCode,
            real ? std::bit_cast<std::uint64_t>(zone.maxReal) : zone.maxCode, zone.blanks,
            zone.records, hash};
}

Zone zoneOf(const StoredZone& stored, Physical physical) {
    if (physical == Physical::Real64)
        return {0,
                0,
                std::bit_cast<double>(stored.lowest),
                std::bit_cast<double>(stored.highest),
                stored.blanks,
                stored.records};
    return {stored.lowest, stored.highest, 0, 0, stored.blanks, stored.records};
}

ColumnInfo infoOf(const ColumnHeader& header, const std::filesystem::path& file) {
    ColumnInfo info;
    info.type = static_cast<ValueType>(header.valueType);
    info.physical = static_cast<Physical>(header.physical);
    if (!belongTogether(info.type, info.physical))
        damaged(file, "its types of values and of storage do not fit");
    if (header.blockRecords != recordsPerBlock || (header.flags & ~flagProtected) != 0)
        damaged(file, "its block size or flags are unknown");
    info.records = header.records;
    info.blanks = header.blanks;
    if (info.records > maximumRecords || info.blanks > info.records)
        damaged(file, "its numbers of records and blanks are impossible");
    info.base = header.base;
    info.minCode = header.minCode;
    info.maxCode = header.maxCode;
    info.minReal = header.minReal;
    info.maxReal = header.maxReal;
    info.decimals = header.decimals;
    info.isProtected = (header.flags & flagProtected) != 0;
    if (!codesFit(header, info) || !realsFit(info))
        damaged(file, "its bounds are impossible");
    checkLengths(header, info, file);
    return info;
}

void checkZones(const ColumnInfo& info, const std::vector<StoredZone>& zones,
                const std::filesystem::path& file) {
    ZoneTotal total;
    for (std::size_t i = 0; i < zones.size(); ++i) {
        const std::uint64_t left = info.records - i * std::uint64_t{recordsPerBlock};
        const Zone zone = zoneOf(zones[i], info.physical);
        if (zone.records != std::min<std::uint64_t>(left, recordsPerBlock) || !zoneFits(info, zone))
            damaged(file, "its zone map is impossible");
        total.add(zone);
    }
    if (total.blanks != info.blanks || total.minCode != info.minCode ||
        total.maxCode != info.maxCode || total.minReal != info.minReal ||
        total.maxReal != info.maxReal)
        damaged(file, "its zone map and its header disagree");
}

Physical physicalFor(std::uint64_t span) {
    for (const auto physical : {Physical::Code8, Physical::Code16, Physical::Code32})
        if (span < blankCode(physical))
            return physical;
    return Physical::Code64;
}

IntegerForm integerForm(std::int64_t lowest, std::int64_t highest) {
    const Physical narrow =
        physicalFor(static_cast<std::uint64_t>(highest) - static_cast<std::uint64_t>(lowest));
    if (lowest >= 0 && physicalFor(static_cast<std::uint64_t>(highest)) == narrow)
        return {0, narrow};
    return {lowest, narrow};
}

std::vector<std::byte> sealContext(const ColumnHeader& header, Section section,
                                   std::uint64_t number) {
    std::vector<std::byte> context(header.id.size() + 1 + sizeof(number));
    std::memcpy(context.data(), header.id.data(), header.id.size());
    context[header.id.size()] = static_cast<std::byte>(section);
    std::memcpy(context.data() + header.id.size() + 1, &number, sizeof(number));
    return context;
}

std::vector<std::byte> zonesContext(ColumnHeader header) {
    header.zonesHash = 0;
    header.hash = 0;
    const auto bytes = bytesOf(header);
    return {bytes.begin(), bytes.end()};
}

} // namespace kelx::storage
