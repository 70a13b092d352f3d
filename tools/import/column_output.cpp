// SPDX-License-Identifier: Apache-2.0
#include "import/column_output.h"

namespace kelx::tools {

using storage::ValueType;

storage::ColumnPlan planFor(const ColumnSummary& summary,
                            const std::shared_ptr<const storage::Secret>& key) {
    storage::ColumnPlan plan;
    plan.type = summary.field->type;
    plan.decimals = static_cast<std::uint8_t>(summary.decimals);
    plan.key = key;
    if (plan.type == ValueType::Integer) {
        const bool any = summary.lowest <= summary.highest;
        plan.lowest = any ? summary.lowest : 0;
        plan.highest = any ? summary.highest : 0;
    }
    return plan;
}

void addValue(storage::ColumnWriter& writer, ValueType type, const TypedValue& value) {
    if (value.blank)
        writer.addBlank();
    else if (type == ValueType::Real)
        writer.addReal(value.real);
    else if (type == ValueType::String)
        writer.addText(value.text);
    else
        writer.addInteger(value.integer);
}

} // namespace kelx::tools
