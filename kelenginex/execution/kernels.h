// SPDX-License-Identifier: Apache-2.0
// The innermost loops, in one form for every processor and one for those with AVX2.
#pragma once

#include "execution/sum.h"
#include "execution/weight_parts.h"

#include <cstddef>
#include <cstdint>

namespace kelx::execution {

/// Bytes that may be written past the end of a buffer that expand() fills.
constexpr std::size_t expandSlack = 64;

/// What countRuns() counts to.
constexpr std::uint8_t mostInRun = 253;

/// Sums that a cell of a small table has.
constexpr std::size_t sumLanes = 4;

/// Loops over codes of one width.
template <class Code>
struct CodeKernels {
    /// truths[i] = first <= codes[i] <= first + width, 0xff or 0; joined to what is there by OR.
    void (*testRange)(const Code* codes, std::size_t count, Code first, Code width,
                      std::uint8_t* truths);
    /// Values spread over runs; out has expandSlack bytes beyond the last end.
    void (*expand)(const Code* values, const std::uint32_t* ends, std::size_t runs, Code* out);
    /// out[i] (+)= min(codes[i] - lowest, domain) * stride.
    void (*index8)(const Code* codes, std::size_t count, Code lowest, Code domain,
                   std::uint32_t stride, bool add, std::uint8_t* out);
    void (*index32)(const Code* codes, std::size_t count, Code lowest, Code domain,
                    std::uint32_t stride, bool add, std::uint32_t* out);
};

/// Bins of equal width for reals. What lies beyond both ends goes into the first and the last.
struct BinScale {
    double lowest = 0;
    double perUnit = 0;
    std::uint16_t bins = 1;                ///< also the number that stands for "no value"
    double missing = 0, notApplicable = 0; ///< no values; NaN for none
};

/// Bins whose values are to be picked: 1 where a bin is, and the first and the last that are.
struct WantedBins {
    const std::uint8_t* wanted = nullptr;
    std::uint16_t first = 0;
    std::uint16_t last = 0;
};

struct Kernels {
    CodeKernels<std::uint8_t> code8;
    CodeKernels<std::uint16_t> code16;
    CodeKernels<std::uint32_t> code32;
    CodeKernels<std::uint64_t> code64;

    /// Adds to counts[first + k] the records with code first + k, k < kinds; first + kinds is at
    /// most 255. A null mask takes all, here and below.
    void (*countFew)(const std::uint8_t* codes, const std::uint8_t* mask, std::size_t count,
                     std::uint8_t first, unsigned kinds, std::uint64_t* counts);
    std::uint64_t (*countMask)(const std::uint8_t* mask, std::size_t count);
    /// Adds to counts[index[i]]; all are below kinds.
    void (*histogram8)(const std::uint8_t* index, const std::uint8_t* mask, std::size_t count,
                       unsigned kinds, std::uint64_t* counts);
    void (*histogram32)(const std::uint32_t* index, std::size_t count, std::uint64_t* counts);
    /// Keeps where the mask is set, in order; gives the number kept. May work in place.
    std::size_t (*compact32)(const std::uint32_t* in, const std::uint8_t* mask, std::size_t count,
                             std::uint32_t* out);
    /// Puts another index where the mask is not set.
    void (*replace32)(std::uint32_t* index, const std::uint8_t* mask, std::size_t count,
                      std::uint32_t other);
    void (*splitWeights)(const double* weights, std::size_t count, const WeightUnits& units,
                         WeightParts* parts);
    /// Adds parts[runs[i]], or parts[i] where there are no runs, to cells[index[i]].
    void (*addParts)(const std::uint32_t* index, const std::uint32_t* runs,
                     const WeightParts* parts, std::size_t count, WeightParts* cells);
    /// The same for cells of partLanes places each, so that equal neighbours do not wait for each
    /// other.
    void (*addPartsInLanes)(const std::uint32_t* index, const std::uint32_t* runs,
                            const WeightParts* parts, std::size_t count, WeightParts* cells);
    /// Adds weights[i] to sums[index[i]], one after the other.
    void (*addWeights)(const std::uint32_t* index, const double* weights, std::size_t count,
                       Sum* sums);
    /// The same for few cells, which have sumLanes sums each: record i adds to sum
    /// (first + i) % sumLanes, so that equal neighbours do not wait for each other.
    void (*addWeights8)(const std::uint8_t* index, const double* weights, std::size_t count,
                        std::uint64_t first, Sum* sums);
    /// Zeroes what is not set in the mask, NaN too.
    void (*maskReal)(const std::uint8_t* mask, std::size_t count, double* values);
    void (*andMasks)(std::uint8_t* mask, const std::uint8_t* other, std::size_t count);
    void (*expandReal)(const double* values, const std::uint32_t* ends, std::size_t runs,
                       double* out);
    /// out[i] = number of set bytes of the mask (0 or 0xff) from offsets[i] to offsets[i + 1],
    /// where the mask begins at offsets[0]. False where one is above mostInRun.
    bool (*countRuns)(const std::uint8_t* mask, const std::uint32_t* offsets, std::size_t runs,
                      std::uint8_t* out);
    /// The bin of each value; never descending with ascending values.
    void (*binReals)(const double* values, std::size_t count, const BinScale& scale,
                     std::uint16_t* bins);
    /// Keeps values whose bin is wanted, in order; gives the number kept. Room for all is needed.
    std::size_t (*pickBins)(const double* values, const std::uint16_t* bins, std::size_t count,
                            const WantedBins& wanted, double* out);

    template <class Code>
    const CodeKernels<Code>& of() const {
        if constexpr (sizeof(Code) == 1)
            return code8;
        else if constexpr (sizeof(Code) == 2)
            return code16;
        else if constexpr (sizeof(Code) == 4)
            return code32;
        else
            return code64;
    }
};

/// The fastest set that this processor runs.
const Kernels& kernels();
/// The set that every processor runs; both give the same results.
const Kernels& baselineKernels();

} // namespace kelx::execution
