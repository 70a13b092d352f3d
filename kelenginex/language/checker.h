// SPDX-License-Identifier: Apache-2.0
// Checks the commands of a program and binds them to the dictionary.
#pragma once

#include "language/ast.h"
#include "language/checker_context.h"

namespace kelx::language {

BoundProgram check(const ast::Program& program, CheckerContext& context);

} // namespace kelx::language
