// SPDX-License-Identifier: Apache-2.0
// Reads the commands of a program. After a fault it goes on at the next clause or command.
#pragma once

#include "language/ast.h"
#include "language/lexer.h"

#include <string_view>
#include <vector>

namespace kelx::language {

/// Faults go to messages; a command with a fault holds what could be read.
ast::Program parse(const std::vector<Token>& tokens, Messages& messages);

} // namespace kelx::language
