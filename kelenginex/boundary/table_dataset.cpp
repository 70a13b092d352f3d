// SPDX-License-Identifier: Apache-2.0
#include "boundary/table_dataset.h"

#include "catalog/names.h"

#include <algorithm>
#include <cmath>
#include <optional>
#include <type_traits>

namespace kelx::boundary {

namespace {

/// What has no text is blank as a number too.
struct AsNumber {
    double operator()(std::monostate) const { return 0; }
    double operator()(std::int64_t integer) const { return static_cast<double>(integer); }
    double operator()(double real) const { return std::isfinite(real) ? real : 0; }
    double operator()(const std::string& text) const {
        return catalog::parseNumber(text).value_or(0);
    }
};

using Range = std::optional<std::pair<double, double>>;

void widen(Range& range, double number) {
    range = range ? std::pair(std::min(range->first, number), std::max(range->second, number))
                  : std::pair(number, number);
}

/// The codes of the categories that occur, without totals and markers; nothing where one of them
/// is no number.
Range rangeOfCodes(const output::Table& table, std::size_t column) {
    const output::Column& codes = table.columns[column];
    const output::Column& kinds = table.columns[column + 2];
    std::vector<bool> occurs(codes.values->size());
    for (const std::uint32_t number : *codes.numbers) {
        occurs[number] = true;
    }
    Range range;
    for (std::size_t i = 0; i < occurs.size(); ++i) {
        if (!occurs[i] || !output::toText((*kinds.values)[i]).empty()) {
            continue;
        }
        const auto code = catalog::parseNumber(output::toText((*codes.values)[i]));
        if (!code) {
            return std::nullopt;
        }
        widen(range, *code);
    }
    return range;
}

/// Of all numbers; nothing where there are none, or a text.
Range rangeOfValues(const output::Column& column) {
    Range range;
    bool numbers = true;
    const auto take = [&](const auto& value) {
        using Type = std::decay_t<decltype(value)>;
        if constexpr (std::is_same_v<Type, std::string>) {
            numbers = false;
        } else if constexpr (std::is_same_v<Type, double>) {
            if (std::isfinite(value)) {
                widen(range, value);
            }
        } else if constexpr (std::is_same_v<Type, std::int64_t>) {
            widen(range, static_cast<double>(value));
        }
    };
    for (std::size_t row = 0; numbers && row < column.rows(); ++row) {
        column.visit(row, take);
    }
    return numbers ? range : std::nullopt;
}

} // namespace

TableDataset::TableDataset(const output::Table& table) : table_(table) {
    for (const output::Field& field : table.fields) {
        fields_.push_back(std::make_shared<TKelField>(field.name, field.label, field.group));
    }
}

int TableDataset::numFields() {
    return static_cast<int>(fields_.size());
}

std::int64_t TableDataset::recCount() {
    return table_.rows();
}

std::shared_ptr<TKelField> TableDataset::field(int index) {
    return index < 0 || index >= numFields() ? nullptr : fields_[static_cast<std::size_t>(index)];
}

void TableDataset::range(std::pair<double, double>& out, int column) {
    out = {0, 0};
    const auto index = static_cast<std::size_t>(column);
    if (column >= 0 && index < 3 * table_.triples && index % 3 == 0) {
        out = rangeOfCodes(table_, index).value_or(out);
        return;
    }
    if (column >= 0 && index < fields_.size()) {
        out = rangeOfValues(table_.columns[index]).value_or(out);
    }
}

double TableDataset::doubleValue(std::int64_t row, int column) {
    const output::Column* cells = columnOf(row, column);
    return cells != nullptr ? cells->visit(static_cast<std::size_t>(row), AsNumber()) : 0;
}

std::string TableDataset::stringValue(std::int64_t row, int column) {
    const output::Column* cells = columnOf(row, column);
    return cells != nullptr ? cells->textAt(static_cast<std::size_t>(row)) : std::string();
}

TKelVariant TableDataset::value(const std::string& name) {
    if (name == "time.duration") {
        return table_.seconds;
    }
    return name == "suppressed" ? TKelVariant(table_.suppressed) : TKelVariant(std::string());
}

std::vector<std::string> TableDataset::listValueNames() const {
    return {"suppressed", "time.duration"};
}

const output::Column* TableDataset::columnOf(std::int64_t row, int column) const {
    const bool inside = row >= 0 && row < table_.rows() && column >= 0 &&
                        static_cast<std::size_t>(column) < table_.columns.size();
    return inside ? &table_.columns[static_cast<std::size_t>(column)] : nullptr;
}

} // namespace kelx::boundary
