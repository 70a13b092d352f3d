// SPDX-License-Identifier: Apache-2.0
// Where the figures of one table are kept: dense or hashed, as its dimensions ask.
#pragma once

#include "execution/cells.h"
#include "execution/code_source.h"

#include <cstddef>
#include <cstdint>
#include <vector>

namespace kelx::execution {

/// The shape of a table: the domains of its dimensions and how their codes make a cell's number.
/// Cells that differ only in dimensions without long runs are neighbours.
struct TableShape {
    std::vector<CodeDomain> domains;
    std::vector<std::uint32_t> strides; ///< of dense cells
    std::size_t cells = 0;              ///< dense cells in all; 0: the table is hashed
    std::size_t neighbours = 1;         ///< cells that share the codes of long runs
    bool weighted = false;

    TableShape(std::vector<CodeDomain> of, bool isWeighted);
    bool dense() const { return cells > 0; }
    /// Cells have numbers of one byte, among their neighbours.
    bool small() const { return dense() && neighbours <= 256; }

private:
    bool number(bool longRuns);
};

/// Figures by cell; partial ones are merged into the whole.
class TableCells {
public:
    /// Those of a dense table without figures have no room for any.
    explicit TableCells(const TableShape& shape, bool withFigures = true);

    DenseCells dense;
    HashCells hashed;

    const TableShape& shape() const { return shape_; }
    /// Takes the other's figures over, which leaves it without; false where it was ended.
    bool take(TableCells& other, const GoOn& goOn);
    /// use(codes, records, sum) for each cell that occurred; a blank's code is all ones.
    template <class Use>
    void forEach(Use use) const {
        if (!shape_.dense()) {
            for (std::size_t cell = 0; cell < hashed.size(); ++cell)
                use(hashed.codes(cell), hashed.count(cell), hashed.sum(cell));
            return;
        }
        std::vector<std::uint64_t> codes(shape_.domains.size());
        for (std::size_t cell = 0; cell < shape_.cells; ++cell) {
            if (dense.counts[cell] == 0)
                continue;
            decode(cell, codes);
            use(std::span<const std::uint64_t>(codes), dense.counts[cell], dense.sum(cell));
        }
    }

private:
    void decode(std::size_t cell, std::vector<std::uint64_t>& codes) const;
    TableShape shape_;
};

} // namespace kelx::execution
