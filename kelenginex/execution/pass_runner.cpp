// SPDX-License-Identifier: Apache-2.0
#include "execution/pass_runner.h"

#include "execution/crew.h"
#include "execution/lower_conditions.h"
#include "execution/table_maker.h"
#include "execution/weight_parts.h"
#include "execution/worker.h"

#include <algorithm>
#include <atomic>
#include <chrono>
#include <condition_variable>
#include <mutex>
#include <utility>

namespace kelx::execution {
namespace {

/// Sums of weights are added up within stretches of so many records, counted from the entity's
/// first, and then stretch by stretch: the order of additions is the same on any machine.
constexpr std::uint64_t chunkRecords = 1U << 20;
static_assert(chunkRecords <= mostExact);

std::size_t bytesOf(const std::vector<std::unique_ptr<TableMaker>>& makers) {
    std::size_t sum = 0;
    for (const auto& maker : makers)
        sum += maker->partBytes();
    return sum;
}

/// Between two looks whether to go on waiting for a turn.
constexpr std::chrono::milliseconds patience{20};

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
    using Makers = std::vector<std::unique_ptr<TableMaker>>;

    /// The makers are those of the pass's tables from `first` on.
    PassRun(const plan::Pass& pass, std::size_t first, Makers makers, const RunOptions& options,
            const Share& share, Progress& progress)
        : pass_(pass), first_(first), options_(options), progress_(progress), share_(share),
          chunks_(chunksOf(pass.ranges)), makers_(std::move(makers)) {
        noteConditions();
        for (std::size_t i = 0; i < workersFor(); ++i)
            workers_.push_back(std::make_unique<Worker>(pass, makers_, lower_, step(), progress));
        ordered_ = std::any_of(makers_.begin(), makers_.end(),
                               [](const auto& maker) { return maker->inOrder(); });
    }

    void run(const TableSink& sink) {
        const auto records = static_cast<double>(plan::recordCount(pass_.ranges));
        const double scanning = records + static_cast<double>(lower_.records()) + 1;
        double all = scanning;
        for (const auto& maker : makers_)
            all += maker->finishing(records);
        const double start = progress_.seconds();
        double done = scanning;
        const auto tell = [&](double part) { progress_.begin(shareAt(part / all), sinkUnits); };
        progress_.begin(shareAt(done / all), plan::recordCount(pass_.ranges) + lower_.records());
        lower_.work(options_.threads, step(), progress_);
        scan();
        workers_.clear();
        const double scanned = (progress_.seconds() - start) / static_cast<double>(makers_.size());
        for (std::size_t i = 0; i < makers_.size(); ++i) {
            const double half = makers_[i]->finishing(records) / 2;
            tell(done += half);
            TableResult result = finish(i, scanned);
            tell(done += half);
            sink(pass_.tables[first_ + i].index, std::move(result), progress_);
            progress_.checkNow();
        }
    }

private:
    double shareAt(double part) const { return share_.begin + (share_.end - share_.begin) * part; }

    std::size_t step() const {
        return std::clamp<std::size_t>(options_.blockRecords, 1, storage::recordsPerBlock);
    }

    /// One for each thread, and no more than there is room for.
    std::size_t workersFor() const {
        const std::size_t fit = options_.cellBytes / std::max<std::size_t>(bytesOf(makers_), 1);
        const std::size_t most = std::min(chunks_.size(), fit);
        return std::clamp<std::size_t>(most, 1, threadsFor(options_.threads));
    }

    void noteConditions() {
        for (const auto& condition : pass_.filters)
            lower_.note(condition, *pass_.unit, pass_.ranges);
        for (std::size_t i = 0; i < makers_.size(); ++i) {
            const language::TableCommand& command = *pass_.tables[first_ + i].command;
            if (command.filter)
                lower_.note(command.filter, *pass_.unit, pass_.ranges);
        }
    }

    /// Scans chunks with one of the workers.
    class Scanner : public CrewWorker {
    public:
        Scanner(PassRun& run, Worker& worker) : run_(run), worker_(worker) {}
        bool work(std::size_t chunk, const GoOn& goOn) override {
            return worker_.work(run_.chunks_[chunk], goOn) &&
                   (!run_.ordered_ || run_.mergeInTurn(worker_, chunk, goOn));
        }

    private:
        PassRun& run_;
        Worker& worker_;
    };

    void scan() {
        shareOut(
            chunks_.size(), static_cast<unsigned>(workers_.size()),
            [this] { return std::make_unique<Scanner>(*this, *workers_[started_.fetch_add(1)]); },
            progress_, Caller::Works);
        for (const auto& worker : workers_) {
            merge(*worker, false, [this] { return !progress_.poll(); });
            progress_.checkNow();
        }
    }

    TableResult finish(std::size_t table, double scanned) {
        const double start = progress_.seconds();
        TableResult result = makers_[table]->finish(progress_);
        makers_[table].reset();
        result.seconds = scanned + progress_.seconds() - start;
        return result;
    }

    /// Waits for the chunks before; false where the run is stopped meanwhile.
    bool mergeInTurn(Worker& worker, std::size_t chunk, const GoOn& goOn) {
        std::unique_lock lock(mutex_);
        while (merged_ != chunk) {
            changed_.wait_for(lock, patience);
            if (!goOn())
                return false;
        }
        lock.unlock();
        if (!merge(worker, true, goOn))
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
    std::size_t first_;
    const RunOptions& options_;
    Progress& progress_;
    Share share_;
    std::vector<Chunk> chunks_;
    Makers makers_;
    LowerConditions lower_;
    std::vector<std::unique_ptr<Worker>> workers_;
    std::atomic<std::size_t> started_{0}; ///< workers at work
    bool ordered_ = false;                ///< some tables are merged chunk by chunk
    std::mutex mutex_;                    ///< of what follows
    std::condition_variable changed_;
    std::size_t merged_ = 0;
};

} // namespace

void runPass(const plan::Pass& pass, const RunOptions& options, const TableSink& sink,
             const Share& share, Progress& progress) {
    const std::size_t all = pass.tables.size();
    const auto shareAt = [&](std::size_t tables) {
        const double part = static_cast<double>(tables) / static_cast<double>(all);
        return share.begin + (share.end - share.begin) * part;
    };
    const std::size_t parts = threadsFor(options.threads) + std::size_t{1};
    for (std::size_t begin = 0; begin < all;) {
        PassRun::Makers makers;
        std::size_t bytes = 0;
        for (std::size_t i = begin; i < all; ++i) {
            auto maker = makeTableMaker(pass.tables[i], *pass.unit, options);
            bytes += maker->partBytes() * parts;
            if (!makers.empty() && bytes > options.cellBytes)
                break;
            makers.push_back(std::move(maker));
        }
        const std::size_t end = begin + makers.size();
        PassRun(pass, begin, std::move(makers), options, {shareAt(begin), shareAt(end)}, progress)
            .run(sink);
        begin = end;
    }
}

} // namespace kelx::execution
