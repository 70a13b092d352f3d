// SPDX-License-Identifier: Apache-2.0
#include "execution/share_out.h"

#include <algorithm>
#include <atomic>
#include <condition_variable>
#include <exception>
#include <mutex>
#include <thread>
#include <utility>
#include <vector>

namespace kelx::execution {
namespace {

using MakeWorker = std::function<std::unique_ptr<PartWorker>()>;

/// The threads of one shareOut(). The caller's only waits and tells the progress.
class Crew {
public:
    Crew(std::size_t parts, const MakeWorker& makeWorker, Progress& progress)
        : parts_(parts), makeWorker_(makeWorker), progress_(progress) {}

    void runAlone() {
        const auto worker = makeWorker_();
        const GoOn goOn = [this] { return !progress_.poll(); };
        for (std::size_t part = 0; part < parts_ && worker->work(part, goOn) && goOn(); ++part) {
        }
    }

    void runThreads(std::size_t count) {
        std::vector<std::thread> threads;
        threads.reserve(count);
        running_ = count;
        for (std::size_t i = 0; i < count; ++i) {
            try {
                threads.emplace_back([this] { threadMain(); });
            } catch (...) { // those that run must end before anything is told
                stop(std::current_exception());
                ended();
            }
        }
        wait();
        for (std::thread& thread : threads)
            thread.join();
        if (error_)
            std::rethrow_exception(error_);
    }

private:
    void threadMain() {
        try {
            const auto worker = makeWorker_();
            const GoOn goOn = [this] { return !stop_.load(std::memory_order_relaxed); };
            for (;;) {
                const std::size_t part = next_.fetch_add(1);
                if (part >= parts_ || !worker->work(part, goOn) || !goOn())
                    break;
            }
        } catch (...) {
            stop(std::current_exception());
        }
        ended();
    }

    /// The callback is the caller's code and may throw; the threads must end all the same.
    void wait() {
        std::unique_lock lock(mutex_);
        while (running_ > 0) {
            changed_.wait_for(lock, Progress::interval / 2);
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

    void ended() {
        const std::scoped_lock lock(mutex_);
        --running_;
        changed_.notify_all();
    }

    void stop(std::exception_ptr error) {
        const std::scoped_lock lock(mutex_);
        stop_ = true;
        if (error && !error_)
            error_ = std::move(error);
    }

    std::size_t parts_;
    const MakeWorker& makeWorker_;
    Progress& progress_;
    std::atomic<std::size_t> next_{0};
    std::atomic<bool> stop_{false};
    std::mutex mutex_;
    std::condition_variable changed_;
    std::size_t running_ = 0;
    std::exception_ptr error_;
};

class FunctionWorker : public PartWorker {
public:
    explicit FunctionWorker(const std::function<void(std::size_t)>& work) : work_(work) {}
    bool work(std::size_t part, const GoOn& goOn) override {
        work_(part);
        return goOn();
    }

private:
    const std::function<void(std::size_t)>& work_;
};

} // namespace

void shareOut(std::size_t parts, unsigned threads, const MakeWorker& makeWorker,
              Progress& progress) {
    if (threads == 0)
        threads = std::max(1U, std::thread::hardware_concurrency());
    const std::size_t count = std::min<std::size_t>(parts, threads);
    Crew crew(parts, makeWorker, progress);
    if (count == 1)
        crew.runAlone();
    else if (count > 1)
        crew.runThreads(count);
    progress.checkNow();
}

void shareOut(std::size_t parts, unsigned threads, const std::function<void(std::size_t)>& work,
              Progress& progress) {
    shareOut(parts, threads, MakeWorker([&] { return std::make_unique<FunctionWorker>(work); }),
             progress);
}

} // namespace kelx::execution
