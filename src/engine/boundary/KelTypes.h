// SPDX-License-Identifier: Apache-2.0
// Enumerations and plain records that cross the engine boundary.
#pragma once

#include "KelExport.h"

#include <cstdint>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <utility>
#include <variant>
#include <vector>

/// Type of a variable's values. The enumerators' names are also the display texts.
enum class eVarType : int { NONE = 0, INTEGER = 1, REAL = 2, STRING = 3, BOOLEAN = 4 };

/// State word of a variable, carried for the engine and opaque to its users.
enum class eVarState : int { NONE = 0, LOADED = 1 };

/// Shape of a result.
enum class eOutputType : int { TABLE = 0, AREALIST = 1, TABLIST = 2, TABOP = 3 };

/// What an ordinary table shows in its cells.
enum class eTableMethod : int {
    NONE = 0,
    FREQUENCY = 1,
    AVERAGE = 2,
    MAXIMUM = 3,
    MEDIAN = 4,
    MINIMUM = 5,
    SUM = 6,
    STATS = 7,
    GINI = 8,
    QUANTILE = 9
};

/// Numeric codes of messages; kel::errorCodeName and kel::warningCodeName give their names.
enum class eSpcErrors : std::int32_t {};
enum class eSpcWarnings : std::int32_t {};

/// A dataset cell.
using TKelVariant = std::variant<std::int64_t, double, std::string>;

/// Value labels in the order of their values.
using TKelValueLabels = std::map<std::string, std::string>;

/// Reserved for the engine; callers pass a null pointer.
struct _validation_context; // NOLINT(bugprone-reserved-identifier): the boundary's name

/// Progress of a list of programs, handed to the callback of TKelExecute.
struct TKelExecuteCallbackInfo {
    int percent = 0;          ///< 0 to 100 within the current program
    std::string programName;  ///< program being run
    std::int64_t current = 0; ///< its zero-based number
    std::int64_t total = 0;   ///< number of programs in the run
};

/// How an output is sorted.
struct KEL_EXPORT TKelOutputSortConfig {
    /// Direction of the sort; any other value counts as descending.
    enum class Order : int { DESCENDING = 0, ASCENDING = 1 };

    TKelOutputSortConfig();
    TKelOutputSortConfig(const TKelOutputSortConfig& other);
    TKelOutputSortConfig& operator=(const TKelOutputSortConfig& other);
    ~TKelOutputSortConfig();

    std::string variable;
    std::optional<int> limit;
    Order order = Order::ASCENDING;
};

/// What a program asked for beside the figures of an output.
struct TKelOutputConfig {
    std::optional<std::string> title;
    std::optional<std::string> filter; ///< the table's own filter, as written
    std::optional<std::string> style;  ///< path of a table style file
    std::string outputFile;            ///< path that the result goes to, empty for none
    int format = 0;                    ///< 3 xlsx, 10 pdf, any other value csv
    int formatFlavour = 0;             ///< 2: sheets are appended to an existing workbook
    bool direct = false;               ///< goes straight to the file and is not shown
    int weightKind = 0;                ///< 2 tally, anything else weight
    std::optional<std::string> weightVariable;
    std::optional<TKelOutputSortConfig> sort;

    // Additions of this engine.
    std::optional<int> decimals; ///< digits to show; the data stay unrounded
};

/// One area of a childAreaCodes answer.
struct AreaCodeRecord {
    std::string code; ///< own code, with its leading zeros
    std::string label;
};

/// Number of records of an entity under an area; saturates at the largest value.
struct EntityAreaCount {
    std::string entity;
    std::int32_t count = 0;
};

/// A value range of a variable: kind 1 to 10 as in dictionary files, 4 being closed at both ends.
struct TKelRange {
    int kind = 4;
    double minimum = 0;
    double maximum = 0;
};
