// SPDX-License-Identifier: Apache-2.0
// Every message of the command language: its code, its symbolic name, its text and what it means.
// Checker, help and documentation read the same table.
#pragma once

#include "language/messages.h"

#include <initializer_list>
#include <string>
#include <vector>

namespace kelx::language {

/// Codes of errors. The numbers are part of the interface: new ones go to the end.
enum class Error : int {
    More = 1,
    NotUtf8,
    ProgramTooLarge,
    UnterminatedString,
    UnterminatedComment,
    UnterminatedBrace,
    UnknownCharacter,
    BadNumber,
    NumberTooLarge,
    Unexpected,
    TooDeep,
    MisplacedClause,
    RepeatedClause,
    BadDecimals = 15, ///< 14 is no more
    UnknownEntity,
    UnknownVariable,
    AmbiguousName,
    EntityNotVariable,
    UnknownFunction,
    ArgumentCount,
    ArgumentType,
    OperandType,
    CompareTypes,
    NotACondition,
    NotANumber,
    Branches,
    FilterBranch,
    NoCode,
    NoVariables,
    DataFileMissing,
    DataFileDamaged,
    TooManyTables,
    CrosstabsWithoutBy,
    SelectionFile,
    WeightBelow,
    SelfReference,
    BelowEntity,
    NotBelow,
    AggregateBranch,
    NumberEntity,
    MixedValues,
    TypeConversion,
    ClauseValue,
    BadAlias,
    SaveExists,
    SaveTwice,
    ProgramFile,
    ProgramCycle,
    CallsTooDeep,
    TooManyCalls,
    UnknownValue,
    BadCount,
    NothingCounted,
    UnknownTable,
    ColumnBelow,
    TableColumn,
    TableOperand,
    TableOperator,
    TableShapes,
    TablistTable,
    SortColumn,
    TargetFile,
    OutfileWorkbench,
    WrongQuotes,
    WrongSign,
    RealTooLarge,
    ValuesTooLong,
    UnknownColumn,
    TooManyColumns,
    TooManyDimensions,
    TooMuchText,
    WeightIsText,
    AreaBreakBranch,
};

/// Codes of warnings; the same rule.
enum class Warning : int {
    More = 1,
    FilterBelow,
    SelectionBelow,
    EmptyInterval,
    TableNameAgain,
    UnknownArea,
    OtherDictionary,
    OpenSelection,
    WeightIgnored,
    UnusedValue,
    NoEffect,
    ColumnTwice,
    SortCrosstab,
    OutfileType,
    OutfileFormat,
    OutfileFolder,
    SavedAsNumbers,
    ColumnOfOtherRun,
    GivenTwice,
};

/// A line of the table.
struct MessageEntry {
    Severity severity = Severity::Error;
    int code = 0;
    const char* name = "";          ///< KEL_E_UNKNOWN_VARIABLE
    const char* pattern = "";       ///< %1, %2, %3 are replaced
    const char* documentation = ""; ///< one line for the reference
};

const std::vector<MessageEntry>& messageTable(); ///< errors by code, then warnings by code
const MessageEntry* findMessage(Severity severity, int code); ///< null where there is none
/// KEL_E_UNKNOWN_VARIABLE and the like; empty for a code that the table lacks.
const char* codeName(Severity severity, int code);

/// A message with its pattern filled in.
Message makeMessage(Error code, Position position, std::initializer_list<std::string> values = {});
Message makeMessage(Warning code, Position position,
                    std::initializer_list<std::string> values = {});

} // namespace kelx::language
