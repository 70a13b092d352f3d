// SPDX-License-Identifier: Apache-2.0
#include "execution/value_states.h"

#include "execution/vector.h"

#include <charconv>

namespace kelx::execution {

std::uint8_t ValueStates::ofNumber(double value) const {
    if (notApplicable && value == *notApplicable)
        return state::notApplicable;
    return missing && value == *missing ? state::missing : state::valid;
}

std::uint8_t ValueStates::ofInteger(std::int64_t value) const {
    return ofNumber(static_cast<double>(value));
}

std::uint8_t ValueStates::ofText(std::string_view text) const {
    const auto first = text.find_first_not_of(' ');
    if (first == std::string_view::npos || !any())
        return state::valid;
    text = text.substr(first, text.find_last_not_of(' ') - first + 1);
    double value = 0;
    const auto end = text.data() + text.size();
    const auto read = std::from_chars(text.data(), end, value);
    return read.ec == std::errc() && read.ptr == end ? ofNumber(value) : state::valid;
}

} // namespace kelx::execution
