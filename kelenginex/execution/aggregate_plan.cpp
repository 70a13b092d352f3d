// SPDX-License-Identifier: Apache-2.0
#include "execution/aggregate_plan.h"

#include "storage/column.h"

#include <algorithm>
#include <stdexcept>

namespace kelx::execution {
namespace {

/// Pieces depend on the data alone, so that sums are the same on any machine.
constexpr std::uint64_t pieceRecords = std::uint64_t{1} << 20;

const Entity& lowerOf(const language::Aggregate& aggregate, const Entity& upper) {
    if (aggregate.over == nullptr || aggregate.over == &upper ||
        !upper.isAncestorOf(*aggregate.over))
        throw std::runtime_error("What is gone over for each " + upper.name +
                                 " must be records below it.");
    return *aggregate.over;
}

} // namespace

AggregatePlan::AggregatePlan(const language::Aggregate& aggregate, const Entity& upper,
                             plan::Selections& selections)
    : aggregate_(aggregate), upper_(upper), path_(upper, lowerOf(aggregate, upper)),
      selected_(selections.recordsOf(*aggregate.over, aggregate.areas.get())) {
    const std::uint64_t records = upper.records();
    for (std::uint64_t begin = 0; begin < records; begin += storage::recordsPerBlock)
        cutBlock(counts_.size(), {begin, std::min(begin + storage::recordsPerBlock, records)});
}

void AggregatePlan::cutBlock(std::size_t block, const plan::RecordRange& above) {
    const plan::RecordRange below{path_.first(above.begin), path_.first(above.end)};
    const std::uint64_t count =
        std::max<std::uint64_t>(1, (below.end - below.begin + pieceRecords - 1) / pieceRecords);
    counts_.push_back(static_cast<std::size_t>(count));
    if (count == 1) {
        pieces_.push_back(
            {block, 0, below, above.begin, static_cast<std::size_t>(above.end - above.begin)});
        return;
    }
    for (std::size_t number = 0; number < count; ++number) {
        const std::uint64_t begin = below.begin + number * pieceRecords;
        const std::uint64_t end = std::min(below.end, begin + pieceRecords);
        const std::uint64_t first = path_.above(begin);
        const std::uint64_t last = path_.above(end - 1);
        pieces_.push_back(
            {block, number, {begin, end}, first, static_cast<std::size_t>(last - first + 1)});
    }
}

} // namespace kelx::execution
