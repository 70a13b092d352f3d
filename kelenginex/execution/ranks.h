// SPDX-License-Identifier: Apache-2.0
// The values at some places of the ascending order, without putting all in order.
#pragma once

#include "execution/cells.h"
#include "execution/kernels.h"

#include <cstddef>
#include <cstdint>
#include <span>
#include <vector>

namespace kelx::execution {

/// Points at what is given.
WantedBins wantedBins(const std::vector<std::uint8_t>& wanted);

/// Picks the bins in which wanted ranks lie. Values are counted by bins that ascend with them.
class BinChoice {
public:
    /// Ranks count from 0, ascend, and are less than all counts together.
    BinChoice(std::span<const std::uint64_t> counts, const std::vector<std::uint64_t>& ranks);

    /// 1 for bins whose values are needed; one more element stands for no bin.
    const std::vector<std::uint8_t>& wanted() const { return wanted_; }
    WantedBins bins() const { return wantedBins(wanted_); }
    /// The ranks among the values of the wanted bins.
    const std::vector<std::uint64_t>& ranks() const { return ranks_; }

private:
    std::vector<std::uint8_t> wanted_;
    std::vector<std::uint64_t> ranks_;
};

/// The values at ascending ranks; orders the values as it likes. Unfinished where goOn says so.
std::vector<double> valuesAt(std::vector<double> values, std::vector<std::uint64_t> ranks,
                             const GoOn& goOn);

} // namespace kelx::execution
