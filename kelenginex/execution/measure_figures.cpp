// SPDX-License-Identifier: Apache-2.0
#include "execution/measure_figures.h"

#include <algorithm>
#include <cmath>
#include <numeric>

namespace kelx::execution {

using language::TableKind;

namespace {

constexpr double none = std::numeric_limits<double>::quiet_NaN();

Figure real(double value) {
    return std::isnan(value) ? Figure() : Figure(value);
}

Figure sumOf(const MeasureForm& form, const RowValues& row) {
    if (!form.whole || form.weighted)
        return real(row.totals.sum.value());
    const Wide whole = row.totals.whole;
    if (whole < std::numeric_limits<std::int64_t>::min() ||
        whole > std::numeric_limits<std::int64_t>::max())
        return static_cast<double>(whole);
    return static_cast<std::int64_t>(whole);
}

Figure lowestOf(const MeasureForm& form, const RowValues& row) {
    if (row.records == 0)
        return {};
    return form.whole ? Figure(row.totals.lowestWhole) : Figure(row.totals.lowest);
}

Figure highestOf(const MeasureForm& form, const RowValues& row) {
    if (row.records == 0)
        return {};
    return form.whole ? Figure(row.totals.highestWhole) : Figure(row.totals.highest);
}

void writeStats(const MeasureForm& form, const RowValues& row, Figure* figures) {
    const double cases = row.cases(form);
    const double mean = row.mean(form);
    const double variance = cases > 1 ? row.squares / (cases - 1) : none;
    const double deviation = std::sqrt(variance);
    *figures++ = form.weighted ? Figure(cases) : Figure(static_cast<std::int64_t>(row.records));
    *figures++ = sumOf(form, row);
    *figures++ = real(mean);
    *figures++ = real(row.quantiles.empty() ? none : row.quantiles[0]);
    *figures++ = lowestOf(form, row);
    *figures++ = highestOf(form, row);
    *figures++ = real(deviation);
    *figures++ = real(variance);
    *figures++ = mean != 0 ? real(deviation / mean * 100) : Figure();
    *figures++ = real(deviation / std::sqrt(cases));
}

} // namespace

void Totals::join(const Totals& other) {
    sum.add(other.sum);
    whole += other.whole;
    lowest = std::min(lowest, other.lowest);
    highest = std::max(highest, other.highest);
    lowestWhole = std::min(lowestWhole, other.lowestWhole);
    highestWhole = std::max(highestWhole, other.highestWhole);
}

MeasureForm::MeasureForm(const language::TableCommand& command)
    : kind(command.kind), whole(command.measure->type != language::ValueType::Real),
      weighted(command.weight != nullptr || command.tally != nullptr) {
    if (kind == TableKind::Quantile)
        parts = static_cast<std::size_t>(std::max(command.quantiles, 2));
}

std::size_t MeasureForm::figures() const {
    constexpr std::size_t ofStats = 10;
    if (kind == TableKind::Stats)
        return ofStats;
    return kind == TableKind::Quantile ? parts - 1 : 1;
}

bool MeasureForm::wantsTotals() const {
    return !wantsGini() && kind != TableKind::Median && kind != TableKind::Quantile;
}

bool MeasureForm::wantsQuantiles() const {
    return kind == TableKind::Median || kind == TableKind::Quantile || kind == TableKind::Stats;
}

double RowValues::cases(const MeasureForm& form) const {
    return form.weighted ? weight.value() : static_cast<double>(records);
}

double RowValues::mean(const MeasureForm& form) const {
    const double all = cases(form);
    if (records == 0 || all == 0)
        return none;
    if (form.whole && !form.weighted)
        return static_cast<double>(totals.whole) / all;
    return totals.sum.value() / all;
}

void writeFigures(const MeasureForm& form, const RowValues& row, Figure* figures) {
    switch (form.kind) {
    case TableKind::Average:
        *figures = real(row.mean(form));
        break;
    case TableKind::Sum:
        *figures = sumOf(form, row);
        break;
    case TableKind::Minimum:
        *figures = lowestOf(form, row);
        break;
    case TableKind::Maximum:
        *figures = highestOf(form, row);
        break;
    case TableKind::Stats:
        writeStats(form, row, figures);
        break;
    case TableKind::Gini:
        *figures = real(row.gini);
        break;
    default:
        std::transform(row.quantiles.begin(), row.quantiles.end(), figures, real);
    }
}

QuantilePlace::QuantilePlace(std::uint64_t n, std::size_t i, std::size_t parts)
    : below((n - 1) * i / parts),
      share(static_cast<double>((n - 1) * i % parts) / static_cast<double>(parts)) {}

double QuantilePlace::between(double low, double high) const {
    if (share == 0 || low == high)
        return low;
    return share == 0.5 ? std::midpoint(low, high) : low + share * (high - low);
}

} // namespace kelx::execution
