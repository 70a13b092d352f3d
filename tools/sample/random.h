// SPDX-License-Identifier: Apache-2.0
// Chance that depends on a seed, a stream and a record's number only, so that every record can be
// made by itself and comes out the same on every machine.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>

namespace kelx::tools {

/// A SplitMix64 sequence.
class Random {
public:
    Random(std::uint64_t seed, std::uint64_t stream, std::uint64_t record)
        : state_(mixed(mixed(mixed(seed) + stream) + record)) {}

    std::uint64_t next() {
        state_ += 0x9e3779b97f4a7c15u;
        return mixed(state_);
    }
    /// 0 to bound - 1.
    int below(int bound) {
        return static_cast<int>(((next() >> 32) * static_cast<std::uint64_t>(bound)) >> 32);
    }
    /// low to high.
    int between(int low, int high) { return low + below(high - low + 1); }
    /// 0 to 1, 1 not reached.
    double unit() { return static_cast<double>(next() >> 11) * 0x1p-53; }
    bool chance(double probability) { return unit() < probability; }
    /// About normal with mean 0 and deviation 1: a sum of uniform numbers, so that no library's
    /// rounding shows.
    double normal() {
        double sum = 0;
        for (int i = 0; i < 12; ++i)
            sum += unit();
        return sum - 6;
    }
    /// An index, as often as its share of the weights.
    template <std::size_t N>
    int pick(const std::array<int, N>& weights) {
        int total = 0;
        for (const int weight : weights)
            total += weight;
        int rest = below(total);
        int index = 0;
        for (const int weight : weights) {
            if (rest < weight)
                break;
            rest -= weight;
            ++index;
        }
        return index;
    }

private:
    static std::uint64_t mixed(std::uint64_t z) {
        z = (z ^ (z >> 30)) * 0xbf58476d1ce4e5b9u;
        z = (z ^ (z >> 27)) * 0x94d049bb133111ebu;
        return z ^ (z >> 31);
    }
    std::uint64_t state_;
};

} // namespace kelx::tools
