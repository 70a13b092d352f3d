// SPDX-License-Identifier: Apache-2.0
#include "progress_bar.h"

#include "interrupt.h"

#include <algorithm>
#include <iostream>
#include <string>
#include <unistd.h>

namespace kelx::tool {

namespace {

constexpr std::size_t width = 40;

} // namespace

ProgressBar::ProgressBar() : shown_(::isatty(STDERR_FILENO) != 0) {}

ProgressBar::~ProgressBar() {
    if (shown_)
        std::cerr << '\r' << std::string(width + 10, ' ') << '\r' << std::flush;
}

void ProgressBar::show(std::uint64_t done, std::uint64_t all) {
    const auto now = std::chrono::steady_clock::now();
    if (!shown_ || all == 0 || now - last_ < std::chrono::milliseconds(100))
        return;
    last_ = now;
    const double share = std::min(1.0, static_cast<double>(done) / static_cast<double>(all));
    const auto filled = static_cast<std::size_t>(share * static_cast<double>(width));
    std::cerr << "\r[" << std::string(filled, '#') << std::string(width - filled, ' ') << "] "
              << static_cast<int>(share * 100) << " %" << std::flush;
}

tools::Progress ProgressBar::until(const InterruptWatch& watch) {
    return [this, &watch](std::uint64_t done, std::uint64_t all) {
        watch.check();
        show(done, all);
    };
}

} // namespace kelx::tool
