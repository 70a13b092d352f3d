// SPDX-License-Identifier: Apache-2.0
#include "execution/ranks.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace kelx::execution {
namespace {

/// Up to so many values are partitioned at once; more are first sorted into bins.
constexpr std::size_t mostAtOnce = 1U << 16;
/// Beyond, sorting is no slower than partitioning for each rank.
constexpr std::size_t fewRanks = 16;

/// Leaves only values near the ranks. False where no more can be left out.
bool narrow(std::vector<double>& values, std::vector<std::uint64_t>& ranks, const GoOn& goOn) {
    constexpr std::uint16_t bins = 4096;
    const auto [low, high] = std::minmax_element(values.begin(), values.end());
    const double perUnit = (bins - 1) / (*high - *low);
    if (*low == *high || !std::isnormal(perUnit) || !goOn())
        return false;
    constexpr double none = std::numeric_limits<double>::quiet_NaN();
    const BinScale scale{*low, perUnit, bins, none, none};
    std::vector<std::uint16_t> bin(values.size());
    kernels().binReals(values.data(), values.size(), scale, bin.data());
    std::vector<std::uint64_t> counts(bins);
    for (const std::uint16_t b : bin)
        ++counts[b];
    const BinChoice choice(counts, ranks);
    if (!goOn())
        return false;
    const std::size_t kept =
        kernels().pickBins(values.data(), bin.data(), values.size(), choice.bins(), values.data());
    const bool less = kept < values.size();
    values.resize(kept);
    ranks = choice.ranks();
    return less;
}

} // namespace

WantedBins wantedBins(const std::vector<std::uint8_t>& wanted) {
    const auto first = std::find(wanted.begin(), wanted.end(), 1);
    const auto last = std::find(wanted.rbegin(), wanted.rend(), 1);
    if (first == wanted.end())
        return {wanted.data(), 0, 0};
    return {wanted.data(), static_cast<std::uint16_t>(first - wanted.begin()),
            static_cast<std::uint16_t>(wanted.rend() - last - 1)};
}

BinChoice::BinChoice(std::span<const std::uint64_t> counts, const std::vector<std::uint64_t>& ranks)
    : wanted_(counts.size() + 1) {
    ranks_.reserve(ranks.size());
    std::uint64_t end = 0;
    std::uint64_t skipped = 0;
    auto rank = ranks.begin();
    for (std::size_t bin = 0; bin < counts.size() && rank != ranks.end(); ++bin) {
        end += counts[bin];
        if (*rank >= end) {
            skipped += counts[bin];
            continue;
        }
        wanted_[bin] = 1;
        for (; rank != ranks.end() && *rank < end; ++rank)
            ranks_.push_back(*rank - skipped);
    }
}

std::vector<double> valuesAt(std::vector<double> values, std::vector<std::uint64_t> ranks,
                             const GoOn& goOn) {
    while (values.size() > mostAtOnce && narrow(values, ranks, goOn)) {
    }
    std::vector<double> result;
    result.reserve(ranks.size());
    const auto at = [&](std::uint64_t rank) {
        return values.begin() + static_cast<std::ptrdiff_t>(rank);
    };
    if (ranks.size() > fewRanks && goOn())
        std::sort(values.begin(), values.end());
    auto begin = values.begin();
    for (const std::uint64_t rank : ranks) {
        if (!goOn())
            break;
        if (ranks.size() <= fewRanks) {
            std::nth_element(begin, at(rank), values.end());
            begin = at(rank);
        }
        result.push_back(*at(rank));
    }
    result.resize(ranks.size());
    return result;
}

} // namespace kelx::execution
