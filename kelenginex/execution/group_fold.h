// SPDX-License-Identifier: Apache-2.0
// What is made of the records under each of many records above: counts, sums and the like.
#pragma once

#include "execution/cells.h"
#include "execution/vector.h"
#include "language/bound.h"

#include <cstddef>
#include <cstdint>
#include <memory>
#include <vector>

namespace kelx::execution {

/// A stretch of records below, in runs of groups.
struct FoldStep {
    const std::uint8_t* mask;               ///< which records count; none of them is MV or NA
    const Vector* values = nullptr;         ///< null for Count
    const double* weights = nullptr;        ///< null: 1 each
    std::size_t weightStep = 1;             ///< 0: one weight for all
    const std::vector<std::uint32_t>& ends; ///< of the runs
    std::size_t firstGroup = 0;             ///< the group of the first run
};

/// The groups of a stretch of records above. Records are added in their order, so that sums do not
/// depend on how the stretch is cut.
class GroupFold {
public:
    virtual ~GroupFold() = default;
    virtual void add(const FoldStep& step) = 0;
    /// Takes the groups of a fold of the same kind over records that follow; its first group is
    /// group `at` of this one.
    virtual void join(GroupFold& later, std::size_t at) = 0;
    /// A value for each group; false where goOn said so. A sum of whole numbers that is none of 64
    /// bits is MV, and so is anything but counts and sums of no record.
    virtual bool finish(Vector& result, const GoOn& goOn) = 0;
};

/// The type of what a fold makes of values of a type. Sums of whole numbers are made real on
/// demand, where they have no bounds.
struct FoldKind {
    language::Aggregate::Kind kind;
    ValueType values = ValueType::Integer; ///< Integer, Real or Boolean
    bool weighted = false;
    bool real = false;
};

std::unique_ptr<GroupFold> makeFold(const FoldKind& kind, std::size_t groups);

} // namespace kelx::execution
