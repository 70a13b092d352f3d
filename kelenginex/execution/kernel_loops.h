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
            load(codes + i, value);
            Bytes32 kept = {};
            if (Masked)
                load(mask + i, kept);
#pragma GCC unroll 8
            for (unsigned k = 0; k < Kinds; ++k) {
                const auto hit = (Bytes32)(value == (Byte)(first + k));
                sums[k] -= Masked ? (hit & kept) : hit;
            }
        }
        for (unsigned k = 0; k < Kinds; ++k) {
            std::uint64_t sum = 0;
            for (unsigned lane = 0; lane < 32; ++lane)
                sum += sums[k][lane];
            counts[first + k] += sum;
        }
    }
    for (; i < count; ++i) {
        const Byte k = (Byte)(codes[i] - first);
        if (k < Kinds && (!Masked || mask[i] != 0))
            ++counts[codes[i]];
    }
}

template <bool Masked>
void countGroups(const Byte* codes, const Byte* mask, std::size_t count, Byte first, unsigned kinds,
                 std::uint64_t* counts) {
    using Group = void (*)(const Byte*, const Byte*, std::size_t, Byte, std::uint64_t*);
    static constexpr Group groups[] = {nullptr,
                                       countGroup<1, Masked>,
                                       countGroup<2, Masked>,
                                       countGroup<3, Masked>,
                                       countGroup<4, Masked>,
                                       countGroup<5, Masked>,
                                       countGroup<6, Masked>,
                                       countGroup<7, Masked>,
                                       countGroup<8, Masked>};
    constexpr std::size_t slice = 255 * 32; // stays in the first-level cache between the groups
    for (std::size_t begin = 0; begin < count; begin += slice) {
        const std::size_t length = count - begin < slice ? count - begin : slice;
        for (unsigned done = 0; done < kinds; done += 8) {
            const unsigned now = kinds - done < 8 ? kinds - done : 8;
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

/// Several tables in turn, so that equal neighbours do not wait for each other.
void histogram8(const Byte* index, std::size_t count, std::uint64_t* counts) {
    std::uint32_t tables[4][256] = {};
    std::size_t i = 0;
    for (; i + 8 <= count; i += 8) {
        std::uint64_t eight;
        __builtin_memcpy(&eight, index + i, 8);
        ++tables[0][eight & 255];
        ++tables[1][eight >> 8 & 255];
        ++tables[2][eight >> 16 & 255];
        ++tables[3][eight >> 24 & 255];
        ++tables[0][eight >> 32 & 255];
        ++tables[1][eight >> 40 & 255];
        ++tables[2][eight >> 48 & 255];
        ++tables[3][eight >> 56];
    }
    for (; i < count; ++i)
        ++tables[0][index[i]];
    for (unsigned k = 0; k < 256; ++k)
        counts[k] += (std::uint64_t)tables[0][k] + tables[1][k] + tables[2][k] + tables[3][k];
}

void histogram32(const std::uint32_t* index, std::size_t count, std::uint64_t* counts) {
    for (std::size_t i = 0; i < count; ++i)
        ++counts[index[i]];
}

template <class T>
std::size_t compact(const T* in, const Byte* mask, std::size_t count, T* out) {
    std::size_t kept = 0;
    for (std::size_t i = 0; i < count; ++i) {
        out[kept] = in[i];
        kept += mask[i] & 1U;
    }
    return kept;
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

template <class Code, class Index>
void index(const Code* codes, std::size_t count, Code lowest, Code domain, std::uint32_t stride,
           bool add, Index* out) {
    const auto step = (Index)stride;
    if (add) {
        for (std::size_t i = 0; i < count; ++i) {
            const Code code = (Code)(codes[i] - lowest);
            out[i] = (Index)(out[i] + (Index)(code < domain ? code : domain) * step);
        }
        return;
    }
    for (std::size_t i = 0; i < count; ++i) {
        const Code code = (Code)(codes[i] - lowest);
        out[i] = (Index)((Index)(code < domain ? code : domain) * step);
    }
}

template <class Code>
constexpr CodeKernels<Code> codeKernels() {
    return {testRange<Code>, expand<Code>, index<Code, Byte>, index<Code, std::uint32_t>};
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
            compact<Byte>,
            compact<std::uint32_t>,
            addWeights,
            addWeights8,
            maskReal,
            andMasks,
            expand<double>,
            countRuns};
}

} // namespace
} // namespace kelx::execution
