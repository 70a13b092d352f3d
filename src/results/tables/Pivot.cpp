// SPDX-License-Identifier: GPL-3.0-or-later
#include "results/tables/Pivot.h"

#include "results/tables/CategoryReader.h"

#include "TKelDataset.h"

#include <algorithm>
#include <numeric>

namespace {

constexpr int fieldsOfVariable = 3;

/// The new number of each category when they stand in the order.
std::vector<std::uint32_t> placesIn(const std::vector<std::uint32_t>& order) {
    std::vector<std::uint32_t> places(order.size());
    for (std::uint32_t place = 0; place < order.size(); ++place)
        places[order[place]] = place;
    return places;
}

/// Sorts stably by small numbers, in as many steps as there are items.
template <class NumberOf>
void sortByNumber(std::vector<std::uint32_t>& items, std::size_t numbers,
                  const NumberOf& numberOf) {
    std::vector<std::uint32_t> next(numbers + 1);
    for (const std::uint32_t item : items)
        ++next[numberOf(item) + 1];
    std::partial_sum(next.begin(), next.end(), next.begin());
    std::vector<std::uint32_t> sorted(items.size());
    for (const std::uint32_t item : items)
        sorted[next[numberOf(item)]++] = item;
    items = std::move(sorted);
}

} // namespace

Pivot::Pivot(TKelDataset* data, std::size_t variables)
    : rowVariables_(variables - 1), categories_(variables) {
    if (data == nullptr)
        return;
    read(*data);
    sortCategories();
    sortStretches();
    joinStretches();
}

std::uint32_t Pivot::categoryOf(std::size_t row, std::size_t rowVariable) const {
    return keys_[order_[rowStarts_[row]] * rowVariables_ + rowVariable];
}

void Pivot::findRecords(std::size_t row, std::vector<std::uint32_t>& byColumn) const {
    byColumn.assign(columns().size(), none);
    const std::size_t end = row + 1 < rows() ? rowStarts_[row + 1] : order_.size();
    for (std::size_t i = rowStarts_[row]; i < end; ++i) {
        const std::uint32_t stretch = order_[i];
        const std::size_t last =
            stretch + 1 < firsts_.size() ? firsts_[stretch + 1] : columnOf_.size();
        for (std::uint32_t record = firsts_[stretch]; record < last; ++record)
            byColumn[columnOf_[record]] = record;
    }
}

void Pivot::read(TKelDataset& data) {
    const auto records = static_cast<std::uint32_t>(std::min<std::int64_t>(data.recCount(), none));
    std::vector<CategoryReader> readers;
    for (std::size_t variable = 0; variable <= rowVariables_; ++variable)
        readers.emplace_back(data, fieldsOfVariable * static_cast<int>(variable));
    columnOf_.reserve(records);
    std::vector<std::uint32_t> key(rowVariables_);
    for (std::uint32_t record = 0; record < records; ++record) {
        for (std::size_t variable = 0; variable < rowVariables_; ++variable)
            key[variable] = readers[variable].categoryOf(record);
        startStretch(key);
        columnOf_.push_back(readers.back().categoryOf(record));
    }
    for (std::size_t variable = 0; variable <= rowVariables_; ++variable)
        categories_[variable] = readers[variable].categories();
}

void Pivot::startStretch(const std::vector<std::uint32_t>& key) {
    if (!keys_.empty() && std::equal(key.begin(), key.end(), keys_.end() - std::ssize(key)))
        return;
    firsts_.push_back(static_cast<std::uint32_t>(columnOf_.size()));
    keys_.insert(keys_.end(), key.begin(), key.end());
}

void Pivot::sortCategories() {
    for (std::size_t variable = 0; variable <= rowVariables_; ++variable) {
        const std::vector<std::uint32_t> order = sortedOrder(categories_[variable]);
        std::vector<TableCategory> sorted;
        sorted.reserve(order.size());
        for (const std::uint32_t number : order)
            sorted.push_back(std::move(categories_[variable][number]));
        categories_[variable] = std::move(sorted);
        renumber(variable, placesIn(order));
    }
}

void Pivot::renumber(std::size_t variable, const std::vector<std::uint32_t>& numbers) {
    if (variable == rowVariables_) {
        for (std::uint32_t& column : columnOf_)
            column = numbers[column];
        return;
    }
    for (std::size_t i = variable; i < keys_.size(); i += rowVariables_)
        keys_[i] = numbers[keys_[i]];
}

/// By the first variable, then the next: sorted stably from the last one to the first.
void Pivot::sortStretches() {
    order_.resize(firsts_.size());
    std::iota(order_.begin(), order_.end(), 0U);
    for (std::size_t variable = rowVariables_; variable-- > 0;)
        sortByNumber(order_, categories_[variable].size(), [&](std::uint32_t stretch) {
            return keys_[stretch * rowVariables_ + variable];
        });
}

void Pivot::joinStretches() {
    for (std::uint32_t i = 0; i < order_.size(); ++i) {
        if (i == 0 || !haveSameKey(order_[i - 1], order_[i]))
            rowStarts_.push_back(i);
    }
}

bool Pivot::haveSameKey(std::uint32_t a, std::uint32_t b) const {
    const auto key = keys_.begin();
    const auto width = static_cast<std::ptrdiff_t>(rowVariables_);
    return std::equal(key + a * width, key + (a + 1) * width, key + b * width);
}
