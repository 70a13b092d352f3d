// SPDX-License-Identifier: Apache-2.0
// Sums that do not show in which order they were made.
#pragma once

#include <cmath>

namespace kelx::execution {

/// A sum of doubles and what rounding took from it. The value is the exact sum, rounded once, but
/// for terms that differ by more than 30 powers of ten.
struct Sum {
    double sum = 0;
    double lost = 0;

    void add(double value) {
        const double total = sum + value;
        const double taken = total - sum;
        lost += (sum - (total - taken)) + (value - taken);
        sum = total;
    }
    void add(const Sum& other) {
        add(other.sum);
        lost += other.lost;
    }
    /// Beyond the range of doubles nothing is lost that could be told.
    double value() const { return std::isfinite(sum) ? sum + lost : sum; }
};

} // namespace kelx::execution
