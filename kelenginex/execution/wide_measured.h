// SPDX-License-Identifier: Apache-2.0
// Figures of rows from the totals and the values of their cells.
#pragma once

#include "execution/order_statistics.h"

#include <cstddef>
#include <cstdint>
#include <memory>
#include <vector>

namespace kelx::execution {

class WideMeasured : public Measured {
public:
    WideMeasured(const MeasureForm& form, std::shared_ptr<const ValueLists> lists,
                 unsigned threads);

    /// Totals by own cell, where the form wants them; weights and counts of records, which are
    /// counted anew where not all are valid. Throws Cancelled.
    void takeTotals(std::vector<Totals> totals, const HashCells& cells, bool raw,
                    Progress& progress);
    std::uint64_t records(std::size_t ownCell) const { return records_[ownCell]; }
    /// Own cells that have become part of the table's cell of the same number in places.
    void place(const std::vector<std::uint32_t>& ownCells, const std::vector<std::uint32_t>& places,
               std::size_t cells);

    std::size_t figures() const override { return form_.figures(); }
    std::vector<Figure> work(const RowCells& rows, Progress& progress) override;

private:
    RowCells own(const RowCells& rows, Progress& progress) const;
    RowValues add(std::span<const std::uint32_t> cells) const;
    RowValues cell(std::uint32_t number) const;
    void findSquares(const StageShare& share, Progress& progress);
    double squares(std::span<const std::uint32_t> cells, const RowValues& row) const;
    std::vector<double> ginis(const RowCells& rows, const StageShare& share, Progress& progress);

    MeasureForm form_;
    std::shared_ptr<const ValueLists> lists_;
    OrderStatistics order_;
    unsigned threads_;
    std::vector<std::uint64_t> records_;
    std::vector<Sum> weights_;
    std::vector<Totals> totals_;
    std::vector<double> squares_;
    RowCells owned_; ///< own cells of each of the table's
};

} // namespace kelx::execution
