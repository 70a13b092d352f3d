// SPDX-License-Identifier: Apache-2.0
// Work that is not a pass over records, on several threads.
#pragma once

#include "execution/cells.h"
#include "execution/progress.h"

#include <cstddef>
#include <cstdint>
#include <functional>

namespace kelx::execution {

/// A part of a stage of the progress, in its units.
struct StageShare {
    std::uint64_t begin = 0;
    std::uint64_t end = 0;
};

/// Threads that work is to be shared out over; 0 asks for one for each core.
unsigned threadsFor(unsigned asked);

/// Work on one item. Long work asks goOn now and then; where it says no the run is stopped, and
/// what was worked out does not count.
using ItemWork = std::function<void(std::size_t item, const GoOn& goOn)>;

/// Does all items, in any order. The caller's thread tells the progress meanwhile. Throws
/// Cancelled, and what the work throws.
void shareOut(unsigned threads, std::size_t items, const StageShare& share, Progress& progress,
              const ItemWork& work);

} // namespace kelx::execution
