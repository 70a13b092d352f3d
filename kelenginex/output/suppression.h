// SPDX-License-Identifier: Apache-2.0
// Hides figures of few records, and what would give them away.
#pragma once

#include "output/rows.h"

namespace kelx::output {

/// Blanks the figures of rows with 1 to least - 1 records. Along each line of a dimension, which is
/// its valid categories with their total, never a single row is hidden, as the others would tell
/// it: the one of fewest records is hidden beside it. Throws execution::Cancelled.
void suppress(RowTable& table, int least, execution::Progress& progress);

} // namespace kelx::output
