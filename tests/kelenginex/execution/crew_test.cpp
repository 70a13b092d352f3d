// SPDX-License-Identifier: GPL-3.0-or-later
// Items of work on several threads, on fewer than were asked for, and stopped.
#include "execution/crew.h"

#include <gtest/gtest.h>

#include <pthread.h>

#include <mutex>
#include <set>
#include <stdexcept>
#include <thread>
#include <vector>

namespace kelx::test {
namespace {

using execution::GoOn;
using execution::Progress;

/// While it lives no thread can be started: none has an address space of that size for its stack.
class NoThreads {
public:
    NoThreads() {
        pthread_getattr_default_np(&before_);
        pthread_attr_t huge;
        pthread_getattr_default_np(&huge);
        pthread_attr_setstacksize(&huge, std::size_t{1} << 47);
        pthread_setattr_default_np(&huge);
        pthread_attr_destroy(&huge);
    }
    ~NoThreads() {
        pthread_setattr_default_np(&before_);
        pthread_attr_destroy(&before_);
    }
    NoThreads(const NoThreads&) = delete;
    NoThreads& operator=(const NoThreads&) = delete;

private:
    pthread_attr_t before_;
};

TEST(Crew, doesEachItemOnce) {
    for (const unsigned threads : {1U, 2U, 7U}) {
        std::vector<std::atomic<int>> done(1000);
        Progress progress({});
        execution::shareOut(
            done.size(), threads, {}, [&](std::size_t item, const GoOn&) { ++done[item]; },
            progress);
        for (const auto& count : done)
            ASSERT_EQ(count, 1);
    }
}

/// Counts its items by the thread that works on them.
class ThreadCounter : public execution::CrewWorker {
public:
    explicit ThreadCounter(std::atomic<int>& done, std::atomic<int>& own)
        : done_(done), own_(own), isOwn_(std::this_thread::get_id() == caller) {}
    bool work(std::size_t, const GoOn& goOn) override {
        ++done_;
        own_ += isOwn_ ? 1 : 0;
        std::this_thread::sleep_for(std::chrono::milliseconds(1));
        return goOn();
    }
    static inline std::thread::id caller;

private:
    std::atomic<int>& done_;
    std::atomic<int>& own_;
    bool isOwn_;
};

TEST(Crew, callingThreadTakesPartWhereItMay) {
    using execution::Caller;
    ThreadCounter::caller = std::this_thread::get_id();
    for (const Caller caller : {Caller::Waits, Caller::Works}) {
        std::atomic<int> done{0}, own{0};
        int asked = 0;
        const auto make = [&] { return std::make_unique<ThreadCounter>(done, own); };
        Progress progress([&](int, int, int) { return ++asked == 3; });
        EXPECT_THROW(execution::shareOut(100000, 2, make, progress, caller), execution::Cancelled);
        EXPECT_EQ(asked, 3);
        EXPECT_LT(done, 100000);
        Progress silent({});
        execution::shareOut(100, 2, make, silent, caller);
        EXPECT_EQ(own > 0, caller == Caller::Works);
        EXPECT_GT(done, own);
    }
}

TEST(Crew, goesOnWithFewerThreadsThanWanted) {
    const NoThreads none;
    EXPECT_THROW(std::thread([] {}).join(), std::system_error);
    std::set<std::size_t> done;
    std::set<std::thread::id> threads;
    Progress progress({});
    execution::shareOut(
        10, 4, {},
        [&](std::size_t item, const GoOn&) {
            done.insert(item);
            threads.insert(std::this_thread::get_id());
        },
        progress);
    EXPECT_EQ(done.size(), 10U);
    EXPECT_EQ(threads, std::set{std::this_thread::get_id()});
}

TEST(Crew, tellsTheWholeShareAtTheEnd) {
    for (const unsigned threads : {1U, 3U}) {
        int last = 0;
        Progress progress([&](int, int, int percent) {
            last = percent;
            return false;
        });
        progress.begin(1, 200);
        execution::shareOut(
            7, threads, {50, 150}, [](std::size_t, const GoOn&) {}, progress);
        std::this_thread::sleep_for(progress.interval() * 2);
        progress.poll();
        EXPECT_EQ(last, 75);
    }
}

/// What was asked to stop begins no further item; each thread may be about to begin one.
TEST(Crew, stopsWithTheItemsAtHand) {
    for (const unsigned threads : {1U, 4U}) {
        std::atomic<bool> asked{false};
        std::atomic<unsigned> after{0};
        Progress progress([&](int, int, int percent) {
            asked = percent > 0;
            return asked.load();
        });
        progress.begin(1, 1000);
        const auto work = [&](std::size_t, const GoOn& goOn) {
            after += asked ? 1 : 0;
            for (int i = 0; i < 20 && goOn(); ++i)
                std::this_thread::sleep_for(std::chrono::milliseconds(1));
        };
        EXPECT_THROW(execution::shareOut(1000, threads, {0, 1000}, work, progress),
                     execution::Cancelled);
        EXPECT_TRUE(asked);
        EXPECT_LE(after, threads == 1 ? 0 : threads);
    }
}

TEST(Crew, carriesWhatAWorkerThrows) {
    for (const unsigned threads : {1U, 4U}) {
        Progress progress({});
        std::atomic<unsigned> begun{0};
        const auto work = [&](std::size_t item, const GoOn& goOn) {
            ++begun;
            if (item == 5)
                throw std::runtime_error("the fifth");
            while (item > 5 && goOn())
                std::this_thread::sleep_for(std::chrono::milliseconds(1));
        };
        EXPECT_THROW(execution::shareOut(100000, threads, {}, work, progress), std::runtime_error);
        EXPECT_LE(begun, 6 + threads);
    }
}

} // namespace
} // namespace kelx::test
