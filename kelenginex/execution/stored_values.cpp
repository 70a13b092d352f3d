// SPDX-License-Identifier: Apache-2.0
#include "execution/stored_values.h"

#include "execution/vector.h"
#include "storage/coding.h"
#include "storage/stored_value.h"

#include <string_view>
#include <type_traits>

namespace kelx::execution {
StoredValues::StoredValues(const catalog::Variable& variable)
    : column_(variable.column()), states_(variable) {}

std::int64_t StoredValues::whole(std::uint64_t code) const {
    return storage::decodeValue(column_->info().base, code);
}

StoredValues::Value StoredValues::value(std::uint64_t code) const {
    return std::visit(
        [](auto value) -> Value {
            if constexpr (std::is_same_v<decltype(value), std::string_view>)
                return std::string(value);
            else
                return value;
        },
        storage::storedValue(*column_, code));
}

std::uint8_t StoredValues::state(std::uint64_t code) const {
    if (code == column_->info().naCode)
        return state::blankNotApplicable;
    const storage::StoredValue value = storage::storedValue(*column_, code);
    if (std::holds_alternative<std::monostate>(value))
        return state::blank;
    if (!states_.any())
        return state::valid;
    if (const auto* text = std::get_if<std::string_view>(&value))
        return states_.ofText(*text);
    if (const auto* real = std::get_if<double>(&value))
        return states_.ofNumber(*real);
    return states_.ofInteger(std::get<std::int64_t>(value));
}

} // namespace kelx::execution
