// SPDX-License-Identifier: Apache-2.0
// Both sets of kernels against the obvious loops, at lengths around their strides.
#include "execution/kernels.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
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
    set_.histogram8(same.data(), nullptr, same.size(), 4, counts);
    EXPECT_EQ(counts[3], 200000U);
}

TEST_P(KernelSets, histogramsLeaveOutWhatTheMaskDoes) {
    for (const std::size_t length : lengths) {
        for (const unsigned kinds : {3U, 200U, 256U}) {
            const auto codes = bytes(length, kinds);
            const auto kept = mask(length);
            std::uint64_t all[256] = {}, some[256] = {}, expectedAll[256] = {}, expected[256] = {};
            std::size_t passing = 0;
            for (std::size_t i = 0; i < length; ++i) {
                ++expectedAll[codes[i]];
                expected[codes[i]] += kept[i] & 1;
                passing += kept[i] & 1;
            }
            EXPECT_EQ(set_.countMask(kept.data(), length), passing);
            set_.histogram8(codes.data(), nullptr, length, kinds, all);
            set_.histogram8(codes.data(), kept.data(), length, kinds, some);
            EXPECT_TRUE(std::equal(all, all + 256, expectedAll)) << length << " " << kinds;
            EXPECT_TRUE(std::equal(some, some + 256, expected)) << length << " " << kinds;
        }
    }
}

TEST_P(KernelSets, wideHistogramsOfWhatIsKept) {
    for (const std::size_t length : lengths) {
        const auto kept = mask(length);
        std::vector<std::uint32_t> index(length);
        std::vector<std::uint64_t> counts(5000), expected(5000);
        for (std::size_t i = 0; i < length; ++i) {
            index[i] = static_cast<std::uint32_t>(random_() % counts.size());
            expected[index[i]] += kept[i] & 1;
        }
        auto replaced = index;
        set_.replace32(replaced.data(), kept.data(), length, 77777);
        for (std::size_t i = 0; i < length; ++i)
            ASSERT_EQ(replaced[i], kept[i] != 0 ? index[i] : 77777);
        const auto passing = set_.compact32(index.data(), kept.data(), length, index.data());
        set_.histogram32(index.data(), passing, counts.data());
        EXPECT_EQ(counts, expected) << length;
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
    std::vector<std::uint8_t> narrow(4, 9);
    set_.code8.index8(codes.data(), 4, 5, 3, 1, false, narrow.data());
    EXPECT_EQ(narrow, (std::vector<std::uint8_t>{0, 1, 2, 3}));
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

/// Whole multiples of 2^-70.
__extension__ using Wide = __int128;
Wide wide(double value) {
    return static_cast<Wide>(std::ldexp(value, 70));
}

TEST_P(KernelSets, partsOfWeightsLoseNothingInAnyOrder) {
    const Magnitudes bounds = Magnitudes::between(0.001, 900);
    const auto units = unitsFor(bounds);
    ASSERT_TRUE(units);
    for (const std::size_t length : {0U, 1U, 3U, 4U, 5U, 30001U}) {
        std::vector<double> weights(length / 3 + 1);
        for (double& weight : weights)
            weight = std::exp(static_cast<double>(random_() % 100000) / 100000 * 13 - 6.5);
        std::vector<WeightParts> parts(weights.size());
        set_.splitWeights(weights.data(), weights.size(), *units, parts.data());
        std::vector<std::uint32_t> index(length), runs(length);
        std::vector<Wide> expected(8);
        std::vector<double> records(8);
        for (std::size_t i = 0; i < length; ++i) {
            index[i] = static_cast<std::uint32_t>(random_() % 7 % 3 * 3);
            runs[i] = static_cast<std::uint32_t>(random_() % weights.size());
            expected[index[i]] += wide(weights[runs[i]]);
            ++records[index[i]];
        }
        std::vector<WeightParts> cells(8), lanes(8 * partLanes);
        set_.addParts(index.data(), runs.data(), parts.data(), length, cells.data());
        set_.addPartsInLanes(index.data(), runs.data(), parts.data(), length, lanes.data());
        for (std::size_t cell = 0; cell < 8; ++cell) {
            const WeightParts& one = cells[cell];
            EXPECT_EQ(wide(one.high) + wide(one.middle) + wide(one.low), expected[cell]);
            EXPECT_EQ(one.records, records[cell]);
            WeightParts all;
            for (std::size_t lane = 0; lane < partLanes; ++lane) {
                const WeightParts& part = lanes[cell * partLanes + lane];
                all = {all.high + part.high, all.middle + part.middle, all.low + part.low,
                       all.records + part.records};
            }
            EXPECT_EQ(all.high, one.high);
            EXPECT_EQ(all.middle, one.middle);
            EXPECT_EQ(all.low, one.low);
            EXPECT_EQ(all.records, one.records);
        }
    }
}

TEST_P(KernelSets, partsWithoutRunsBelongToTheirRecord) {
    const std::vector<double> weights = {0.5, 3, 0, 1.25, 7};
    std::vector<WeightParts> parts(5), cells(2), lanes(2 * partLanes);
    set_.splitWeights(weights.data(), 5, *unitsFor(Magnitudes::between(0.5, 7)), parts.data());
    const std::vector<std::uint32_t> index = {0, 1, 0, 0, 1};
    set_.addParts(index.data(), nullptr, parts.data(), 5, cells.data());
    set_.addPartsInLanes(index.data(), nullptr, parts.data(), 5, lanes.data());
    EXPECT_EQ(cells[0].high + cells[0].middle + cells[0].low, 1.75);
    EXPECT_EQ(cells[0].records, 3);
    EXPECT_EQ(cells[1].high + cells[1].middle + cells[1].low, 10);
    double first = 0;
    for (std::size_t lane = 0; lane < partLanes; ++lane)
        first += lanes[lane].high + lanes[lane].middle + lanes[lane].low;
    EXPECT_EQ(first, 1.75);
}

TEST(WeightUnits, areThereWhereSumsWouldBeExact) {
    const double none = std::numeric_limits<double>::quiet_NaN();
    const auto exact = [](double least, double most) {
        return unitsFor(Magnitudes::between(least, most)).has_value();
    };
    EXPECT_TRUE(exact(1, 1));
    EXPECT_TRUE(exact(1e-4, 1e5));
    EXPECT_FALSE(exact(1e-9, 1e9));
    EXPECT_FALSE(exact(0, 1));
    EXPECT_FALSE(exact(1, std::numeric_limits<double>::infinity()));
    EXPECT_FALSE(exact(1, none));
    EXPECT_FALSE(exact(none, none));
    const Magnitudes integers{1, 9e15};
    EXPECT_TRUE(unitsFor(integers));
    EXPECT_TRUE(unitsFor(Magnitudes{1, 1000} * Magnitudes::between(0.3, 80)));
    EXPECT_FALSE(unitsFor(integers * Magnitudes::between(0.3, 80)));
}

INSTANTIATE_TEST_SUITE_P(Sets, KernelSets, testing::Values(&baselineKernels(), &kernels()),
                         [](const auto& info) { return info.index == 0 ? "Baseline" : "Fastest"; });

} // namespace
} // namespace kelx::execution
