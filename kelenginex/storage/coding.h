// SPDX-License-Identifier: Apache-2.0
// From integers to codes and back.
#pragma once

#include "storage/column.h"
#include "storage/error.h"

#include <cstdint>
#include <limits>
#include <string>

namespace kelx::storage {

/// Calls f with a value of the unsigned type that holds the codes of a physical form.
template <class F>
auto withCode(Physical physical, F f) {
    switch (physical) {
    case Physical::Code8:
        return f(std::uint8_t{});
    case Physical::Code16:
        return f(std::uint16_t{});
    case Physical::Code32:
        return f(std::uint32_t{});
    default:
        return f(std::uint64_t{});
    }
}

/// The differences wrap round in unsigned arithmetic, so no pair of values overflows.
inline std::uint64_t codeOf(std::int64_t value, std::int64_t base) {
    return static_cast<std::uint64_t>(value) - static_cast<std::uint64_t>(base);
}
inline std::int64_t decodeValue(std::int64_t base, std::uint64_t code) {
    return static_cast<std::int64_t>(static_cast<std::uint64_t>(base) + code);
}

template <class Code>
void encode(const std::int64_t* values, const std::uint8_t* blank, std::size_t count,
            std::int64_t base, Code* codes) {
    for (std::size_t i = 0; i < count; ++i)
        codes[i] = blank[i] != 0 ? std::numeric_limits<Code>::max()
                                 : static_cast<Code>(codeOf(values[i], base));
}

/// The one range without room for a blank: all of 64 bits.
inline void requireCodes(std::int64_t lowest, std::int64_t highest,
                         const std::filesystem::path& file) {
    if (codeOf(highest, lowest) == std::numeric_limits<std::uint64_t>::max())
        throw FileError(file, "cannot hold the least and the greatest 64-bit number together");
}

} // namespace kelx::storage
