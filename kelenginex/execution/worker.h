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
    Worker(const plan::Pass& pass, std::size_t stepRecords, Progress& progress);

    std::vector<std::unique_ptr<Tabulator>>& tables() { return tables_; }

    /// Adds the records of the ranges to the tables. False where goOn, asked after each table's
    /// share of a step, said so.
    bool work(const plan::RecordRanges& ranges, const GoOn& goOn);

private:
    bool workBlock(std::size_t block, plan::RecordRange range, const GoOn& goOn);
    const std::uint8_t* findMask();

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

} // namespace kelx::execution
