// SPDX-License-Identifier: Apache-2.0
// Makes the column of one definition, block by block.
#pragma once

#include "execution/progress.h"
#include "execution/run.h"
#include "language/bound.h"
#include "plan/selection.h"

namespace kelx::execution {

/// Sets the column of the definition's variable. The stage of the progress ends at a share of the
/// whole. Throws as makeVariables() does.
void makeVariable(const language::Definition& definition, const RunOptions& options, double end,
                  plan::Selections& selections, Progress& progress);

} // namespace kelx::execution
