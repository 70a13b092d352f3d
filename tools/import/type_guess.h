// SPDX-License-Identifier: Apache-2.0
// The narrowest type that holds all values of a field.
#pragma once

#include "import/typed_value.h"

#include <cstdint>
#include <limits>

namespace kelx::tools {

/// Whole numbers are integers, other numbers reals, anything else texts. A number written with
/// zeros in front is a text, since it is a code, unless the field is numeric.
class TypeGuess {
public:
    void note(const SourceValue& value, const SourceField& field);
    /// Gives the field its type and, as numbers go, its bounds and decimals.
    void settle(SourceField& field, ColumnSummary& summary) const;

private:
    void noteText(std::string_view text, bool numeric);
    void noteNumber(double number);
    void noteInteger(std::int64_t value);

    bool integers_ = true;
    bool reals_ = true;
    bool texts_ = false;
    ColumnSummary seen_;
};

} // namespace kelx::tools
