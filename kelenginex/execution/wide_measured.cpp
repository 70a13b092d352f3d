// SPDX-License-Identifier: Apache-2.0
#include "execution/wide_measured.h"

#include "execution/gini.h"
#include "execution/row_quantiles.h"
#include "execution/sorting.h"

#include <numeric>
#include <utility>

namespace kelx::execution {
namespace {

/// Parts of the stage of the progress.
constexpr std::uint64_t counted = sinkUnits / 2;

template <class T>
double giniOf(std::vector<T>& values, const GoOn& goOn) {
    Gini gini;
    if (!sortValues(values, goOn))
        return 0;
    for (const T& value : values) {
        if constexpr (std::is_same_v<T, double>)
            gini.add(value, 1);
        else
            gini.add(value.value, value.weight);
    }
    return gini.value();
}

} // namespace

WideMeasured::WideMeasured(const MeasureForm& form, std::shared_ptr<const ValueLists> lists,
                           unsigned threads)
    : form_(form), lists_(std::move(lists)), order_(lists_, form, threads), threads_(threads) {}

void WideMeasured::takeTotals(std::vector<Totals> totals, const HashCells& cells, bool raw,
                              Progress& progress) {
    totals_ = std::move(totals);
    if (form_.wantsQuantiles() || raw)
        order_.count({0, counted}, progress);
    for (std::size_t cell = 0; cell < cells.size(); ++cell) {
        progress.check();
        records_.push_back(raw ? order_.counts()[cell] : cells.count(cell));
        if (form_.weighted)
            weights_.push_back(cells.sum(cell));
    }
}

void WideMeasured::place(const std::vector<std::uint32_t>& ownCells,
                         const std::vector<std::uint32_t>& places, std::size_t cells) {
    owned_.begins.assign(cells + 1, 0);
    for (const std::uint32_t place : places)
        ++owned_.begins[place + 1];
    std::partial_sum(owned_.begins.begin(), owned_.begins.end(), owned_.begins.begin());
    owned_.cells.resize(ownCells.size());
    std::vector<std::size_t> next(owned_.begins.begin(), owned_.begins.end() - 1);
    for (std::size_t i = 0; i < ownCells.size(); ++i)
        owned_.cells[next[places[i]]++] = ownCells[i];
}

RowCells WideMeasured::own(const RowCells& rows, Progress& progress) const {
    RowCells result;
    result.begins.reserve(rows.rows() + 1);
    result.cells.reserve(rows.cells.size());
    for (std::size_t row = 0; row < rows.rows(); ++row) {
        for (const std::uint32_t cell : rows.of(row)) {
            progress.check();
            const auto own = owned_.of(cell);
            result.cells.insert(result.cells.end(), own.begin(), own.end());
        }
        result.begins.push_back(result.cells.size());
    }
    return result;
}

std::vector<Figure> WideMeasured::work(const RowCells& tableRows, Progress& progress) {
    const RowCells rows = own(tableRows, progress);
    const StageShare share{counted, sinkUnits};
    std::vector<double> quantiles;
    std::vector<double> coefficients;
    if (form_.wantsSquares())
        findSquares({counted, counted}, progress);
    if (form_.wantsQuantiles())
        quantiles = order_.quantiles(rows, share, progress);
    if (form_.wantsGini())
        coefficients = ginis(rows, share, progress);
    std::vector<Figure> result(rows.rows() * figures());
    for (std::size_t row = 0; row < rows.rows(); ++row) {
        progress.check();
        RowValues values = add(rows.of(row));
        if (form_.wantsSquares())
            values.squares = squares(rows.of(row), values);
        if (form_.wantsQuantiles())
            values.quantiles =
                std::span(quantiles).subspan(row * (form_.parts - 1), form_.parts - 1);
        if (form_.wantsGini())
            values.gini = coefficients[row];
        writeFigures(form_, values, result.data() + row * figures());
    }
    return result;
}

RowValues WideMeasured::cell(std::uint32_t number) const {
    RowValues values;
    values.records = records_[number];
    if (form_.weighted)
        values.weight = weights_[number];
    if (form_.wantsTotals())
        values.totals = totals_[number];
    return values;
}

RowValues WideMeasured::add(std::span<const std::uint32_t> cells) const {
    RowValues row;
    for (const std::uint32_t number : cells) {
        const RowValues values = cell(number);
        row.records += values.records;
        row.weight.add(values.weight);
        row.totals.join(values.totals);
    }
    return row;
}

/// About the mean of each cell; rows put them together.
void WideMeasured::findSquares(const StageShare& share, Progress& progress) {
    const LargeVector<ValuePiece> pieces = lists_->pieces(progress);
    std::vector<double> sums(pieces.size());
    const auto findSum = [&](std::size_t i, const GoOn&) {
        const double mean = cell(pieces[i].cell).mean(form_);
        Sum sum;
        lists_->forEach(pieces[i], binnedAtOnce,
                        [&](const double* values, const double* weights, std::size_t count) {
                            for (std::size_t k = 0; k < count; ++k) {
                                const double distance = values[k] - mean;
                                const double weight = weights != nullptr ? weights[k] : 1;
                                sum.add(weight * distance * distance);
                            }
                        });
        sums[i] = sum.value();
    };
    shareOut(pieces.size(), threads_, share, findSum, progress);
    squares_.assign(lists_->cells(), 0);
    for (std::size_t i = 0; i < pieces.size(); ++i)
        squares_[pieces[i].cell] += sums[i];
}

double WideMeasured::squares(std::span<const std::uint32_t> cells, const RowValues& row) const {
    const double mean = row.mean(form_);
    Sum sum;
    for (const std::uint32_t number : cells) {
        const RowValues values = cell(number);
        const double distance = values.mean(form_) - mean;
        sum.add(squares_[number]);
        if (cells.size() > 1 && values.cases(form_) != 0)
            sum.add(values.cases(form_) * distance * distance);
    }
    return sum.value();
}

std::vector<double> WideMeasured::ginis(const RowCells& rows, const StageShare& share,
                                        Progress& progress) {
    std::vector<double> result(rows.rows());
    const auto findGini = [&](std::size_t row, const GoOn& goOn) {
        std::vector<double> plain;
        std::vector<WeightedValue> weighted;
        std::size_t cells = 0;
        for (const std::uint32_t cell : rows.of(row)) {
            if (++cells % 256 == 0 && !goOn())
                return;
            lists_->forEachValue(cell, [&](double value, double weight) {
                if (form_.weighted)
                    weighted.push_back({value, weight});
                else
                    plain.push_back(value);
            });
        }
        result[row] = form_.weighted ? giniOf(weighted, goOn) : giniOf(plain, goOn);
    };
    shareOut(rows.rows(), threads_, share, findGini, progress);
    return result;
}

} // namespace kelx::execution
