// SPDX-License-Identifier: Apache-2.0
#include "execution/crew.h"

#include <algorithm>
#include <atomic>
#include <chrono>
#include <condition_variable>
#include <exception>
#include <mutex>
#include <system_error>
#include <thread>
#include <utility>
#include <vector>

namespace kelx::execution {
namespace {

/// Between two looks at what the threads do.
constexpr std::chrono::milliseconds shortest{1};

/// The threads of one shareOut().
class Crew {
public:
    Crew(std::size_t items, const MakeWorker& makeWorker, Progress& progress)
        : items_(items), makeWorker_(makeWorker), progress_(progress) {}

    void runAlone() {
        workOn(*makeWorker_(), [this] { return !progress_.poll(); });
    }

    void runThreads(std::size_t count, Caller caller) {
        const std::size_t more = caller == Caller::Works ? count - 1 : count;
        std::vector<std::thread> threads;
        threads.reserve(more);
        while (threads.size() < more && start(threads)) {
        }
        if (threads.empty())
            return runAlone();
        if (caller == Caller::Works)
            takePart();
        wait();
        for (std::thread& thread : threads)
            thread.join();
        if (error_)
            std::rethrow_exception(error_);
    }

private:
    /// False where the system gives no more threads.
    bool start(std::vector<std::thread>& threads) {
        const std::scoped_lock lock(mutex_);
        try {
            threads.emplace_back([this] { threadMain(); });
        } catch (const std::system_error&) {
            return false;
        }
        ++running_;
        return true;
    }

    /// Work on the calling thread, which goes on asking the callback.
    void takePart() {
        try {
            workOn(*makeWorker_(), [this] {
                if (progress_.poll())
                    stop(nullptr);
                return !stop_.load(std::memory_order_relaxed);
            });
        } catch (...) {
            stop(std::current_exception());
        }
    }

    void threadMain() {
        try {
            workOn(*makeWorker_(), [this] { return !stop_.load(std::memory_order_relaxed); });
        } catch (...) {
            stop(std::current_exception());
        }
        const std::scoped_lock lock(mutex_);
        --running_;
        changed_.notify_all();
    }

    void workOn(CrewWorker& worker, const GoOn& goOn) {
        for (;;) {
            const std::size_t item = next_.fetch_add(1);
            if (item >= items_ || !worker.work(item, goOn) || !goOn())
                break;
        }
    }

    /// The callback is the caller's code and may throw; the threads must end all the same.
    void wait() {
        std::unique_lock lock(mutex_);
        while (running_ > 0) {
            changed_.wait_for(lock, std::max(progress_.interval() / 2, shortest));
            lock.unlock();
            try {
                if (progress_.poll())
                    stop(nullptr);
            } catch (...) {
                stop(std::current_exception());
            }
            lock.lock();
        }
    }

    void stop(std::exception_ptr error) {
        const std::scoped_lock lock(mutex_);
        stop_ = true;
        if (error && !error_)
            error_ = std::move(error);
    }

    std::size_t items_;
    const MakeWorker& makeWorker_;
    Progress& progress_;
    std::atomic<std::size_t> next_{0};
    std::atomic<bool> stop_{false};
    std::mutex mutex_; ///< of what follows
    std::condition_variable changed_;
    std::size_t running_ = 0;
    std::exception_ptr error_;
};

/// Adds its part of the share after each item; the parts come to the whole in any order.
class ItemWorker : public CrewWorker {
public:
    ItemWorker(std::size_t items, const StageShare& share, const ItemWork& work, Progress& progress)
        : items_(items), units_(share.end - share.begin), work_(work), progress_(progress) {}

    bool work(std::size_t item, const GoOn& goOn) override {
        work_(item, goOn);
        progress_.add(unitsBefore(item + 1) - unitsBefore(item));
        return goOn();
    }

private:
    std::uint64_t unitsBefore(std::size_t item) const {
        return item == items_ ? units_
                              : static_cast<std::uint64_t>(static_cast<double>(units_) *
                                                           static_cast<double>(item) /
                                                           static_cast<double>(items_));
    }

    std::size_t items_;
    std::uint64_t units_;
    const ItemWork& work_;
    Progress& progress_;
};

} // namespace

unsigned threadsFor(unsigned asked) {
    return asked != 0 ? asked : std::max(1U, std::thread::hardware_concurrency());
}

void shareOut(std::size_t items, unsigned threads, const MakeWorker& makeWorker, Progress& progress,
              Caller caller) {
    const std::size_t count = std::min<std::size_t>(items, threadsFor(threads));
    Crew crew(items, makeWorker, progress);
    if (count == 1)
        crew.runAlone();
    else if (count > 1)
        crew.runThreads(count, caller);
    progress.checkNow();
}

void shareOut(std::size_t items, unsigned threads, const StageShare& share, const ItemWork& work,
              Progress& progress) {
    progress.reach(share.begin);
    shareOut(items, threads,
             MakeWorker([&] { return std::make_unique<ItemWorker>(items, share, work, progress); }),
             progress);
    progress.reach(share.end);
}

} // namespace kelx::execution
