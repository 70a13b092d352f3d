// SPDX-License-Identifier: Apache-2.0
#include "output/row_maker.h"

#include <algorithm>
#include <cmath>
#include <stdexcept>

namespace kelx::output {

using execution::Category;
using execution::CategoryKind;

RowMaker::RowMaker(const execution::TableResult& result, execution::Progress& progress)
    : result_(result), progress_(progress), place_(result.dimensions.size()),
      totals_(result.dimensions.size()),
      withoutFirstTotal_(result.command->isHidden && !result.command->sensitive),
      places_(result.dimensions.size()) {
    for (const execution::Dimension& dimension : result.dimensions)
        valid_.push_back(static_cast<std::uint32_t>(
            std::count_if(dimension.categories.begin(), dimension.categories.end(),
                          [](const Category& c) { return c.kind == CategoryKind::Valid; })));
}

void RowMaker::fill(RowTable& table) {
    execution::LargeVector<Part> cells;
    cells.reserve(result_.cells.size());
    for (std::size_t i = 0; i < result_.cells.size(); ++i) {
        progress_.check();
        const execution::Cells::Cell cell = result_.cells[i];
        cells.push_back({static_cast<std::uint32_t>(i), cell.records, cell.sum});
    }
    makeAll(cells, result_.measured ? 0.2 : 1);
    table.valid = valid_;
    table.records = std::move(records_);
    for (Column::Numbers& places : places_)
        table.places.push_back(std::make_shared<Column::Numbers>(std::move(places)));
    if (result_.measured)
        work(table);
    else
        table.figures = {std::make_shared<Column::Figures>(std::move(figures_))};
}

/// Each cell stands in at most one row and its totals. Where that could be too much, rows are
/// counted before memory is spent on them.
void RowMaker::makeAll(const std::vector<Part>& cells, double whole) {
    const double most = std::ldexp(static_cast<double>(cells.size()),
                                   static_cast<int>(std::min<std::size_t>(place_.size(), 64)));
    counting_ = most > static_cast<double>(execution::mostRows);
    const double counted = counting_ ? 0.4 * whole : 0;
    if (counting_) {
        make(0, cells, true, {0, counted});
        reserve();
        counting_ = false;
        rows_ = 0;
    }
    make(0, cells, true, {counted, whole});
}

void RowMaker::reserve() {
    for (Column::Numbers& places : places_)
        places.reserve(rows_);
    records_.reserve(rows_);
    figures_.reserve(result_.measured ? 0 : rows_);
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
    if ((begin > 0 || onlyTotals) && !(withoutFirstTotal_ && dimension == 0))
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

void RowMaker::sortFrom(std::size_t dimension, std::vector<Part>& parts) {
    std::sort(parts.begin(), parts.end(), [&](const Part& a, const Part& b) {
        progress_.check();
        const std::uint32_t* x = result_.cells.categories(a.first);
        const std::uint32_t* y = result_.cells.categories(b.first);
        for (std::size_t d = dimension; d < place_.size(); ++d) {
            if (x[d] != y[d])
                return x[d] < y[d];
        }
        return a.first < b.first;
    });
}

/// The parts without one dimension, in the order of those that follow.
RowMaker::Parts RowMaker::joined(std::size_t dimension, Parts parts) {
    if (parts.empty() || category(parts.front(), dimension) == category(parts.back(), dimension))
        return parts; // in order, and each different
    const std::size_t next = dimension + 1;
    execution::LargeVector<Part>& result = totals_[dimension];
    result.clear();
    result.reserve(parts.size());
    for (const Part& part : parts) {
        progress_.check();
        result.push_back(part);
    }
    if (next < place_.size())
        sortFrom(next, result);
    if (result_.measured)
        return result;
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
    addFigure(parts);
}

void RowMaker::addFigure(Parts parts) {
    std::uint64_t records = 0;
    for (const Part& part : parts)
        records += part.records;
    records_.push_back(records);
    if (result_.measured) {
        for (const Part& part : parts)
            cells_.cells.push_back(part.first);
        cells_.begins.push_back(cells_.cells.size());
    } else if (result_.exact) {
        figures_.emplace_back(static_cast<std::int64_t>(records));
    } else {
        figures_.emplace_back(parts.empty() ? 0.0 : parts.front().sum.value());
    }
}

/// The figures of a measure, which come side by side.
void RowMaker::work(RowTable& table) {
    const std::size_t width = result_.measured->figures();
    const std::vector<Figure> figures = result_.measured->work(cells_, progress_);
    if (width == 0 || figures.size() != table.records.size() * width)
        throw std::logic_error("a measure has not worked out all its rows");
    for (std::size_t f = 0; f < width; ++f) {
        auto column = std::make_shared<Column::Figures>();
        column->reserve(table.records.size());
        for (std::size_t row = 0; row < table.records.size(); ++row)
            column->push_back(figures[row * width + f]);
        table.figures.push_back(std::move(column));
    }
}

} // namespace kelx::output
