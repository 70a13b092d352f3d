// SPDX-License-Identifier: Apache-2.0
// One kernel for each question, over the districts begin to end - 1.
#pragma once

#include "census.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <vector>

namespace kelx::bench {

using Counts = std::vector<std::uint64_t>;

constexpr std::size_t educationPlaces = 32;
/// Years of schooling and the codes behind them, which begin at 98, in 32 places.
constexpr std::size_t educationPlace(std::size_t code) {
    return code < 98 ? code : code - 80;
}

/// counts[sex]
void countSex(const Census& census, std::size_t begin, std::size_t end, Counts& counts);
/// counts[age]
void countAge(const Census& census, std::size_t begin, std::size_t end, Counts& counts);
/// counts[marital * 2 + sex] of those of 15 and over
void countMaritalBySex(const Census& census, std::size_t begin, std::size_t end, Counts& counts);
/// sums[type * 32 + education place]
void weighTypeByEducation(const Census& census, std::size_t begin, std::size_t end,
                          std::vector<double>& sums);
/// counts[district * 256 + sex]
void countDistrictsBySex(const Census& census, std::size_t begin, std::size_t end, Counts& counts);
/// counts[children]
void countChildren(const Census& census, std::size_t begin, std::size_t end, Counts& counts);
/// counts[(province * 2 + sex - 1) * 128 + age]
void countProvinceSexAge(const Census& census, std::size_t begin, std::size_t end, Counts& counts);

/// Where the median of a group is looked for: few values, and those below are only counted.
struct Window {
    double low = 0;
    double high = 0;
};

/// What lies in the windows of the districts' codes.
struct WindowFindings {
    std::vector<std::uint64_t> below, valid;
    std::vector<std::vector<double>> inside;
};
void pickIncomes(const Census& census, std::size_t begin, std::size_t end,
                 const std::vector<std::size_t>& groupOf, const std::vector<Window>& windows,
                 WindowFindings& found);

} // namespace kelx::bench
