// SPDX-License-Identifier: Apache-2.0
// What a run adds to the dictionary.
#pragma once

#include "catalog/model.h"
#include "language/bound.h"

#include <cstddef>

namespace kelx::output {

/// The variables that a program has saved join the dictionary, each in the place of one of its name
/// where there is one; all others end with the program. Returns their number; where there are any
/// the dictionary is dirty. It is the one that the program was compiled with, or the same as others
/// have changed it meanwhile: throws storage::FileError where it lacks an entity by now or has
/// another number of its records, or has other data in a file that was saved.
std::size_t joinSavedVariables(const language::BoundProgram& program,
                               catalog::Dictionary& dictionary);
/// The same for those alone whose file the dictionary names as their data already.
std::size_t joinReplacedVariables(const language::BoundProgram& program,
                                  catalog::Dictionary& dictionary);
bool savesVariables(const language::BoundProgram& program);

} // namespace kelx::output
