// SPDX-License-Identifier: Apache-2.0
// Ends long work in order when the user or the system asks for it.
#pragma once

#include <array>
#include <csignal>
#include <cstddef>
#include <stdexcept>

namespace kelx::tool {

/// The work was given up on a signal.
class Interrupted : public std::runtime_error {
public:
    explicit Interrupted(int signal)
        : std::runtime_error("interrupted; nothing was written"), signal_(signal) {}
    int signal() const { return signal_; }

private:
    int signal_;
};

/// While one lives, SIGINT, SIGTERM and SIGHUP only ask to stop. A second signal of the same kind
/// ends the process at once, and one that was ignored before remains so. No more than one at a
/// time.
class InterruptWatch {
public:
    InterruptWatch();
    ~InterruptWatch();
    InterruptWatch(const InterruptWatch&) = delete;
    InterruptWatch& operator=(const InterruptWatch&) = delete;

    bool asked() const;
    void check() const; ///< throws Interrupted where asked()

private:
    static constexpr std::array<int, 3> signals{SIGINT, SIGTERM, SIGHUP};
    std::array<struct sigaction, signals.size()> before_{};
};

} // namespace kelx::tool
