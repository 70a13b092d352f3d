// SPDX-License-Identifier: Apache-2.0
// The loops behind kernels.h, compiled once for each instruction set. Everything here has internal
// linkage, and nothing of the standard library is called: code compiled for one processor must
// never be the copy that the linker keeps for all.
#pragma once

#include "execution/kernels.h"

namespace kelx::execution {
namespace {

using Byte = std::uint8_t;
using Bytes32 [[gnu::vector_size(32)]] = Byte;

void load(const Byte* from, Bytes32& to) {
    __builtin_memcpy(&to, from, sizeof to);
}

/// A step goes over one column after the other, which the processor does not foresee. What lies
/// ahead of the codes at hand belongs to the same column, beyond the step's end too.
void fetchAhead(const Byte* codes) {
    constexpr std::size_t ahead = 2048;
    __builtin_prefetch(codes + ahead);
}

using Words16 [[gnu::vector_size(32)]] = std::uint16_t;
using Words32 [[gnu::vector_size(32)]] = std::uint32_t;
using Words64 [[gnu::vector_size(32)]] = std::uint64_t;
using Reals4 [[gnu::vector_size(32)]] = double;

/// The sum of all lanes.
std::uint64_t total(const Bytes32& bytes) {
    Words16 by16 = (Words16)bytes;
    by16 = (by16 & 0xff) + (by16 >> 8);
    Words32 by32 = (Words32)by16;
    by32 = (by32 & 0xffff) + (by32 >> 16);
    Words64 by64 = (Words64)by32;
    by64 = (by64 & 0xffffffff) + (by64 >> 32);
    return by64[0] + by64[1] + by64[2] + by64[3];
}

/// What the mask leaves out becomes 0xff, which is no code that is counted.
template <bool Masked>
void loadKept(const Byte* codes, const Byte* mask, std::size_t i, Bytes32& value) {
    load(codes + i, value);
    if (!Masked)
        return;
    Bytes32 kept;
    load(mask + i, kept);
    value |= ~kept;
}

/// Up to Kinds codes with a byte counter a lane for each; folded before a lane could overflow.
template <unsigned Kinds, bool Masked>
void countGroup(const Byte* codes, const Byte* mask, std::size_t count, Byte first,
                std::uint64_t* counts) {
    std::size_t i = 0;
    while (i + 32 <= count) {
        const std::size_t left = (count - i) / 32;
        const std::size_t steps = left < 255 ? left : 255;
        Bytes32 sums[Kinds] = {};
        for (std::size_t step = 0; step < steps; ++step, i += 32) {
            Bytes32 value;
            fetchAhead(codes + i);
            loadKept<Masked>(codes, mask, i, value);
#pragma GCC unroll 16
            for (unsigned k = 0; k < Kinds; ++k)
                sums[k] -= (Bytes32)(value == (Byte)(first + k));
        }
        for (unsigned k = 0; k < Kinds; ++k)
            counts[first + k] += total(sums[k]);
    }
    for (; i < count; ++i) {
        const Byte k = (Byte)(codes[i] - first);
        if (k < Kinds && (!Masked || mask[i] != 0))
            ++counts[codes[i]];
    }
}

constexpr unsigned mostInGroup = 12; ///< their counters stay in registers

template <bool Masked>
void countGroups(const Byte* codes, const Byte* mask, std::size_t count, Byte first, unsigned kinds,
                 std::uint64_t* counts) {
    using Group = void (*)(const Byte*, const Byte*, std::size_t, Byte, std::uint64_t*);
    static constexpr Group groups[mostInGroup + 1] = {nullptr,
                                                      countGroup<1, Masked>,
                                                      countGroup<2, Masked>,
                                                      countGroup<3, Masked>,
                                                      countGroup<4, Masked>,
                                                      countGroup<5, Masked>,
                                                      countGroup<6, Masked>,
                                                      countGroup<7, Masked>,
                                                      countGroup<8, Masked>,
                                                      countGroup<9, Masked>,
                                                      countGroup<10, Masked>,
                                                      countGroup<11, Masked>,
                                                      countGroup<12, Masked>};
    constexpr std::size_t slice = 255 * 32; // stays in the first-level cache between the groups
    const unsigned passes = (kinds + mostInGroup - 1) / mostInGroup;
    const unsigned most = passes > 0 ? (kinds + passes - 1) / passes : 1;
    for (std::size_t begin = 0; begin < count; begin += slice) {
        const std::size_t length = count - begin < slice ? count - begin : slice;
        for (unsigned done = 0; done < kinds; done += most) {
            const unsigned now = kinds - done < most ? kinds - done : most;
            groups[now](codes + begin, Masked ? mask + begin : nullptr, length,
                        (Byte)(first + done), counts);
        }
    }
}

void countFew(const Byte* codes, const Byte* mask, std::size_t count, Byte first, unsigned kinds,
              std::uint64_t* counts) {
    if (mask != nullptr)
        countGroups<true>(codes, mask, count, first, kinds, counts);
    else
        countGroups<false>(codes, mask, count, first, kinds, counts);
}

std::uint64_t countMask(const Byte* mask, std::size_t count) {
    std::uint64_t counts[256] = {};
    countGroup<1, false>(mask, nullptr, count, 0xff, counts);
    return counts[0xff];
}

/// Eight tables in turn, so that equal neighbours do not wait for each other. What the mask leaves
/// out is counted as 0xff.
template <bool Masked>
void histogramOf(const Byte* index, const Byte* mask, std::size_t count, unsigned kinds,
                 std::uint64_t* counts) {
    std::uint32_t tables[8][256] = {};
    std::size_t i = 0;
    for (; i + 8 <= count; i += 8) {
        std::uint64_t eight;
        fetchAhead(index + i);
        __builtin_memcpy(&eight, index + i, 8);
        if (Masked) {
            std::uint64_t kept;
            __builtin_memcpy(&kept, mask + i, 8);
            eight |= ~kept;
        }
        ++tables[0][eight & 255];
        ++tables[1][eight >> 8 & 255];
        ++tables[2][eight >> 16 & 255];
        ++tables[3][eight >> 24 & 255];
        ++tables[4][eight >> 32 & 255];
        ++tables[5][eight >> 40 & 255];
        ++tables[6][eight >> 48 & 255];
        ++tables[7][eight >> 56];
    }
    for (; i < count; ++i)
        ++tables[0][Masked && mask[i] == 0 ? 0xff : index[i]];
    for (unsigned k = 0; k < kinds; ++k) {
        for (const auto& table : tables)
            counts[k] += table[k];
    }
}

void histogram8(const Byte* index, const Byte* mask, std::size_t count, unsigned kinds,
                std::uint64_t* counts) {
    constexpr std::size_t few = 256; // clearing and adding up the tables would take longer
    if (count < few) {
        for (std::size_t i = 0; i < count; ++i)
            counts[index[i]] += mask == nullptr ? 1 : mask[i] & 1U;
        return;
    }
    if (mask == nullptr)
        return histogramOf<false>(index, mask, count, kinds, counts);
    histogramOf<true>(index, mask, count, kinds, counts);
    if (kinds == 256)
        counts[255] -= count - countMask(mask, count);
}

void histogram32(const std::uint32_t* index, std::size_t count, std::uint64_t* counts) {
    for (std::size_t i = 0; i < count; ++i)
        ++counts[index[i]];
}

std::size_t compact32(const std::uint32_t* in, const Byte* mask, std::size_t count,
                      std::uint32_t* out) {
    std::size_t kept = 0;
    for (std::size_t i = 0; i < count; ++i) {
        out[kept] = in[i];
        kept += mask[i] & 1U;
    }
    return kept;
}

void replace32(std::uint32_t* index, const Byte* mask, std::size_t count, std::uint32_t other) {
    for (std::size_t i = 0; i < count; ++i)
        index[i] = mask[i] != 0 ? index[i] : other;
}

/// Adding and taking away a large number rounds to a multiple of its last bit.
void splitWeights(const double* weights, std::size_t count, const WeightUnits& units,
                  WeightParts* parts) {
    for (std::size_t i = 0; i < count; ++i) {
        const double weight = weights[i];
        const double high = (weight + units.high) - units.high;
        const double rest = weight - high;
        const double middle = (rest + units.middle) - units.middle;
        parts[i] = {high, middle, rest - middle, 1};
    }
}

void addParts(const WeightParts& from, WeightParts& to) {
    Reals4 sums, parts;
    __builtin_memcpy(&parts, &from.high, sizeof parts);
    __builtin_memcpy(&sums, &to.high, sizeof sums);
    sums += parts;
    __builtin_memcpy(&to.high, &sums, sizeof sums);
}

template <std::size_t Lanes, bool Runs>
void addPartsIn(const std::uint32_t* index, const std::uint32_t* runs, const WeightParts* parts,
                std::size_t count, WeightParts* cells) {
    std::size_t i = 0;
    for (; i + Lanes <= count; i += Lanes) {
#pragma GCC unroll 4
        for (std::size_t lane = 0; lane < Lanes; ++lane)
            addParts(parts[Runs ? runs[i + lane] : i + lane],
                     cells[index[i + lane] * Lanes + lane]);
    }
    for (; i < count; ++i)
        addParts(parts[Runs ? runs[i] : i], cells[index[i] * Lanes]);
}

template <std::size_t Lanes>
void addWeightParts(const std::uint32_t* index, const std::uint32_t* runs, const WeightParts* parts,
                    std::size_t count, WeightParts* cells) {
    if (runs != nullptr)
        addPartsIn<Lanes, true>(index, runs, parts, count, cells);
    else
        addPartsIn<Lanes, false>(index, nullptr, parts, count, cells);
}

void addTo(Sum& to, double value) {
    const double total = to.sum + value;
    const double taken = total - to.sum;
    to.lost += (to.sum - (total - taken)) + (value - taken);
    to.sum = total;
}

void addWeights(const std::uint32_t* index, const double* weights, std::size_t count, Sum* sums) {
    for (std::size_t i = 0; i < count; ++i)
        addTo(sums[index[i]], weights[i]);
}

void addWeights8(const Byte* index, const double* weights, std::size_t count, std::uint64_t first,
                 Sum* sums) {
    static_assert(sumLanes == 4);
    Sum* lanes[sumLanes];
    for (unsigned lane = 0; lane < sumLanes; ++lane)
        lanes[lane] = sums + (first + lane) % sumLanes;
    std::size_t i = 0;
    for (; i + sumLanes <= count; i += sumLanes) {
        addTo(lanes[0][index[i] * sumLanes], weights[i]);
        addTo(lanes[1][index[i + 1] * sumLanes], weights[i + 1]);
        addTo(lanes[2][index[i + 2] * sumLanes], weights[i + 2]);
        addTo(lanes[3][index[i + 3] * sumLanes], weights[i + 3]);
    }
    for (unsigned lane = 0; i < count; ++i, ++lane)
        addTo(lanes[lane][index[i] * sumLanes], weights[i]);
}

void maskReal(const Byte* mask, std::size_t count, double* values) {
    for (std::size_t i = 0; i < count; ++i)
        values[i] = mask[i] != 0 ? values[i] : 0;
}

void andMasks(Byte* mask, const Byte* other, std::size_t count) {
    for (std::size_t i = 0; i < count; ++i)
        mask[i] &= other[i];
}

template <class Code>
void testRange(const Code* codes, std::size_t count, Code first, Code width, Byte* truths) {
    for (std::size_t i = 0; i < count; ++i)
        truths[i] |= (Byte)((Code)(codes[i] - first) <= width ? 0xff : 0);
}

void testRange(const Byte* codes, std::size_t count, Byte first, Byte width, Byte* truths) {
    std::size_t i = 0;
    for (; i + 32 <= count; i += 32) {
        Bytes32 code;
        Bytes32 before;
        fetchAhead(codes + i);
        load(codes + i, code);
        load(truths + i, before);
        code -= first;
        before |= (Bytes32)(code <= width);
        __builtin_memcpy(truths + i, &before, sizeof before);
    }
    testRange<Byte>(codes + i, count - i, first, width, truths + i);
}

/// Short runs are written as one stretch of fixed length, whose rest the next run overwrites.
template <class T>
void expand(const T* values, const std::uint32_t* ends, std::size_t runs, T* out) {
    constexpr std::size_t stretch = 64 / sizeof(T) < 8 ? 64 / sizeof(T) : 8;
    std::size_t begin = 0;
    for (std::size_t run = 0; run < runs; ++run) {
        const T value = values[run];
        const std::size_t end = ends[run];
        for (std::size_t i = 0; i < stretch; ++i)
            out[begin + i] = value;
        for (std::size_t i = begin + stretch; i < end; ++i)
            out[i] = value;
        begin = end;
    }
}

/// A bit for each byte of a mask: 32 bytes at a time.
std::uint32_t bitsOf(const Byte* mask) {
#ifdef __AVX2__
    Bytes32 bytes;
    load(mask, bytes);
    using Signed32 [[gnu::vector_size(32)]] = char;
    return (std::uint32_t)__builtin_ia32_pmovmskb256((Signed32)bytes);
#else
    std::uint32_t bits = 0;
    for (unsigned i = 0; i < 4; ++i) {
        std::uint64_t eight;
        __builtin_memcpy(&eight, mask + i * 8, 8);
        const std::uint64_t gathered = (eight & 0x0101010101010101U) * 0x0102040810204080U >> 56;
        bits |= (std::uint32_t)gathered << (i * 8);
    }
    return bits;
#endif
}

/// The mask as bits; 8 bytes beyond the last are readable.
constexpr std::size_t mostBits = 16384;
void packBits(const Byte* mask, std::size_t count, Byte* bits) {
    std::size_t i = 0;
    for (; i + 32 <= count; i += 32) {
        const std::uint32_t packed = bitsOf(mask + i);
        __builtin_memcpy(bits + i / 8, &packed, 4);
    }
    for (std::size_t k = i / 8; k < count / 8 + 9; ++k)
        bits[k] = 0;
    for (; i < count; ++i)
        bits[i / 8] = (Byte)(bits[i / 8] | (mask[i] & 1U) << (i % 8));
}

/// What eight bytes hold of a run that begins at any bit of the first.
constexpr std::size_t mostAtOnce = 56;
std::uint64_t countBits(const Byte* bits, std::size_t begin, std::size_t length) {
    std::uint64_t eight;
    __builtin_memcpy(&eight, bits + begin / 8, 8);
    eight = eight >> (begin % 8) & (((std::uint64_t)1 << length) - 1);
    return (std::uint64_t)__builtin_popcountll(eight);
}

/// Runs that are too long for that.
Byte countLong(const Byte* mask, std::size_t length, bool& fits) {
    std::uint64_t count = 0;
    for (std::size_t i = 0; i < length; ++i)
        count += mask[i] & 1U;
    fits = fits && count <= mostInRun;
    return (Byte)count;
}

bool countRuns(const Byte* mask, const std::uint32_t* offsets, std::size_t runs, Byte* out) {
    Byte bits[mostBits / 8 + 16];
    bool fits = true;
    std::size_t run = 0;
    while (run < runs) {
        const std::uint32_t first = offsets[run];
        const Byte* part = mask + (offsets[run] - offsets[0]);
        const std::size_t all = offsets[runs] - first;
        const std::size_t held = all < mostBits ? all : mostBits;
        packBits(part, held, bits);
        std::size_t begin = 0;
        for (; run < runs; ++run) {
            const std::size_t end = offsets[run + 1] - first;
            const std::size_t length = end - begin;
            if (length > mostAtOnce)
                out[run] = countLong(part + begin, length, fits);
            else if (end <= held)
                out[run] = (Byte)countBits(bits, begin, length);
            else
                break;
            begin = end;
        }
    }
    return fits;
}

template <bool Add, bool Times, class Code, class Index>
void indexOf(const Code* codes, std::size_t count, Code lowest, Code domain, Index stride,
             Index* out) {
    for (std::size_t i = 0; i < count; ++i) {
        const Code code = (Code)(codes[i] - lowest);
        const auto slot = (Index)(code < domain ? code : domain);
        out[i] = (Index)((Add ? out[i] : 0) + (Index)(Times ? slot * stride : slot));
    }
}

/// Bytes have no multiplication of their own: even and odd ones are multiplied apart.
template <bool Add, bool Times>
std::size_t indexBytes(const Byte* codes, std::size_t count, Byte lowest, Byte domain, Byte stride,
                       Byte* out) {
    std::size_t i = 0;
    for (; i + 32 <= count; i += 32) {
        Bytes32 slot;
        fetchAhead(codes + i);
        load(codes + i, slot);
        slot -= lowest;
        const Bytes32 last = Bytes32{} + domain;
        slot = slot < last ? slot : last;
        if (Times) {
            const Words16 both = (Words16)slot;
            slot = (Bytes32)((both & 0xff) * (std::uint16_t)stride |
                             (both >> 8) * (std::uint16_t)(stride << 8));
        }
        if (Add) {
            Bytes32 before;
            load(out + i, before);
            slot += before;
        }
        __builtin_memcpy(out + i, &slot, sizeof slot);
    }
    return i;
}

template <bool Add, bool Times>
void indexOf(const Byte* codes, std::size_t count, Byte lowest, Byte domain, Byte stride,
             Byte* out) {
    const std::size_t done = indexBytes<Add, Times>(codes, count, lowest, domain, stride, out);
    indexOf<Add, Times, Byte, Byte>(codes + done, count - done, lowest, domain, stride, out + done);
}

template <class Code, class Index>
void index(const Code* codes, std::size_t count, Code lowest, Code domain, std::uint32_t stride,
           bool add, Index* out) {
    const auto step = (Index)stride;
    if (add)
        indexOf<true, true>(codes, count, lowest, domain, step, out);
    else if (stride == 1)
        indexOf<false, false>(codes, count, lowest, domain, step, out);
    else
        indexOf<false, true>(codes, count, lowest, domain, step, out);
}

void binReals(const double* values, std::size_t count, const BinScale& scale, std::uint16_t* bins) {
    const double lowest = scale.lowest;
    const double perUnit = scale.perUnit;
    const double missing = scale.missing;
    const double notApplicable = scale.notApplicable;
    const double last = scale.bins - 1;
    const double none = scale.bins;
    for (std::size_t i = 0; i < count; ++i) {
        const double value = values[i];
        double bin = (value - lowest) * perUnit;
        bin = bin > 0 ? bin : 0;
        bin = bin < last ? bin : last;
        const bool valid = (value == value) & (value != missing) & (value != notApplicable);
        bins[i] = (std::uint16_t)(int)(valid ? bin : none);
    }
}

/// Mostly few bins are wanted, side by side: 16 values at a time are passed by.
std::size_t pickBins(const double* values, const std::uint16_t* bins, std::size_t count,
                     const WantedBins& wanted, double* out) {
    constexpr std::size_t stretch = 16;
    std::size_t kept = 0;
    for (std::size_t begin = 0; begin < count; begin += stretch) {
        std::size_t end = count;
        if (count - begin >= stretch) {
            end = begin + stretch;
            Words16 all;
            __builtin_memcpy(&all, bins + begin, sizeof all);
            all -= wanted.first;
            const auto near = (Words64)(all <= (std::uint16_t)(wanted.last - wanted.first));
            if ((near[0] | near[1] | near[2] | near[3]) == 0)
                continue;
        }
        for (std::size_t i = begin; i < end; ++i) {
            out[kept] = values[i];
            kept += wanted.wanted[bins[i]];
        }
    }
    return kept;
}

template <class Code>
constexpr CodeKernels<Code> codeKernels() {
    return {testRange, expand<Code>, index<Code, Byte>, index<Code, std::uint32_t>};
}

constexpr Kernels allKernels() {
    return {codeKernels<std::uint8_t>(),
            codeKernels<std::uint16_t>(),
            codeKernels<std::uint32_t>(),
            codeKernels<std::uint64_t>(),
            countFew,
            countMask,
            histogram8,
            histogram32,
            compact32,
            replace32,
            splitWeights,
            addWeightParts<1>,
            addWeightParts<partLanes>,
            addWeights,
            addWeights8,
            maskReal,
            andMasks,
            expand<double>,
            countRuns,
            binReals,
            pickBins};
}

} // namespace
} // namespace kelx::execution
