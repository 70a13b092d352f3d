// SPDX-License-Identifier: Apache-2.0
// Conditions on records below those that are counted.
#pragma once

#include "execution/crew.h"
#include "execution/frames.h"
#include "plan/same_expression.h"

#include <atomic>
#include <cstddef>
#include <cstdint>
#include <map>
#include <memory>
#include <vector>

namespace kelx::execution {

/// A bit for each record of an entity; bits may be set by several threads.
class RecordBits {
public:
    explicit RecordBits(std::uint64_t records) : words_((records + wordBits - 1) / wordBits) {}

    bool at(std::uint64_t record) const {
        return (words_[record / wordBits].load(std::memory_order_relaxed) & bit(record)) != 0;
    }
    void set(std::uint64_t record) {
        words_[record / wordBits].fetch_or(bit(record), std::memory_order_relaxed);
    }
    /// True where a record of the range, or one near it, has its bit set.
    bool mayHaveAny(const plan::RecordRange& range) const;

private:
    static constexpr std::uint64_t wordBits = 64;
    static std::uint64_t bit(std::uint64_t record) {
        return std::uint64_t{1} << (record % wordBits);
    }
    std::vector<std::atomic<std::uint64_t>> words_;
};

/// Which records have a passing record below is worked out by all threads before it is asked for:
/// the records below one may be far more than a step.
class LowerConditions {
public:
    /// Notes a condition, on an entity below the unit, that is to be asked of the unit's records in
    /// the ranges; any other condition is none for here.
    void note(const language::ExpressionPtr& condition, const Entity& unit,
              const plan::RecordRanges& ranges);
    /// Records below to go over.
    std::uint64_t records() const;
    /// Works all noted conditions out, adding their records to the progress. Throws Cancelled, and
    /// std::runtime_error where one is no condition.
    void work(unsigned threads, std::size_t stepRecords, Progress& progress);

    /// The records of the unit that have a passing record below; the condition was noted.
    const RecordBits& passing(const language::Expression& condition, const Entity& unit) const;

private:
    struct Condition;
    class Worker;
    using Conditions = plan::ExpressionMap<std::shared_ptr<Condition>>;

    std::map<const Entity*, Conditions> conditions_; ///< by unit
};

} // namespace kelx::execution
