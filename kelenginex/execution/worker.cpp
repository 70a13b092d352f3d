// SPDX-License-Identifier: Apache-2.0
#include "execution/worker.h"

#include <algorithm>

namespace kelx::execution {

Worker::Worker(const plan::Pass& pass, const std::vector<std::unique_ptr<TableMaker>>& makers,
               const LowerConditions& lower, std::size_t stepRecords, Progress& progress)
    : unit_(*pass.unit), stepRecords_(stepRecords), frames_(unit_), progress_(progress),
      nodes_(&lower) {
    for (const auto& condition : pass.filters)
        filters_.push_back(makeFilter(condition, unit_, nodes_));
    if (!filters_.empty())
        stepRecords_ = std::min(stepRecords_, TablePart::cachedStep);
    for (const auto& maker : makers) {
        tables_.push_back(maker->makePart(nodes_, sources_));
        stepRecords_ = std::min(stepRecords_, tables_.back()->mostAtOnce());
    }
}

bool Worker::work(const plan::RecordRanges& ranges, const GoOn& goOn) {
    for (plan::RecordRange range : ranges) {
        while (range.begin < range.end) {
            const std::uint64_t block = range.begin / storage::recordsPerBlock;
            const std::uint64_t end = std::min(range.end, (block + 1) * storage::recordsPerBlock);
            if (!workBlock({range.begin, end}, goOn))
                return false;
            range.begin = end;
        }
    }
    return true;
}

/// Works on a part of one storage block, so that its zones speak for all of it.
bool Worker::workBlock(plan::RecordRange range, const GoOn& goOn) {
    const bool may = std::all_of(filters_.begin(), filters_.end(),
                                 [&](const auto& filter) { return filter->mayPass(range); });
    wanted_.clear();
    for (const auto& table : tables_) {
        if (may && table->mayPass(range))
            wanted_.push_back(table.get());
    }
    if (wanted_.empty()) {
        progress_.add(range.end - range.begin);
        return goOn();
    }
    while (range.begin < range.end) {
        const std::uint64_t count = std::min<std::uint64_t>(stepRecords_, range.end - range.begin);
        frames_.move(range.begin, static_cast<std::size_t>(count));
        const std::uint8_t* mask = findMask();
        for (TablePart* table : wanted_) {
            table->add(frames_, mask);
            if (!goOn()) // a step over many tables may take long
                return false;
        }
        range.begin += count;
        progress_.add(count);
    }
    return true;
}

const std::uint8_t* Worker::findMask() {
    if (filters_.empty())
        return nullptr;
    if (filters_.size() == 1) {
        if (const std::uint8_t* ready = filters_[0]->mask(frames_))
            return ready;
    }
    mask_.assign(frames_.baseFrame().count, truth);
    for (const auto& filter : filters_)
        filter->apply(frames_, mask_.data());
    return mask_.data();
}

} // namespace kelx::execution
