// SPDX-License-Identifier: Apache-2.0
#include "execution/parallel.h"

#include <algorithm>
#include <condition_variable>
#include <exception>
#include <mutex>
#include <thread>
#include <vector>

namespace kelx::execution {
namespace {

/// Threads that take item after item, and the caller who waits for them.
class Sharing {
public:
    Sharing(std::size_t items, const StageShare& share, Progress& progress, const ItemWork& work)
        : items_(items), share_(share), progress_(progress), work_(work) {}

    void runHere() {
        const GoOn goOn = [this] { return !progress_.poll(); };
        for (std::size_t item = 0; item < items_; ++item) {
            work_(item, goOn);
            tell(item + 1);
            progress_.checkNow();
        }
    }

    void run(unsigned count) {
        std::vector<std::thread> threads;
        threads.reserve(count);
        for (unsigned thread = 0; thread < count; ++thread) {
            try {
                const std::scoped_lock lock(mutex_);
                threads.emplace_back([this] { threadMain(); });
                ++running_;
            } catch (...) { // those that run must end before anything is told
                stop(std::current_exception());
            }
        }
        wait();
        for (std::thread& thread : threads)
            thread.join();
        if (error_)
            std::rethrow_exception(error_);
        progress_.checkNow();
    }

private:
    void tell(std::size_t done) {
        const double part = static_cast<double>(std::min(done, items_)) /
                            static_cast<double>(std::max<std::size_t>(items_, 1));
        progress_.reach(share_.begin + static_cast<std::uint64_t>(
                                           part * static_cast<double>(share_.end - share_.begin)));
    }

    void threadMain() {
        const GoOn goOn = [this] { return !stop_.load(std::memory_order_relaxed); };
        try {
            for (;;) {
                const std::size_t item = next_.fetch_add(1);
                if (item >= items_ || stop_)
                    break;
                work_(item, goOn);
            }
        } catch (...) {
            stop(std::current_exception());
        }
        const std::scoped_lock lock(mutex_);
        --running_;
        changed_.notify_all();
    }

    void wait() {
        std::unique_lock lock(mutex_);
        while (running_ > 0) {
            changed_.wait_for(lock, Progress::interval / 2);
            lock.unlock();
            poll();
            lock.lock();
        }
    }

    /// The callback is the caller's code and may throw; the threads must end all the same.
    void poll() {
        try {
            tell(next_);
            if (progress_.poll())
                stop_ = true;
        } catch (...) {
            stop(std::current_exception());
        }
    }

    void stop(std::exception_ptr error) {
        stop_ = true;
        const std::scoped_lock lock(mutex_);
        if (!error_)
            error_ = std::move(error);
    }

    std::size_t items_;
    StageShare share_;
    Progress& progress_;
    const ItemWork& work_;
    std::atomic<std::size_t> next_{0};
    std::atomic<bool> stop_{false};
    std::mutex mutex_; ///< of what follows
    std::condition_variable changed_;
    std::size_t running_ = 0;
    std::exception_ptr error_;
};

} // namespace

unsigned threadsFor(unsigned asked) {
    return asked != 0 ? asked : std::max(1U, std::thread::hardware_concurrency());
}

void shareOut(unsigned threads, std::size_t items, const StageShare& share, Progress& progress,
              const ItemWork& work) {
    Sharing sharing(items, share, progress, work);
    if (threads <= 1 || items <= 1)
        sharing.runHere();
    else
        sharing.run(static_cast<unsigned>(std::min<std::size_t>(threads, items)));
}

} // namespace kelx::execution
