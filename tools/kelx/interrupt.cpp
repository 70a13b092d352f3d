// SPDX-License-Identifier: Apache-2.0
#include "interrupt.h"

namespace kelx::tool {

namespace {

volatile std::sig_atomic_t caught = 0;

void note(int signal) {
    caught = signal;
}

} // namespace

InterruptWatch::InterruptWatch() {
    caught = 0;
    for (std::size_t i = 0; i < signals.size(); ++i) {
        ::sigaction(signals[i], nullptr, &before_[i]);
        if (before_[i].sa_handler == SIG_IGN)
            continue;
        struct sigaction action {};
        action.sa_handler = note;
        action.sa_flags = static_cast<int>(SA_RESETHAND | SA_RESTART);
        ::sigaction(signals[i], &action, nullptr);
    }
}

InterruptWatch::~InterruptWatch() {
    for (std::size_t i = 0; i < signals.size(); ++i)
        ::sigaction(signals[i], &before_[i], nullptr);
}

bool InterruptWatch::asked() const {
    return caught != 0;
}

void InterruptWatch::check() const {
    if (asked())
        throw Interrupted(caught);
}

} // namespace kelx::tool
