// SPDX-License-Identifier: Apache-2.0
// The process's own memory, without files that are mapped. Linux only.
#pragma once

#include <cstdint>

/// Bytes that the process holds once all is freed that was let go: the engine frees large memory on
/// a thread of its own.
std::int64_t ownMemory();

/// The most that it has held since the object was made.
class MemoryPeak {
public:
    MemoryPeak();
    std::int64_t most() const;
};
