// SPDX-License-Identifier: Apache-2.0
// Categories of several tables put together.
#pragma once

#include "output/rows.h"

#include <cstddef>
#include <cstdint>
#include <vector>

namespace kelx::output {

/// A dimension that several tables have, with the categories of all of them.
struct JoinedDimension {
    execution::Dimension dimension; ///< named as the first table's
    std::uint32_t valid = 0;
    std::vector<std::vector<std::uint32_t>> places; ///< by table and its own place: the joined one
};

JoinedDimension joinDimension(const std::vector<const RowTable*>& tables, std::size_t dimension);

} // namespace kelx::output
