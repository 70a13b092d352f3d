// SPDX-License-Identifier: Apache-2.0
// What one thread needs to work on a pass.
#pragma once

#include "execution/progress.h"
#include "execution/tabulator.h"

#include <memory>
#include <vector>

namespace kelx::execution {

class Worker {
public:
    Worker(const plan::Pass& pass, const std::vector<std::unique_ptr<TableMaker>>& makers,
           const LowerConditions& lower, std::size_t stepRecords, Progress& progress);

    /// One part for each maker.
    std::vector<std::unique_ptr<TablePart>>& tables() { return tables_; }

    /// Adds the records of the ranges to the tables. False where goOn, asked after each table's
    /// share of a step, said so.
    bool work(const plan::RecordRanges& ranges, const GoOn& goOn);

private:
    bool workBlock(plan::RecordRange range, const GoOn& goOn);
    const std::uint8_t* findMask();

    const Entity& unit_;
    std::size_t stepRecords_;
    Frames frames_;
    Progress& progress_;
    NodePool nodes_;
    SourcePool sources_;
    std::vector<std::unique_ptr<RecordFilter>> filters_;
    std::vector<std::unique_ptr<TablePart>> tables_;
    std::vector<TablePart*> wanted_;
    std::vector<std::uint8_t> mask_;
};

} // namespace kelx::execution
