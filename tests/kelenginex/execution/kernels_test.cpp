// SPDX-License-Identifier: Apache-2.0
// Both sets of kernels against the obvious loops, at lengths around their strides.
#include "execution/kernels.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <limits>
#include <random>
#include <vector>

namespace kelx::execution {
namespace {

constexpr std::size_t lengths[] = {0, 1, 31, 32, 33, 8159, 8160, 8161, 40000};

class KernelSets : public testing::TestWithParam<const Kernels*> {
protected:
    std::vector<std::uint8_t> bytes(std::size_t count, unsigned kinds) {
        std::vector<std::uint8_t> result(count);
        for (auto& byte : result)
            byte = static_cast<std::uint8_t>(random_() % kinds);
        return result;
    }
    std::vector<std::uint8_t> mask(std::size_t count) {
        std::vector<std::uint8_t> result = bytes(count, 2);
        for (auto& byte : result)
            byte = byte != 0 ? 0xff : 0;
        return result;
    }
    std::mt19937 random_{7};
    const Kernels& set_ = *GetParam();
};

TEST_P(KernelSets, countFewCountsOnlyItsCodes) {
    for (const std::size_t length : lengths) {
        for (const unsigned kinds : {1U, 7U, 8U, 9U, 32U}) {
            const auto codes = bytes(length, kinds + 5);
            const auto kept = mask(length);
            std::uint64_t all[256] = {}, some[256] = {}, expectedAll[256] = {}, expected[256] = {};
            for (std::size_t i = 0; i < length; ++i) {
                if (codes[i] < 2 || codes[i] >= 2 + kinds)
                    continue;
                ++expectedAll[codes[i]];
                expected[codes[i]] += kept[i] & 1;
            }
            set_.countFew(codes.data(), nullptr, length, 2, kinds, all);
            set_.countFew(codes.data(), kept.data(), length, 2, kinds, some);
            for (unsigned k = 0; k < 256; ++k) {
                ASSERT_EQ(all[k], expectedAll[k]) << length << " " << kinds << " " << k;
                ASSERT_EQ(some[k], expected[k]) << length << " " << kinds << " " << k;
            }
        }
    }
}

TEST_P(KernelSets, byteCountersDoNotOverflow) {
    const std::vector<std::uint8_t> same(100000, 3);
    std::uint64_t counts[256] = {};
    set_.countFew(same.data(), nullptr, same.size(), 3, 1, counts);
    set_.histogram8(same.data(), same.size(), counts);
    EXPECT_EQ(counts[3], 200000U);
}

TEST_P(KernelSets, histogramAndCompactAgree) {
    for (const std::size_t length : lengths) {
        auto codes = bytes(length, 256);
        const auto kept = mask(length);
        std::uint64_t expected[256] = {}, counts[256] = {};
        std::size_t passing = 0;
        for (std::size_t i = 0; i < length; ++i) {
            expected[codes[i]] += kept[i] & 1;
            passing += kept[i] & 1;
        }
        EXPECT_EQ(set_.countMask(kept.data(), length), passing);
        ASSERT_EQ(set_.compact8(codes.data(), kept.data(), length, codes.data()), passing);
        set_.histogram8(codes.data(), passing, counts);
        EXPECT_TRUE(std::equal(counts, counts + 256, expected));
    }
}

TEST_P(KernelSets, expandFillsRunsOfAnyLength) {
    const std::vector<std::uint32_t> ends = {1, 1, 9, 17, 17, 140, 141};
    const std::vector<std::uint16_t> values = {10, 11, 12, 13, 14, 15, 16};
    std::vector<std::uint16_t> out(141 + expandSlack);
    set_.code16.expand(values.data(), ends.data(), ends.size(), out.data());
    std::size_t run = 0;
    for (std::size_t i = 0; i < 141; ++i) {
        while (i >= ends[run])
            ++run;
        ASSERT_EQ(out[i], values[run]) << i;
    }
}

TEST_P(KernelSets, indexPutsBlanksBehindTheDomain) {
    const std::vector<std::uint8_t> codes = {5, 6, 7, 255};
    std::vector<std::uint32_t> index(4, 100);
    set_.code8.index32(codes.data(), 4, 5, 3, 10, true, index.data());
    EXPECT_EQ(index, (std::vector<std::uint32_t>{100, 110, 120, 130}));
    std::vector<std::uint8_t> truths(4);
    set_.code8.testRange(codes.data(), 4, 6, 1, truths.data());
    EXPECT_EQ(truths, (std::vector<std::uint8_t>{0, 255, 255, 0}));
}

TEST_P(KernelSets, weightsAreAddedWithoutLossWhereverTheStepBegins) {
    // Added up as they come, the small ones would vanish beside the large one.
    for (const std::uint64_t first : {0U, 1U, 3U}) {
        std::vector<std::uint8_t> index(1003, 2);
        std::vector<double> weights(index.size(), 0.125);
        std::vector<std::uint8_t> kept(index.size(), 0xff);
        weights[0] = 0x1p60;
        weights[1] = std::numeric_limits<double>::quiet_NaN();
        kept[1] = 0;
        set_.maskReal(kept.data(), kept.size(), weights.data());
        std::vector<Sum> lanes(3 * sumLanes), sums(3);
        set_.addWeights8(index.data(), weights.data(), index.size(), first, lanes.data());
        const std::vector<std::uint32_t> wide(index.begin(), index.end());
        set_.addWeights(wide.data(), weights.data(), wide.size(), sums.data());
        Sum all;
        for (std::size_t lane = 0; lane < sumLanes; ++lane)
            all.add(lanes[2 * sumLanes + lane]);
        for (Sum* sum : {&all, &sums[2]}) {
            sum->add(-0x1p60);
            EXPECT_EQ(sum->value(), 1001 * 0.125) << first;
        }
        EXPECT_EQ(lanes[0].value() + sums[0].value(), 0);
    }
}

INSTANTIATE_TEST_SUITE_P(Sets, KernelSets, testing::Values(&baselineKernels(), &kernels()),
                         [](const auto& info) { return info.index == 0 ? "Baseline" : "Fastest"; });

} // namespace
} // namespace kelx::execution
