// SPDX-License-Identifier: Apache-2.0
// Which records of a step a table takes by its own clauses, and how much each counts.
#pragma once

#include "execution/node.h"
#include "execution/record_filter.h"
#include "execution/weights.h"

#include <cstddef>
#include <cstdint>
#include <memory>
#include <vector>

namespace kelx::execution {

/// The mask without the records that the filter or the weights, found for the step, leave out,
/// where they are there; in the buffer where it is not the one that was given. Null takes all.
const std::uint8_t* passingMask(Frames& frames, const std::uint8_t* mask, RecordFilter* filter,
                                Weights* weights, std::vector<std::uint8_t>& buffer);

/// Filter, weight and tally of one table. One for each thread.
class RecordWeights {
public:
    /// Throws std::runtime_error where weight or tally is no number.
    RecordWeights(const language::TableCommand& command, const Entity& unit, NodePool& nodes);

    bool weighted() const { return weights_.any(); }
    bool mayPass(const plan::RecordRange& records) const {
        return !filter_ || filter_->mayPass(records);
    }
    /// The mask without the records that the filter or a weight without value leaves out; null
    /// takes all.
    const std::uint8_t* mask(Frames& frames, const std::uint8_t* mask);
    /// Weight times tally of each record; after mask(), and only where weighted().
    const double* weights(Frames& frames) { return weights_.ofRecords(frames); }

private:
    std::unique_ptr<RecordFilter> filter_;
    Weights weights_;
    std::vector<std::uint8_t> mask_;
};

} // namespace kelx::execution
