// SPDX-License-Identifier: Apache-2.0
#include "execution/progress.h"

#include <algorithm>
#include <limits>

namespace kelx::execution {

void Progress::begin(double end, std::uint64_t units) {
    from_ = to_;
    to_ = std::clamp(end, from_, 1.0);
    units_ = units;
    done_ = 0;
}

bool Progress::poll() {
    const auto now = Clock::now();
    if (!callback_ || cancelled_ || now - last_ < interval_)
        return cancelled_;
    return tell(now, share());
}

double Progress::share() const {
    const double part =
        units_ == 0
            ? 0
            : std::min(1.0, static_cast<double>(done_.load()) / static_cast<double>(units_));
    return from_ + (to_ - from_) * part;
}

bool Progress::tell(Clock::time_point now, double share) {
    last_ = now;
    const double elapsed = std::chrono::duration<double, std::milli>(now - start_).count();
    const double most = std::numeric_limits<int>::max();
    const double expected = share > 0 ? std::min(elapsed / share, most) : elapsed;
    percent_ = std::max(percent_, static_cast<int>(share * 100));
    cancelled_ =
        callback_(static_cast<int>(expected), static_cast<int>(std::min(elapsed, most)), percent_);
    return cancelled_;
}

void Progress::checkNow() {
    if (poll())
        throw Cancelled();
}

void Progress::askLast() {
    if (cancelled_ || (callback_ && tell(Clock::now(), atLastQuestion)))
        throw Cancelled();
}

void Progress::finish() {
    if (callback_)
        tell(Clock::now(), 1);
}

} // namespace kelx::execution
