// SPDX-License-Identifier: Apache-2.0
// Names of value types in files and on screen, and what of a dictionary goes into a file.
#pragma once

#include "catalog/model.h"

#include <optional>
#include <string>

namespace kelx::catalog {

const char* typeName(ValueType type); ///< NONE, INTEGER, REAL, STRING, BOOLEAN
std::optional<ValueType> typeFromName(const std::string& name);
/// False for what a program made without saving it: such a variable ends with its run.
bool isStored(const Variable& variable);

} // namespace kelx::catalog
