// SPDX-License-Identifier: Apache-2.0
// Makes the variables that a program defines.
#pragma once

#include "execution/progress.h"
#include "execution/run.h"
#include "language/bound.h"
#include "plan/selection.h"

namespace kelx::execution {

/// Gives a column to each definition that is used, in order. Takes the progress up to a share of
/// the whole. Throws Cancelled, storage::FileError, and std::runtime_error on what is not
/// supported.
void makeVariables(const language::BoundProgram& program, const RunOptions& options, double share,
                   plan::Selections& selections, Progress& progress);

} // namespace kelx::execution
