// SPDX-License-Identifier: Apache-2.0
#include "import/limited_process.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <csignal>
#include <cstdlib>
#include <fcntl.h>
#include <poll.h>
#include <stdexcept>
#include <sys/prctl.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <system_error>
#include <thread>
#include <unistd.h>

namespace kelx::tools {

namespace {

constexpr int notStarted = 127;
constexpr std::chrono::milliseconds shortestPause{1}, longestPause{20};

void limit(__rlimit_resource resource, std::uint64_t soft, std::uint64_t hard) {
    const rlimit value{soft, hard};
    if (::setrlimit(resource, &value) != 0)
        ::_exit(notStarted);
}

/// Between fork and exec: system calls only.
[[noreturn]] void become(const char* program, char* const* arguments, int output, pid_t parent,
                         const ProcessLimits& limits) {
    ::prctl(PR_SET_PDEATHSIG, SIGKILL);
    if (::getppid() != parent)
        ::_exit(notStarted);
    ::prctl(PR_SET_NO_NEW_PRIVS, 1, 0, 0, 0);
    limit(RLIMIT_CORE, 0, 0);
    limit(RLIMIT_FSIZE, 0, 0);
#ifndef __SANITIZE_ADDRESS__ // which reserves far more than it uses
    limit(RLIMIT_AS, limits.memory, limits.memory);
#endif
    const auto seconds = static_cast<std::uint64_t>(limits.cpu.count());
    limit(RLIMIT_CPU, seconds, seconds + 1);
    const int nothing = ::open("/dev/null", O_RDWR);
    if (nothing < 0 || ::dup2(nothing, STDIN_FILENO) < 0 || ::dup2(output, STDOUT_FILENO) < 0 ||
        ::dup2(nothing, STDERR_FILENO) < 0)
        ::_exit(notStarted);
    ::close_range(STDERR_FILENO + 1, ~0U, 0);
    ::signal(SIGPIPE, SIG_DFL);
    ::signal(SIGXFSZ, SIG_DFL);
    // An interrupt from the terminal is the parent's to answer.
    ::signal(SIGINT, SIG_IGN);
    ::execv(program, arguments);
    ::_exit(notStarted);
}

} // namespace

LimitedProcess::LimitedProcess(const std::filesystem::path& program,
                               std::vector<std::string> arguments, const ProcessLimits& limits)
    : limits_(limits) {
    const std::string name = program.string();
    arguments.insert(arguments.begin(), name);
    std::vector<char*> pointers;
    for (std::string& argument : arguments)
        pointers.push_back(argument.data());
    pointers.push_back(nullptr);
    std::array<int, 2> ends{};
    if (::pipe2(ends.data(), O_CLOEXEC) != 0)
        throw std::system_error(errno, std::generic_category(), "no pipe");
    const pid_t parent = ::getpid();
    process_ = ::fork();
    if (process_ == 0)
        become(name.c_str(), pointers.data(), ends[1], parent, limits_);
    const int fault = errno;
    ::close(ends[1]);
    output_ = ends[0];
    if (process_ < 0) {
        ::close(output_);
        throw std::system_error(fault, std::generic_category(), "no process can be started");
    }
}

LimitedProcess::~LimitedProcess() {
    stop();
    ::close(output_);
}

void LimitedProcess::stop() {
    if (process_ < 0)
        return;
    ::kill(process_, SIGKILL);
    while (::waitpid(process_, nullptr, 0) < 0 && errno == EINTR) {
    }
    process_ = -1;
}

void LimitedProcess::waitForOutput() {
    const auto deadline = std::chrono::steady_clock::now() + limits_.silence;
    for (;;) {
        const auto left = std::chrono::duration_cast<std::chrono::milliseconds>(
            deadline - std::chrono::steady_clock::now());
        pollfd ready{output_, POLLIN, 0};
        const int count = left.count() > 0 ? ::poll(&ready, 1, static_cast<int>(left.count())) : 0;
        if (count > 0)
            return;
        if (count == 0) {
            stop();
            throw std::runtime_error("its reader took too long");
        }
        if (errno != EINTR)
            throw std::system_error(errno, std::generic_category(), "poll");
    }
}

void LimitedProcess::read(std::span<char> bytes) {
    while (!bytes.empty()) {
        waitForOutput();
        const ssize_t count = ::read(output_, bytes.data(), bytes.size());
        if (count < 0 && errno == EINTR)
            continue;
        if (count <= 0) {
            const std::string why = end();
            throw std::runtime_error(why.empty() ? "its reader ended too early" : why);
        }
        bytes = bytes.subspan(static_cast<std::size_t>(count));
    }
}

/// Its status. One that has closed its output may still go on, but not for ever.
int LimitedProcess::waitForEnd() {
    const auto deadline = std::chrono::steady_clock::now() + limits_.silence;
    int status = 0;
    for (auto pause = shortestPause;; pause = std::min(2 * pause, longestPause)) {
        const pid_t ended = ::waitpid(process_, &status, WNOHANG);
        if (ended == process_)
            break;
        if (ended < 0 && errno != EINTR)
            throw std::system_error(errno, std::generic_category(), "waitpid");
        if (std::chrono::steady_clock::now() >= deadline) {
            stop();
            throw std::runtime_error("its reader took too long to end");
        }
        std::this_thread::sleep_for(pause);
    }
    process_ = -1;
    return status;
}

std::string LimitedProcess::end() {
    if (process_ < 0)
        return "its reader has ended";
    const int status = waitForEnd();
    if (WIFEXITED(status)) {
        const int code = WEXITSTATUS(status);
        if (code == notStarted)
            return "its reader cannot be started";
        return code == 0 ? "" : "its reader failed (status " + std::to_string(code) + ")";
    }
    const int signal = WTERMSIG(status);
    if (signal == SIGXCPU || signal == SIGKILL)
        return "its reader used more time or memory than the file can need";
    return "its reader crashed (signal " + std::to_string(signal) + ")";
}

void LimitedProcess::finish() {
    char more = 0;
    waitForOutput();
    ssize_t count = 0;
    while ((count = ::read(output_, &more, 1)) < 0 && errno == EINTR) {
    }
    if (count != 0)
        throw std::runtime_error("its reader says more than it should");
    if (const std::string why = end(); !why.empty())
        throw std::runtime_error(why);
}

} // namespace kelx::tools
