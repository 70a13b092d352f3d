// SPDX-License-Identifier: Apache-2.0
// Hides figures of few records, and what would give them away.
#pragma once

#include "output/rows.h"

namespace kelx::output {

/// Blanks the figures of rows with 1 to least - 1 records, and others of few records so that no
/// hidden figure follows from the sums of the visible ones. Along each line of a dimension, which
/// is its valid categories with their total, what is hidden is together at least `least` records
/// and more than one for each row. Throws execution::Cancelled.
void suppress(RowTable& table, int least, execution::Progress& progress);

} // namespace kelx::output
