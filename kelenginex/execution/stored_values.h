// SPDX-License-Identifier: Apache-2.0
// Values and states behind the codes of a variable's column.
#pragma once

#include "execution/value_states.h"
#include "storage/column.h"

#include <cstdint>
#include <memory>
#include <string>
#include <variant>

namespace kelx::execution {

/// Codes are as CodeSource::numbers() gives them: blanks are all ones, reals are their bits.
class StoredValues {
public:
    using Value = std::variant<std::monostate, std::int64_t, double, std::string>;

    explicit StoredValues(const catalog::Variable& variable);

    /// Truth values are 0 and 1; a blank is nothing.
    Value value(std::uint64_t code) const;
    /// The value of a code of whole numbers or truth values.
    std::int64_t whole(std::uint64_t code) const;
    std::uint8_t state(std::uint64_t code) const;

private:
    std::shared_ptr<const storage::Column> column_;
    ValueStates states_;
};

} // namespace kelx::execution
