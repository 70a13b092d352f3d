// SPDX-License-Identifier: Apache-2.0
// Brings the changes of an edited copy back into a dictionary.
#pragma once

#include "boundary/state.h"

namespace kelx::boundary {

/// Entities and variables are matched by name. Takes over texts, file names, roles and value
/// labels, and what is new. Of what the copy lacks only the variables of programs go away: those
/// of the original database stay.
void takeOver(TKelEntity& copyRoot, DictionaryState& state);

} // namespace kelx::boundary
