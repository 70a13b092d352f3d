// SPDX-License-Identifier: Apache-2.0
// Goes over the records of a pass, on one thread or many.
#pragma once

#include "execution/progress.h"
#include "execution/result.h"
#include "execution/run.h"
#include "plan/plan.h"

#include <vector>

namespace kelx::execution {

/// The pass's tables, in its order; nothing where the run was cancelled. Figures do not depend on
/// the number of threads or on the size of blocks.
std::vector<TableResult> runPass(const plan::Pass& pass, const RunOptions& options,
                                 Progress& progress);

} // namespace kelx::execution
