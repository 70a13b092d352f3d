// SPDX-License-Identifier: Apache-2.0
// Values of one block as codes, before those of all blocks are known.
#pragma once

#include "execution/block_values.h"
#include "storage/coding.h"
#include "storage/memory_column.h"

#include <cstddef>
#include <cstdint>
#include <limits>

namespace kelx::execution {

/// In the codes of a block NA stands beside the blank, until all codes are known.
template <class Code>
constexpr Code blankOf = std::numeric_limits<Code>::max();
template <class Code>
constexpr Code naOf = std::numeric_limits<Code>::max() - 1;

/// Memory that is not touched before it is written, by the thread that writes it.
inline storage::MemoryColumn::Values untouched(std::uint64_t bytes) {
    return storage::MemoryColumn::Values(new std::byte[static_cast<std::size_t>(bytes)]);
}

template <class Code>
void encode(const BlockValues& values, std::int64_t base, Code* codes) {
    const std::int64_t* in = values.integers.data();
    for (std::size_t i = 0; i < values.size(); ++i)
        codes[i] = static_cast<Code>(storage::codeOf(in[i], base));
    if (values.allValid)
        return;
    for (std::size_t i = 0; i < values.size(); ++i) {
        const std::uint8_t state = values.states[i];
        codes[i] = state == state::valid                ? codes[i]
                   : state == state::blankNotApplicable ? naOf<Code>
                                                        : blankOf<Code>;
    }
}

} // namespace kelx::execution
