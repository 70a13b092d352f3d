// SPDX-License-Identifier: Apache-2.0
// Which tables share a pass over the data, and over which records it goes.
#pragma once

#include "language/bound.h"
#include "plan/selection.h"

#include <cstddef>
#include <vector>

namespace kelx::plan {

/// A table of a pass.
struct PlannedTable {
    std::size_t index = 0; ///< of the table in the program
    const language::TableCommand* command = nullptr;
    /// Those of the command, with the area that breaks the run before them.
    std::vector<language::ExpressionPtr> dimensions;
};

/// Tables over the same records of the same entity: they are made in one go over the data.
struct Pass {
    const Entity* unit = nullptr;
    RecordRanges ranges;
    /// All must hold: what the run asks of each record. A filter on an entity below the unit keeps
    /// the records that have at least one passing record under them.
    std::vector<language::ExpressionPtr> filters;
    std::vector<PlannedTable> tables;
};

struct Plan {
    std::vector<Pass> passes;
};

/// Warns of areas that there are not and that filters name, those of the variables made too. Throws
/// storage::FileError where codes or pointers cannot be read.
Plan makePlan(const language::BoundProgram& program, Selections& selections);

} // namespace kelx::plan
