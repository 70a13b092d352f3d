// SPDX-License-Identifier: Apache-2.0
// Calls a template with the C++ type of a column's codes, once for a stretch of records.
#pragma once

#include "storage/column.h"

#include <cstdint>

namespace kelx::execution {

/// use(const Code*) for codes of 1, 2, 4 or 8 bytes; reals come as their bits.
template <class Use>
decltype(auto) withCodes(const void* data, storage::Physical physical, Use&& use) {
    switch (physical) {
    case storage::Physical::Code8:
        return use(static_cast<const std::uint8_t*>(data));
    case storage::Physical::Code16:
        return use(static_cast<const std::uint16_t*>(data));
    case storage::Physical::Code32:
        return use(static_cast<const std::uint32_t*>(data));
    default:
        return use(static_cast<const std::uint64_t*>(data));
    }
}

} // namespace kelx::execution
