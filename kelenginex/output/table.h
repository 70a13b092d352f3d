// SPDX-License-Identifier: Apache-2.0
// A finished output: fields, rows and what is said about them.
#pragma once

#include "catalog/model.h"
#include "execution/result.h"

#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <utility>
#include <variant>
#include <vector>

namespace kelx::output {

/// A blank cell is std::monostate.
using Value = std::variant<std::monostate, std::int64_t, double, std::string>;

/// Integers plain, doubles in shortest round-trip form in fixed notation with ".", blank empty.
std::string toText(const Value& value);

struct Field {
    std::string name, label, group;
};

/// Rows in row-major order.
struct Table {
    std::string name; ///< of the command
    std::string kind; ///< "FREQUENCY", "COUNT"
    int type = 0;     ///< eOutputType
    int method = 0;   ///< eTableMethod
    int dimension = 0;
    std::string unit;     ///< entity whose records are counted
    std::string database; ///< label of the database, else its file name
    std::string area;     ///< selection label, else "All Database"
    std::optional<std::string> title, filter, weight, tally, universalFilter;
    std::optional<int> decimals;
    std::int64_t suppressed = 0;
    const catalog::Entity* entity = nullptr; ///< of COUNT
    std::vector<const catalog::Variable*> variables;
    std::vector<Field> fields;
    std::vector<Value> cells;
    double seconds = 0;

    std::int64_t rows() const {
        return fields.empty() ? 0 : static_cast<std::int64_t>(cells.size() / fields.size());
    }
    const Value& at(std::int64_t row, std::size_t column) const {
        return cells[static_cast<std::size_t>(row) * fields.size() + column];
    }
};

/// Lays out a result: for each dimension the triple code, label, kind, then the value. Totals count
/// valid categories only; MV and NA rows stand where they occur; empty combinations are left out.
Table makeTable(const execution::TableResult& result, const catalog::Dictionary& dictionary);

/// One JSON object, UTF-8, one line.
std::string asJson(const Table& table);
/// Header and rows as RFC 4180 CSV.
std::string asCsv(const Table& table);
/// A readable table: title, unit, weight and filter, then aligned columns; for two dimensions a
/// cross table.
std::string asText(const Table& table);

} // namespace kelx::output
