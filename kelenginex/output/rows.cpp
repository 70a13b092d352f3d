// SPDX-License-Identifier: Apache-2.0
#include "output/rows.h"

#include <algorithm>
#include <cmath>

namespace kelx::output {

using execution::Category;
using execution::CategoryKind;

RowMaker::RowMaker(const execution::TableResult& result, execution::Progress& progress)
    : result_(result), progress_(progress), place_(result.dimensions.size()),
      totals_(result.dimensions.size()), places_(result.dimensions.size()) {
    for (const execution::Dimension& dimension : result.dimensions)
        valid_.push_back(static_cast<std::uint32_t>(
            std::count_if(dimension.categories.begin(), dimension.categories.end(),
                          [](const Category& c) { return c.kind == CategoryKind::Valid; })));
    std::vector<Part> cells;
    cells.reserve(result.cells.size());
    for (std::size_t i = 0; i < result.cells.size(); ++i) {
        const execution::Cells::Cell cell = result.cells[i];
        cells.push_back({static_cast<std::uint32_t>(i), cell.records, cell.sum});
    }
    makeAll(cells);
}

/// Each cell stands in at most one row and its totals. Where that could be too much, rows are
/// counted before memory is spent on them.
void RowMaker::makeAll(const std::vector<Part>& cells) {
    const double most = std::ldexp(static_cast<double>(cells.size()),
                                   static_cast<int>(std::min<std::size_t>(place_.size(), 64)));
    counting_ = most > static_cast<double>(execution::mostRows);
    const double counted = counting_ ? 0.4 : 0;
    if (counting_) {
        make(0, cells, true, {0, counted});
        for (Column::Numbers& places : places_)
            places.reserve(rows_);
        figures_.reserve(rows_);
        counting_ = false;
        rows_ = 0;
    }
    make(0, cells, true, {counted, 1});
}

/// The grand total stands in every table, even where it is the total of nothing: `onlyTotals` tells
/// that all dimensions before are at their total.
void RowMaker::make(std::size_t dimension, Parts parts, bool onlyTotals, const Stretch& stretch) {
    if (dimension == place_.size())
        return addRow(parts, stretch);
    const std::uint32_t valid = valid_[dimension];
    std::size_t begin = 0;
    // The total may take as long as all categories together.
    const double step = (stretch.end - stretch.begin) / 2 / static_cast<double>(parts.size() + 1);
    const auto at = [&](std::size_t part) {
        return stretch.begin + step * static_cast<double>(part);
    };
    const auto makeUpTo = [&](std::uint32_t categories, double shift) {
        while (begin < parts.size() && category(parts[begin], dimension) < categories) {
            const std::uint32_t own = category(parts[begin], dimension);
            std::size_t end = begin + 1;
            while (end < parts.size() && category(parts[end], dimension) == own)
                ++end;
            makeInside(dimension, own + (own < valid ? 0 : 1), parts.subspan(begin, end - begin),
                       false, {at(begin) + shift, at(end) + shift});
            begin = end;
        }
    };
    makeUpTo(valid, 0);
    const double half = (stretch.end - stretch.begin) / 2;
    if (begin > 0 || onlyTotals)
        makeInside(dimension, valid, joined(dimension, parts.first(begin)), onlyTotals,
                   {at(begin), at(begin) + half});
    makeUpTo(static_cast<std::uint32_t>(result_.dimensions[dimension].categories.size()), half);
}

void RowMaker::makeInside(std::size_t dimension, std::uint32_t place, Parts parts, bool onlyTotals,
                          const Stretch& stretch) {
    place_[dimension] = place;
    make(dimension + 1, parts, onlyTotals, stretch);
}

bool RowMaker::agreeFrom(std::size_t dimension, const Part& a, const Part& b) const {
    const std::uint32_t* x = result_.cells.categories(a.first);
    const std::uint32_t* y = result_.cells.categories(b.first);
    return std::equal(x + dimension, x + place_.size(), y + dimension);
}

/// The parts without one dimension, in the order of those that follow.
RowMaker::Parts RowMaker::joined(std::size_t dimension, Parts parts) {
    if (parts.empty() || category(parts.front(), dimension) == category(parts.back(), dimension))
        return parts; // in order, and each different
    const std::size_t next = dimension + 1;
    std::vector<Part>& result = totals_[dimension];
    result.assign(parts.begin(), parts.end());
    if (next < place_.size())
        std::sort(result.begin(), result.end(), [&](const Part& a, const Part& b) {
            progress_.check();
            const std::uint32_t* x = result_.cells.categories(a.first);
            const std::uint32_t* y = result_.cells.categories(b.first);
            for (std::size_t d = next; d < place_.size(); ++d) {
                if (x[d] != y[d])
                    return x[d] < y[d];
            }
            return a.first < b.first;
        });
    std::size_t last = 0;
    for (std::size_t i = 1; i < result.size(); ++i) {
        progress_.check();
        if (!agreeFrom(next, result[last], result[i])) {
            result[++last] = result[i];
            continue;
        }
        result[last].records += result[i].records;
        result[last].sum.add(result[i].sum);
    }
    result.resize(last + 1);
    return result;
}

void RowMaker::addRow(Parts parts, const Stretch& stretch) {
    constexpr std::size_t patience = 256;
    if (++rows_ > execution::mostRows)
        execution::throwTooManyRows(*result_.command);
    if (rows_ % patience == 0)
        progress_.reach(static_cast<std::uint64_t>(stretch.begin * execution::sinkUnits));
    progress_.check();
    if (counting_)
        return;
    for (std::size_t d = 0; d < place_.size(); ++d)
        places_[d].push_back(place_[d]);
    const Part part = parts.empty() ? Part{} : parts.front();
    if (result_.exact)
        figures_.emplace_back(static_cast<std::int64_t>(part.records));
    else
        figures_.emplace_back(part.sum.value());
}

} // namespace kelx::output
