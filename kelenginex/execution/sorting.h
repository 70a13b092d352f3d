// SPDX-License-Identifier: Apache-2.0
// Sorting that can be stopped.
#pragma once

#include "execution/cells.h"

#include <algorithm>
#include <cstddef>
#include <utility>
#include <vector>

namespace kelx::execution {

/// Stretches that are sorted at once.
constexpr std::size_t sortedAtOnce = 1U << 16;

/// Merges the sorted stretches from begin to middle and from middle to end. False where it was
/// ended.
template <class T>
bool mergeStretches(const std::vector<T>& from, std::size_t begin, std::size_t middle,
                    std::size_t end, std::vector<T>& to, const GoOn& goOn) {
    std::size_t left = begin;
    std::size_t right = middle;
    for (std::size_t out = begin; out < end; ++out) {
        if (out % sortedAtOnce == 0 && !goOn())
            return false;
        const bool takeLeft = right == end || (left < middle && !(from[right] < from[left]));
        to[out] = takeLeft ? from[left++] : from[right++];
    }
    return true;
}

/// Ascending. False where it was ended, with the values in any order.
template <class T>
bool sortValues(std::vector<T>& values, const GoOn& goOn) {
    const std::size_t size = values.size();
    for (std::size_t begin = 0; begin < size; begin += sortedAtOnce) {
        if (!goOn())
            return false;
        const std::size_t end = std::min(begin + sortedAtOnce, size);
        std::sort(values.begin() + static_cast<std::ptrdiff_t>(begin),
                  values.begin() + static_cast<std::ptrdiff_t>(end));
    }
    if (size <= sortedAtOnce)
        return true;
    std::vector<T> merged(size);
    for (std::size_t width = sortedAtOnce; width < size; width *= 2) {
        for (std::size_t begin = 0; begin < size; begin += 2 * width) {
            const std::size_t middle = std::min(begin + width, size);
            const std::size_t end = std::min(begin + 2 * width, size);
            if (!mergeStretches(values, begin, middle, end, merged, goOn))
                return false;
        }
        std::swap(values, merged);
    }
    return true;
}

} // namespace kelx::execution
