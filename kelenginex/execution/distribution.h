// SPDX-License-Identifier: Apache-2.0
// Figures of values that are known by how often each occurs.
#pragma once

#include "execution/measure_figures.h"

#include <cstddef>
#include <cstdint>
#include <vector>

namespace kelx::execution {

/// All records with one value.
struct ValueGroup {
    std::int64_t value = 0;
    std::uint64_t records = 0;
    Sum weight;
};

/// Groups in ascending order of their values.
class Distribution {
public:
    Distribution(const MeasureForm& form, std::vector<ValueGroup> groups);

    /// Points into the distribution.
    const RowValues& values() const { return row_; }

private:
    double weightOf(const ValueGroup& group) const {
        return form_.weighted ? group.weight.value() : static_cast<double>(group.records);
    }
    void addUp();
    void findQuantiles();
    void findWeightedQuantiles();
    double valueAt(std::uint64_t rank) const;
    void findSquares();
    void findGini();

    const MeasureForm& form_;
    std::vector<ValueGroup> groups_;
    std::vector<std::uint64_t> ends_; ///< records up to and with each group
    std::vector<double> quantiles_;
    RowValues row_;
};

} // namespace kelx::execution
