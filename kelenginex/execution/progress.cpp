// SPDX-License-Identifier: Apache-2.0
#include "execution/progress.h"

#include <algorithm>
#include <limits>

namespace kelx::execution {

bool Progress::poll() {
    const auto now = Clock::now();
    if (!callback_ || cancelled_ || now - last_ < interval)
        return cancelled_;
    last_ = now;
    const double share =
        total_ == 0 ? 1 : static_cast<double>(done_.load()) / static_cast<double>(total_);
    const double elapsed = std::chrono::duration<double, std::milli>(now - start_).count();
    const double most = std::numeric_limits<int>::max();
    const double expected = share > 0 ? std::min(elapsed / share, most) : elapsed;
    cancelled_ = callback_(static_cast<int>(expected), static_cast<int>(std::min(elapsed, most)),
                           static_cast<int>(share * 100));
    return cancelled_;
}

} // namespace kelx::execution
