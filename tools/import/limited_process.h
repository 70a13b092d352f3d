// SPDX-License-Identifier: Apache-2.0
// A program that must not be trusted with more than a bounded part of the machine.
#pragma once

#include <chrono>
#include <cstdint>
#include <filesystem>
#include <span>
#include <string>
#include <sys/types.h>
#include <vector>

namespace kelx::tools {

struct ProcessLimits {
    std::uint64_t memory = std::uint64_t{2} << 30; ///< bytes of address space
    std::chrono::seconds cpu{600};
    std::chrono::seconds silence{60}; ///< the longest that it may leave us waiting
};

/// Runs a program with nothing but a pipe from its standard output, without core dumps; ends it
/// with this object.
class LimitedProcess {
public:
    /// Throws std::runtime_error where it cannot be started.
    LimitedProcess(const std::filesystem::path& program, std::vector<std::string> arguments,
                   const ProcessLimits& limits);
    ~LimitedProcess();
    LimitedProcess(const LimitedProcess&) = delete;
    LimitedProcess& operator=(const LimitedProcess&) = delete;

    /// Fills the span; throws std::runtime_error that tells how the program ended where its output
    /// does, or that it was silent for too long.
    void read(std::span<char> bytes);
    /// Waits for a good end; throws std::runtime_error where it is none.
    void finish();

private:
    void waitForOutput();
    std::string end(); ///< waits for its end and tells of it; empty for a good one
    int waitForEnd();
    void stop();

    ProcessLimits limits_;
    pid_t process_ = -1;
    int output_ = -1;
};

} // namespace kelx::tools
