// SPDX-License-Identifier: Apache-2.0
#include "execution/stored_values.h"

#include "execution/vector.h"
#include "storage/coding.h"

#include <bit>

namespace kelx::execution {
namespace {

constexpr std::uint64_t blank = storage::blankCode(storage::Physical::Code64);

} // namespace

StoredValues::StoredValues(const catalog::Variable& variable)
    : column_(variable.column()), states_(variable) {}

std::int64_t StoredValues::whole(std::uint64_t code) const {
    return storage::decodeValue(column_->info().base, code);
}

StoredValues::Value StoredValues::value(std::uint64_t code) const {
    if (code == blank || code == column_->info().naCode)
        return {};
    if (column_->info().physical == storage::Physical::Real64)
        return std::bit_cast<double>(code);
    if (column_->info().type == ValueType::String)
        return std::string(column_->text(code));
    return whole(code);
}

std::uint8_t StoredValues::state(std::uint64_t code) const {
    if (code == blank)
        return state::blank;
    if (code == column_->info().naCode)
        return state::blankNotApplicable;
    if (!states_.any())
        return state::valid;
    if (column_->info().physical == storage::Physical::Real64)
        return states_.ofNumber(std::bit_cast<double>(code));
    if (column_->info().type == ValueType::String)
        return states_.ofText(column_->text(code));
    return states_.ofInteger(whole(code));
}

} // namespace kelx::execution
