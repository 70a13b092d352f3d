// SPDX-License-Identifier: Apache-2.0
// How a pass makes its tables: each thread has a part of a table, and one maker puts the parts of
// all threads together.
#pragma once

#include "execution/cells.h"
#include "execution/frames.h"
#include "execution/progress.h"
#include "execution/result.h"
#include "execution/run.h"
#include "plan/plan.h"

#include <cstddef>
#include <cstdint>
#include <memory>

namespace kelx::execution {

class NodePool;
class SourcePool;

/// What one thread has found for one table.
class TablePart {
public:
    /// What is worked out for so many records stays in the first-level cache.
    static constexpr std::size_t cachedStep = 16384;

    virtual ~TablePart() = default;
    /// The longest step that it is good for.
    virtual std::size_t mostAtOnce() const { return cachedStep; }
    /// False where no record of a range of the unit, which is not empty, can matter to the table.
    virtual bool mayPass(const plan::RecordRange& /*records*/) const { return true; }
    /// Takes the frame's records where the mask is set; a null mask takes all.
    virtual void add(Frames& frames, const std::uint8_t* mask) = 0;
};

/// One table of a pass, on its way from the parts to the result.
class TableMaker {
public:
    virtual ~TableMaker() = default;
    /// A part for one more thread. The pools are that thread's. Called before any work begins.
    virtual std::unique_ptr<TablePart> makePart(NodePool& nodes, SourcePool& sources) = 0;
    /// What the cells of a part take, known before any is made; 0 where they grow with what is
    /// found.
    virtual std::size_t partBytes() const { return 0; }
    /// True where parts must be taken chunk by chunk in the order of the records; else each is
    /// taken once, at the end, in any order.
    virtual bool inOrder() const = 0;
    /// Takes what a part made by this maker has found, and leaves it empty; called by one thread at
    /// a time. A part may have found nothing. False where it was ended. Throws std::runtime_error
    /// where the table grows too large.
    virtual bool take(TablePart& part, const GoOn& goOn) = 0;
    /// What finishing may take, in the time of scanning one of the pass's records.
    virtual double finishing(double records) const = 0;
    /// Called once, after all parts were taken; its stage of the progress has `sinkUnits`. Throws
    /// Cancelled.
    virtual TableResult finish(Progress& progress) = 0;
};

/// The maker for the table's kind. The planned table and the options must outlive it.
std::unique_ptr<TableMaker> makeTableMaker(const plan::PlannedTable& table, const Entity& unit,
                                           const RunOptions& options);

} // namespace kelx::execution
