// SPDX-License-Identifier: Apache-2.0
// The rules of .bin files that reader, writer and description share; docs/format.md has them.
#pragma once

#include "storage/raw_column.h"

#include <array>
#include <cstdint>
#include <filesystem>
#include <string>

namespace kelx::storage {

constexpr std::int64_t blankByte = 255;
constexpr std::int64_t blankInt = -32768;
constexpr std::int64_t blankLong = -2147483648LL;
constexpr int mostDigits = 18; ///< what a 64-bit integer surely holds

/// Throws FileError for a size, decimals or value type that the raw type cannot have.
void checkRawLayout(const RawLayout& layout, const std::filesystem::path& file);
/// Bytes of one record; not for BIN, whose records share bytes.
std::size_t rawRecordSize(const RawLayout& layout);
/// Bytes of a whole file.
std::uint64_t rawFileSize(const RawLayout& layout, std::uint64_t records);
/// Throws FileError where the file of so many bytes is not what layout and records say.
void checkRawSize(const RawLayout& layout, std::uint64_t records, std::uint64_t bytes,
                  const std::filesystem::path& file);
/// What the values become: the value type asked for, or the raw type's own where none is.
ValueType rawValueType(const RawLayout& layout);
/// 10 to the power of decimals, 0 to 18.
std::int64_t powerOfTen(int decimals);

} // namespace kelx::storage
