// SPDX-License-Identifier: Apache-2.0
#include "storage/raw_format.h"

#include "storage/column_format.h"
#include "storage/error.h"

namespace kelx::storage {

namespace {

constexpr std::array<const char*, 10> typeNames = {"CHR", "DBL",  "BIN", "PCK",  "LNG",
                                                   "SNG", "BYTE", "UNI", "BOOL", "INT"};
constexpr int mostCharacters = 65535;

bool isText(RawType type) {
    return type == RawType::Chr || type == RawType::Uni;
}

/// The sizes that a type allows, from least to greatest.
std::pair<int, int> sizesOf(RawType type) {
    switch (type) {
    case RawType::Chr:
    case RawType::Uni:
        return {1, mostCharacters};
    case RawType::Bin:
        return {1, 64};
    case RawType::Pck:
        return {1, mostDigits};
    case RawType::Dbl:
        return {8, 8};
    case RawType::Lng:
    case RawType::Sng:
        return {4, 4};
    case RawType::Int:
        return {2, 2};
    default:
        return {1, 1};
    }
}

} // namespace

std::optional<RawType> rawTypeFromName(const std::string& name) {
    for (std::size_t i = 0; i < typeNames.size(); ++i)
        if (name == typeNames[i])
            return static_cast<RawType>(i);
    return std::nullopt;
}

const char* rawTypeName(RawType type) {
    return typeNames.at(static_cast<std::size_t>(type));
}

void checkRawLayout(const RawLayout& layout, const std::filesystem::path& file) {
    const auto [least, most] = sizesOf(layout.type);
    const std::string name = rawTypeName(layout.type);
    if (layout.size < least || layout.size > most)
        throw FileError(file,
                        "cannot be of type " + name + " with size " + std::to_string(layout.size));
    if (layout.decimals < 0 || layout.decimals > mostDigits)
        throw FileError(file, "cannot have " + std::to_string(layout.decimals) + " decimals");
    if (layout.valueType == ValueType::String && !isText(layout.type))
        throw FileError(file, "holds numbers of type " + name + ", no texts");
}

std::size_t rawRecordSize(const RawLayout& layout) {
    const auto size = static_cast<std::size_t>(layout.size);
    if (layout.type == RawType::Uni)
        return size * 2;
    return layout.type == RawType::Pck ? size / 2 + 1 : size;
}

std::uint64_t rawFileSize(const RawLayout& layout, std::uint64_t records) {
    if (layout.type == RawType::Bin)
        return (records * static_cast<std::uint64_t>(layout.size) + 7) / 8;
    return records * rawRecordSize(layout);
}

void checkRawSize(const RawLayout& layout, std::uint64_t records, std::uint64_t bytes,
                  const std::filesystem::path& file) {
    if (records > maximumRecords)
        throw FileError(file, "cannot have " + std::to_string(records) + " records");
    const auto expected = rawFileSize(layout, records);
    if (bytes != expected)
        throw FileError(file,
                        "has " + std::to_string(bytes) + " bytes, but " + std::to_string(records) +
                            " records of type " + rawTypeName(layout.type) + " and size " +
                            std::to_string(layout.size) + " need " + std::to_string(expected));
}

ValueType rawValueType(const RawLayout& layout) {
    const bool scaled = layout.decimals > 0 && (layout.type == RawType::Pck || isText(layout.type));
    if (layout.valueType == ValueType::Integer && scaled)
        return ValueType::Real;
    if (layout.valueType != ValueType::None)
        return layout.valueType;
    if (isText(layout.type))
        return ValueType::String;
    if (layout.type == RawType::Bool)
        return ValueType::Boolean;
    const bool real = scaled || layout.type == RawType::Dbl || layout.type == RawType::Sng;
    return real ? ValueType::Real : ValueType::Integer;
}

std::int64_t powerOfTen(int decimals) {
    std::int64_t power = 1;
    for (int i = 0; i < decimals; ++i)
        power *= 10;
    return power;
}

} // namespace kelx::storage
