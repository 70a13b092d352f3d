// SPDX-License-Identifier: Apache-2.0
// What a run adds to the dictionary.
#pragma once

#include "catalog/model.h"
#include "language/bound.h"

#include <cstddef>

namespace kelx::output {

/// The variables that a program has saved join the dictionary, each in the place of one of its name
/// where there is one; all others end with the program. Returns their number; where there are any
/// the dictionary is dirty. The run must have succeeded.
std::size_t joinSavedVariables(const language::BoundProgram& program,
                               catalog::Dictionary& dictionary);

} // namespace kelx::output
