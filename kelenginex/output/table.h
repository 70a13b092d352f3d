// SPDX-License-Identifier: Apache-2.0
// A finished output: fields, rows and what is said about them.
#pragma once

#include "catalog/model.h"
#include "execution/discard.h"
#include "execution/result.h"

#include <cstddef>
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
using Value = execution::ListValue;
using execution::Figure;

/// Integers plain, doubles in shortest round-trip form in fixed notation with ".", blank empty.
std::string toText(const Value& value);

struct Field {
    std::string name, label, group;
    std::string table{}; ///< of a list: the column's table, else empty
};

/// The values of a field, in one of three ways: figures by row; values by row; or, where few values
/// repeat, each one once with the number of its value for every row. Columns share what is the
/// same.
struct Column {
    using Numbers = execution::LargeVector<std::uint32_t>;
    using Values = execution::LargeVector<Value>;
    using Figures = execution::LargeVector<Figure>;
    std::shared_ptr<const Values> values;
    std::shared_ptr<const Numbers> numbers; ///< null: values are by row
    std::shared_ptr<const Figures> figures; ///< then there are no values

    static Column of(Values byRow);
    static Column of(Values each, std::shared_ptr<const Numbers> numbers);
    static Column of(std::shared_ptr<const Figures> byRow);

    std::size_t rows() const;
    /// Calls visitor with std::monostate, std::int64_t, double or const std::string&; no copy is
    /// made.
    template <typename Visitor>
    auto visit(std::size_t row, const Visitor& visitor) const {
        if (figures)
            return std::visit(visitor, (*figures)[row]);
        return std::visit(visitor, (*values)[numbers ? (*numbers)[row] : row]);
    }
    Value at(std::size_t row) const;
    std::string textAt(std::size_t row) const; ///< toText() of the value
};

/// Fields and rows.
struct Form {
    std::vector<Field> fields;
    std::vector<Column> columns; ///< one for each field
    /// So many dimensions stand first, each with the columns code, label and kind ("", "tot", "mv"
    /// or "na").
    std::size_t triples = 0;

    std::int64_t rows() const {
        return columns.empty() ? 0 : static_cast<std::int64_t>(columns.back().rows());
    }
    Value at(std::int64_t row, std::size_t column) const {
        return columns[column].at(static_cast<std::size_t>(row));
    }
};

/// What spans a table, is measured in it, or is listed.
struct TableVariable {
    const catalog::Variable* variable = nullptr; ///< null for an expression
    const catalog::Entity* areas = nullptr;      ///< not null: the compound codes of these areas
    std::string name;                            ///< ENTITY.VARIABLE or the expression's text
    std::string label;
};

/// The area of a table that counts all records.
constexpr std::string_view wholeDatabase = "All Database";

/// The form of its own is the dataset's.
struct Table : Form {
    std::string name;        ///< of the command
    std::size_t command = 0; ///< its number in the program
    std::string kind;        ///< "FREQUENCY", "COUNT", "AREALIST" and so on
    int type = 0;            ///< eOutputType
    int method = 0;          ///< eTableMethod
    int dimension = 0;
    std::string unit;     ///< entity whose records are counted; empty where there is no one such
    std::string database; ///< label of the database, else its file name
    std::string area;     ///< selection label, else wholeDatabase, or "Several areas"
    std::optional<std::string> title, filter, weight, tally, universalFilter;
    std::optional<int> decimals;
    /// As it was done: the field that was sorted by where the program names none or one by number.
    std::optional<language::SortClause> sort;
    std::int64_t suppressed = 0;
    const catalog::Entity* entity = nullptr; ///< listed, or of COUNT
    std::vector<TableVariable> variables;
    std::optional<Form> inTriples; ///< not set: the dataset has triples, or there is no dimension
    double seconds = 0;            ///< its share of the run

    const Form& tripleForm() const { return inTriples ? *inTriples : *this; }
};

/// Takes the parts of a text, one after the other.
using TextSink = std::function<void(std::string_view part)>;

/// One JSON object, UTF-8, one line; dimensions in triples.
void writeJson(const Table& table, const TextSink& sink);
/// Header and rows of the dataset as RFC 4180 CSV.
void writeCsv(const Table& table, const TextSink& sink);
/// A readable table: title, unit, weight and filter, then aligned columns; for two dimensions a
/// cross table. Figures have the table's decimals, else at most six.
void writeText(const Table& table, const TextSink& sink);

// The same as one text.
std::string asJson(const Table& table);
std::string asCsv(const Table& table);
std::string asText(const Table& table);

} // namespace kelx::output
