// SPDX-License-Identifier: Apache-2.0
// The values of an expression for the records of a list.
#pragma once

#include "execution/frames.h"
#include "execution/progress.h"
#include "execution/result.h"

#include <cstdint>
#include <vector>

namespace kelx::execution {

enum class Shown {
    ValidValues, ///< MV and NA are blank
    StoredCodes  ///< what is stored, as it is
};

/// Records are of unit and ascend; the expression is of unit or above. Throws Cancelled, and
/// std::runtime_error on what is not supported.
ListValues listColumn(const language::Expression& expression, const Entity& unit,
                      const std::vector<std::uint64_t>& records, Shown shown, Progress& progress);

} // namespace kelx::execution
