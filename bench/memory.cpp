// SPDX-License-Identifier: Apache-2.0
#include "memory.h"

#include <algorithm>
#include <chrono>
#include <fstream>
#include <malloc.h>
#include <sstream>
#include <string>
#include <thread>

namespace {

/// A line of the system's account, in bytes.
std::int64_t statusOf(const std::string& name) {
    std::ifstream status("/proc/self/status");
    for (std::string line; std::getline(status, line);) {
        if (line.rfind(name + ":", 0) != 0)
            continue;
        std::int64_t kilobytes = 0;
        std::istringstream(line.substr(name.size() + 1)) >> kilobytes;
        return kilobytes * 1024;
    }
    return 0;
}

} // namespace

std::int64_t ownMemory() {
    std::int64_t before = 0;
    std::int64_t now = -1;
    while (now != before) {
        before = now;
        std::this_thread::sleep_for(std::chrono::milliseconds(50));
        malloc_trim(0);
        now = statusOf("RssAnon");
    }
    return now;
}

MemoryPeak::MemoryPeak() {
    ownMemory();
    std::ofstream("/proc/self/clear_refs") << '5'; // the peak is the present from here on
}

std::int64_t MemoryPeak::most() const {
    const std::int64_t files = statusOf("RssFile") + statusOf("RssShmem");
    return std::max(statusOf("VmHWM") - files, statusOf("RssAnon"));
}
