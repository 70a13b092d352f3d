// SPDX-License-Identifier: Apache-2.0
// What a block of values holds: the loops behind zone maps and behind their check.
#pragma once

#include "storage/column.h"

#include <cstddef>

namespace kelx::storage {

/// Bounds over the values that are not blank (0 where there are none), blanks, records.
Zone measureBlock(Physical physical, const void* values, std::size_t count);

bool sameZone(const Zone& a, const Zone& b);

/// Takes the values of another zone into this one; the zones may be of any size.
struct ZoneTotal {
    std::uint64_t records = 0;
    std::uint64_t blanks = 0;
    std::uint64_t minCode = 0;
    std::uint64_t maxCode = 0;
    double minReal = 0;
    double maxReal = 0;

    void add(const Zone& zone);
};

} // namespace kelx::storage
