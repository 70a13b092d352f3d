// SPDX-License-Identifier: Apache-2.0
// Tells the caller how far a run is, and hears whether it should stop.
#pragma once

#include "execution/run.h"

#include <atomic>
#include <chrono>
#include <cstdint>
#include <utility>

namespace kelx::execution {

/// Thrown out of work on the caller's thread when the run is to stop.
struct Cancelled {};

/// A run goes through stages, each a share of the whole. add() may come from any thread, the rest
/// belongs to the caller's.
class Progress {
public:
    /// An empty callback lets all work go on in silence.
    explicit Progress(ProgressCallback callback,
                      std::chrono::milliseconds interval = RunOptions{}.progressInterval)
        : callback_(std::move(callback)), interval_(interval), start_(Clock::now()) {}
    std::chrono::milliseconds interval() const { return interval_; }

    /// The next stage begins where the last was to end, and ends at a share of the whole (0 to 1).
    void begin(double end, std::uint64_t units);
    void add(std::uint64_t units) { done_.fetch_add(units, std::memory_order_relaxed); }
    /// So many units of the stage are done.
    void reach(std::uint64_t units) { done_.store(units, std::memory_order_relaxed); }
    /// Calls back where it is time to; true where the run is to stop, from then on.
    bool poll();
    /// poll(), looking at the clock only now and then. Throws Cancelled.
    void check() {
        if (++checks_ % patience == 0)
            checkNow();
    }
    void checkNow();
    /// Asks whatever the clock says; the last question, before what cannot be undone. Throws
    /// Cancelled.
    void askLast();
    /// All is never told to be done while it can be stopped.
    static constexpr double atLastQuestion = 0.99;
    /// Tells that all is done, which no answer changes any more.
    void finish();
    bool cancelled() const { return cancelled_; }
    double seconds() const { return std::chrono::duration<double>(Clock::now() - start_).count(); }

private:
    using Clock = std::chrono::steady_clock;
    static constexpr unsigned patience = 512;

    bool tell(Clock::time_point now, double share);
    double share() const; ///< done of the whole

    ProgressCallback callback_;
    std::chrono::milliseconds interval_;
    Clock::time_point start_;
    Clock::time_point last_{};
    double from_ = 0;
    double to_ = 0;
    std::uint64_t units_ = 0;
    std::atomic<std::uint64_t> done_{0};
    unsigned checks_ = 0;
    int percent_ = 0;
    bool cancelled_ = false;
};

} // namespace kelx::execution
