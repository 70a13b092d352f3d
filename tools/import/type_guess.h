// SPDX-License-Identifier: Apache-2.0
// The narrowest type that holds all values of a field.
#pragma once

#include "import/typed_value.h"

#include <cstdint>
#include <optional>
#include <string>

namespace kelx::tools {

/// Whole numbers are integers, other numbers reals, anything else texts. A number written with
/// zeros in front is a text, since it is a code, unless the field is numeric. So are whole numbers
/// that their type could not tell apart.
class TypeGuess {
public:
    /// Takes the field's value in the source's current row.
    void note(const RowSource& source, std::size_t index, const SourceField& field);
    /// Gives the field its type and, as numbers go, its bounds and decimals.
    void settle(SourceField& field, ColumnSummary& summary);

    /// A value that makes the field a text.
    struct Culprit {
        std::string text, why;
        Place place;
    };
    /// Once settled, of a field that is a text.
    const std::optional<Culprit>& culprit() const { return culprit_; }
    /// Most of its values are numbers all the same.
    bool isMostlyNumbers() const { return numbers_ > others_; }

private:
    using First = std::optional<Culprit>;

    void noteText(const RowSource& source, std::size_t index, std::string_view text, bool numeric);
    void noteNumber(double number);
    void noteReal(double number, std::string_view text);
    void noteInteger(std::int64_t value);
    First whyText(const SourceField& field) const;

    std::uint64_t numbers_ = 0, others_ = 0; ///< values that differ from the one before
    bool hasReals_ = false;
    First firstOther_, firstWide_, firstLarge_, firstReal_, lastBound_;
    ColumnSummary seen_;
    First culprit_;
};

} // namespace kelx::tools
