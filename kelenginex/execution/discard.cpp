// SPDX-License-Identifier: Apache-2.0
#include "execution/discard.h"

#include <condition_variable>
#include <exception>
#include <mutex>
#include <new>
#include <thread>

namespace kelx::execution {
namespace {

class Thread {
public:
    ~Thread() { close(); }

    void open() {
        const std::scoped_lock lock(mutex_);
        open_ = true;
    }

    void close() {
        std::unique_lock lock(mutex_);
        open_ = false;
        idle_.wait(lock, [this] { return !running_; });
        if (thread_.joinable())
            thread_.join();
    }

    void take(std::shared_ptr<void>& what) {
        const std::scoped_lock lock(mutex_);
        if (!open_)
            return;
        waiting_.push_back(what);
        what.reset(); // the last to let go is the thread
        if (running_)
            return;
        if (thread_.joinable())
            thread_.join(); // it has left work()
        try {
            thread_ = std::thread([this] { work(); });
            running_ = true;
        } catch (const std::exception&) { // no thread, or no memory for it
            what = std::move(waiting_.back());
            waiting_.pop_back();
        }
    }

private:
    void work() {
        for (;;) {
            std::vector<std::shared_ptr<void>> now;
            {
                const std::scoped_lock lock(mutex_);
                now.swap(waiting_);
                if (now.empty()) {
                    running_ = false;
                    idle_.notify_all();
                    return;
                }
            }
        }
    }

    std::mutex mutex_;
    std::condition_variable idle_;
    std::vector<std::shared_ptr<void>> waiting_;
    std::thread thread_;
    bool open_ = false;
    bool running_ = false;
};

Thread& thread() {
    static Thread one;
    return one;
}

} // namespace

void Discards::open() {
    thread().open();
}

void Discards::close() {
    thread().close();
}

void Discards::take(std::shared_ptr<void> what) noexcept {
    try {
        thread().take(what);
    } catch (const std::bad_alloc&) { // then here
    }
}

} // namespace kelx::execution
