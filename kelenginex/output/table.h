// SPDX-License-Identifier: Apache-2.0
// A finished output: fields, rows and what is said about them.
#pragma once

#include "catalog/model.h"
#include "execution/progress.h"
#include "execution/result.h"

#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
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

/// The values of a field: one a row, or, where few values repeat, each one once with the number of
/// its value for every row. Fields may share those numbers.
struct Column {
    using Numbers = std::vector<std::uint32_t>;
    std::vector<Value> values;
    std::shared_ptr<const Numbers> numbers; ///< null: values are by row

    std::size_t rows() const { return numbers ? numbers->size() : values.size(); }
    const Value& at(std::size_t row) const { return values[numbers ? (*numbers)[row] : row]; }
};

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
    std::vector<Column> columns; ///< one for each field
    double seconds = 0;          ///< its share of the run

    std::int64_t rows() const {
        return columns.empty() ? 0 : static_cast<std::int64_t>(columns.back().rows());
    }
    const Value& at(std::int64_t row, std::size_t column) const {
        return columns[column].at(static_cast<std::size_t>(row));
    }
};

/// Lays out a result: for each dimension the triple code, label, kind, then the value. Totals count
/// valid categories only; MV and NA rows stand where they occur; empty combinations are left out.
/// Memory grows with the rows that there are to be. Throws std::runtime_error where they would be
/// more than execution::mostRows, and execution::Cancelled.
Table makeTable(const execution::TableResult& result, const catalog::Dictionary& dictionary,
                execution::Progress& progress);

/// Takes the parts of a text, one after the other.
using TextSink = std::function<void(std::string_view part)>;

/// One JSON object, UTF-8, one line.
void writeJson(const Table& table, const TextSink& sink);
/// Header and rows as RFC 4180 CSV.
void writeCsv(const Table& table, const TextSink& sink);
/// A readable table: title, unit, weight and filter, then aligned columns; for two dimensions a
/// cross table. Figures have the table's decimals, else at most six.
void writeText(const Table& table, const TextSink& sink);

// The same as one text.
std::string asJson(const Table& table);
std::string asCsv(const Table& table);
std::string asText(const Table& table);

} // namespace kelx::output
