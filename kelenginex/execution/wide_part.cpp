// SPDX-License-Identifier: Apache-2.0
#include "execution/wide_part.h"

#include <algorithm>
#include <limits>

namespace kelx::execution {
namespace {

/// Shorter runs are copied: looking each up again costs more.
constexpr std::size_t longRun = 256;

} // namespace

void WideCells::clear() {
    cells.hashed.clear();
    totals.clear();
    stretches.clear();
    owners.clear();
    raw = false;
}

WidePart::WidePart(const plan::PlannedTable& table, const Entity& unit, NodePool& nodes,
                   SourcePool& sources)
    : form_(*table.command), weights_(*table.command, unit, nodes),
      values_(*table.command->measure, unit, nodes), numbers_(table, unit, sources),
      found_(numbers_.shape()) {
    form_.whole = values_.areWhole();
}

void WidePart::clear() {
    found_.clear();
    numbers_.clear();
}

/// Where only the values count, and those of a cell lie side by side.
bool WidePart::mayStay() const {
    return values_.isColumn() && !form_.weighted && !form_.wantsTotals() && !numbers_.single();
}

/// What is not looked at needs no room in the cache.
std::size_t WidePart::mostAtOnce() const {
    return mayStay() ? storage::recordsPerBlock : cachedStep;
}

void WidePart::add(Frames& frames, const std::uint8_t* mask) {
    values_.read(frames);
    const std::uint8_t* passing = weights_.mask(frames, mask);
    if (passing == nullptr && addInPlace(frames))
        return;
    findRecords(frames, values_.mask(passing, frames.baseFrame().count));
    recordWeights_ = form_.weighted ? weights_.weights(frames) : nullptr;
    addCounts();
    if (form_.wantsTotals())
        addTotals();
    if (form_.wantsQuantiles() || form_.wantsGini())
        addCopies();
}

bool WidePart::addInPlace(Frames& frames) {
    const double* values = values_.inPlace();
    if (values == nullptr || !mayStay())
        return false;
    const auto& ends = numbers_.ends(frames);
    if (frames.baseFrame().count < ends.size() * longRun)
        return false;
    const auto& cells = numbers_.find(frames, found_.cells.hashed);
    std::size_t begin = 0;
    for (std::size_t run = 0; run < ends.size(); ++run) {
        const std::uint64_t count = ends[run] - begin;
        found_.cells.hashed.addTo(cells[run], count, {});
        if (count > 0)
            found_.stretches.push_back({cells[run], {values + begin, nullptr, count}});
        begin = ends[run];
    }
    found_.raw = true;
    return true;
}

/// The records that count and the cell of each.
void WidePart::findRecords(Frames& frames, const std::uint8_t* mask) {
    const std::size_t count = frames.baseFrame().count;
    all_ = mask == nullptr;
    records_.clear();
    if (mask != nullptr) {
        records_.resize(count);
        std::size_t kept = 0;
        for (std::size_t i = 0; i < count; ++i) {
            records_[kept] = static_cast<std::uint32_t>(i);
            kept += mask[i] & 1U;
        }
        records_.resize(kept);
    }
    if (!all_ && records_.empty())
        return cells_.clear();
    const auto& found = numbers_.find(frames, found_.cells.hashed);
    cells_.resize(count);
    if (numbers_.single()) {
        std::copy(found.begin(), found.end(), cells_.begin());
    } else {
        const auto& ends = numbers_.ends(frames);
        std::size_t begin = 0;
        for (std::size_t run = 0; run < ends.size(); ++run) {
            std::fill(cells_.begin() + static_cast<std::ptrdiff_t>(begin),
                      cells_.begin() + static_cast<std::ptrdiff_t>(ends[run]), found[run]);
            begin = ends[run];
        }
    }
    if (all_)
        return;
    for (std::size_t i = 0; i < records_.size(); ++i)
        cells_[i] = cells_[records_[i]];
    cells_.resize(records_.size());
}

void WidePart::addCounts() {
    HashCells& hashed = found_.cells.hashed;
    for (std::size_t i = 0; i < cells_.size(); ++i) {
        const double weight =
            recordWeights_ != nullptr ? recordWeights_[all_ ? i : records_[i]] : 0;
        hashed.addTo(cells_[i], 1, {weight, 0});
    }
}

void WidePart::addTotals() {
    found_.totals.resize(found_.cells.hashed.size());
    const auto each = [&](auto use) {
        for (std::size_t i = 0; i < cells_.size(); ++i)
            use(found_.totals[cells_[i]], all_ ? i : records_[i]);
    };
    const double* weights = recordWeights_;
    if (const std::int64_t* wholes = values_.wholes()) {
        each([&](Totals& totals, std::size_t record) {
            const std::int64_t value = wholes[record];
            if (weights != nullptr)
                totals.sum.add(weights[record] * static_cast<double>(value));
            else
                totals.whole += value;
            totals.lowestWhole = std::min(totals.lowestWhole, value);
            totals.highestWhole = std::max(totals.highestWhole, value);
        });
        return;
    }
    const double* reals = values_.reals();
    each([&](Totals& totals, std::size_t record) {
        const double value = reals[record];
        totals.sum.add(weights != nullptr ? weights[record] * value : value);
        totals.lowest = std::min(totals.lowest, value);
        totals.highest = std::max(totals.highest, value);
    });
}

/// The values cell by cell, in the order of their records.
void WidePart::addCopies() {
    const std::size_t count = cells_.size();
    if (count == 0)
        return;
    counts_.resize(std::max(counts_.size(), found_.cells.hashed.size()));
    touched_.clear();
    for (const std::uint32_t cell : cells_) {
        if (counts_[cell]++ == 0)
            touched_.push_back(cell);
    }
    const auto values = std::make_shared<std::vector<double>>(form_.weighted ? 2 * count : count);
    double* const data = values->data();
    std::uint32_t begin = 0;
    for (const std::uint32_t cell : touched_) {
        const std::uint32_t own = counts_[cell];
        found_.stretches.push_back(
            {cell, {data + begin, form_.weighted ? data + count + begin : nullptr, own}});
        counts_[cell] = begin;
        begin += own;
    }
    const std::int64_t* wholes = values_.wholes();
    for (std::size_t i = 0; i < count; ++i) {
        const std::size_t record = all_ ? i : records_[i];
        const std::uint32_t place = counts_[cells_[i]]++;
        data[place] =
            wholes != nullptr ? static_cast<double>(wholes[record]) : values_.reals()[record];
        if (form_.weighted)
            data[count + place] = recordWeights_[record];
    }
    for (const std::uint32_t cell : touched_)
        counts_[cell] = 0;
    found_.owners.push_back(values);
}

} // namespace kelx::execution
