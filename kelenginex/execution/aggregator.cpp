// SPDX-License-Identifier: Apache-2.0
#include "execution/aggregator.h"

#include "execution/kernels.h"

#include <algorithm>
#include <limits>
#include <stdexcept>

namespace kelx::execution {
namespace {

/// Counting into bytes works on stretches that stay in a near cache with their masks.
constexpr std::size_t mostCounted = 16384;

} // namespace

Aggregator::Aggregator(const AggregatePlan& plan, const LowerConditions& lower, bool real,
                       std::size_t stepRecords, Progress& progress)
    : plan_(plan), stepRecords_(stepRecords), progress_(progress), frames_(plan.over()),
      nodes_(&lower) {
    const language::Aggregate& aggregate = plan.aggregate();
    for (const auto& condition : aggregate.filters)
        filters_.push_back(makeFilter(condition, plan.over(), nodes_));
    if (aggregate.kind != language::Aggregate::Kind::Count)
        value_ = numbers(aggregate.value);
    if (aggregate.weight)
        weight_ = numbers(aggregate.weight);
    kind_ = {aggregate.kind, value_ != nullptr ? value_->type() : ValueType::Integer,
             weight_ != nullptr, real};
}

Node* Aggregator::numbers(const language::ExpressionPtr& expression) {
    if (!expression)
        throw std::logic_error("an aggregate needs a value");
    Node& node = nodes_.at(*expression, plan_.over());
    if (!isNumber(node.type()))
        throw std::runtime_error(expression->text + " is no number.");
    return &node;
}

bool Aggregator::countsPlainly() const {
    return kind_.kind == language::Aggregate::Kind::Count && !kind_.weighted;
}

std::unique_ptr<GroupFold> Aggregator::makeFold(std::size_t groups) const {
    return execution::makeFold(kind_, groups);
}

std::unique_ptr<GroupFold> Aggregator::work(const AggregatePiece& piece, const GoOn& goOn) {
    auto fold = makeFold(piece.groups);
    const plan::RecordRanges selected = plan_.selected(piece);
    progress_.add(piece.below.end - piece.below.begin - plan::recordCount(selected));
    for (plan::RecordRange rest : selected) {
        while (rest.begin < rest.end) {
            const auto count = static_cast<std::size_t>(
                std::min<std::uint64_t>(stepRecords_, rest.end - rest.begin));
            if (mayPass({rest.begin, rest.begin + count})) {
                frames_.move(rest.begin, count);
                fold->add(step(piece));
            }
            progress_.add(count);
            if (!goOn())
                return nullptr;
            rest.begin += count;
        }
    }
    return fold;
}

bool Aggregator::mayPass(const plan::RecordRange& records) const {
    return std::all_of(filters_.begin(), filters_.end(),
                       [&](const auto& filter) { return filter->mayPass(records); });
}

FoldStep Aggregator::step(const AggregatePiece& piece) {
    const Entity& upper = plan_.upper();
    FoldStep result{findMask(), nullptr, nullptr, 1, frames_.runEnds(upper, plan_.over()), 0};
    result.firstGroup = static_cast<std::size_t>(frames_.frame(upper).begin - piece.firstGroup);
    if (value_ != nullptr) {
        const Vector& values = value_->value(frames_);
        dropInvalid(values);
        result.values = &values;
        if (values.type == ValueType::Boolean) {
            const std::int64_t* numbers = valueView_.integers(values);
            whole_.integers.assign(numbers, numbers + values.truths.size());
            whole_.constant = values.constant;
            result.values = &whole_;
        }
    }
    if (weight_ != nullptr) {
        const Vector& weights = weight_->value(frames_);
        dropInvalid(weights);
        result.weights = weightView_.reals(weights);
        result.weightStep = weights.constant ? 0 : 1;
    }
    return result;
}

const std::uint8_t* Aggregator::findMask() {
    mask_.assign(frames_.baseFrame().count, truth);
    for (const auto& filter : filters_)
        filter->apply(frames_, mask_.data());
    return mask_.data();
}

/// What is MV or NA, or a real number that none can be compared with, is left out.
void Aggregator::dropInvalid(const Vector& values) {
    if (!values.allValid) {
        for (std::size_t i = 0; i < mask_.size(); ++i)
            mask_[i] = values.stateAt(i) == state::valid ? mask_[i] : std::uint8_t{0};
    }
    if (values.type != ValueType::Real)
        return;
    const std::size_t step = values.constant ? 0 : 1;
    const double* reals = values.reals.data();
    for (std::size_t i = 0; i < mask_.size(); ++i) {
        const double value = reals[i * step];
        mask_[i] = value == value ? mask_[i] : std::uint8_t{0}; // NOLINT(misc-redundant-expression)
    }
}

/// Where the groups of a block begin below, and where the last ends; 32 bits that wrap round.
const std::uint32_t* Aggregator::offsetsOf(const AggregatePiece& piece) {
    const plan::DescentPath& path = plan_.path();
    if (path.length() == 1 && !path.only().isWide())
        return path.only().narrow() + piece.firstGroup;
    offsets_.resize(piece.groups + 1);
    for (std::size_t i = 0; i <= piece.groups; ++i)
        offsets_[i] = static_cast<std::uint32_t>(path.first(piece.firstGroup + i));
    return offsets_.data();
}

Aggregator::Bytes Aggregator::countBytes(const AggregatePiece& piece, std::uint8_t* out,
                                         const GoOn& goOn) {
    if (plan_.selected(piece) != plan::joined({piece.below}))
        return Bytes::Refused;
    const std::size_t step = std::min(stepRecords_, mostCounted);
    const std::uint32_t* offsets = offsetsOf(piece);
    std::uint64_t below = piece.below.begin;
    for (std::size_t group = 0; group < piece.groups;) {
        const auto within = [&](std::size_t limit, std::uint32_t offset) {
            return limit < static_cast<std::uint32_t>(offset - offsets[group]);
        };
        const std::uint32_t* last =
            std::upper_bound(offsets + group + 1, offsets + piece.groups + 1, step, within);
        const auto end = static_cast<std::size_t>(last - offsets) - 1;
        if (end == group) // more than a step's records under one
            return Bytes::Refused;
        const std::uint32_t count = offsets[end] - offsets[group];
        if (count == 0) {
            std::fill(out + group, out + end, std::uint8_t{0});
        } else {
            frames_.move(below, count);
            if (!kernels().countRuns(findMask(), offsets + group, end - group, out + group))
                return Bytes::Refused;
        }
        below += count;
        group = end;
        if (!goOn())
            return Bytes::Ended;
    }
    progress_.add(piece.below.end - piece.below.begin);
    return Bytes::Written;
}

} // namespace kelx::execution
