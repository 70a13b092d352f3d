// SPDX-License-Identifier: Apache-2.0
// Which of the variables that a program makes are needed.
#pragma once

#include "language/bound.h"

namespace kelx::language {

/// Marks the definitions that a table reaches, or one that is marked, or that are saved.
void markUsed(BoundProgram& program);

} // namespace kelx::language
