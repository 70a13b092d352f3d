// SPDX-License-Identifier: Apache-2.0
// What the records of a step weigh in one table.
#pragma once

#include "execution/node.h"
#include "execution/weight_parts.h"
#include "language/bound.h"

#include <cstddef>
#include <cstdint>
#include <optional>
#include <vector>

namespace kelx::execution {

/// Weight times tally. Mostly they belong to records above the unit's, as those of persons do to
/// their household, so they are worked out by runs. One for each table and thread.
class Weights {
public:
    /// Throws std::runtime_error where weight or tally is no number.
    Weights(const language::TableCommand& command, const Entity& unit, NodePool& nodes);

    bool any() const { return weight_ != nullptr || tally_ != nullptr; }
    /// Sums can be made of parts. Known beforehand from the columns, so that it is the same for
    /// every step and thread.
    bool exact() const { return units_.has_value(); }
    /// Works them out for the current frame.
    void find(Frames& frames);
    /// Of each run, where exact(). Those without a value weigh nothing and are no record.
    const std::vector<WeightParts>& parts();
    /// The run of each record; null where every record has its own.
    const std::uint32_t* runs(Frames& frames);
    /// Of each record. May be written to.
    double* ofRecords(Frames& frames);
    bool mayBeInvalid() const { return mayBeInvalid_; }
    /// Clears the mask of records without a value.
    void dropInvalid(Frames& frames, std::uint8_t* mask);

private:
    Node* factor(const language::ExpressionPtr& expression, NodePool& nodes) const;
    void multiplyBy(Node& factor, Frames& frames);
    const std::vector<std::uint32_t>& ends(Frames& frames);

    const Entity* unit_;
    const Entity* entity_; ///< whose records have the weights; null where one holds for all
    Node* weight_;
    Node* tally_;
    std::optional<WeightUnits> units_;
    bool mayBeInvalid_ = false; ///< in the current frame
    std::vector<double> weights_, spread_;
    std::vector<std::uint8_t> invalid_;
    std::vector<WeightParts> parts_;
    std::vector<std::uint32_t> numbers_, runs_, onlyEnd_;
};

} // namespace kelx::execution
