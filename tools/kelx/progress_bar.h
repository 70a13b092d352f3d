// SPDX-License-Identifier: Apache-2.0
// A bar on standard error, shown only where that is a terminal.
#pragma once

#include <chrono>
#include <cstdint>

namespace kelx::tool {

class ProgressBar {
public:
    ProgressBar();
    ~ProgressBar(); ///< wipes the bar
    ProgressBar(const ProgressBar&) = delete;
    ProgressBar& operator=(const ProgressBar&) = delete;

    bool isShown() const { return shown_; }
    void show(std::uint64_t done, std::uint64_t all);

private:
    bool shown_;
    std::chrono::steady_clock::time_point last_{};
};

} // namespace kelx::tool
