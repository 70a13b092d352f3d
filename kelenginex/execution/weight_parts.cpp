// SPDX-License-Identifier: Apache-2.0
#include "execution/weight_parts.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace kelx::execution {
namespace {

constexpr int mantissa = std::numeric_limits<double>::digits;
constexpr int partBits = 26;
/// What a sum of 2^20 terms leaves of the mantissa for each of them.
constexpr int termBits = mantissa - 20;
static_assert(mostExact == 1U << (mantissa - termBits) && partBits + 1 <= termBits);

/// The weight of the last bit of the mantissa.
double lastBit(double value) {
    return value > 0 && std::isfinite(value) ? std::ldexp(1, std::ilogb(value) - (mantissa - 1))
                                             : 0;
}

} // namespace

Magnitudes Magnitudes::between(double least, double most) {
    return {least, most, lastBit(least)};
}

Magnitudes Magnitudes::operator*(const Magnitudes& other) const {
    const double product = least * other.least;
    return {product, most * other.most, std::max(step * other.step, lastBit(product))};
}

/// With all weights below 2^top the high part is a multiple of 2^(top - 26), the middle part one of
/// 2^(top - 52), and the low part, below that, one of the step.
std::optional<WeightUnits> unitsFor(const Magnitudes& weights) {
    const bool sound =
        weights.most >= weights.least && weights.step > 1e-250 && weights.most < 1e250;
    if (!sound)
        return std::nullopt;
    const int top = std::ilogb(weights.most) + 1;
    if (top - 2 * partBits - std::ilogb(weights.step) > termBits)
        return std::nullopt;
    const auto unit = [&](int bits) { return std::ldexp(1.5, top - bits + mantissa - 1); };
    return WeightUnits{unit(partBits), unit(2 * partBits)};
}

} // namespace kelx::execution
