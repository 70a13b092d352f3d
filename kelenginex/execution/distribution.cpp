// SPDX-License-Identifier: Apache-2.0
#include "execution/distribution.h"

#include "execution/gini.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace kelx::execution {

Distribution::Distribution(const MeasureForm& form, std::vector<ValueGroup> groups)
    : form_(form), groups_(std::move(groups)) {
    addUp();
    if (form_.wantsSquares())
        findSquares();
    if (form_.wantsGini())
        findGini();
    if (!form_.wantsQuantiles())
        return;
    quantiles_.assign(form_.parts - 1, std::numeric_limits<double>::quiet_NaN());
    if (form_.weighted)
        findWeightedQuantiles();
    else if (row_.records > 0)
        findQuantiles();
    row_.quantiles = quantiles_;
}

void Distribution::addUp() {
    Totals& totals = row_.totals;
    ends_.reserve(groups_.size());
    for (const ValueGroup& group : groups_) {
        row_.records += group.records;
        row_.weight.add(group.weight);
        totals.whole += static_cast<Wide>(group.value) * static_cast<Wide>(group.records);
        totals.sum.add(weightOf(group) * static_cast<double>(group.value));
        ends_.push_back(row_.records);
    }
    if (groups_.empty())
        return;
    totals.lowestWhole = groups_.front().value;
    totals.highestWhole = groups_.back().value;
}

double Distribution::valueAt(std::uint64_t rank) const {
    const auto end = std::upper_bound(ends_.begin(), ends_.end(), rank);
    return static_cast<double>(groups_[static_cast<std::size_t>(end - ends_.begin())].value);
}

void Distribution::findQuantiles() {
    for (std::size_t i = 1; i < form_.parts; ++i) {
        const QuantilePlace place(row_.records, i, form_.parts);
        const double low = valueAt(place.below);
        quantiles_[i - 1] = place.share == 0 ? low : place.between(low, valueAt(place.below + 1));
    }
}

void Distribution::findWeightedQuantiles() {
    const double all = row_.weight.value();
    if (!(all > 0))
        return;
    Sum running;
    std::size_t i = 1;
    for (const ValueGroup& group : groups_) {
        running.add(group.weight);
        for (; i < form_.parts && running.value() >= quantileWeight(all, i, form_.parts); ++i)
            quantiles_[i - 1] = static_cast<double>(group.value);
    }
}

void Distribution::findSquares() {
    const double mean = row_.mean(form_);
    Sum squares;
    for (const ValueGroup& group : groups_) {
        const double distance = static_cast<double>(group.value) - mean;
        squares.add(weightOf(group) * distance * distance);
    }
    row_.squares = squares.value();
}

void Distribution::findGini() {
    Gini gini;
    for (const ValueGroup& group : groups_)
        gini.add(static_cast<double>(group.value), weightOf(group));
    row_.gini = gini.value();
}

} // namespace kelx::execution
