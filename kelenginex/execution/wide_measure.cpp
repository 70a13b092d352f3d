// SPDX-License-Identifier: Apache-2.0
#include "execution/wide_measure.h"

#include "execution/categories.h"
#include "execution/wide_measured.h"
#include "execution/wide_part.h"

#include <cmath>
#include <utility>

namespace kelx::execution {
namespace {

class WideMaker : public TableMaker {
public:
    WideMaker(const plan::PlannedTable& table, const Entity& unit, const RunOptions& options)
        : table_(table), unit_(unit), form_(*table.command), threads_(threadsFor(options.threads)),
          lists_(std::make_shared<ValueLists>()) {}

    std::unique_ptr<TablePart> makePart(NodePool& nodes, SourcePool& sources) override {
        auto part = std::make_unique<WidePart>(table_, unit_, nodes, sources);
        if (!total_) {
            total_ = std::make_unique<WideCells>(part->shape());
            if (part->values().isColumn()) {
                lists_->exclusions = part->values().exclusions();
                lists_->keep(part->values().column());
            }
            form_.whole = part->values().areWhole();
            mayExclude_ = part->values().mayExclude();
        }
        return part;
    }

    /// Values stay in the order of the records, so that sums are the same at every run.
    bool inOrder() const override { return true; }

    bool take(TablePart& from, const GoOn& goOn) override {
        auto& part = static_cast<WidePart&>(from);
        WideCells& found = part.found();
        HashCells& all = total_->cells.hashed;
        std::vector<std::uint32_t> numbers(found.cells.hashed.size());
        for (std::size_t cell = 0; cell < numbers.size(); ++cell) {
            if (cell % 4096 == 4095 && !goOn())
                return false;
            const HashCells& own = found.cells.hashed;
            numbers[cell] = static_cast<std::uint32_t>(
                all.add(own.codes(cell).data(), own.count(cell), own.sum(cell)));
        }
        if (all.size() > mostRows)
            throwTooManyRows(*table_.command);
        takeTotals(found, numbers);
        std::size_t done = 0;
        for (const WideCells::Added& added : found.stretches) {
            if (++done % 4096 == 0 && !goOn())
                return false;
            lists_->add(numbers[added.cell], added.stretch);
        }
        for (auto& owner : found.owners)
            lists_->keep(std::move(owner));
        total_->raw = total_->raw || found.raw;
        part.clear();
        return goOn();
    }

    /// Values are gone over once more where they are put in order, and sorted for Gini's sake.
    double finishing(double records) const override {
        if (form_.wantsGini())
            return records * 10;
        return form_.wantsQuantiles() ? records * 2 : std::min(records, 1e6);
    }

    TableResult finish(Progress& progress) override {
        HashCells& hashed = total_->cells.hashed;
        lists_->mayExclude = total_->raw && mayExclude_;
        lists_->weighted = form_.weighted;
        lists_->group(hashed.size(), progress);
        auto measured = std::make_shared<WideMeasured>(form_, lists_, threads_);
        measured->takeTotals(std::move(total_->totals), hashed, total_->raw, progress);
        const TableCells cells = validCells(*measured, progress);
        std::vector<std::uint32_t> places;
        TableResult result = finishTable(table_, cells, progress, &places);
        measured->place(present_, places, result.cells.size());
        result.measured = std::move(measured);
        total_.reset();
        return result;
    }

private:
    void takeTotals(const WideCells& found, const std::vector<std::uint32_t>& numbers) {
        if (!form_.wantsTotals())
            return;
        total_->totals.resize(total_->cells.hashed.size());
        for (std::size_t cell = 0; cell < found.totals.size(); ++cell)
            total_->totals[numbers[cell]].join(found.totals[cell]);
    }

    /// Those that have a value.
    TableCells validCells(const WideMeasured& measured, Progress& progress) {
        TableCells valid(total_->cells.shape());
        const HashCells& all = total_->cells.hashed;
        for (std::size_t cell = 0; cell < all.size(); ++cell) {
            progress.check();
            const std::uint64_t records = measured.records(cell);
            if (records == 0)
                continue;
            valid.hashed.add(all.codes(cell).data(), records, all.sum(cell));
            present_.push_back(static_cast<std::uint32_t>(cell));
        }
        return valid;
    }

    const plan::PlannedTable& table_;
    const Entity& unit_;
    MeasureForm form_;
    unsigned threads_;
    bool mayExclude_ = true;
    std::unique_ptr<WideCells> total_;
    std::shared_ptr<ValueLists> lists_;
    std::vector<std::uint32_t> present_; ///< cells that have a value
};

} // namespace

std::unique_ptr<TableMaker> makeWideMeasureMaker(const plan::PlannedTable& table,
                                                 const Entity& unit, const RunOptions& options) {
    return std::make_unique<WideMaker>(table, unit, options);
}

} // namespace kelx::execution
