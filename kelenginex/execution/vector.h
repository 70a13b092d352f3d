// SPDX-License-Identifier: Apache-2.0
// The values of an expression over a stretch of records.
#pragma once

#include "storage/column.h"

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <type_traits>
#include <vector>

namespace kelx::execution {

using storage::ValueType;

/// States of values, as bits.
namespace state {
constexpr std::uint8_t valid = 0;
constexpr std::uint8_t missing = 1;
constexpr std::uint8_t notApplicable = 2;
constexpr std::uint8_t noValue = 4; ///< there is no stored code to compare with
constexpr std::uint8_t blank = missing | noValue;
constexpr std::uint8_t blankNotApplicable = notApplicable | noValue;
/// Beside blank: no interval of RECODE and no case of SWITCH took the record.
constexpr std::uint8_t untaken = 8;

/// The state of what is computed from two values: NA goes before MV, and neither has a code.
constexpr std::uint8_t combined(std::uint8_t a, std::uint8_t b) {
    const unsigned both = a | b;
    const unsigned na = (both >> 1) & 1U;
    const unsigned mv = both & 1U & ~na;
    return static_cast<std::uint8_t>(mv | (na << 1) | ((mv | na) << 2));
}
} // namespace state

/// Truth values are 0 or this, so that they serve as masks.
constexpr std::uint8_t truth = 0xff;

/// Values of one type, one a record, or a single one that holds for all (constant).
struct Vector {
    ValueType type = ValueType::None;
    bool constant = false;
    bool allValid = true; ///< states are not filled
    std::vector<std::int64_t> integers;
    std::vector<double> reals;
    std::vector<std::string_view> texts;
    std::vector<std::uint8_t> truths;
    std::vector<std::uint8_t> states;
    std::vector<std::string> made; ///< what texts point at, where no column holds it

    template <class T>
    std::vector<T>& of() {
        if constexpr (std::is_same_v<T, std::int64_t>)
            return integers;
        else if constexpr (std::is_same_v<T, double>)
            return reals;
        else if constexpr (std::is_same_v<T, std::string_view>)
            return texts;
        else
            return truths;
    }
    template <class T>
    const std::vector<T>& of() const {
        return const_cast<Vector*>(this)->of<T>();
    }
    std::uint8_t stateAt(std::size_t i) const {
        return allValid ? state::valid : states[constant ? 0 : i];
    }
};

} // namespace kelx::execution
