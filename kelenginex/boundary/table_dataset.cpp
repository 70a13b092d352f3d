// SPDX-License-Identifier: Apache-2.0
#include "boundary/table_dataset.h"

#include "boundary/variants.h"
#include "catalog/names.h"

#include <algorithm>
#include <optional>

namespace kelx::boundary {

namespace {

std::optional<double> asNumber(const output::Value& value) {
    if (const auto* integer = std::get_if<std::int64_t>(&value)) {
        return static_cast<double>(*integer);
    }
    if (const auto* real = std::get_if<double>(&value)) {
        return *real;
    }
    return std::nullopt;
}

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
    Range found;
    for (std::int64_t row = 0; row < table_.rows(); ++row) {
        const output::Value value = at(row, column);
        if (std::holds_alternative<std::string>(value)) {
            return;
        }
        if (const auto number = asNumber(value)) {
            widen(found, *number);
        }
    }
    out = found.value_or(out);
}

double TableDataset::doubleValue(std::int64_t row, int column) {
    const output::Value value = at(row, column);
    if (const auto* text = std::get_if<std::string>(&value)) {
        return toDouble(*text);
    }
    return asNumber(value).value_or(0);
}

std::string TableDataset::stringValue(std::int64_t row, int column) {
    return output::toText(at(row, column));
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

output::Value TableDataset::at(std::int64_t row, int column) const {
    const bool inside = row >= 0 && row < table_.rows() && column >= 0 &&
                        static_cast<std::size_t>(column) < table_.fields.size();
    return inside ? table_.at(row, static_cast<std::size_t>(column)) : output::Value();
}

} // namespace kelx::boundary
