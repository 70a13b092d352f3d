// SPDX-License-Identifier: Apache-2.0
#include "execution/coded_measure.h"

#include "execution/categories.h"
#include "execution/distribution.h"
#include "execution/stored_values.h"
#include "execution/tabulator.h"
#include "execution/vector.h"

#include <algorithm>
#include <numeric>
#include <utility>

namespace kelx::execution {
namespace {

using Groups = std::vector<ValueGroup>;

void sortAndJoin(Groups& groups) {
    std::stable_sort(groups.begin(), groups.end(),
                     [](const auto& a, const auto& b) { return a.value < b.value; });
    std::size_t kept = 0;
    for (std::size_t i = 1; i < groups.size(); ++i) {
        if (groups[kept].value != groups[i].value) {
            groups[++kept] = groups[i];
            continue;
        }
        groups[kept].records += groups[i].records;
        groups[kept].weight.add(groups[i].weight);
    }
    groups.resize(std::min(groups.size(), kept + 1));
}

/// The distribution of each cell's values.
class CodedMeasured : public Measured {
public:
    /// Cell c has the groups from begins[c] to begins[c + 1] - 1.
    CodedMeasured(const MeasureForm& form, Groups groups, std::vector<std::size_t> begins)
        : form_(form), groups_(std::move(groups)), begins_(std::move(begins)) {}

    std::size_t figures() const override { return form_.figures(); }
    std::vector<Figure> work(const RowCells& rows, Progress& progress) override {
        std::vector<Figure> result(rows.rows() * figures());
        for (std::size_t row = 0; row < rows.rows(); ++row) {
            progress.check();
            Distribution distribution(form_, groupsOf(rows.of(row), progress));
            writeFigures(form_, distribution.values(), result.data() + row * figures());
        }
        return result;
    }

private:
    Groups groupsOf(std::span<const std::uint32_t> cells, Progress& progress) const {
        constexpr std::size_t patience = 1U << 16;
        Groups result;
        std::size_t limit = patience;
        for (const std::uint32_t cell : cells) {
            progress.check();
            result.insert(result.end(),
                          groups_.begin() + static_cast<std::ptrdiff_t>(begins_[cell]),
                          groups_.begin() + static_cast<std::ptrdiff_t>(begins_[cell + 1]));
            if (result.size() < limit)
                continue;
            sortAndJoin(result);
            limit = result.size() + patience;
        }
        if (cells.size() > 1)
            sortAndJoin(result);
        return result;
    }

    MeasureForm form_;
    Groups groups_;
    std::vector<std::size_t> begins_;
};

class CodedMaker : public TableMaker {
public:
    CodedMaker(const plan::PlannedTable& table, const Entity& unit)
        : table_(table), joint_(table), unit_(unit), form_(*table.command) {
        form_.whole = true; // whatever the dictionary says of them
        joint_.dimensions.push_back(table.command->measure);
    }

    std::unique_ptr<TablePart> makePart(NodePool& nodes, SourcePool& sources) override {
        auto part = std::make_unique<Tabulator>(joint_, unit_, nodes, sources);
        if (!total_)
            total_ = std::make_unique<TableCells>(part->shape());
        return part;
    }
    std::size_t partBytes() const override { return Tabulator::bytesFor(joint_, unit_); }
    bool inOrder() const override { return form_.weighted; }
    bool take(TablePart& part, const GoOn& goOn) override {
        return static_cast<Tabulator&>(part).giveTo(*total_, goOn);
    }
    double finishing(double records) const override {
        return std::min(static_cast<double>(total_->shape().cells), records + 1);
    }

    TableResult finish(Progress& progress) override {
        collect(progress);
        std::vector<std::uint32_t> places;
        TableResult result = finishTable(table_, *cells_, progress, &places);
        result.measured = distribute(places, result.cells.size(), progress);
        cells_.reset();
        total_.reset();
        return result;
    }

private:
    struct Found {
        std::size_t cell;
        ValueGroup group;
    };

    /// Cells without the measure's dimension, and what was found in each.
    void collect(Progress& progress) {
        TableShape shape = total_->shape();
        shape.domains.pop_back();
        shape.cells = 0;
        shape.strides.clear();
        cells_ = std::make_unique<TableCells>(shape);
        const StoredValues values(*table_.command->measure->variable);
        total_->forEach(
            [&](std::span<const std::uint64_t> codes, std::uint64_t records, const Sum& sum) {
                progress.check();
                if (values.state(codes.back()) != state::valid)
                    return;
                const std::uint64_t only = 0;
                const std::uint64_t* own = codes.size() > 1 ? codes.data() : &only;
                const std::size_t cell = cells_->hashed.add(own, records, sum);
                found_.push_back({cell, {values.whole(codes.back()), records, sum}});
            });
    }

    std::shared_ptr<Measured> distribute(const std::vector<std::uint32_t>& places,
                                         std::size_t cells, Progress& progress) {
        std::vector<std::size_t> begins(cells + 1, 0);
        for (const Found& found : found_)
            ++begins[places[found.cell] + 1];
        std::partial_sum(begins.begin(), begins.end(), begins.begin());
        Groups groups(found_.size());
        std::vector<std::size_t> next(begins.begin(), begins.end() - 1);
        for (const Found& found : found_)
            groups[next[places[found.cell]]++] = found.group;
        found_.clear();
        Groups all;
        for (std::size_t cell = 0; cell < cells; ++cell) {
            progress.check();
            Groups own(groups.begin() + static_cast<std::ptrdiff_t>(begins[cell]),
                       groups.begin() + static_cast<std::ptrdiff_t>(begins[cell + 1]));
            sortAndJoin(own);
            begins[cell] = all.size();
            all.insert(all.end(), own.begin(), own.end());
        }
        begins[cells] = all.size();
        return std::make_shared<CodedMeasured>(form_, std::move(all), std::move(begins));
    }

    const plan::PlannedTable& table_;
    plan::PlannedTable joint_; ///< with the measure as its last dimension
    const Entity& unit_;
    MeasureForm form_;
    std::unique_ptr<TableCells> total_, cells_;
    std::vector<Found> found_;
};

} // namespace

std::unique_ptr<TableMaker> makeCodedMeasureMaker(const plan::PlannedTable& table,
                                                  const Entity& unit) {
    const language::Expression& measure = *table.command->measure;
    if (measure.operation != language::Operation::VariableValue)
        return nullptr;
    const ValueType type = measure.variable->column()->info().type;
    if (type != ValueType::Integer && type != ValueType::Boolean)
        return nullptr;
    std::vector<CodeDomain> domains;
    for (const auto& dimension : table.dimensions)
        domains.push_back(CodeSource(*dimension).domain());
    domains.push_back(CodeSource(measure).domain());
    if (!TableShape(std::move(domains), MeasureForm(*table.command).weighted).dense())
        return nullptr;
    return std::make_unique<CodedMaker>(table, unit);
}

} // namespace kelx::execution
