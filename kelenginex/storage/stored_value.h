// SPDX-License-Identifier: Apache-2.0
// The value behind a code of a column.
#pragma once

#include "storage/column.h"

#include <cstddef>
#include <cstdint>
#include <string_view>
#include <variant>

namespace kelx::storage {

/// Nothing for a blank and for what the column itself keeps as NA; truth values are 0 and 1. Texts
/// are the column's own.
using StoredValue = std::variant<std::monostate, std::int64_t, double, std::string_view>;

/// The code at a place of what read() gives, in 64 bits: a blank is all ones, a real number its
/// bits.
std::uint64_t codeAt(const void* codes, std::size_t at, Physical physical);
/// The value of such a code.
StoredValue storedValue(const Column& column, std::uint64_t code);

} // namespace kelx::storage
