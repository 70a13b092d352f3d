// SPDX-License-Identifier: Apache-2.0
// Comparisons of a coded variable with constants, as intervals of the codes that pass.
#pragma once

#include "language/bound.h"
#include "storage/column.h"

#include <cstdint>
#include <optional>
#include <vector>

namespace kelx::execution {

/// Codes first to last, both included. Blanks are in none.
struct CodeInterval {
    std::uint64_t first = 0;
    std::uint64_t last = 0;
};
using CodeIntervals = std::vector<CodeInterval>;

/// The codes of a column that pass `code operation constant`; nothing where the operation or the
/// types are no case for codes (reals, texts against numbers).
std::optional<CodeIntervals> intervalsFor(const storage::Column& column,
                                          language::Operation operation,
                                          const language::Constant& constant);
/// In ascending order, apart from each other.
CodeIntervals joined(CodeIntervals intervals);
/// The same as above for IN.
std::optional<CodeIntervals> intervalsFor(const storage::Column& column,
                                          const std::vector<language::Interval>& intervals);
/// A condition that compares a coded variable with constants.
struct CodeTest {
    const language::Variable* variable = nullptr;
    CodeIntervals intervals; ///< of the codes that pass
};
/// Nothing where the expression is no such condition.
std::optional<CodeTest> codeTestOf(const language::Expression& expression);
/// a < b as b > a, and so on; Equal and NotEqual stay.
language::Operation mirrored(language::Operation operation);

} // namespace kelx::execution
