// SPDX-License-Identifier: Apache-2.0
// What a thread keeps of measured values that are too many to be counted one by one.
#pragma once

#include "execution/cell_numbers.h"
#include "execution/measure_figures.h"
#include "execution/measured_values.h"
#include "execution/record_weights.h"
#include "execution/table_maker.h"

#include <cstddef>
#include <cstdint>
#include <memory>
#include <vector>

namespace kelx::execution {

/// Cells with their records and weights, and, as the measure asks, totals and the values.
struct WideCells {
    explicit WideCells(const TableShape& shape) : cells(shape) {}

    TableCells cells;           ///< hashed
    std::vector<Totals> totals; ///< by cell, where the form wants them
    struct Added {
        std::uint32_t cell;
        ValueStretch stretch;
    };
    std::vector<Added> stretches;                    ///< in the order of the records
    std::vector<std::shared_ptr<const void>> owners; ///< of what stretches point at
    /// Stretches may hold what is no value, and records were not counted.
    bool raw = false;

    void clear();
};

class WidePart final : public TablePart {
public:
    WidePart(const plan::PlannedTable& table, const Entity& unit, NodePool& nodes,
             SourcePool& sources);

    const TableShape& shape() const { return numbers_.shape(); }
    const MeasuredValues& values() const { return values_; }
    WideCells& found() { return found_; }
    /// To be called where what was found was taken.
    void clear();

    std::size_t mostAtOnce() const override;
    bool mayPass(const plan::RecordRange& records) const override {
        return weights_.mayPass(records);
    }
    void add(Frames& frames, const std::uint8_t* mask) override;

private:
    bool mayStay() const;
    bool addInPlace(Frames& frames);
    void findRecords(Frames& frames, const std::uint8_t* mask);
    void addCounts();
    void addTotals();
    void addCopies();

    MeasureForm form_;
    RecordWeights weights_;
    MeasuredValues values_;
    CellNumbers numbers_;
    WideCells found_;
    std::vector<std::uint32_t> cells_;   ///< of the step's records that count
    std::vector<std::uint32_t> records_; ///< their places in the step; none: all in order
    bool all_ = true;
    const double* recordWeights_ = nullptr;
    std::vector<std::uint32_t> counts_, touched_;
};

} // namespace kelx::execution
