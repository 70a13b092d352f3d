// SPDX-License-Identifier: Apache-2.0
// Typed values into column files.
#pragma once

#include "import/typed_value.h"
#include "storage/column_writer.h"

#include <memory>

namespace kelx::tools {

storage::ColumnPlan planFor(const ColumnSummary& summary,
                            const std::shared_ptr<const storage::Secret>& key);
void addValue(storage::ColumnWriter& writer, storage::ValueType type, const TypedValue& value);

} // namespace kelx::tools
