// SPDX-License-Identifier: Apache-2.0
#include "output/hidden_boxes.h"

#include <algorithm>
#include <limits>
#include <stdexcept>

namespace kelx::output {
namespace {

constexpr std::size_t mostTries = 400;  ///< boxes looked at for a row
constexpr std::size_t mostPlaces = 6;   ///< tried in a dimension
constexpr std::size_t mostLooked = 256; ///< rows of a line looked at for them

} // namespace

HiddenBoxes::HiddenBoxes(RowTable& table, const TableLines& lines, execution::Progress& progress)
    : table_(table), lines_(lines), progress_(progress), safe_(table.rows()) {}

bool HiddenBoxes::close() {
    bool any = false;
    for (std::size_t row = 0; row < table_.rows(); ++row) {
        if (!table_.isHidden(row) || safe_[row] != 0)
            continue;
        progress_.check();
        protect(static_cast<std::uint32_t>(row));
        any = true;
    }
    return any;
}

void HiddenBoxes::protect(std::uint32_t row) {
    findDirections(row);
    startWithTotals(row);
    places_.clear();
    for (const std::size_t d : directions_)
        places_.push_back(placesFor(d, row));
    box_ = {row};
    tries_ = 0;
    search(0, 0);
    for (const std::uint32_t corner : best_)
        table_.hidden[corner] = safe_[corner] = 1;
}

/// Where MV and NA stand there is no line to be told by.
void HiddenBoxes::findDirections(std::uint32_t row) {
    directions_.clear();
    for (std::size_t d = 0; d < lines_.dimensions(); ++d) {
        if (lines_.numberOf(d, row) != TableLines::none)
            directions_.push_back(d);
    }
}

/// Behind every row are rows of valid categories alone, and all their totals stand in the table: a
/// box that is always there.
void HiddenBoxes::startWithTotals(std::uint32_t row) {
    std::uint32_t inner = row;
    for (const std::size_t d : directions_) {
        if (!lines_.isTotal(d, inner))
            continue;
        const TableLines::Line line = lines_.line(d, lines_.numberOf(d, inner));
        const auto fewest = [&](std::uint32_t a, std::uint32_t b) { return costOf(a) < costOf(b); };
        if (line.size() > 1)
            inner = *std::min_element(line.begin(), line.end() - 1, fewest);
    }
    box_ = {inner};
    double cost = costOf(inner);
    bestCost_ = std::numeric_limits<double>::infinity();
    for (const std::size_t d : directions_) {
        if (!extend(d, table_.valid[d], cost))
            throw std::logic_error("a table has not all its totals");
    }
    best_ = box_;
    bestCost_ = cost;
}

/// Doubles the box dimension by dimension, as long as it is better than the best.
void HiddenBoxes::search(std::size_t depth, double cost) {
    if (depth == directions_.size()) {
        ++tries_;
        best_ = box_;
        bestCost_ = cost;
        return;
    }
    for (const std::uint32_t place : places_[depth]) {
        if (++tries_ > mostTries || bestCost_ == 0)
            return;
        const std::size_t corners = box_.size();
        double more = cost;
        if (extend(directions_[depth], place, more))
            search(depth + 1, more);
        box_.resize(corners);
    }
}

/// False where a corner is missing or the box becomes no better than the best.
bool HiddenBoxes::extend(std::size_t dimension, std::uint32_t place, double& cost) {
    const std::size_t corners = box_.size();
    for (std::size_t i = 0; i < corners; ++i) {
        const std::uint32_t corner = lines_.neighbour(dimension, box_[i], place);
        if (corner == TableLines::none)
            return false;
        cost += costOf(corner);
        if (cost >= bestCost_)
            return false;
        box_.push_back(corner);
    }
    return true;
}

/// Those that cost least along the row's line; of a long line some are looked at.
std::vector<std::uint32_t> HiddenBoxes::placesFor(std::size_t dimension, std::uint32_t row) const {
    const TableLines::Line line = lines_.line(dimension, lines_.numberOf(dimension, row));
    std::vector<std::pair<double, std::uint32_t>> costs;
    const std::size_t step = 1 + line.size() / mostLooked;
    for (std::size_t i = 0; i < line.size(); i += step) {
        if (line[i] != row)
            costs.emplace_back(costOf(line[i]), table_.place(dimension, line[i]));
    }
    const std::size_t kept = std::min(costs.size(), mostPlaces);
    std::partial_sort(costs.begin(), costs.begin() + static_cast<std::ptrdiff_t>(kept),
                      costs.end());
    std::vector<std::uint32_t> places;
    for (std::size_t i = 0; i < kept; ++i)
        places.push_back(costs[i].second);
    return places;
}

double HiddenBoxes::costOf(std::uint32_t row) const {
    return table_.isHidden(row) ? 0 : static_cast<double>(table_.records[row]);
}

} // namespace kelx::output
