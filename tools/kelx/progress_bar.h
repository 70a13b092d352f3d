// SPDX-License-Identifier: Apache-2.0
// A bar on standard error, shown only where that is a terminal.
#pragma once

#include "import/progress.h"

#include <chrono>
#include <cstdint>

namespace kelx::tool {

class InterruptWatch;

class ProgressBar {
public:
    ProgressBar();
    ~ProgressBar(); ///< wipes the bar
    ProgressBar(const ProgressBar&) = delete;
    ProgressBar& operator=(const ProgressBar&) = delete;

    bool isShown() const { return shown_; }
    void show(std::uint64_t done, std::uint64_t all);
    /// Shows what is done until the watch is asked to stop; both outlive it.
    tools::Progress until(const InterruptWatch& watch);

private:
    bool shown_;
    std::chrono::steady_clock::time_point last_{};
};

} // namespace kelx::tool
