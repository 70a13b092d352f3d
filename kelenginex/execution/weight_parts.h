// SPDX-License-Identifier: Apache-2.0
// Weights in parts of few bits each: sums of them lose nothing, in whatever order they are added.
#pragma once

#include <cstddef>
#include <optional>

namespace kelx::execution {

/// A weight, or the sum of weights in a cell, with the number of records.
struct alignas(32) WeightParts {
    double high = 0;
    double middle = 0;
    double low = 0;
    double records = 0;
};

/// Places that a cell of a small table has.
constexpr std::size_t partLanes = 4;

/// Between which bounds the values of a factor lie, zeros and signs aside.
struct Magnitudes {
    double least = 1;
    double most = 1;
    double step = 1; ///< a power of two that divides them all

    /// Of doubles of which no more is known.
    static Magnitudes between(double least, double most);
    Magnitudes operator*(const Magnitudes& other) const;
};

/// Numbers whose last bits are the smallest of the high and of the middle part.
struct WeightUnits {
    double high = 0;
    double middle = 0;
};

/// So many weights may be added without loss.
constexpr double mostExact = 1U << 20;

/// Nothing where the bounds lie too far apart for exact sums.
std::optional<WeightUnits> unitsFor(const Magnitudes& weights);

} // namespace kelx::execution
