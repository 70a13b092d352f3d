// SPDX-License-Identifier: Apache-2.0
// Reads EXECUTE "program" name = {value}, ...
#pragma once

#include "language/ast.h"
#include "language/token_cursor.h"

#include <optional>

namespace kelx::language {

/// Nothing where a fault was reported.
std::optional<ast::Execute> parseExecute(TokenCursor& cursor);

} // namespace kelx::language
