// SPDX-License-Identifier: Apache-2.0
// Reads the values that clauses of several commands have in common. False and nothing where a
// fault was reported.
#pragma once

#include "language/token_cursor.h"

#include <cstdint>
#include <optional>
#include <string>

namespace kelx::language {

/// A text in quotes, or a label; `what` tells in a message what was expected.
bool readText(TokenCursor& cursor, std::optional<std::string>& into, const char* what);
/// The number of DECIMALS, 0 to 15.
bool readDecimals(TokenCursor& cursor, std::optional<int>& into);
/// A whole number from `least` on.
std::optional<std::int64_t> readWhole(TokenCursor& cursor, std::int64_t least, const char* what);

} // namespace kelx::language
