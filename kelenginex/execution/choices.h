// SPDX-License-Identifier: Apache-2.0
// One of several values for each record, and which one the codes of a variable choose.
#pragma once

#include "execution/code_intervals.h"
#include "execution/interval_table.h"
#include "execution/node.h"

#include <cstdint>
#include <memory>
#include <vector>

namespace kelx::execution {

using Choice = std::uint16_t; ///< number of a value; one beyond the last: none

/// The values to choose from, and filling in what was chosen.
class Choices {
public:
    /// Throws std::runtime_error where there are too many.
    Choices(std::vector<Node*> values, bool hasElse);

    std::size_t size() const { return nodes_.size(); }
    /// What a record gets that nothing else takes: ELSE's value, which is the last, or none.
    Choice rest() const { return static_cast<Choice>(hasElse_ ? size() - 1 : size()); }
    /// Throws std::runtime_error where texts and numbers meet.
    ValueType type() const;
    /// Only values that a record has chosen are worked out.
    void fill(Frames& frames, const std::vector<Choice>& chosen, Vector& result);

private:
    void workOut(Frames& frames, const std::vector<Choice>& chosen);
    template <class T, class Data>
    void pick(const std::vector<Choice>& chosen, Data data, std::vector<T>& out);
    void pickStates(const std::vector<Choice>& chosen, Vector& result) const;

    std::vector<Node*> nodes_;
    bool hasElse_;
    std::vector<NumberView> views_;
    std::vector<const Vector*> vectors_; ///< null: nobody has chosen it
    std::vector<std::uint8_t> wanted_;   ///< by choice, none among them
};

/// Which value each code of a variable chooses.
class CodeChoices {
public:
    /// Intervals of codes and the value that they choose; the first rule that holds a code counts.
    struct Rule {
        CodeIntervals intervals;
        Choice choice;
    };

    CodeChoices(const catalog::Variable& variable, const std::vector<Rule>& rules, Choice rest);
    /// For a frame of the variable's entity.
    void choose(const Frame& frame, std::vector<Choice>& chosen);

private:
    void fillByCode(const std::vector<Rule>& rules, std::size_t codes);
    void fillByEnds(const std::vector<Rule>& rules);
    template <class Code>
    void chooseByEnds(const Code* codes, std::vector<Choice>& chosen) const;

    std::shared_ptr<const storage::Column> column_;
    storage::ColumnScratch scratch_;
    Choice rest_;
    std::vector<Choice> byCode_; ///< of codes of one or two bytes
    IntervalTable<std::uint64_t> byEnds_;
    std::vector<Choice> choices_; ///< by interval
};

} // namespace kelx::execution
