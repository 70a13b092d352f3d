// SPDX-License-Identifier: Apache-2.0
// Medians of groups: the values are kept, group after group, and looked through at the end.
#include "execution/group_fold.h"

#include "execution/measure_figures.h"
#include "execution/sum.h"

#include <algorithm>
#include <numeric>
#include <optional>
#include <span>
#include <type_traits>

namespace kelx::execution {

std::unique_ptr<GroupFold> makeMedian(const FoldKind& kind, std::size_t groups);

namespace {

/// Thrown out of a selection that is to be given up.
struct Ended {};

/// Compares by `<`, and asks now and then whether to go on.
template <class T>
class Less {
public:
    Less(const GoOn& goOn, std::size_t& compared) : goOn_(&goOn), compared_(&compared) {}
    bool operator()(const T& a, const T& b) const {
        if (++*compared_ % patience == 0 && !(*goOn_)())
            throw Ended();
        return a < b;
    }

private:
    static constexpr std::size_t patience = std::size_t{1} << 16;
    const GoOn* goOn_;
    std::size_t* compared_;
};

/// The mean of the two middle values, exact where they are whole numbers.
template <class T>
double medianOf(std::span<T> values, const Less<T>& less) {
    const auto middle = values.begin() + static_cast<std::ptrdiff_t>(values.size() / 2);
    std::nth_element(values.begin(), middle, values.end(), less);
    const T upper = *middle;
    if (values.size() % 2 == 1)
        return static_cast<double>(upper);
    const T lower = *std::max_element(values.begin(), middle, less);
    if constexpr (std::is_same_v<T, double>) {
        return lower / 2 + upper / 2;
    } else {
        __extension__ using Wide = __int128;
        return static_cast<double>(static_cast<Wide>(lower) + static_cast<Wide>(upper)) / 2;
    }
}

template <class T>
struct Weighted {
    T value;
    double weight;
    bool operator<(const Weighted& other) const { return value < other.value; }
};

/// The smallest value at which the running weight reaches half of the total. Equal values stay in
/// the order of their records, so that the running weight is always the same.
template <class T>
std::optional<double> medianOf(std::span<Weighted<T>> values, const Less<Weighted<T>>& less) {
    std::stable_sort(values.begin(), values.end(), less);
    Sum total;
    for (const auto& one : values)
        total.add(one.weight);
    const double half = quantileWeight(total.value(), 1, 2);
    Sum running;
    for (const auto& one : values) {
        running.add(one.weight);
        if (running.value() >= half)
            return static_cast<double>(one.value);
    }
    return std::nullopt;
}

template <class T, class Kept>
class MedianFold : public GroupFold {
public:
    explicit MedianFold(std::size_t groups) : counts_(groups) {}

    void add(const FoldStep& step) override {
        const T* values = step.values->of<T>().data();
        const std::size_t valueStep = step.values->constant ? 0 : 1;
        std::uint64_t* count = counts_.data() + step.firstGroup;
        std::size_t i = 0;
        for (const std::uint32_t end : step.ends) {
            const std::size_t before = kept_.size();
            for (; i < end; ++i) {
                if (step.mask[i] != 0)
                    keep(values[i * valueStep], step, i);
            }
            *count++ += kept_.size() - before;
        }
    }

    void join(GroupFold& later, std::size_t at) override {
        auto& other = static_cast<MedianFold&>(later);
        kept_.insert(kept_.end(), other.kept_.begin(), other.kept_.end());
        for (const std::uint64_t count : other.counts_)
            counts_[at++] += count;
        other.kept_ = {};
    }

    bool finish(Vector& result, const GoOn& goOn) override {
        result.type = ValueType::Real;
        result.reals.assign(counts_.size(), 0);
        result.states.assign(counts_.size(), state::valid);
        try {
            find(result, goOn);
        } catch (const Ended&) {
            return false;
        }
        return true;
    }

private:
    void keep(T value, const FoldStep& step, std::size_t i) {
        if constexpr (std::is_same_v<T, Kept>)
            kept_.push_back(value);
        else
            kept_.push_back({value, step.weights[i * step.weightStep]});
    }

    void find(Vector& result, const GoOn& goOn) {
        std::size_t compared = 0;
        const Less<Kept> less(goOn, compared);
        std::span<Kept> rest(kept_);
        for (std::size_t group = 0; group < counts_.size(); ++group) {
            const auto count = static_cast<std::size_t>(counts_[group]);
            std::optional<double> median;
            if (count > 0)
                median = medianOf(rest.first(count), less);
            rest = rest.subspan(count);
            result.reals[group] = median.value_or(0);
            if (!median) {
                result.states[group] = state::blank;
                result.allValid = false;
            }
        }
    }

    std::vector<Kept> kept_;
    std::vector<std::uint64_t> counts_;
};

} // namespace

std::unique_ptr<GroupFold> makeMedian(const FoldKind& kind, std::size_t groups) {
    if (kind.values == ValueType::Real) {
        if (kind.weighted)
            return std::make_unique<MedianFold<double, Weighted<double>>>(groups);
        return std::make_unique<MedianFold<double, double>>(groups);
    }
    if (kind.weighted)
        return std::make_unique<MedianFold<std::int64_t, Weighted<std::int64_t>>>(groups);
    return std::make_unique<MedianFold<std::int64_t, std::int64_t>>(groups);
}

} // namespace kelx::execution
