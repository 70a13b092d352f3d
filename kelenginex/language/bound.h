// SPDX-License-Identifier: Apache-2.0
// A checked program: names resolved, types known, nothing left to doubt. What the planner reads.
#pragma once

#include "catalog/model.h"
#include "language/messages.h"

#include <cstdint>
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
    Function ///< a function of the table; the name is in `function`
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
        std::string code; ///< compound code
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

enum class TableKind { Frequency, Count };

/// One table to make.
struct TableCommand {
    std::string name; ///< as written, or kind and number ("FREQ_1")
    TableKind kind = TableKind::Frequency;
    Position position;
    std::shared_ptr<const RunSettings> settings; ///< never null
    std::vector<ExpressionPtr> dimensions;       ///< of Frequency: variable expressions
    const Entity* countEntity = nullptr;         ///< of Count
    /// The entity whose records are counted: the lowest among dimensions, weight and tally.
    const Entity* unit = nullptr;
    ExpressionPtr filter; ///< the table's own
    ExpressionPtr weight; ///< in force: own, RUNDEF's or automatic; null for none
    ExpressionPtr tally;
    std::optional<std::string> title;
    std::optional<int> decimals;
    std::string text; ///< the command as written
};

/// What a program asks for, in order. Expressions point into the dictionary, which must outlive it.
struct BoundProgram {
    std::vector<TableCommand> tables;
    std::shared_ptr<const RunSettings> lastSettings; ///< never null
};

} // namespace kelx::language
