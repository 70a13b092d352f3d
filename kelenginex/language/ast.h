// SPDX-License-Identifier: Apache-2.0
// A program as it was read: structure without meaning. Names are not looked up yet.
#pragma once

#include "language/bound.h"
#include "language/keywords.h"

#include <cstddef>
#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <variant>
#include <vector>

namespace kelx::language::ast {

/// Byte offsets in the program.
struct Span {
    std::size_t begin = 0;
    std::size_t end = 0;
};

/// Entity.Variable, Entity.* or a name alone.
struct Name {
    std::string entity; ///< empty where it stands alone
    std::string name;
    bool all = false; ///< Entity.*
    Position position;
    Position namePosition; ///< of the part behind the "."
    Span span;
};

/// An interval of constants, as in IN.
struct Interval {
    language::Interval bounds;
    bool single = false; ///< one value, not two ends
    Position position;
    Span span;
};

struct Node;
using NodePtr = std::unique_ptr<Node>;

enum class NodeKind { Constant, Name, Operation, Call };

/// A part of an expression.
struct Node {
    NodeKind kind = NodeKind::Constant;
    Operation operation = Operation::Constant; ///< of an Operation
    Constant constant;
    Name name; ///< of a Name; a Call has its function's name in it
    std::string operatorText;
    std::vector<NodePtr> arguments;
    std::vector<Interval> intervals; ///< of IN
    Position position;
    Span span;
    int depth = 1;
};

struct SelectionFile {
    std::string file;
};
struct SelectionArea {
    std::string entity, code;
    std::optional<std::string> label;
    Position position;
};
using InlineSelection = std::vector<SelectionArea>;

/// RUNDEF. Only what the program says is set.
struct RunDefinition {
    std::string name;
    std::optional<std::string> title, selectionLabel, filterLabel, dictionary;
    std::variant<std::monostate, SelectionFile, InlineSelection, NodePtr> selection;
    std::optional<std::string> tableStyle, graphStyle, mapStyle;
    std::optional<Name> areaBreak; ///< an entity
    Position selectionPosition, dictionaryPosition;
    NodePtr filter, weight;
    std::optional<WeightMode> weightMode;
    std::optional<int> decimals;
    Position position;
};

/// WEIGHT as a command of its own.
struct WeightCommand {
    NodePtr weight;
};

/// TABLESTYLE of a DEFINE, which is a setting of the run.
struct StyleCommand {
    std::string file;
};

/// A value as a clause gives it: a number, TRUE or FALSE, or a text, with quotes or without.
struct Literal {
    Constant constant;
    std::string text; ///< as written, without quotes
    Position position;
};

/// v (1 : 3) (5 : 5)
struct RangedVariable {
    Name name;
    std::vector<Interval> intervals;
};

/// (a : b = value) of RECODE, CASE condition ASSIGN value of SWITCH.
struct Assignment {
    Interval interval;
    NodePtr condition;
    NodePtr value;
};

struct ValueLabel {
    Literal value;
    std::string label;
};

struct SaveFile {
    std::string file;
    bool overwrite = false;
    Position position;
};

enum class DefinitionKind {
    Expression,
    Count,
    Sum,
    Average,
    Median,
    Minimum,
    Maximum,
    Recode,
    Switch,
    Number,
    SampleRandom,
    SampleSystematic,
    Ratio,
    Fraction,
    Indicator
};

/// DEFINE.
struct Definition {
    Name name;
    DefinitionKind kind = DefinitionKind::Expression;
    std::string kindWord; ///< COUNT, MIN; empty for an expression
    Position kindPosition;
    Span kindSpan;          ///< the kind with what belongs to it
    NodePtr value;          ///< of an expression, of SUM and the like, and NUM of INDICATOR
    NodePtr denominator;    ///< of INDICATOR
    std::optional<Name> of; ///< the entity of COUNT and NUMBER, the variable of RECODE
    std::vector<Assignment> assignments;
    NodePtr otherwise;                  ///< ELSE
    std::int64_t sample = 1;            ///< of SAMPLE
    std::vector<RangedVariable> shares; ///< one of RATIO; NUM and DENOM of FRACTION

    NodePtr weight, filter;
    std::optional<ValueType> type;
    std::optional<int> decimals, sensitive;
    std::vector<Interval> ranges;
    std::optional<std::string> label, documentation, alias, group;
    std::vector<ValueLabel> valueLabels;
    std::optional<Literal> defaultValue, missing, notapp;
    std::optional<Name> like;
    std::optional<SaveFile> save;
    Position weightPosition, typePosition, aliasPosition;

    Position position;
    Span span;
    bool complete = true; ///< false where a part could not be read
};

/// What a table measures: an expression, or all variables of an entity.
struct Measure {
    NodePtr expression;
    std::optional<Name> all; ///< Entity.*
};

/// SORT. Numbers behind the column: the table's name makes the first one the number of a column.
struct Sort {
    std::string column;       ///< as written, a text without its quotes; may be empty
    std::optional<Name> name; ///< not of a text
    bool descending = false;
    std::vector<int> numbers;
    Position position;       ///< of the word
    Position columnPosition; ///< of what stands behind it
};

/// OUTFILE.
struct OutFile {
    std::string type, format; ///< in lower case; empty where not given
    std::string file;
    bool overwrite = false;
    Position position, filePosition, formatPosition;
};

constexpr int leastQuantiles = 2, mostQuantiles = 1000; ///< parts

/// A table, with or without the word TABLE.
struct Table {
    Keyword kind = Keyword::Frequency;
    std::string kindWord; ///< FREQ, CROSSTABS, COUNT
    std::string name;     ///< empty for the short form
    Position position;
    std::vector<Measure> measures; ///< of AVERAGE to GINI
    bool hasOf = false;            ///< OF stands before what the table is about
    /// The list of FREQ and CROSSTABS, empty for other kinds, then one for each BY.
    std::vector<std::vector<Name>> dimensions;
    std::optional<Name> entity; ///< of COUNT, AREALIST and VIEW
    std::vector<Name> names;    ///< columns of AREALIST and VIEW, tables of TABLIST
    NodePtr operation;          ///< of TABOP
    std::optional<int> quantiles;
    NodePtr weight, tally, filter;
    std::optional<std::string> title, tableStyle, graphStyle, mapStyle;
    std::optional<int> decimals, sensitive;
    std::optional<Sort> sort;
    std::optional<OutFile> outfile;
    std::optional<std::string> save;
    bool outgraph = false;
    bool complete = true; ///< false where a part could not be read
    Position weightPosition, tallyPosition, filterPosition, savePosition, sensitivePosition;
    Span span;
};

/// EXECUTE: a program to run as if its text stood here.
struct Execute {
    struct Value {
        std::string name, value;
        Position position;
    };
    std::string file; ///< as written
    std::vector<Value> values;
    Position position, filePosition;
};

using Command =
    std::variant<RunDefinition, WeightCommand, StyleCommand, Definition, Table, Execute>;
using Program = std::vector<Command>;

} // namespace kelx::language::ast
