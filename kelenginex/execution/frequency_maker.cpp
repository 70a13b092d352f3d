// SPDX-License-Identifier: Apache-2.0
#include "execution/frequency_maker.h"

#include "execution/categories.h"
#include "execution/tabulator.h"

#include <algorithm>

namespace kelx::execution {
namespace {

/// As many rows as codes make, or as each record makes with all totals, but not more than the scan
/// itself.
double mostRowsOf(const TableShape& shape, double records) {
    double rows = 1;
    double totals = 1;
    for (const CodeDomain& domain : shape.domains) {
        const bool open = domain.physical == storage::Physical::Real64;
        rows *= open ? records : static_cast<double>(domain.size) + 2;
        totals *= 2;
    }
    return std::min({rows, records * totals, records + 1});
}

class FrequencyMaker : public TableMaker {
public:
    FrequencyMaker(const plan::PlannedTable& table, const Entity& unit)
        : table_(table), unit_(unit) {}

    std::unique_ptr<TablePart> makePart(NodePool& nodes, SourcePool& sources) override {
        auto part = std::make_unique<Tabulator>(table_, unit_, nodes, sources);
        if (!total_)
            total_ = std::make_unique<TableCells>(part->shape());
        return part;
    }
    std::size_t partBytes() const override { return Tabulator::bytesFor(table_, unit_); }
    /// Counts are exact in any order; only sums of weights are not.
    bool inOrder() const override { return total_->shape().weighted; }
    bool take(TablePart& part, const GoOn& goOn) override {
        if (!static_cast<Tabulator&>(part).giveTo(*total_, goOn))
            return false;
        if (total_->hashed.size() > mostRows)
            throwTooManyRows(*table_.command);
        return true;
    }
    double finishing(double records) const override { return mostRowsOf(total_->shape(), records); }
    TableResult finish(Progress& progress) override {
        TableResult result = finishTable(table_, *total_, progress);
        total_.reset();
        return result;
    }

private:
    const plan::PlannedTable& table_;
    const Entity& unit_;
    std::unique_ptr<TableCells> total_;
};

} // namespace

std::unique_ptr<TableMaker> makeFrequencyMaker(const plan::PlannedTable& table,
                                               const Entity& unit) {
    return std::make_unique<FrequencyMaker>(table, unit);
}

} // namespace kelx::execution
