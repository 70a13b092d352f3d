// SPDX-License-Identifier: Apache-2.0
#include "execution/pass_runner.h"

#include "execution/categories.h"
#include "execution/tabulator.h"

#include <algorithm>
#include <condition_variable>
#include <exception>
#include <functional>
#include <mutex>
#include <thread>

namespace kelx::execution {
namespace {

/// Sums of weights are added up within stretches of so many records, counted from the entity's
/// first, and then stretch by stretch: the order of additions is the same on any machine.
constexpr std::uint64_t chunkRecords = 1U << 20;

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

/// What one thread needs to work on a pass.
class Worker {
public:
    Worker(const plan::Pass& pass, std::size_t stepRecords, Progress& progress)
        : unit_(*pass.unit), stepRecords_(stepRecords), frames_(unit_), progress_(progress) {
        for (const auto& condition : pass.filters)
            filters_.push_back(makeFilter(condition, unit_, nodes_));
        for (const plan::PlannedTable& table : pass.tables)
            tables_.push_back(std::make_unique<Tabulator>(table, unit_, nodes_, sources_));
    }

    std::vector<std::unique_ptr<Tabulator>>& tables() { return tables_; }

    /// False where goOn, asked after each table's share of a step, said so.
    bool work(const Chunk& chunk, const std::function<bool()>& goOn) {
        for (plan::RecordRange range : chunk) {
            while (range.begin < range.end) {
                const std::uint64_t block = range.begin / storage::recordsPerBlock;
                const std::uint64_t end =
                    std::min(range.end, (block + 1) * storage::recordsPerBlock);
                if (!workBlock(static_cast<std::size_t>(block), {range.begin, end}, goOn))
                    return false;
                range.begin = end;
            }
        }
        return true;
    }

private:
    /// Works on a part of one storage block, so that its zones speak for all of it.
    bool workBlock(std::size_t block, plan::RecordRange range, const std::function<bool()>& goOn) {
        const bool may = std::all_of(filters_.begin(), filters_.end(),
                                     [&](const auto& filter) { return filter->mayPass(block); });
        wanted_.clear();
        for (const auto& table : tables_) {
            if (may && table->mayPass(block))
                wanted_.push_back(table.get());
        }
        if (wanted_.empty()) {
            progress_.add(range.end - range.begin);
            return goOn();
        }
        while (range.begin < range.end) {
            const std::uint64_t count =
                std::min<std::uint64_t>(stepRecords_, range.end - range.begin);
            frames_.move(range.begin, static_cast<std::size_t>(count));
            const std::uint8_t* mask = findMask();
            for (Tabulator* table : wanted_) {
                table->add(frames_, mask);
                if (!goOn()) // a step over many tables may take long
                    return false;
            }
            range.begin += count;
            progress_.add(count);
        }
        return true;
    }

    const std::uint8_t* findMask() {
        if (filters_.empty())
            return nullptr;
        mask_.assign(frames_.baseFrame().count, truth);
        for (const auto& filter : filters_)
            filter->apply(frames_, mask_.data());
        return mask_.data();
    }

    const Entity& unit_;
    std::size_t stepRecords_;
    Frames frames_;
    Progress& progress_;
    NodePool nodes_;
    SourcePool sources_;
    std::vector<std::unique_ptr<RecordFilter>> filters_;
    std::vector<std::unique_ptr<Tabulator>> tables_;
    std::vector<Tabulator*> wanted_;
    std::vector<std::uint8_t> mask_;
};

/// Shares the chunks of a pass out and puts the parts together in their order.
class PassRun {
public:
    PassRun(const plan::Pass& pass, const RunOptions& options, Progress& progress)
        : pass_(pass), progress_(progress), chunks_(chunksOf(pass.ranges)) {
        const std::size_t step =
            std::clamp<std::size_t>(options.blockRecords, 1, storage::recordsPerBlock);
        unsigned threads = options.threads;
        if (threads == 0)
            threads = std::max(1U, std::thread::hardware_concurrency());
        const std::size_t workers = std::clamp<std::size_t>(chunks_.size(), 1, threads);
        for (std::size_t i = 0; i < workers; ++i)
            workers_.push_back(std::make_unique<Worker>(pass, step, progress));
        for (const auto& table : workers_[0]->tables())
            totals_.emplace_back(table->shape());
    }

    std::vector<TableResult> run() {
        if (workers_.size() == 1)
            workOn(*workers_[0], [this] { return !progress_.poll(); });
        else
            runThreads();
        if (error_)
            std::rethrow_exception(error_);
        return progress_.cancelled() ? std::vector<TableResult>{} : finish();
    }

private:
    void runThreads() {
        std::vector<std::thread> threads;
        running_ = workers_.size();
        for (const auto& worker : workers_)
            threads.emplace_back([this, &worker] { threadMain(*worker); });
        {
            std::unique_lock lock(mutex_);
            while (running_ > 0) {
                changed_.wait_for(lock, Progress::interval / 2);
                lock.unlock();
                pollForThreads();
                lock.lock();
            }
        }
        for (std::thread& thread : threads)
            thread.join();
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

    void threadMain(Worker& worker) {
        try {
            workOn(worker, [this] { return !stop_.load(std::memory_order_relaxed); });
        } catch (...) {
            stop(std::current_exception());
        }
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

    void workOn(Worker& worker, const std::function<bool()>& goOn) {
        for (;;) {
            const std::size_t chunk = next_.fetch_add(1);
            if (chunk >= chunks_.size())
                break;
            if (!worker.work(chunks_[chunk], goOn) || !mergeWeighted(worker, chunk))
                return;
        }
        const std::scoped_lock lock(mutex_);
        merge(worker, false);
    }

    /// Waits for the chunks before; false where the run is stopped meanwhile.
    bool mergeWeighted(Worker& worker, std::size_t chunk) {
        std::unique_lock lock(mutex_);
        changed_.wait(lock, [&] { return merged_ == chunk || stop_; });
        if (stop_)
            return false;
        merge(worker, true);
        ++merged_;
        changed_.notify_all();
        return true;
    }

    /// Counts are exact in any order; only sums of weights are merged chunk by chunk.
    void merge(Worker& worker, bool weighted) {
        for (std::size_t i = 0; i < totals_.size(); ++i) {
            Tabulator& table = *worker.tables()[i];
            if (table.shape().weighted != weighted)
                continue;
            totals_[i].merge(table.cells());
            table.cells().clear();
        }
    }

    std::vector<TableResult> finish() {
        std::vector<TableResult> results;
        for (std::size_t i = 0; i < totals_.size(); ++i)
            results.push_back(
                finishTable(pass_.tables[i], workers_[0]->tables()[i]->shape(), totals_[i]));
        return results;
    }

    const plan::Pass& pass_;
    Progress& progress_;
    std::vector<Chunk> chunks_;
    std::vector<std::unique_ptr<Worker>> workers_;
    std::vector<TableCells> totals_;
    std::atomic<std::size_t> next_{0};
    std::atomic<bool> stop_{false};
    std::mutex mutex_;
    std::condition_variable changed_;
    std::size_t merged_ = 0;
    std::size_t running_ = 0;
    std::exception_ptr error_;
};

} // namespace

std::vector<TableResult> runPass(const plan::Pass& pass, const RunOptions& options,
                                 Progress& progress) {
    return PassRun(pass, options, progress).run();
}

} // namespace kelx::execution
