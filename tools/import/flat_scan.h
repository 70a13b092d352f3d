// SPDX-License-Identifier: Apache-2.0
// The first reading of a flat file: everything is checked, nothing is written.
#pragma once

#include "import/faults.h"
#include "import/flat_plan.h"
#include "import/type_guess.h"

#include <cstdint>
#include <string>
#include <vector>

namespace kelx::tools {

/// Finds the level of each field without one: the highest level within whose records it never
/// changes. Finds the types, and rows that contradict the first row of a record above.
class FlatScan {
public:
    /// The fields are the source's with what else is known of them.
    FlatScan(RowSource& source, std::vector<SourceField> fields, FlatPlan& plan, Faults& faults);

    /// Reads to the end. The plan's levels have all their fields then.
    void run();

    /// The source's fields with their types, labels and codes.
    const std::vector<SourceField>& fields() const { return fields_; }
    const ColumnSummary& summary(std::size_t field) const { return watches_[field].summary; }
    /// What made a field a text whose type was not known; null for another one.
    const std::optional<TypeGuess::Culprit>& culprit(std::size_t field) const {
        return watches_[field].guess.culprit();
    }
    /// Fields that are texts although most of their values are numbers.
    std::vector<std::string> notes() const;
    std::uint64_t rowsRead() const { return rowsRead_; }
    std::uint64_t conflicts(std::size_t field) const { return watches_[field].conflicts; }

private:
    struct Watch {
        SourceValue::Kind kind = SourceValue::Kind::Blank;
        std::string text;
        double number = 0;
        std::uint64_t line = 0; ///< of the held value
        bool any = false;
        std::uint64_t conflicts = 0;
        TypeGuess guess;
        ColumnSummary summary;

        bool holds(const SourceValue& value) const;
        void hold(const SourceValue& value);
    };

    void watch(std::size_t field, const std::vector<std::size_t>& chain, std::size_t firstNew,
               std::size_t depth);
    void noteConflict(std::size_t field, std::size_t level, const SourceValue& value);
    void noteValue(std::size_t field, const SourceValue& value);
    void noteTyped(std::size_t field, const TypedValue& value);
    void settle();

    RowSource& source_;
    FlatPlan& plan_;
    Faults& faults_;
    std::vector<SourceField> fields_;
    std::vector<bool> placed_; ///< fields whose level is not up to their values
    std::vector<Watch> watches_;
    std::uint64_t rowsRead_ = 0;
    std::vector<std::uint64_t> recordLine_; ///< of each level's current record
};

} // namespace kelx::tools
