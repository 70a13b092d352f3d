// SPDX-License-Identifier: Apache-2.0
// How the records below are cut into pieces of work, so that few records above many below keep
// several threads busy, too.
#pragma once

#include "execution/frames.h"
#include "language/bound.h"
#include "plan/selection.h"

#include <cstddef>
#include <cstdint>
#include <vector>

namespace kelx::execution {

/// Records below that belong to one block of records above.
struct AggregatePiece {
    std::size_t block = 0;
    std::size_t number = 0; ///< among the pieces of its block
    plan::RecordRange below;
    std::uint64_t firstGroup = 0; ///< records above that they belong to; all of the block where
    std::size_t groups = 0;       ///< there is but one piece
};

class AggregatePlan {
public:
    /// The entity of the aggregate must lie below upper.
    AggregatePlan(const language::Aggregate& aggregate, const Entity& upper,
                  plan::Selections& selections);

    const language::Aggregate& aggregate() const { return aggregate_; }
    const plan::DescentPath& path() const { return path_; }
    const Entity& upper() const { return upper_; }
    const Entity& over() const { return *aggregate_.over; }
    /// Records that it goes over.
    const plan::RecordRanges& selected() const { return selected_; }
    /// In the order of blocks and, within a block, of records.
    const std::vector<AggregatePiece>& pieces() const { return pieces_; }
    /// Pieces of a block.
    std::size_t piecesOf(std::size_t block) const { return counts_[block]; }
    /// The records of a piece that are selected.
    plan::RecordRanges selected(const AggregatePiece& piece) const {
        return plan::within(selected_, piece.below);
    }

private:
    void cutBlock(std::size_t block, const plan::RecordRange& above);

    const language::Aggregate& aggregate_;
    const Entity& upper_;
    plan::DescentPath path_;
    plan::RecordRanges selected_;
    std::vector<AggregatePiece> pieces_;
    std::vector<std::size_t> counts_;
};

} // namespace kelx::execution
