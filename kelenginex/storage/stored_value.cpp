// SPDX-License-Identifier: Apache-2.0
#include "storage/stored_value.h"

#include "storage/coding.h"

#include <bit>
#include <cmath>
#include <cstring>

namespace kelx::storage {

std::uint64_t codeAt(const void* codes, std::size_t at, Physical physical) {
    const std::size_t size = physicalSize(physical);
    std::uint64_t code = 0; // codes lie little-endian in files and, on what we run on, in memory
    std::memcpy(&code, static_cast<const std::byte*>(codes) + at * size, size);
    if (physical != Physical::Real64 && code == blankCode(physical))
        return blankCode(Physical::Code64);
    return code;
}

StoredValue storedValue(const Column& column, std::uint64_t code) {
    const ColumnInfo& info = column.info();
    if (code == blankCode(Physical::Code64) || code == info.naCode)
        return {};
    if (info.physical == Physical::Real64) {
        const auto value = std::bit_cast<double>(code);
        return std::isnan(value) ? StoredValue{} : StoredValue{value};
    }
    if (info.type == ValueType::String)
        return column.text(code);
    return decodeValue(info.base, code);
}

} // namespace kelx::storage
