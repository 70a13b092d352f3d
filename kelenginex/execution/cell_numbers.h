// SPDX-License-Identifier: Apache-2.0
// The cells that the records of a step belong to, where a table keeps more than counts.
#pragma once

#include "execution/table_cells.h"
#include "execution/tabulator.h"

#include <cstddef>
#include <cstdint>
#include <vector>

namespace kelx::execution {

/// Finds cells at the lowest entity of the dimensions: records below it come in runs. One for each
/// table and thread.
class CellNumbers {
public:
    CellNumbers(const plan::PlannedTable& table, const Entity& unit, SourcePool& pool);

    /// Domains of the dimensions, made to be hashed.
    const TableShape& shape() const { return shape_; }
    /// True where each record of the unit may have a cell of its own.
    bool single() const { return lowest_ == unit_; }
    /// The cell of each run; cells are made where there are none.
    const std::vector<std::uint32_t>& find(Frames& frames, HashCells& cells);
    /// Where the runs end; only where not single().
    const std::vector<std::uint32_t>& ends(Frames& frames);
    /// To be called where the cells are begun anew.
    void clear() { known_.assign(known_.size(), 0); }

private:
    void findDense(Frames& frames, HashCells& cells);
    void findHashed(Frames& frames, HashCells& cells);
    void makeIndex(Frames& frames);

    const Entity* unit_;
    const Entity* lowest_ = nullptr; ///< null without dimensions: one run
    std::vector<CodeSource*> sources_;
    TableShape dense_, shape_;
    std::vector<std::uint32_t> known_; ///< cell + 1 by number of a dense cell
    std::vector<std::uint32_t> index_, result_, onlyEnd_;
    std::vector<std::vector<std::uint64_t>> numbers_;
    std::vector<std::uint64_t> codes_;
};

} // namespace kelx::execution
