// SPDX-License-Identifier: Apache-2.0
// How long work hears that it is no longer wanted.
#pragma once

#include <cstdint>
#include <functional>

namespace kelx::storage {

/// Called every few milliseconds by long work, on its own thread; ends it by throwing. May be
/// empty.
using Pulse = std::function<void()>;

/// So many steps may pass between two calls.
constexpr std::uint64_t stepsPerPulse = 8192;

/// Calls step(i) for 0 to count - 1, with a pulse now and then.
template <class Step>
void forEachStep(std::uint64_t count, const Pulse& pulse, Step step) {
    for (std::uint64_t i = 0; i < count; ++i) {
        if (i % stepsPerPulse == 0 && pulse)
            pulse();
        step(i);
    }
}

} // namespace kelx::storage
