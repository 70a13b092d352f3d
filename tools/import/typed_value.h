// SPDX-License-Identifier: Apache-2.0
// Values of sources as values of fields.
#pragma once

#include "import/row_source.h"

#include <cstdint>
#include <limits>
#include <string>
#include <string_view>

namespace kelx::tools {

/// A value of a field's type.
struct TypedValue {
    bool blank = true;
    std::int64_t integer = 0; ///< also of booleans
    double real = 0;
    std::string_view text; ///< as written; valid until the next row
};

/// What is wrong with a value, empty for nothing; then `typed` is what the field makes of it.
std::string readValue(const SourceValue& value, const FieldPlan& field, TypedValue& typed);

/// What the values of a column have in common.
struct ColumnSummary {
    const FieldPlan* field = nullptr;
    std::uint64_t blanks = 0;
    std::uint64_t outside = 0; ///< values that a coded field has no label for
    std::uint64_t faulty = 0;  ///< values that do not fit the type; blank in the database
    std::int64_t lowest = std::numeric_limits<std::int64_t>::max();
    std::int64_t highest = std::numeric_limits<std::int64_t>::min();
    int decimals = 0; ///< the most that occur

    void note(const TypedValue& value); ///< lowest, highest and decimals
    bool fits() const;                  ///< a column can hold all whole numbers and a blank
};

} // namespace kelx::tools
