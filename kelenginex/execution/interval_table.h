// SPDX-License-Identifier: Apache-2.0
// Which of many intervals holds a value, found by search.
#pragma once

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <cstdint>
#include <numeric>
#include <optional>
#include <type_traits>
#include <utility>
#include <vector>

namespace kelx::execution {

/// Places that are given numbers, each by who comes first.
class FirstCome {
public:
    FirstCome(std::size_t places, std::uint32_t rest) : numbers(places, rest), next_(places + 1) {
        std::iota(next_.begin(), next_.end(), std::size_t{0});
    }

    /// Gives the free ones of the places first to last a number.
    void take(std::size_t first, std::size_t last, std::uint32_t number) {
        for (std::size_t i = free(first); i <= last && i < numbers.size(); i = free(i)) {
            numbers[i] = number;
            next_[i] = i + 1;
        }
    }

    std::vector<std::uint32_t> numbers;

private:
    /// The first free place from one on.
    std::size_t free(std::size_t place) {
        std::size_t found = place;
        while (next_[found] != found)
            found = next_[found];
        while (next_[place] != found) {
            const std::size_t after = next_[place];
            next_[place] = found;
            place = after;
        }
        return found;
    }

    std::vector<std::size_t> next_; ///< itself where free
};

/// The first of the intervals that holds a value counts. Ends belong to their intervals.
template <class T>
class IntervalTable {
public:
    struct Bounds {
        std::optional<T> low, high; ///< nothing: open
    };
    static constexpr std::uint32_t none = ~std::uint32_t{0};

    IntervalTable() = default;
    explicit IntervalTable(const std::vector<Bounds>& intervals) {
        for (const Bounds& interval : intervals) {
            for (const auto& end : {interval.low, interval.high}) {
                if (end)
                    ends_.push_back(*end);
            }
        }
        std::sort(ends_.begin(), ends_.end());
        ends_.erase(std::unique(ends_.begin(), ends_.end()), ends_.end());
        FirstCome places(2 * ends_.size() + 1, none);
        for (std::size_t i = 0; i < intervals.size(); ++i) {
            const Bounds& own = intervals[i];
            places.take(own.low ? placeOf(*own.low) : 0,
                        own.high ? placeOf(*own.high) : 2 * ends_.size(),
                        static_cast<std::uint32_t>(i));
            if (!own.low && !own.high && whole_ == none)
                whole_ = static_cast<std::uint32_t>(i);
        }
        numbers_ = std::move(places.numbers);
    }

    /// The number of the interval, or none. What can be compared with nothing is in an interval
    /// without ends only.
    template <class Value>
    std::uint32_t find(const Value& value) const {
        if constexpr (std::is_floating_point_v<Value>) {
            if (std::isnan(value))
                return whole_;
        }
        return numbers_[placeOf(value)];
    }

private:
    /// Ends have the odd places, what lies between them the even ones.
    template <class Value>
    std::size_t placeOf(const Value& value) const {
        const auto end = std::lower_bound(ends_.begin(), ends_.end(), value);
        const auto place = 2 * static_cast<std::size_t>(end - ends_.begin());
        return end != ends_.end() && *end == value ? place + 1 : place;
    }

    std::vector<T> ends_;
    std::vector<std::uint32_t> numbers_{none};
    std::uint32_t whole_ = none;
};

} // namespace kelx::execution
