// SPDX-License-Identifier: Apache-2.0
// A column as it goes to a file, where NA needs a code like any other.
#pragma once

#include "catalog/model.h"
#include "storage/pulse.h"

#include <memory>
#include <optional>

namespace kelx::execution {

/// A code for NA that no value of the variable, no label and not its code for MV has: one above
/// the largest, of texts the first of 9, 99, 999 and so on that is free, of truth values the
/// variable's own or one above 1. Nothing where the column has no NA of its own. Throws
/// storage::FileError where none is left.
std::optional<double> freeCodeForNa(const catalog::Variable& variable, const storage::Pulse& pulse);

/// The column with NA as that code; truth values have none to spare and become whole numbers.
/// A column that has no NA of its own is given back.
std::shared_ptr<const storage::Column> withNaAs(std::optional<double> code,
                                                std::shared_ptr<const storage::Column> column);

} // namespace kelx::execution
