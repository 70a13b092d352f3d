// SPDX-License-Identifier: Apache-2.0
// Columns of texts: codes into sorted texts.
#pragma once

#include "execution/column_builder.h"

#include <cstdint>
#include <memory>

namespace kelx::execution {

std::unique_ptr<ColumnBuilder> makeTextBuilder(std::uint64_t records);

} // namespace kelx::execution
