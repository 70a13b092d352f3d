// SPDX-License-Identifier: Apache-2.0
#include "execution/group_fold.h"

#include "execution/sum.h"

#include <optional>
#include <type_traits>

namespace kelx::execution {
namespace {

using Kind = language::Aggregate::Kind;
__extension__ using Wide = __int128;

/// Reads a value or a weight of a step; constants stand for all records.
template <class T>
struct Reader {
    const T* data;
    std::size_t step;
    T operator[](std::size_t i) const { return data[i * step]; }
};

template <class T>
Reader<T> readerOf(const Vector& values) {
    return {values.of<T>().data(), values.constant ? std::size_t{0} : std::size_t{1}};
}

/// What groups come to: a number of type T, or MV.
template <class T>
void give(std::optional<T> value, std::size_t at, Vector& result) {
    if (value) {
        result.of<T>()[at] = *value;
        return;
    }
    if (result.allValid)
        result.states.assign(result.of<T>().size(), state::valid);
    result.allValid = false;
    result.states[at] = state::blank;
}

std::optional<std::int64_t> narrowed(Wide value) {
    const auto result = static_cast<std::int64_t>(value);
    return result == value ? std::optional(result) : std::nullopt;
}

// The states of a group. Each takes a value and a weight, joins a later state of the same group,
// and tells a result. What it does not use is left out by the compiler.

struct Count {
    using Result = std::int64_t;
    std::int64_t records = 0;
    template <class T>
    void add(T, double) {
        ++records;
    }
    void join(const Count& later) { records += later.records; }
    std::optional<Result> result() const { return records; }
};

struct WeightedCount {
    using Result = double;
    Sum weights;
    template <class T>
    void add(T, double weight) {
        weights.add(weight);
    }
    void join(const WeightedCount& later) { weights.add(later.weights); }
    std::optional<Result> result() const { return weights.value(); }
};

template <class R>
struct WholeSum {
    using Result = R;
    Wide sum = 0;
    void add(std::int64_t value, double) { sum += value; }
    void join(const WholeSum& later) { sum += later.sum; }
    std::optional<Result> result() const {
        if constexpr (std::is_same_v<R, double>)
            return static_cast<double>(sum);
        else
            return narrowed(sum);
    }
};

struct RealSum {
    using Result = double;
    Sum sum;
    template <class T>
    void add(T value, double weight) {
        sum.add(static_cast<double>(value) * weight);
    }
    void join(const RealSum& later) { sum.add(later.sum); }
    std::optional<Result> result() const { return sum.value(); }
};

struct WholeAverage {
    using Result = double;
    Wide sum = 0;
    std::int64_t records = 0;
    void add(std::int64_t value, double) {
        sum += value;
        ++records;
    }
    void join(const WholeAverage& later) {
        sum += later.sum;
        records += later.records;
    }
    std::optional<Result> result() const {
        if (records == 0)
            return std::nullopt;
        return static_cast<double>(sum) / static_cast<double>(records);
    }
};

struct PlainAverage {
    using Result = double;
    Sum sum;
    std::int64_t records = 0;
    void add(double value, double) {
        sum.add(value);
        ++records;
    }
    void join(const PlainAverage& later) {
        sum.add(later.sum);
        records += later.records;
    }
    std::optional<Result> result() const {
        if (records == 0)
            return std::nullopt;
        return sum.value() / static_cast<double>(records);
    }
};

struct RealAverage {
    using Result = double;
    Sum sum, weights;
    template <class T>
    void add(T value, double weight) {
        sum.add(static_cast<double>(value) * weight);
        weights.add(weight);
    }
    void join(const RealAverage& later) {
        sum.add(later.sum);
        weights.add(later.weights);
    }
    std::optional<Result> result() const {
        const double all = weights.value();
        return all == 0 ? std::nullopt : std::optional(sum.value() / all);
    }
};

template <class T, bool Greatest>
struct Extreme {
    using Result = T;
    T value = 0;
    bool any = false;
    void add(T other, double) {
        value = !any || (Greatest ? other > value : other < value) ? other : value;
        any = true;
    }
    void join(const Extreme& later) {
        if (later.any)
            add(later.value, 1);
    }
    std::optional<Result> result() const { return any ? std::optional(value) : std::nullopt; }
};

/// Folds values of type T into a state for each group.
template <class State, class T>
class StateFold : public GroupFold {
public:
    explicit StateFold(std::size_t groups) : states_(groups) {}

    void add(const FoldStep& step) override {
        static constexpr double one = 1;
        static constexpr T none{};
        const Reader<T> values =
            step.values != nullptr ? readerOf<T>(*step.values) : Reader<T>{&none, 0};
        const Reader<double> weights = step.weights != nullptr
                                           ? Reader<double>{step.weights, step.weightStep}
                                           : Reader<double>{&one, 0};
        State* state = states_.data() + step.firstGroup;
        std::size_t i = 0;
        for (const std::uint32_t end : step.ends) {
            State now = *state;
            for (; i < end; ++i) {
                if (step.mask[i] != 0)
                    now.add(values[i], weights[i]);
            }
            *state++ = now;
        }
    }

    void join(GroupFold& later, std::size_t at) override {
        for (const State& state : static_cast<StateFold&>(later).states_)
            states_[at++].join(state);
    }

    bool finish(Vector& result, const GoOn&) override {
        using Result = typename State::Result;
        result.type = std::is_same_v<Result, double> ? ValueType::Real : ValueType::Integer;
        result.of<Result>().assign(states_.size(), Result{});
        for (std::size_t i = 0; i < states_.size(); ++i)
            give(states_[i].result(), i, result);
        return true;
    }

private:
    std::vector<State> states_;
};

template <template <class> class Fold>
std::unique_ptr<GroupFold> ofValues(const FoldKind& kind, std::size_t groups) {
    if (kind.values == ValueType::Real)
        return std::make_unique<Fold<double>>(groups);
    return std::make_unique<Fold<std::int64_t>>(groups);
}

template <class T>
using RealSumFold = StateFold<RealSum, T>;
template <class T>
using RealAverageFold = StateFold<RealAverage, T>;
template <class T>
using MinimumFold = StateFold<Extreme<T, false>, T>;
template <class T>
using MaximumFold = StateFold<Extreme<T, true>, T>;

std::unique_ptr<GroupFold> makeSum(const FoldKind& kind, std::size_t groups) {
    if (kind.weighted || kind.values == ValueType::Real)
        return ofValues<RealSumFold>(kind, groups);
    if (kind.real)
        return std::make_unique<StateFold<WholeSum<double>, std::int64_t>>(groups);
    return std::make_unique<StateFold<WholeSum<std::int64_t>, std::int64_t>>(groups);
}

} // namespace

std::unique_ptr<GroupFold> makeMedian(const FoldKind& kind, std::size_t groups);

std::unique_ptr<GroupFold> makeFold(const FoldKind& kind, std::size_t groups) {
    switch (kind.kind) {
    case Kind::Count:
        if (kind.weighted)
            return std::make_unique<StateFold<WeightedCount, std::int64_t>>(groups);
        return std::make_unique<StateFold<Count, std::int64_t>>(groups);
    case Kind::Sum:
        return makeSum(kind, groups);
    case Kind::Average:
        if (kind.weighted)
            return ofValues<RealAverageFold>(kind, groups);
        if (kind.values == ValueType::Real)
            return std::make_unique<StateFold<PlainAverage, double>>(groups);
        return std::make_unique<StateFold<WholeAverage, std::int64_t>>(groups);
    case Kind::Minimum:
        return ofValues<MinimumFold>(kind, groups);
    case Kind::Maximum:
        return ofValues<MaximumFold>(kind, groups);
    case Kind::Median:
        break;
    }
    return makeMedian(kind, groups);
}

} // namespace kelx::execution
