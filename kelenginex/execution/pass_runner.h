// SPDX-License-Identifier: Apache-2.0
// Goes over the records of a pass, on one thread or many.
#pragma once

#include "execution/progress.h"
#include "execution/result.h"
#include "execution/run.h"
#include "plan/plan.h"

namespace kelx::execution {

/// A part of the whole run, from 0 to 1.
struct Share {
    double begin = 0;
    double end = 1;
};

/// Gives the pass's tables to the sink, in its order. Figures do not depend on the number of
/// threads or on the size of blocks. Throws Cancelled.
void runPass(const plan::Pass& pass, const RunOptions& options, const TableSink& sink,
             const Share& share, Progress& progress);

} // namespace kelx::execution
