// SPDX-License-Identifier: Apache-2.0
// Works on pieces of an aggregate; one for each thread.
#pragma once

#include "execution/aggregate_plan.h"
#include "execution/group_fold.h"
#include "execution/progress.h"
#include "execution/record_filter.h"

#include <memory>
#include <vector>

namespace kelx::execution {

class Aggregator {
public:
    /// Real: sums and counts are wanted as real numbers. Throws std::runtime_error where a value
    /// or weight is no number or a filter no condition.
    Aggregator(const AggregatePlan& plan, const LowerConditions& lower, bool real,
               std::size_t stepRecords, Progress& progress);

    /// A fold for so many groups.
    std::unique_ptr<GroupFold> makeFold(std::size_t groups) const;
    /// Null where goOn said so.
    std::unique_ptr<GroupFold> work(const AggregatePiece& piece, const GoOn& goOn);

    enum class Bytes { Written, Refused, Ended };
    /// Counts the records of a whole block's groups straight into bytes; refused where that cannot
    /// be done, or where a count is above mostInRun. Only for counts without weight.
    Bytes countBytes(const AggregatePiece& piece, std::uint8_t* out, const GoOn& goOn);
    bool countsPlainly() const;

private:
    Node* numbers(const language::ExpressionPtr& expression);
    bool mayPass(const plan::RecordRange& records) const;
    const std::uint8_t* findMask();
    void dropInvalid(const Vector& values);
    FoldStep step(const AggregatePiece& piece);
    const std::uint32_t* offsetsOf(const AggregatePiece& piece);

    const AggregatePlan& plan_;
    FoldKind kind_;
    std::size_t stepRecords_;
    Progress& progress_;
    Frames frames_;
    NodePool nodes_;
    std::vector<std::unique_ptr<RecordFilter>> filters_;
    Node* value_ = nullptr;
    Node* weight_ = nullptr;
    NumberView valueView_, weightView_;
    Vector whole_; ///< truth values as numbers
    std::vector<std::uint8_t> mask_;
    std::vector<std::uint32_t> offsets_;
};

} // namespace kelx::execution
