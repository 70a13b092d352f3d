// SPDX-License-Identifier: Apache-2.0
// Which values of a variable are missing or not applicable.
#pragma once

#include "catalog/model.h"

#include <cstdint>
#include <optional>
#include <string_view>

namespace kelx::execution {

/// The codes for MV and NA of a variable. NA goes first where both are the same.
struct ValueStates {
    explicit ValueStates(const catalog::Variable& variable)
        : missing(variable.missing), notApplicable(variable.notapp) {}

    bool any() const { return missing.has_value() || notApplicable.has_value(); }
    std::uint8_t ofNumber(double value) const;
    std::uint8_t ofInteger(std::int64_t value) const;
    /// A text that is a number, blanks around it and zeros before it left aside.
    std::uint8_t ofText(std::string_view text) const;

    std::optional<double> missing, notApplicable;
};

} // namespace kelx::execution
