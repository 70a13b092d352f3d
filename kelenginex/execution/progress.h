// SPDX-License-Identifier: Apache-2.0
// Tells the caller how far a run is, and hears whether it should stop.
#pragma once

#include "execution/run.h"

#include <atomic>
#include <chrono>
#include <cstdint>

namespace kelx::execution {

/// add() may come from any thread, the rest belongs to the caller's.
class Progress {
public:
    static constexpr std::chrono::milliseconds interval{40};

    Progress(const ProgressCallback& callback, std::uint64_t total)
        : callback_(callback), total_(total), start_(Clock::now()) {}

    void add(std::uint64_t records) { done_.fetch_add(records, std::memory_order_relaxed); }
    /// Calls back where it is time to; true where the run is to stop, from then on.
    bool poll();
    bool cancelled() const { return cancelled_; }
    double seconds() const { return std::chrono::duration<double>(Clock::now() - start_).count(); }

private:
    using Clock = std::chrono::steady_clock;
    const ProgressCallback& callback_;
    std::uint64_t total_;
    Clock::time_point start_;
    Clock::time_point last_{};
    std::atomic<std::uint64_t> done_{0};
    bool cancelled_ = false;
};

} // namespace kelx::execution
