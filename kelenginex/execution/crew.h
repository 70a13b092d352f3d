// SPDX-License-Identifier: Apache-2.0
// Work that is cut into numbered items, done by several threads.
#pragma once

#include "execution/cells.h"
#include "execution/progress.h"

#include <cstddef>
#include <cstdint>
#include <functional>
#include <memory>

namespace kelx::execution {

/// A part of a stage of the progress, in its units.
struct StageShare {
    std::uint64_t begin = 0;
    std::uint64_t end = 0;
};

/// Threads that work is to be shared out over; 0 asks for one for each core.
unsigned threadsFor(unsigned asked);

/// What one thread needs to work on items.
class CrewWorker {
public:
    virtual ~CrewWorker() = default;
    /// False where goOn said so, which it should be asked every few milliseconds; what was worked
    /// out does not count then.
    virtual bool work(std::size_t item, const GoOn& goOn) = 0;
};
using MakeWorker = std::function<std::unique_ptr<CrewWorker>()>;

/// What the calling thread does meanwhile: it asks the callback, and can be one of the threads
/// where every item asks goOn often enough for that.
enum class Caller { Waits, Works };

/// Works on the items 0 to items - 1, begun in their order, on so many threads or, where the
/// system gives no more, on fewer; a worker is made in each. The stage of the progress is the
/// caller's to begin, and the workers' to add to. Throws what a worker throws, and Cancelled.
void shareOut(std::size_t items, unsigned threads, const MakeWorker& makeWorker, Progress& progress,
              Caller caller = Caller::Waits);

using ItemWork = std::function<void(std::size_t item, const GoOn& goOn)>;

/// The same for work that needs nothing for itself. The progress goes through the share, item by
/// item.
void shareOut(std::size_t items, unsigned threads, const StageShare& share, const ItemWork& work,
              Progress& progress);

} // namespace kelx::execution
