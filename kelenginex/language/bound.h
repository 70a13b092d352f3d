// SPDX-License-Identifier: Apache-2.0
// A checked program: names resolved, types known, nothing left to doubt. What the planner reads.
#pragma once

#include "catalog/model.h"
#include "language/messages.h"

#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <memory>
#include <optional>
#include <string>
#include <utility>
#include <variant>
#include <vector>

namespace kelx::language {

using catalog::Entity;
using catalog::ValueType;
using catalog::Variable;

/// What an expression node does with its arguments.
enum class Operation {
    Constant,
    VariableValue, ///< the stored code of a variable
    CompoundCode,  ///< codes from the top down to entity `codeEntity`, joined
    And,
    Or,
    Not,
    Equal,
    NotEqual,
    Less,
    LessEqual,
    Greater,
    GreaterEqual,
    In, ///< argument 0 within one of the intervals
    Add,
    Subtract,
    Multiply,
    Divide,
    Negate,
    Function, ///< a function of the table; the name is in `function`
    /// Argument 0 is tested; argument 1 + i is the value of the i-th of `intervals`, of which the
    /// first that holds the stored code counts; one more argument, where there is one, is ELSE's.
    Recode,
    Switch,           ///< condition, value, condition, value, ...; a last single argument is ELSE's
    Number,           ///< 1-based position of the record inside its ancestor of `codeEntity`
    SampleRandom,     ///< 1 to argument 0, a constant; the same for a record at every run
    SampleSystematic, ///< true for each record whose 1-based number argument 0 divides
    RecordNumber,     ///< number of the ancestor of `codeEntity`, from 0
    TableFigure       ///< of TABOP: the figure of table number `table` of the program
};

using Constant = std::variant<std::int64_t, double, std::string, bool>;

/// An interval of IN, RECODE and the like, both ends included; an open end is a null.
struct Interval {
    std::optional<Constant> low, high;
};

/// A typed expression.
struct Expression {
    Operation operation = Operation::Constant;
    ValueType type = ValueType::None;
    /// The lowest entity that it names; null for a constant expression.
    const Entity* entity = nullptr;
    Constant constant{};
    const Variable* variable = nullptr;
    const Entity* codeEntity = nullptr;
    std::string function;
    std::size_t table = 0;
    std::vector<Interval> intervals;
    std::vector<std::unique_ptr<Expression>> arguments;
    Position position;
    std::string text; ///< as written, blanks simplified
};
using ExpressionPtr = std::shared_ptr<const Expression>;

/// The areas of a run: records with one of these compound codes above or at them.
struct AreaSelection {
    struct Area {
        const Entity* entity = nullptr;
        std::string code;  ///< compound code
        Position position; ///< where it is listed
    };
    std::vector<Area> areas;  ///< none: all, unless expression is set
    ExpressionPtr expression; ///< of SELECTION expression
    std::string label;        ///< for display
};

enum class WeightMode { Automatic, None, Explicit };

/// RUNDEF: what holds for every command from there on.
struct RunSettings {
    std::string name;
    std::optional<std::string> title;
    std::optional<AreaSelection> selection;
    ExpressionPtr filter;                          ///< universal filter
    std::optional<std::string> filterLabel;        ///< shown instead of the expression
    WeightMode weightMode = WeightMode::Automatic; ///< already resolved against the configuration
    ExpressionPtr weight;
    std::optional<int> decimals;
    const Entity* areaBreak = nullptr;
    std::optional<std::string> tableStyle, graphStyle, mapStyle;
};

/// What DEFINE takes from the records under each record of its entity.
struct Aggregate {
    enum class Kind { Count, Sum, Average, Median, Minimum, Maximum };
    Kind kind = Kind::Count;
    const Entity* over = nullptr; ///< whose records are gone over; below the variable's entity
    ExpressionPtr value;          ///< of `over` or above; null for Count
    ExpressionPtr weight;         ///< the same
    std::shared_ptr<const AreaSelection> areas; ///< that its records lie in; null: all
    /// All must hold. One on an entity below `over` keeps records that have a passing one.
    std::vector<ExpressionPtr> filters;
};

/// SAVE of DEFINE.
struct SaveClause {
    std::filesystem::path file; ///< absolute
    std::string fileName;       ///< as the dictionary is to name it
    bool overwrite = false;
    Position position;
};

/// A variable that the program makes. Its values are `value`, or `numerator`, or the quotient of
/// both aggregates (MV where the denominator is 0 or none). A value outside the variable's ranges
/// becomes MV. MV and NA are stored as the variable's codes for them where it has such, else as
/// what no comparison finds.
struct Definition {
    /// Belongs to the entity but is not among its variables. Its column is there once
    /// execution::makeVariables() has made it.
    std::shared_ptr<Variable> variable;
    ExpressionPtr value; ///< of the variable's entity or above
    std::optional<Aggregate> numerator, denominator;
    std::vector<ExpressionPtr> filters; ///< of a `value`: where one fails, `otherwise` stands
    std::optional<Constant> otherwise;  ///< DEFAULT, also where nothing is chosen; none: MV
    std::optional<SaveClause> save;
    std::shared_ptr<const RunSettings> settings; ///< in force where it stands
    Position position;
    std::string text;  ///< the command as written
    bool used = false; ///< by a table, by a variable that is used, or because it is saved
};

enum class TableKind {
    Frequency,
    Count,
    Average,
    Sum,
    Minimum,
    Maximum,
    Median,
    Quantile,
    Stats,
    Gini,
    AreaList,
    View,
    Tabop,
    Tablist
};

/// A column of an area list or a view: a variable, or the columns of a table.
struct ListColumn {
    ExpressionPtr variable;
    /// Number in the program of the hidden table that has the list's RecordNumber as its first
    /// dimension and otherwise is the table that was named.
    std::optional<std::size_t> table;
    Position position;
};

struct SortClause {
    /// As written: a variable, a table's name, or a field; empty where the program names none.
    std::string column;
    /// Behind the name of a table that is a column: which of its columns, from 1.
    std::optional<int> element;
    bool descending = false;
    std::optional<int> limit; ///< rows to keep; not set for 0
    Position position;        ///< of the column
};

/// OUTFILE, for the formats that others write than the engine.
struct OutputFile {
    enum class Format { Csv, Xlsx, Pdf };
    std::string path; ///< absolute
    Format format = Format::Csv;
    bool overwrite = false;
    Position position;
};

/// One table to make.
struct TableCommand {
    std::string name; ///< as written, or kind and number ("FREQ_1")
    TableKind kind = TableKind::Frequency;
    Position position;
    std::shared_ptr<const RunSettings> settings; ///< never null
    /// Variables of tables and measures; the BY variables of a measure. A hidden table of an area
    /// list has a RecordNumber before them.
    std::vector<ExpressionPtr> dimensions;
    ExpressionPtr measure; ///< of Average to Gini
    int quantiles = 4;     ///< of Quantile: parts
    /// Of Count: counted; of AreaList and View: listed.
    const Entity* countEntity = nullptr;
    std::vector<ListColumn> columns;   ///< of AreaList and View
    std::vector<std::size_t> operands; ///< tables of Tabop and Tablist; they come earlier
    ExpressionPtr operation;           ///< of Tabop
    /// The entity whose records are counted: the lowest among dimensions, area break, measure,
    /// weight and tally; the listed one; null for Tabop and Tablist.
    const Entity* unit = nullptr;
    ExpressionPtr filter; ///< the table's own
    ExpressionPtr weight; ///< in force: own, RUNDEF's or automatic; null for none
    ExpressionPtr tally;
    std::optional<std::string> title;
    std::optional<int> decimals;
    std::optional<SortClause> sort;
    std::optional<OutputFile> outfile;
    /// Files that the engine writes the table to as JSON: of SAVE and of OUTFILE JSON. Absolute.
    std::vector<std::string> jsonFiles;
    /// Cells of fewer records are hidden: the largest of the clause's number and the variables'.
    std::optional<int> sensitive;
    std::optional<std::string> tableStyle, graphStyle, mapStyle; ///< own or the run's; absolute
    bool isOutput = true;  ///< false: made only for another table's sake
    bool isHidden = false; ///< of an area list: no AREABREAK, no output of its own
    bool isNeeded = true;  ///< false: neither an output nor read by another table
    std::string text;      ///< the command as written
};

/// The areas that break the table down before its own variables; null for none.
inline const Entity* areaBreakOf(const TableCommand& command) {
    const bool canBreak = command.kind == TableKind::Frequency ||
                          (command.kind >= TableKind::Average && command.kind <= TableKind::Gini);
    return canBreak && !command.isHidden ? command.settings->areaBreak : nullptr;
}

/// What a program asks for, in order. Expressions point into the dictionary, which must outlive it.
struct BoundProgram {
    /// In order; a value may use those before. Variables are shared with who shows them.
    std::vector<Definition> definitions;
    std::vector<TableCommand> tables;
    std::shared_ptr<const RunSettings> lastSettings; ///< never null
};

} // namespace kelx::language
