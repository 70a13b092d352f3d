// SPDX-License-Identifier: Apache-2.0
// Work that is cut into numbered parts, done by several threads.
#pragma once

#include "execution/cells.h"
#include "execution/progress.h"

#include <cstddef>
#include <functional>
#include <memory>

namespace kelx::execution {

/// What one thread needs to work on parts.
class PartWorker {
public:
    virtual ~PartWorker() = default;
    /// False where goOn said so, which it should be asked every few milliseconds.
    virtual bool work(std::size_t part, const GoOn& goOn) = 0;
};

/// Works on the parts 0 to parts - 1, begun in their order, on so many threads (0: one for each
/// core); a worker is made in each thread. The stage of the progress is the caller's to begin, and
/// the workers' to add to. Throws what a worker throws, and Cancelled.
void shareOut(std::size_t parts, unsigned threads,
              const std::function<std::unique_ptr<PartWorker>()>& makeWorker, Progress& progress);

/// The same for work that needs nothing for itself.
void shareOut(std::size_t parts, unsigned threads, const std::function<void(std::size_t)>& work,
              Progress& progress);

} // namespace kelx::execution
