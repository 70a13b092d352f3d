// SPDX-License-Identifier: Apache-2.0
// The same questions answered by kernels written by hand for this one census: what the machine
// can do.
#pragma once

#include "census.h"
#include "questions.h"

#include <atomic>
#include <cstddef>
#include <functional>
#include <memory>
#include <thread>
#include <vector>

namespace kelx::bench {

/// Threads that wait without sleeping, so that their start is not in the figures.
class Team {
public:
    explicit Team(unsigned members);
    ~Team();
    Team(const Team&) = delete;
    Team& operator=(const Team&) = delete;

    /// work(member) for each member; the caller is member 0.
    void run(const std::function<void(unsigned)>& work);

private:
    void follow(unsigned member);

    const std::function<void(unsigned)>* work_ = nullptr;
    std::atomic<unsigned> round_{0}, busy_{0};
    std::atomic<bool> over_{false};
    std::vector<std::thread> threads_;
};

/// A question for the kernels.
class LimitQuestion {
public:
    virtual ~LimitQuestion() = default;
    virtual void run(Team& team) = 0;
    /// Of the last run.
    virtual Answer answer() const = 0;
};

/// By its place among questions().
std::unique_ptr<LimitQuestion> makeLimit(const Census& census, std::size_t question,
                                         unsigned threads);

} // namespace kelx::bench
