// SPDX-License-Identifier: Apache-2.0
#include "execution/pass_runner.h"

#include "execution/table_maker.h"
#include "execution/weight_parts.h"
#include "execution/worker.h"

#include <algorithm>
#include <condition_variable>
#include <exception>
#include <mutex>
#include <thread>

namespace kelx::execution {
namespace {

/// Sums of weights are added up within stretches of so many records, counted from the entity's
/// first, and then stretch by stretch: the order of additions is the same on any machine.
constexpr std::uint64_t chunkRecords = 1U << 20;
static_assert(chunkRecords <= mostExact);

using Chunk = plan::RecordRanges;

std::vector<Chunk> chunksOf(const plan::RecordRanges& ranges) {
    std::vector<Chunk> chunks;
    std::uint64_t current = 0;
    for (plan::RecordRange range : ranges) {
        while (range.begin < range.end) {
            const std::uint64_t number = range.begin / chunkRecords;
            if (chunks.empty() || number != current)
                chunks.emplace_back();
            current = number;
            const std::uint64_t end = std::min(range.end, (number + 1) * chunkRecords);
            chunks.back().push_back({range.begin, end});
            range.begin = end;
        }
    }
    return chunks;
}

/// Shares the chunks of a pass out and puts the parts together in their order.
class PassRun {
public:
    PassRun(const plan::Pass& pass, const RunOptions& options, const Share& share,
            Progress& progress)
        : pass_(pass), progress_(progress), share_(share), chunks_(chunksOf(pass.ranges)) {
        const std::size_t step =
            std::clamp<std::size_t>(options.blockRecords, 1, storage::recordsPerBlock);
        unsigned threads = options.threads;
        if (threads == 0)
            threads = std::max(1U, std::thread::hardware_concurrency());
        const std::size_t workers = std::clamp<std::size_t>(chunks_.size(), 1, threads);
        for (const plan::PlannedTable& table : pass.tables)
            makers_.push_back(makeTableMaker(table, *pass.unit, options));
        for (std::size_t i = 0; i < workers; ++i)
            workers_.push_back(std::make_unique<Worker>(pass, makers_, step, progress));
        ordered_ = std::any_of(makers_.begin(), makers_.end(),
                               [](const auto& maker) { return maker->inOrder(); });
    }

    void run(const TableSink& sink) {
        const auto records = static_cast<double>(plan::recordCount(pass_.ranges));
        double all = records + 1;
        for (const auto& maker : makers_)
            all += maker->finishing(records);
        const double start = progress_.seconds();
        double done = records + 1;
        const auto tell = [&](double part) { progress_.begin(shareAt(part / all), sinkUnits); };
        progress_.begin(shareAt(done / all), plan::recordCount(pass_.ranges));
        scan();
        workers_.clear();
        const double scanned =
            (progress_.seconds() - start) / static_cast<double>(pass_.tables.size());
        for (std::size_t i = 0; i < makers_.size(); ++i) {
            const double half = makers_[i]->finishing(records) / 2;
            tell(done += half);
            TableResult result = finish(i, scanned);
            tell(done += half);
            sink(pass_.tables[i].index, std::move(result), progress_);
            progress_.checkNow();
        }
    }

private:
    double shareAt(double part) const { return share_.begin + (share_.end - share_.begin) * part; }

    void scan() {
        if (workers_.size() == 1)
            workOn(*workers_[0], [this] { return !progress_.poll(); });
        else
            runThreads();
        if (error_)
            std::rethrow_exception(error_);
        progress_.checkNow();
    }

    TableResult finish(std::size_t table, double scanned) {
        const double start = progress_.seconds();
        TableResult result = makers_[table]->finish(progress_);
        makers_[table].reset();
        result.seconds = scanned + progress_.seconds() - start;
        return result;
    }

    /// The caller's thread works too: one start less, and the callback is asked in between.
    void runThreads() {
        std::vector<std::thread> threads;
        threads.reserve(workers_.size());
        running_ = workers_.size();
        for (std::size_t i = 1; i < workers_.size(); ++i) {
            try {
                threads.emplace_back([this, i] { workAlong(*workers_[i], mayGoOn()); });
            } catch (...) { // those that run must end before anything is told
                stop(std::current_exception());
                ended();
            }
        }
        workAlong(*workers_[0], [this] {
            pollForThreads();
            return !stop_.load(std::memory_order_relaxed);
        });
        waitForThreads();
        for (std::thread& thread : threads)
            thread.join();
    }

    GoOn mayGoOn() {
        return [this] { return !stop_.load(std::memory_order_relaxed); };
    }

    void waitForThreads() {
        std::unique_lock lock(mutex_);
        while (running_ > 0) {
            changed_.wait_for(lock, Progress::interval / 2);
            lock.unlock();
            pollForThreads();
            lock.lock();
        }
    }

    /// The callback is the caller's code and may throw; the threads must end all the same.
    void pollForThreads() {
        try {
            if (progress_.poll())
                stop(nullptr);
        } catch (...) {
            stop(std::current_exception());
        }
    }

    void workAlong(Worker& worker, const GoOn& goOn) {
        try {
            workOn(worker, goOn);
        } catch (...) {
            stop(std::current_exception());
        }
        ended();
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
        changed_.notify_all();
    }

    void workOn(Worker& worker, const GoOn& goOn) {
        for (;;) {
            const std::size_t chunk = next_.fetch_add(1);
            if (chunk >= chunks_.size())
                break;
            if (!worker.work(chunks_[chunk], goOn))
                return;
            if (ordered_ && !mergeInTurn(worker, chunk, goOn))
                return;
        }
        std::unique_lock lock(merging_, std::defer_lock);
        while (!lock.try_lock_for(Progress::interval / 2)) {
            if (!goOn())
                return;
        }
        merge(worker, false, goOn);
    }

    /// Waits for the chunks before; false where the run is stopped meanwhile. The caller's thread
    /// needs the lock for its callback, so it is not held during the work.
    bool mergeInTurn(Worker& worker, std::size_t chunk, const GoOn& goOn) {
        std::unique_lock lock(mutex_);
        while (merged_ != chunk && !stop_) {
            changed_.wait_for(lock, Progress::interval / 2);
            lock.unlock();
            if (!goOn())
                return false;
            lock.lock();
        }
        lock.unlock();
        if (stop_ || !merge(worker, true, goOn))
            return false;
        lock.lock();
        ++merged_;
        changed_.notify_all();
        return true;
    }

    bool merge(Worker& worker, bool inOrder, const GoOn& goOn) {
        for (std::size_t i = 0; i < makers_.size(); ++i) {
            if (makers_[i]->inOrder() == inOrder && !makers_[i]->take(*worker.tables()[i], goOn))
                return false;
        }
        return true;
    }

    const plan::Pass& pass_;
    Progress& progress_;
    Share share_;
    std::vector<Chunk> chunks_;
    std::vector<std::unique_ptr<TableMaker>> makers_;
    std::vector<std::unique_ptr<Worker>> workers_;
    std::atomic<std::size_t> next_{0};
    std::atomic<bool> stop_{false};
    bool ordered_ = false;     ///< some tables are merged chunk by chunk
    std::timed_mutex merging_; ///< of what is taken in any order
    std::mutex mutex_;         ///< of what follows
    std::condition_variable changed_;
    std::size_t merged_ = 0;
    std::size_t running_ = 0;
    std::exception_ptr error_;
};

} // namespace

void runPass(const plan::Pass& pass, const RunOptions& options, const TableSink& sink,
             const Share& share, Progress& progress) {
    PassRun(pass, options, share, progress).run(sink);
}

} // namespace kelx::execution
