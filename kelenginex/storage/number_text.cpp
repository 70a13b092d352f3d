// SPDX-License-Identifier: Apache-2.0
#include "storage/number_text.h"

#include <charconv>
#include <cmath>

namespace kelx::storage {

std::string numberText(double value) {
    if (!std::isfinite(value))
        return {};
    if (value == 0)
        return "0";
    char buffer[400]; // at most 309 digits before the point, or 324 behind it
    const auto end =
        std::to_chars(buffer, buffer + sizeof buffer, value, std::chars_format::fixed).ptr;
    return {buffer, end};
}

} // namespace kelx::storage
