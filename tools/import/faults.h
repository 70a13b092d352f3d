// SPDX-License-Identifier: Apache-2.0
// What becomes of faults of single values and records.
#pragma once

#include "import/located_error.h"

#include <cstdint>
#include <string>
#include <vector>

namespace kelx::tools {

/// The first fault ends the import, or, where it is tolerant, all are counted and the first few
/// kept.
class Faults {
public:
    static constexpr std::size_t kept = 20;

    explicit Faults(bool tolerant) : tolerant_(tolerant) {}

    void meet(const LocatedError& fault) {
        if (muted_ && !heard_)
            return;
        heard_ = false;
        if (!tolerant_)
            throw fault;
        ++count_;
        if (first_.size() < kept)
            first_.emplace_back(fault.what());
    }
    /// From now on, faults are ones that have been met before,
    void mute() { muted_ = true; }
    /// but for the next one.
    void unmute() { heard_ = true; }
    std::uint64_t count() const { return count_; }
    const std::vector<std::string>& first() const { return first_; }

private:
    bool tolerant_;
    bool muted_ = false;
    bool heard_ = false;
    std::uint64_t count_ = 0;
    std::vector<std::string> first_;
};

} // namespace kelx::tools
