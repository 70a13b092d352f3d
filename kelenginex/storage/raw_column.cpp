// SPDX-License-Identifier: Apache-2.0
#include "storage/raw_column.h"

#include "storage/coding.h"
#include "storage/column_format.h"
#include "storage/memory_column.h"
#include "storage/raw_format.h"
#include "storage/raw_reader.h"
#include "storage/text_table.h"

#include <algorithm>

namespace kelx::storage {

namespace {

using MapPointer = std::shared_ptr<const MappedFile>;

/// Calls take(begin, count) for stretch after stretch.
template <class Take>
void forStretches(std::uint64_t records, Take take) {
    for (std::uint64_t begin = 0; begin < records; begin += RawReader::stretch)
        take(begin, static_cast<std::size_t>(
                        std::min<std::uint64_t>(records - begin, RawReader::stretch)));
}

/// The form in which the file's own bytes are codes or reals; nothing where they never are.
std::optional<Physical> formInPlace(const RawLayout& layout, ValueType type) {
    const bool integer = type == ValueType::Integer;
    switch (layout.type) {
    case RawType::Byte:
        return integer ? std::optional(Physical::Code8) : std::nullopt;
    case RawType::Bool:
        return type == ValueType::Boolean ? std::optional(Physical::Code8) : std::nullopt;
    case RawType::Int:
        return integer ? std::optional(Physical::Code16) : std::nullopt;
    case RawType::Lng:
        return integer ? std::optional(Physical::Code32) : std::nullopt;
    case RawType::Dbl:
        return type == ValueType::Real ? std::optional(Physical::Real64) : std::nullopt;
    default:
        return std::nullopt;
    }
}

/// Negative numbers read as codes lie in the upper half, the one of -1 being the blank.
bool readsAsCodes(const RawLayout& layout, const ColumnInfo& info) {
    if (layout.type == RawType::Int)
        return info.blanks == 0 && info.maxCode < 0x8000;
    if (layout.type == RawType::Lng)
        return info.blanks == 0 && info.maxCode < 0x80000000u;
    return true;
}

void requireTruth(const MapPointer& map, std::int64_t lowest, std::int64_t highest) {
    if (lowest < 0 || highest > 1)
        throw FileError(map->file(), "holds truth values other than 0 and 1");
}

std::shared_ptr<const Column> convertIntegers(const MapPointer& map, const RawReader& reader,
                                              ColumnInfo info) {
    RawRecords part;
    bool any = false;
    std::int64_t lowest = 0;
    std::int64_t highest = 0;
    forStretches(info.records, [&](std::uint64_t begin, std::size_t count) {
        reader.readIntegers(begin, count, part);
        for (std::size_t i = 0; i < count; ++i) {
            if (part.blank[i] != 0)
                continue;
            lowest = any ? std::min(lowest, part.integers[i]) : part.integers[i];
            highest = any ? std::max(highest, part.integers[i]) : part.integers[i];
            any = true;
        }
    });
    if (info.type == ValueType::Boolean)
        requireTruth(map, lowest, highest);
    requireCodes(lowest, highest, map->file());
    const auto form = integerForm(lowest, highest);
    info.base = form.base;
    info.physical = form.physical;
    std::vector<std::byte> values(info.records * physicalSize(form.physical));
    withCode(form.physical, [&]<class Code>(Code) {
        auto* codes = reinterpret_cast<Code*>(values.data());
        forStretches(info.records, [&](std::uint64_t begin, std::size_t count) {
            reader.readIntegers(begin, count, part);
            encode(part.integers.data(), part.blank.data(), count, form.base, codes + begin);
        });
    });
    return std::make_shared<const MemoryColumn>(info, std::move(values));
}

std::shared_ptr<const Column> convertReals(const RawReader& reader, ColumnInfo info) {
    info.physical = Physical::Real64;
    std::vector<std::byte> values(info.records * sizeof(double));
    RawRecords part;
    forStretches(info.records, [&](std::uint64_t begin, std::size_t count) {
        reader.readReals(begin, count, part);
        std::memcpy(values.data() + begin * sizeof(double), part.reals.data(),
                    count * sizeof(double));
    });
    return std::make_shared<const MemoryColumn>(info, std::move(values));
}

std::shared_ptr<const Column> convertTexts(const MapPointer& map, const RawReader& reader,
                                           ColumnInfo info) {
    TextTable table(map->file());
    RawRecords part;
    constexpr auto blank = static_cast<std::uint32_t>(blankCode(Physical::Code32));
    std::vector<std::uint32_t> numbers(info.records);
    forStretches(info.records, [&](std::uint64_t begin, std::size_t count) {
        reader.readTexts(begin, count, part);
        for (std::size_t i = 0; i < count; ++i)
            numbers[begin + i] = part.blank[i] != 0 ? blank : table.numberOf(part.texts[i]);
    });
    table.sort();
    info.physical = physicalFor(table.size() == 0 ? 0 : table.size() - 1);
    std::vector<std::byte> values(info.records * physicalSize(info.physical));
    withCode(info.physical, [&]<class Code>(Code) {
        for (std::size_t i = 0; i < numbers.size(); ++i)
            store(values.data(), i,
                  numbers[i] == blank ? std::numeric_limits<Code>::max()
                                      : static_cast<Code>(table.ranks()[numbers[i]]));
    });
    return std::make_shared<const MemoryColumn>(
        info, std::move(values),
        std::vector<std::string>(table.sorted().begin(), table.sorted().end()));
}

} // namespace

std::shared_ptr<const Column> openRawColumn(const std::filesystem::path& file,
                                            const RawLayout& layout, std::uint64_t records) {
    checkRawLayout(layout, file);
    const auto map = std::make_shared<const MappedFile>(file);
    checkRawSize(layout, records, map->bytes().size(), file);
    ColumnInfo info;
    info.type = rawValueType(layout);
    info.records = records;
    info.decimals = static_cast<std::uint8_t>(layout.decimals);
    if (const auto form = formInPlace(layout, info.type)) {
        info.physical = *form;
        const auto column = std::make_shared<const MemoryColumn>(info, map);
        if (info.type == ValueType::Boolean)
            requireTruth(map, 0, static_cast<std::int64_t>(column->info().maxCode));
        if (readsAsCodes(layout, column->info()))
            return column;
    }
    const RawReader reader(*map, layout);
    if (info.type == ValueType::String)
        return convertTexts(map, reader, info);
    return info.type == ValueType::Real ? convertReals(reader, info)
                                        : convertIntegers(map, reader, info);
}

} // namespace kelx::storage
