// SPDX-License-Identifier: Apache-2.0
// Makes the variables that a program defines, and saves those that are to be kept.
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

/// Writes the columns of the definitions that are to be saved; all or, where one cannot be
/// written, none stand under their names. Called after the tables. Throws storage::FileError.
void saveVariables(const language::BoundProgram& program, Progress& progress);

} // namespace kelx::execution
