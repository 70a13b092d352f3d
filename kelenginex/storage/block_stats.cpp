// SPDX-License-Identifier: Apache-2.0
#include "storage/block_stats.h"

#include <algorithm>
#include <limits>

namespace kelx::storage {

namespace {

/// The blank is the largest code, so only the maximum has to look away from it. Blanks are
/// counted in stretches that a narrow counter holds, which keeps the loop in full vectors.
template <class Code>
Zone measureCodes(const Code* codes, std::size_t count) {
    constexpr Code blank = std::numeric_limits<Code>::max();
    constexpr std::size_t stretch = sizeof(Code) == 1 ? 255 : 32768;
    Code lowest = blank;
    Code highest = 0;
    std::size_t blanks = 0;
    for (std::size_t begin = 0; begin < count; begin += stretch) {
        const std::size_t end = std::min(count, begin + stretch);
        Code found = 0;
        for (std::size_t i = begin; i < end; ++i) {
            const Code code = codes[i];
            const Code valued = code == blank ? Code{0} : code;
            lowest = std::min(lowest, code);
            highest = std::max(highest, valued);
            found = static_cast<Code>(found + (code == blank ? 1 : 0));
        }
        blanks += found;
    }
    Zone zone;
    zone.minCode = blanks == count ? 0 : lowest;
    zone.maxCode = highest;
    zone.blanks = static_cast<std::uint32_t>(blanks);
    zone.records = static_cast<std::uint32_t>(count);
    return zone;
}

/// Comparisons with a NaN are false, which leaves blanks out by themselves.
Zone measureReals(const double* values, std::size_t count) {
    constexpr std::size_t lanes = 8;
    double lowest[lanes];
    double highest[lanes];
    std::uint64_t blanks[lanes] = {};
    std::fill_n(lowest, lanes, std::numeric_limits<double>::infinity());
    std::fill_n(highest, lanes, -std::numeric_limits<double>::infinity());
    const auto take = [&](std::size_t lane, double value) {
        lowest[lane] = value < lowest[lane] ? value : lowest[lane];
        highest[lane] = value > highest[lane] ? value : highest[lane];
        blanks[lane] += value != value ? 1 : 0; // NOLINT(misc-redundant-expression)
    };
    std::size_t i = 0;
    for (; i + lanes <= count; i += lanes)
        for (std::size_t lane = 0; lane < lanes; ++lane)
            take(lane, values[i + lane]);
    for (; i < count; ++i)
        take(0, values[i]);
    Zone zone;
    for (const auto blank : blanks)
        zone.blanks += static_cast<std::uint32_t>(blank);
    zone.records = static_cast<std::uint32_t>(count);
    if (zone.blanks < zone.records) {
        zone.minReal = *std::min_element(lowest, lowest + lanes);
        zone.maxReal = *std::max_element(highest, highest + lanes);
    }
    return zone;
}

} // namespace

Zone measureBlock(Physical physical, const void* values, std::size_t count) {
    switch (physical) {
    case Physical::Code8:
        return measureCodes(static_cast<const std::uint8_t*>(values), count);
    case Physical::Code16:
        return measureCodes(static_cast<const std::uint16_t*>(values), count);
    case Physical::Code32:
        return measureCodes(static_cast<const std::uint32_t*>(values), count);
    case Physical::Code64:
        return measureCodes(static_cast<const std::uint64_t*>(values), count);
    case Physical::Real64:
        break;
    }
    return measureReals(static_cast<const double*>(values), count);
}

bool sameZone(const Zone& a, const Zone& b) {
    return a.minCode == b.minCode && a.maxCode == b.maxCode && a.minReal == b.minReal &&
           a.maxReal == b.maxReal && a.blanks == b.blanks && a.records == b.records;
}

void ZoneTotal::add(const Zone& zone) {
    if (zone.blanks < zone.records) {
        const bool first = blanks == records;
        minCode = first ? zone.minCode : std::min(minCode, zone.minCode);
        maxCode = first ? zone.maxCode : std::max(maxCode, zone.maxCode);
        minReal = first ? zone.minReal : std::min(minReal, zone.minReal);
        maxReal = first ? zone.maxReal : std::max(maxReal, zone.maxReal);
    }
    records += zone.records;
    blanks += zone.blanks;
}

} // namespace kelx::storage
