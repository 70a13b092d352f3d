// SPDX-License-Identifier: Apache-2.0
#include "storage/number_text.h"

#include <charconv>
#include <cmath>
#include <cstdint>

namespace kelx::storage {
namespace {

/// A number that at most 15 digits tell, so many of them behind the point: no other number has the
/// same, and no shorter text means it. Most figures are such, and quicker to write.
struct ShortDecimal {
    static constexpr int places = 6;
    static constexpr double scale = 1e6;
    static constexpr double mostScaled = 1e15;

    std::int64_t scaled = 0;

    bool tell(double value) {
        const double wanted = value * scale;
        if (!(std::fabs(wanted) < mostScaled))
            return false;
        const double whole = std::nearbyint(wanted);
        if (whole / scale != value)
            return false;
        scaled = static_cast<std::int64_t>(whole);
        return true;
    }

    std::string text() const {
        char buffer[24];
        char* out = buffer;
        if (scaled < 0)
            *out++ = '-';
        const std::int64_t size = scaled < 0 ? -scaled : scaled;
        const auto unit = static_cast<std::int64_t>(scale);
        out = std::to_chars(out, buffer + sizeof buffer, size / unit).ptr;
        std::int64_t rest = size % unit;
        if (rest != 0) {
            int left = places;
            for (; rest % 10 == 0; --left)
                rest /= 10;
            *out = '.';
            for (int place = left; place > 0; --place, rest /= 10)
                out[place] = static_cast<char>('0' + rest % 10);
            out += left + 1;
        }
        return {buffer, out};
    }
};

} // namespace

std::string numberText(double value) {
    if (!std::isfinite(value))
        return {};
    if (value == 0)
        return "0";
    if (ShortDecimal decimal; decimal.tell(value))
        return decimal.text();
    char buffer[400]; // at most 309 digits before the point, or 324 behind it
    const auto end =
        std::to_chars(buffer, buffer + sizeof buffer, value, std::chars_format::fixed).ptr;
    return {buffer, end};
}

} // namespace kelx::storage
